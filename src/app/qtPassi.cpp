#include "app/qtPassi.h"

#include <QList>

namespace parvik {
namespace {

/// The keys of undo and redo on every system, beside those that it has itself.
QList<QKeySequence> TastiSempreValidi(QKeySequence::StandardKey tasti) {
  if (tasti == QKeySequence::Undo) return {QKeySequence(Qt::CTRL | Qt::Key_Z)};
  return {QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)};
}

QList<QKeySequence> TuttiITasti(QKeySequence::StandardKey tasti) {
  QList<QKeySequence> tutti = QKeySequence::keyBindings(tasti);
  for (const QKeySequence& altro : TastiSempreValidi(tasti))
    if (!tutti.contains(altro)) tutti += altro;
  return tutti;
}

}  // namespace

qtPassi::qtPassi(QWidget* finestra) : QObject(finestra) {
  connect(CreaAzione(QKeySequence::Undo, "mnuAnnulla", *finestra), &QAction::triggered, this,
          &qtPassi::DaAnnullare);
  connect(CreaAzione(QKeySequence::Redo, "mnuRipeti", *finestra), &QAction::triggered, this,
          &qtPassi::DaRipetere);
}

QAction* qtPassi::CreaAzione(QKeySequence::StandardKey tasti, const char* nome, QWidget& finestra) {
  auto* azione = new QAction(this);
  azione->setObjectName(nome);
  azione->setShortcuts(TuttiITasti(tasti));
  finestra.addAction(azione);
  return azione;
}

}  // namespace parvik
