// The boundary between sections and preview, dragged with the mouse (docs/menus.md). The sizing pointer is
// its whole state: while it is shown a press of the left button drags, and when it goes nothing does.
#pragma once

#include <QAbstractScrollArea>
#include <QLabel>
#include <QObject>

class QMouseEvent;

namespace parvik {

class frmDivisore final : public QObject {
  Q_OBJECT

 public:
  /// Watches the pane, whose left edge is the boundary, until either goes.
  frmDivisore(QAbstractScrollArea* pannello, QObject* padre);

  /// A section: the mouse may cross into it while it drags.
  void Osserva(QAbstractScrollArea* sezione);
  /// A label: the mouse over it restores the ordinary pointer.
  void Osserva(QLabel* etichetta);

 signals:
  /// The boundary is dragged to this horizontal position, in pixels of the pane's parent.
  void Spostato(int x);

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  bool SulPannello(QObject* oggetto) const;
  bool Muovi(QObject* oggetto, const QMouseEvent& evento);
  bool SulBordo(const QMouseEvent& evento) const;

  QAbstractScrollArea* pannello_;
};

}  // namespace parvik
