#include "template/txtFette.h"

#include <QElapsedTimer>
#include <QPlainTextEdit>
#include <QTextBlock>

#include "template/qtColori.h"

namespace parvik {
namespace {

/// In milliseconds: a frame has time for it.
constexpr int Fetta = 6;

}  // namespace

txtFette::txtFette(QPlainTextEdit& editor, qtColori& colori)
    : QObject(&editor), editor_(editor), colori_(colori) {}

void txtFette::Comincia() {
  prossima_ = 0;
  orologio_.start(0, this);
  PrimaCioCheSiVede();
}

void txtFette::PrimaCioCheSiVede() {
  if (!AlLavoro() || !editor_.isVisible()) return;
  const QRect vista = editor_.viewport()->rect();
  const int prima = editor_.cursorForPosition(vista.topLeft()).blockNumber();
  const int ultima = editor_.cursorForPosition(vista.bottomLeft()).blockNumber();
  for (int riga = prima; riga <= ultima; ++riga) colori_.ColoraDa(riga);
}

void txtFette::timerEvent(QTimerEvent* /*evento*/) {
  QElapsedTimer tempo;
  tempo.start();
  const int righe = editor_.document()->blockCount();
  while (prossima_ < righe && tempo.elapsed() < Fetta) colori_.ColoraDa(prossima_++);
  if (prossima_ >= righe) orologio_.stop();
}

}  // namespace parvik
