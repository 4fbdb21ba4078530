#include "app/qtRicordi.h"

#include <utility>

#include "common/qtSchermo.h"

namespace parvik {
namespace {

/// How long the window waits to know which templates are still there.
constexpr auto AttesaModelli = std::chrono::milliseconds(100);

}  // namespace

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

/// Those that a share tells nothing about in time count as there.
const Recenti& qtRicordi::Modelli() {
  TogliSpariti();
  if (!spariti_.AlLavoro() && !ricordo_.Modelli.Voci().empty()) {
    spariti_.Comincia([modelli = ricordo_.Modelli] { return modelli.Spariti(); });
    if (spariti_.Attendi(AttesaModelli)) TogliSpariti();
  }
  return ricordo_.Modelli;
}

void qtRicordi::TogliSpariti() {
  if (const auto spariti = spariti_.Ritira()) ricordo_.Modelli.Togli(*spariti);
}

}  // namespace parvik
