#include "template/Documento.h"

#include <utility>

#include "common/Delimitatori.h"

namespace parvik {
namespace {

/// Behind what came last.
CursoreSezione DopoDi(const Passo& passo) {
  const Variazione& ultima = passo.Variazioni.back();
  const std::size_t posto = ultima.Posto + ultima.Messi.size();
  return {.Dove = ultima.Dove, .Dentro = {.Ancora = posto, .Posto = posto}};
}

}  // namespace

template <class Azione>
void Documento::Avvisa(Azione azione) {
  std::erase_if(ascoltatori_, [](const auto& chi) { return chi.expired(); });
  for (const auto& chi : ascoltatori_)
    if (const auto vivo = chi.lock()) azione(**vivo);
}

Documento::Ascolto Documento::Ascolta(AscoltatoreDocumento& chi) {
  Ascolto ascolto;
  ascolto.chi_ = std::make_shared<AscoltatoreDocumento*>(&chi);
  ascoltatori_.emplace_back(ascolto.chi_);
  return ascolto;
}

std::vector<Documento::Pronta> Documento::Prepara(std::vector<ModificaSezione> modifiche) const {
  std::array<TestoSezione, MaxSezioni> testi = testi_;
  std::vector<Pronta> pronte;
  pronte.reserve(modifiche.size());
  for (ModificaSezione& modifica : modifiche) {
    TestoSezione& testo = testi[Indice(modifica.Dove)];
    testo = testo.Con(modifica.Quale);
    pronte.push_back({.Fatta = std::move(modifica), .Dopo = testo});
  }
  return pronte;
}

void Documento::Metti(Pronta pronta, Autore autore) {
  const Sezione dove = pronta.Fatta.Dove;
  const TestoSezione prima = std::exchange(testi_[Indice(dove)], std::move(pronta.Dopo));
  const CambiamentoTesto cambiamento{
      .Dove = dove, .Prima = prima, .Fatta = pronta.Fatta.Quale, .DelProgramma = autore == Autore::Programma};
  Avvisa([&cambiamento](AscoltatoreDocumento& chi) { chi.Modificata(cambiamento); });
}

void Documento::Annota(Sezione sezione, const Modifica& modifica, GenereModifica genere, Cursore prima,
                       Autore autore) {
  if (modifica.Tolti == 0 && modifica.Messi.empty()) return;
  Pronta pronta{.Fatta = {.Dove = sezione, .Quale = modifica}, .Dopo = Testo(sezione).Con(modifica)};
  registro_.Annota({.Dove = sezione,
                    .Posto = modifica.Dove,
                    .Tolti = Testo(sezione).Byte({.Inizio = modifica.Dove, .Lunghezza = modifica.Tolti}),
                    .Messi = modifica.Messi},
                   genere, prima);
  Metti(std::move(pronta), autore);
}

void Documento::Applica(Sezione sezione, const Modifica& modifica, GenereModifica genere, Cursore prima) {
  stato_.Modificato = true;
  Annota(sezione, modifica, genere, prima, Autore::Utente);
}

CursoreSezione Documento::Annulla() {
  const Passo& passo = registro_.DaAnnullare();
  std::vector<Pronta> pronte = Prepara(passo.Indietro());
  registro_.Annulla();
  stato_.Modificato = true;
  for (Pronta& pronta : pronte) Metti(std::move(pronta), Autore::Utente);
  return {.Dove = passo.Variazioni.front().Dove, .Dentro = passo.Prima};
}

CursoreSezione Documento::Ripeti() {
  const Passo& passo = registro_.DaRipetere();
  std::vector<Pronta> pronte = Prepara(passo.Avanti());
  registro_.Ripeti();
  stato_.Modificato = true;
  for (Pronta& pronta : pronte) Metti(std::move(pronta), Autore::Utente);
  return DopoDi(passo);
}

void Documento::Imposta(Sezione sezione, std::string_view byte) {
  testi_[Indice(sezione)] = TestoSezione(byte);
  Avvisa([&](AscoltatoreDocumento& chi) { chi.Sostituita(sezione); });
}

void Documento::Rileggi(Sezione sezione, std::string_view byte) {
  const std::string intero = ConFiniRiga(byte);
  const Modifica modifica = Differenza(Testo(sezione).Byte(), intero);
  Annota(sezione, modifica, GenereModifica::Intera, {.Ancora = modifica.Dove, .Posto = modifica.Dove},
         Autore::Programma);
}

void Documento::CompletaUltimaRiga(Sezione sezione) {
  const std::size_t fine = Testo(sezione).Dimensione();
  Annota(sezione, {.Dove = fine, .Tolti = 0, .Messi = std::string(FineRiga)}, GenereModifica::Intera,
         {.Ancora = fine, .Posto = fine}, Autore::Programma);
}

}  // namespace parvik
