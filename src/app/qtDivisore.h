// The boundary between sections and preview, dragged with the mouse (docs/menus.md). The sizing pointer tells
// that a press of the left button drags, or that it is dragging; when it goes, nothing does.
#pragma once

#include <QAbstractScrollArea>
#include <QLabel>
#include <QObject>
#include <memory>

class QMouseEvent;

namespace parvik {

class qtDivisore final : public QObject {
  Q_OBJECT

 public:
  /// Watches the pane, whose left edge is the boundary, until either goes.
  qtDivisore(QAbstractScrollArea* pannello, QObject* padre);

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
  bool Premi(QObject* oggetto, const QMouseEvent& evento);
  bool Muovi(QObject* oggetto, const QMouseEvent& evento);
  bool Rilascia(const QMouseEvent& evento);
  bool SulBordo(const QMouseEvent& evento) const;
  int Posizione(const QMouseEvent& evento) const;
  void Rinuncia();
  void Finisci();

  QAbstractScrollArea* pannello_;
  int larghezza_ = 0;  // of the pane when the drag began
  /// Waits for Escape. It is there from the press that begins a drag to its release, given up or not.
  std::unique_ptr<QObject> fuga_;
};

}  // namespace parvik
