// Keys in an editor, and how long each takes until it is painted.
#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <chrono>
#include <memory>
#include <vector>

#include "finestre/Banco.h"

namespace parvik::bench {

/// Whether something was painted since.
class Sentinella final : public QObject {
 public:
  explicit Sentinella(QWidget* osservato) { osservato->installEventFilter(this); }
  bool Dipinto = false;

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override {
    if (evento->type() == QEvent::Paint) Dipinto = true;
    return QObject::eventFilter(oggetto, evento);
  }
};

/// One editor, its caret, and how long its keys took.
class Battitura {
 public:
  /// Also until `altro` has painted, if there is one.
  explicit Battitura(QPlainTextEdit& editor, QWidget* altro = nullptr)
      : editor_(editor), sentinella_(editor.viewport()) {
    if (altro != nullptr) altra_ = std::make_unique<Sentinella>(altro);
    QTextCursor mezzo(editor.document()->findBlockByNumber(editor.blockCount() / 2));
    editor.setTextCursor(mezzo);
    editor.centerCursor();
    Svuota();
  }

  [[gnu::noinline]] void Premi(int volta) {
    if (volta % TastiPerRiga == 0) {
      editor_.moveCursor(volta % (8 * TastiPerRiga) == 0 ? QTextCursor::PreviousBlock
                                                         : QTextCursor::NextBlock);
      Svuota();
    }
    sentinella_.Dipinto = false;
    if (altra_) altra_->Dipinto = false;
    QKeyEvent giu(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
    const auto inizio = Orologio::now();
    QCoreApplication::sendEvent(&editor_, &giu);
    while (!sentinella_.Dipinto) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    tempi_.push_back(Millisecondi(inizio));
    while (altra_ && !altra_->Dipinto) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    tempiAltro_.push_back(Millisecondi(inizio));
    QKeyEvent su(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier, "a");
    QCoreApplication::sendEvent(&editor_, &su);
    Svuota();
  }

  double Quantile(double parte) const { return bench::Quantile(tempi_, parte); }
  /// Until both had painted.
  double QuantileAltro(double parte) const { return bench::Quantile(tempiAltro_, parte); }

 private:
  using Orologio = std::chrono::steady_clock;
  static constexpr int TastiPerRiga = 5;  // then a line further down

  static double Millisecondi(Orologio::time_point inizio) {
    return std::chrono::duration<double, std::milli>(Orologio::now() - inizio).count();
  }

  QPlainTextEdit& editor_;
  Sentinella sentinella_;
  std::unique_ptr<Sentinella> altra_;
  std::vector<double> tempi_;
  std::vector<double> tempiAltro_;
};

}  // namespace parvik::bench
