// The visible grip of the boundary between sections and preview (docs/menus.md).
#pragma once

#include <QWidget>
#include <optional>

namespace parvik {

class presaAnte final : public QWidget {
  Q_OBJECT

 public:
  explicit presaAnte(QWidget* padre);

 signals:
  /// The pane's left edge is dragged to this horizontal position, in pixels of the parent.
  void Spostata(int x);

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseMoveEvent(QMouseEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;
  void hideEvent(QHideEvent* evento) override;

 private:
  void Lascia();

  struct Presa {
    int DalBordo = 0;  // from the mouse to the pane's left edge
    int Prima = 0;     // where that was
  };
  std::optional<Presa> presa_;  // while the button is down
};

}  // namespace parvik
