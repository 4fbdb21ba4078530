// The blinking of the preview pane's caret.
#pragma once

#include <QBasicTimer>
#include <QObject>

namespace parvik {

/// Dark until it is lit.
class ricLampeggio final : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  bool Acceso() const { return acceso_; }
  /// Lit now, and dark again not before half a period of the desktop's is over.
  void Accendi();
  /// Dark, and stays so.
  void Spegni();

 signals:
  /// It has become lit or dark by itself.
  void Cambiato();

 protected:
  void timerEvent(QTimerEvent* evento) override;

 private:
  bool acceso_ = false;
  QBasicTimer orologio_;
};

}  // namespace parvik
