// The section editor as assistive technologies see it: what they edit goes through the same rules as the
// keyboard.
#pragma once

#include <QAccessibleWidget>

namespace parvik {

class txtTCP;

/// Positions are characters of the text, a line end being one of them.
class txtAccessibile final : public QAccessibleWidget,
                             public QAccessibleTextInterface,
                             public QAccessibleEditableTextInterface {
 public:
  explicit txtAccessibile(txtTCP& editor);

  /// Makes the toolkit use this class for every section editor. Once, before the first editor is shown.
  static void Registra();

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
  int characterCount() const override;
  QRect characterRect(int posizione) const override;
  int offsetAtPoint(const QPoint& punto) const override;
  void scrollToSubstring(int inizio, int fine) override;
  QString attributes(int posizione, int* inizio, int* fine) const override;

  void deleteText(int inizio, int fine) override;
  void insertText(int posizione, const QString& testo) override;
  void replaceText(int inizio, int fine, const QString& testo) override;

 private:
  txtTCP& Editor() const;
  QString Testo() const;
  void Seleziona(int inizio, int fine);
};

}  // namespace parvik
