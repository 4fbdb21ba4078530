// The preview pane as assistive technologies see it.
#pragma once

#include <QAccessibleWidget>
#include <cstddef>

#include "output/MovimentiAnteprima.h"

namespace parvik {

class ricAnte;

/// Positions are characters of the text, a line end being one of them. An answer costs in proportion to the
/// text that it gives.
class ricAccessibile final : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
  explicit ricAccessibile(ricAnte& pannello);

  /// Makes the toolkit use this class for every preview pane. Once, before the first one is shown.
  static void Registra();

  // What the pane tells; nothing when nobody listens. Texts longer than 65,536 characters are cut there.

  /// Its text is another one now.
  static void AnnunciaTesto(ricAnte& pannello, const TestoAnteprima& prima);
  /// The same, where most of it may have stayed: what lies between beginning and end that both have.
  static void AnnunciaDifferenza(ricAnte& pannello, const TestoAnteprima& prima);
  /// Its text is longer now; it was `byte` long.
  static void AnnunciaAggiunta(ricAnte& pannello, std::size_t byte);
  /// The caret or the selection has changed.
  static void AnnunciaCursore(ricAnte& pannello, const Selezione& prima);

  void* interface_cast(QAccessible::InterfaceType tipo) override;
  QAccessible::State state() const override;
  QString text(QAccessible::Text cosa) const override;

  void selection(int indice, int* inizio, int* fine) const override;
  int selectionCount() const override;
  void addSelection(int inizio, int fine) override;
  void removeSelection(int indice) override;
  void setSelection(int indice, int inizio, int fine) override;
  int cursorPosition() const override;
  void setCursorPosition(int posizione) override;
  QString text(int inizio, int fine) const override;
  QString textBeforeOffset(int posizione, QAccessible::TextBoundaryType unita, int* inizio,
                           int* fine) const override;
  QString textAfterOffset(int posizione, QAccessible::TextBoundaryType unita, int* inizio,
                          int* fine) const override;
  QString textAtOffset(int posizione, QAccessible::TextBoundaryType unita, int* inizio,
                       int* fine) const override;
  int characterCount() const override;
  QRect characterRect(int posizione) const override;
  int offsetAtPoint(const QPoint& punto) const override;
  void scrollToSubstring(int inizio, int fine) override;
  QString attributes(int posizione, int* inizio, int* fine) const override;

 private:
  ricAnte& Pannello() const;
  const TestoAnteprima& Testo() const;
  std::size_t Byte(int posizione) const;
  int Posizione(std::size_t byte) const;
  Selezione Unita(std::size_t byte, QAccessible::TextBoundaryType unita) const;
  QString Consegna(const Selezione& parte, int* inizio, int* fine) const;
};

}  // namespace parvik
