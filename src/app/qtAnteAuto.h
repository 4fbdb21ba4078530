// The preview pane kept beside the sections: rendered anew by itself where that is wanted, and marked at what
// stands at the caret. Both wait until all keys that have come are handled (docs/anteprima.md).
#pragma once

#include <QBasicTimer>
#include <QObject>

#include "common/qtFilo.h"
#include "editor/Editore.h"
#include "output/ricAnte.h"

namespace parvik {

class qtAnteAuto final : public QObject {
 public:
  /// Both must outlive it.
  qtAnteAuto(Editore& editore, ricAnte& pannello);
  qtAnteAuto(const qtAnteAuto&) = delete;
  qtAnteAuto& operator=(const qtAnteAuto&) = delete;
  ~qtAnteAuto() override;

  /// Something may have changed: texts, settings, a caret. Nothing happens before the caller has returned.
  void Segui();
  /// Marks what stands at the caret, now.
  void Segna();
  /// Shows in the pane what stands at the caret.
  void VaiAnte();

  /// A command renders the preview itself meanwhile: what is under way has ended when this returns.
  void Sospendi();
  void Riprendi();

 protected:
  void timerEvent(QTimerEvent* evento) override;
  void customEvent(QEvent* evento) override;

 private:
  void Rinnova();

  Editore& editore_;
  ricAnte& pannello_;
  QBasicTimer attesa_;
  bool sospesa_ = false;
  qtFilo<LavoroAnteprima::Fatto> filo_;
};

}  // namespace parvik
