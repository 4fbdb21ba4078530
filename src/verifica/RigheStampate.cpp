#include "verifica/RigheStampate.h"

#include <algorithm>

#include "common/Delimitatori.h"
#include "common/TrovaByte.h"

namespace parvik {
namespace {

void Aggiungi(std::string_view testo, std::vector<ParteStampata>& parti) {
  if (!testo.empty()) parti.push_back({.Testo = testo});
}

void Aggiungi(std::size_t volte, char carattere, std::vector<ParteStampata>& parti) {
  if (volte > 0) parti.push_back({.Testo = {}, .Volte = volte, .Carattere = carattere});
}

void Aggiungi(const Campione& campione, std::vector<ParteStampata>& parti) {
  Aggiungi(campione.RiempiPrima, campione.Riempimento, parti);
  Aggiungi(campione.Testo, parti);
  Aggiungi(campione.Zeri, '0', parti);
  Aggiungi(campione.RiempiDopo, campione.Riempimento, parti);
}

}  // namespace

std::size_t RigaStampata::Lunghezza() const {
  std::size_t lunghezza = 0;
  for (const ParteStampata& parte : Parti) lunghezza += parte.Lunghezza();
  return lunghezza;
}

// Without a row for its number a flag changes nothing: all codes are shown, as when all rows are true.
RigheStampate::RigheStampate(const std::array<std::string_view, MaxSezioni>& testi)
    : testi_(testi), trovaVar_(TipoStampa::File, FlagPerStampe()) {
  Inizia(0);
}

void RigheStampate::Inizia(std::size_t sezione) {
  sezione_ = sezione;
  posto_ = 0;
  if (sezione == MaxSezioni) return;
  codice_ = ProssimoCodice(Testo(), 0);
  fine_ = TrovaByte(Testo(), '\r', 0);
}

bool RigheStampate::Prossima(RigaStampata& riga) {
  while (sezione_ < MaxSezioni) {
    if (ProssimaDellaSezione(riga)) return true;
    Inizia(sezione_ + 1);
  }
  return false;
}

bool RigheStampate::ProssimaDellaSezione(RigaStampata& riga) {
  riga.Dove = TutteLeSezioni[sezione_];
  riga.Inizio = posto_;
  riga.Parti.clear();
  bool attraversata = false;
  while (posto_ < Testo().size()) {
    if (fine_ < posto_) fine_ = TrovaByte(Testo(), '\r', posto_);
    const std::size_t finoA = std::min(fine_, codice_.Apertura);
    Aggiungi(Testo().substr(posto_, finoA - posto_), riga.Parti);
    posto_ = finoA;
    if (finoA == codice_.Apertura) {
      if (!Codice(riga, attraversata)) return false;
      continue;
    }
    riga.Fine = fine_;
    posto_ = std::min(fine_ + FineRiga.size(), Testo().size());
    if (!attraversata) return true;
    riga.Inizio = posto_;
    riga.Parti.clear();
    attraversata = false;
  }
  return false;
}

/// False when nothing closes it.
bool RigheStampate::Codice(RigaStampata& riga, bool& attraversata) {
  if (codice_.Chiusura == Testo().size()) {
    posto_ = Testo().size();
    return false;
  }
  const std::string_view contenuto =
      Testo().substr(codice_.Apertura + 1, codice_.Chiusura - codice_.Apertura - 1);
  Aggiungi(trovaVar_(contenuto), riga.Parti);
  attraversata = attraversata || contenuto.find('\r') != std::string_view::npos;
  posto_ = codice_.Chiusura + 1;
  codice_ = ProssimoCodice(Testo(), posto_);
  return true;
}

}  // namespace parvik
