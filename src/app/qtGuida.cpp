#include "app/qtGuida.h"

#include <QApplication>
#include <QChildEvent>
#include <QDir>
#include <QShortcut>
#include <utility>

#include "app/qtPagineGuida.h"
#include "start/CartelleProgramma.h"

namespace parvik {

qtGuida::qtGuida(std::filesystem::path dirProgramma, const qtMenu& menu, QWidget& finestra)
    : QObject(&finestra), dirProgramma_(std::move(dirProgramma)), menu_(menu), finestra_(finestra) {
  finestra.installEventFilter(this);
}

void qtGuida::Apri() {
  QWidget* const fuoco = QApplication::focusWidget();
  QWidget* const modale = QApplication::activeModalWidget();
  QWidget* const davanti = modale != nullptr ? modale : &finestra_;
  if (guida_ == nullptr) {
    const QDir manuale(QString::fromStdString(DirManuale(dirProgramma_).string()));
    guida_ = new frmGuida(manuale, menu_, davanti);
  }
  if (guida_->parentWidget() != davanti) guida_->setParent(davanti, guida_->windowFlags());
  guida_->Apri(PaginaPer(fuoco != nullptr ? fuoco : davanti));
}

/// The menu's key does not reach the dialogs. Each that is first shown, on the main window or on one of them,
/// gets one of its own; the key goes the way of all keys, and is none before the dialog can be seen.
bool qtGuida::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() != QEvent::ChildPolished) return QObject::eventFilter(oggetto, evento);
  auto* dialogo = qobject_cast<QDialog*>(static_cast<QChildEvent*>(evento)->child());
  if (dialogo == nullptr) return false;
  dialogo->installEventFilter(this);
  auto* tasto = new QShortcut(QKeySequence(Qt::Key_F1), dialogo);
  tasto->setAutoRepeat(false);
  connect(tasto, &QShortcut::activated, this, &qtGuida::Apri);
  return false;
}

}  // namespace parvik
