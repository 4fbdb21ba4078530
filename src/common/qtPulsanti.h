// The push buttons of a dialog: which one Enter clicks, and how the one with the focus looks.
#pragma once

#include <QDialog>
#include <QHash>
#include <QPushButton>

namespace parvik {

/// Enter clicks the button with the focus; from any other control it clicks that control's own button, if it
/// has one, and else OK. The button that Enter clicks is the dialog's default one, so it can be seen.
class qtPulsanti final : public QObject {
 public:
  /// Must not outlive `dialogo`. OK is the button that is the default one when the dialog is first shown.
  explicit qtPulsanti(QDialog& dialogo);

  /// Enter in `campo` clicks `pulsante`.
  void InvioIn(const QWidget& campo, QPushButton& pulsante) { propri_.insert(&campo, &pulsante); }

  /// Whether Enter may click OK from where no other button is meant. It may at first.
  void ImpostaOkPredefinito(bool predefinito);

  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void Prepara();
  QList<QPushButton*> Pulsanti() const;
  QPushButton* Ok();
  QPushButton* PulsanteDi(const QWidget* controllo);
  void SegnaPredefinito();
  bool Premi(const QObject& oggetto, QKeyEvent& tasto);

  QDialog& dialogo_;
  QPushButton* ok_ = nullptr;
  bool okPredefinito_ = true;
  QHash<const QWidget*, QPushButton*> propri_;
};

}  // namespace parvik
