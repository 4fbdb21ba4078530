// The choice of a variable and of the format in which it is printed.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "catalogue/TipoDoc.h"
#include "tokens/frmCodice.h"

class QCheckBox;
class QLineEdit;

namespace Ui {
class frmVar;
}

namespace parvik {

/// Lets the user choose a flag in front of `padre`: its code, delimiters included, or "" for none.
using ChiediFlag = std::function<std::string(QWidget* padre)>;

class frmVar final : public frmCodice {
  Q_OBJECT

 public:
  /// The list offers exactly the records of `variabili`. They are the dialog's model: every change of a
  /// control goes into the selected one at once. The dialog has them to itself.
  frmVar(std::vector<Variabile> variabili, ChiediFlag chiediFlag, QWidget* padre);
  ~frmVar() override;

  /// Selects the variable that the code names and gives it the code's format. When no entry has the number,
  /// entry 0 is selected and keeps its own format; a line says so.
  void Mostra(std::string_view contenuto) override;
  /// The flag code, when one was chosen, then the code of the selected variable. None when the first entry
  /// has no text: that is a section without variables.
  std::vector<std::string> Codici() const override;

 private:
  void PreparaCaselle();
  void Collega();
  void CollegaFormato();
  void CollegaNumero(QLineEdit& casella, std::int16_t Variabile::*campo);
  void CollegaTesto(QLineEdit& casella, std::string Variabile::*campo);
  void CollegaSpunta(QCheckBox& spunta, std::int16_t Variabile::*campo);

  bool SenzaVariabili() const;
  std::optional<std::size_t> VoceSelezionata() const;
  void Seleziona(std::size_t voce);
  void CaricaVoce();
  void CaricaControlli(const Variabile& variabile);
  void AbilitaFormato(const Variabile& variabile);
  void Scrivi(const std::function<void(Variabile&)>& modifica);
  void MostraCodice(const Variabile& variabile);
  void MostraCampione();

  void Restringi();
  void Cerca();
  std::optional<std::size_t> VoceCercata() const;
  void ScegliFlag();

  std::unique_ptr<Ui::frmVar> ui_;
  std::vector<Variabile> variabili_;  // what the list shows, as edited so far
  ChiediFlag chiediFlag_;
  std::string codiceFlag_;  // to go in front of the variable; "" when none was chosen
  bool caricando_ = false;  // the controls show a record: their changes are nobody's choice
};

}  // namespace parvik
