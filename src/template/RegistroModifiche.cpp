#include "template/RegistroModifiche.h"

#include <utility>

#include "common/Precondizione.h"

namespace parvik {
namespace {

/// Joins a change to the last one of a step, whose neighbour it is.
void Unisci(Variazione& ultima, const Variazione& nuova) {
  if (nuova.Posto + nuova.Tolti.size() == ultima.Posto && nuova.Messi.empty()) {  // backwards
    ultima.Tolti.insert(0, nuova.Tolti);
    ultima.Posto = nuova.Posto;
  } else {
    ultima.Tolti += nuova.Tolti;
    ultima.Messi += nuova.Messi;
  }
}

}  // namespace

std::string_view NomeModifica(GenereModifica genere) {
  switch (genere) {
    case GenereModifica::Battuta:
      return "battitura";
    case GenereModifica::Cancellata:
      return "cancellazione";
    case GenereModifica::Intera:
      return "";
    case GenereModifica::ACapo:
      return "a capo";
    case GenereModifica::Codice:
      return "inserimento codice";
    case GenereModifica::Incollata:
      return "incolla";
    case GenereModifica::Eliminata:
      return "eliminazione";
    case GenereModifica::Spostata:
      return "spostamento";
    case GenereModifica::Larghezza:
      return "cambio larghezza";
    case GenereModifica::Sostituita:
      return "sostituzione";
    case GenereModifica::Corretta:
      return "correzione";
  }
  return "";
}

std::vector<ModificaSezione> Passo::Avanti() const {
  std::vector<ModificaSezione> modifiche;
  for (const Variazione& variazione : Variazioni) modifiche.push_back(variazione.Avanti());
  return modifiche;
}

std::vector<ModificaSezione> Passo::Indietro() const {
  std::vector<ModificaSezione> modifiche;
  for (auto ultima = Variazioni.rbegin(); ultima != Variazioni.rend(); ++ultima)
    modifiche.push_back(ultima->Indietro());
  return modifiche;
}

/// Whether a change belongs to the run of typing, or of taking away, that the last step is.
bool RegistroModifiche::Prosegue(const Variazione& variazione, GenereModifica genere) const {
  const bool fila = genere == GenereModifica::Battuta || genere == GenereModifica::Cancellata;
  if (interrotto_ || fatti_ == 0 || !fila) return false;
  const Passo& passo = passi_[fatti_ - 1];
  const Variazione& ultima = passo.Variazioni.back();
  if (passo.Genere != genere || ultima.Dove != variazione.Dove) return false;
  if (genere == GenereModifica::Battuta)
    return variazione.Tolti.empty() && variazione.Posto == ultima.Posto + ultima.Messi.size();
  if (!variazione.Messi.empty() || !ultima.Messi.empty()) return false;
  return variazione.Posto == ultima.Posto || variazione.Posto + variazione.Tolti.size() == ultima.Posto;
}

void RegistroModifiche::Annota(Variazione variazione, GenereModifica genere, Cursore prima) {
  if (iniziato_) return passi_.back().Variazioni.push_back(std::move(variazione));
  if (aperti_ == 0 && Prosegue(variazione, genere))
    return Unisci(passi_.back().Variazioni.back(), variazione);
  Passo passo{.Variazioni = {}, .Genere = genere, .Prima = prima};
  passo.Variazioni.push_back(std::move(variazione));
  passi_.resize(fatti_);
  passi_.push_back(std::move(passo));
  fatti_ = passi_.size();
  iniziato_ = aperti_ > 0;
  interrotto_ = false;
}

void RegistroModifiche::Apri() {
  ++aperti_;
}

void RegistroModifiche::Chiudi() {
  PARVIK_ESIGE(aperti_ > 0, "a step is open");
  if (--aperti_ > 0) return;
  if (iniziato_) interrotto_ = true;
  iniziato_ = false;
}

const Passo& RegistroModifiche::DaAnnullare() const {
  PARVIK_ESIGE(PuoAnnullare() && aperti_ == 0, "there is a step to undo");
  return passi_[fatti_ - 1];
}

const Passo& RegistroModifiche::DaRipetere() const {
  PARVIK_ESIGE(PuoRipetere() && aperti_ == 0, "there is a step to redo");
  return passi_[fatti_];
}

void RegistroModifiche::Annulla() {
  interrotto_ = true;
  --fatti_;
}

void RegistroModifiche::Ripeti() {
  interrotto_ = true;
  ++fatti_;
}

void RegistroModifiche::Dimentica() {
  passi_.clear();
  fatti_ = 0;
  iniziato_ = false;
  interrotto_ = true;
}

}  // namespace parvik
