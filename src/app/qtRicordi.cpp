#include "app/qtRicordi.h"

#include <utility>

#include "common/qtSchermo.h"

namespace parvik {

qtRicordi::qtRicordi(Editore& editore, QMainWindow& finestra, qtRicordo file)
    : editore_(editore), finestra_(finestra), file_(std::move(file)) {}

void qtRicordi::Riprendi() {
  scritto_ = file_.Leggi();
  if (!scritto_) return;
  ricordo_ = *scritto_;
  editore_.Riprendi(ricordo_.Scelte, ricordo_.Fogli);
  RiponiFinestra();
}

/// Where its title can be reached, whatever screens there are now.
void qtRicordi::RiponiFinestra() {
  finestra_.restoreState(ricordo_.Pannelli);
  if (ricordo_.Finestra.isEmpty()) return;
  finestra_.resize(EntroLoSchermo(finestra_, ricordo_.Finestra.size()));
  if (const auto posto = PostoSuSchermo(finestra_, ricordo_.Finestra.topLeft())) finestra_.move(*posto);
  if (ricordo_.Massimizzata) finestra_.setWindowState(Qt::WindowMaximized);
}

void qtRicordi::Aggiorna() {
  ricordo_.Scelte = editore_.Scelte();
  ricordo_.Fogli = editore_.FogliScelti();
  if (ricordo_.Scelte[Preferenza::Ricorda]) {
    NotaModello();
    Scrivi();
  } else if (scritto_) {
    scritto_.reset();
    ricordo_.Modelli = {};
    file_.Dimentica();
  }
}

void qtRicordi::NotaIngrandimento(int passi) {
  ricordo_.Ingrandimento = passi;
  Aggiorna();
}

/// The open template, when it came from its file or went there.
void qtRicordi::NotaModello() {
  const StatoModello& stato = editore_.Modello().Stato();
  const std::optional<int> tipo = editore_.NumeroTipo();
  if (!tipo || !stato.Origine || stato.NomeFile.empty()) return;
  std::error_code errore;
  const std::filesystem::path file = std::filesystem::absolute(stato.NomeFile, errore);
  if (!errore) ricordo_.Modelli.Aggiungi({.File = file.lexically_normal(), .Tipo = *tipo});
}

void qtRicordi::Scrivi() {
  if (scritto_ == ricordo_) return;
  file_.Scrivi(ricordo_);
  scritto_ = ricordo_;
}

void qtRicordi::Salva() {
  if (!ricordo_.Scelte[Preferenza::Ricorda]) return;
  ricordo_.Massimizzata = finestra_.isMaximized();
  ricordo_.Pannelli = finestra_.saveState();
  ricordo_.Finestra =
      ricordo_.Massimizzata ? finestra_.normalGeometry() : QRect(finestra_.pos(), finestra_.size());
  Scrivi();
}

const Recenti& qtRicordi::Modelli() {
  ricordo_.Modelli.TogliSpariti([](const std::filesystem::path& file) {
    std::error_code errore;
    return std::filesystem::is_regular_file(file, errore);
  });
  return ricordo_.Modelli;
}

}  // namespace parvik
