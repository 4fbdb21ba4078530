// Colours a whole section anew without anybody waiting for it: what shows at once, the rest a slice at a
// time.
#pragma once

#include <QBasicTimer>
#include <QObject>

class QPlainTextEdit;

namespace parvik {

class qtColori;

class txtFette final : public QObject {
 public:
  /// Both must outlive this.
  txtFette(QPlainTextEdit& editor, qtColori& colori);

  /// From the beginning, whatever was done so far.
  void Comincia();
  /// While it is at work: what shows now comes first.
  void PrimaCioCheSiVede();
  bool AlLavoro() const { return orologio_.isActive(); }

 protected:
  void timerEvent(QTimerEvent* evento) override;

 private:
  QPlainTextEdit& editor_;
  qtColori& colori_;
  QBasicTimer orologio_;
  int prossima_ = 0;  // line
};

}  // namespace parvik
