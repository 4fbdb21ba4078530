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

void Documento::Cambia(Sezione sezione, const Modifica& modifica, Autore autore) {
  TestoSezione& testo = testi_[Indice(sezione)];
  const TestoSezione prima = std::exchange(testo, testo.Con(modifica));
  const CambiamentoTesto cambiamento{
      .Dove = sezione, .Prima = prima, .Fatta = modifica, .DelProgramma = autore == Autore::Programma};
  Avvisa([&cambiamento](AscoltatoreDocumento& chi) { chi.Modificata(cambiamento); });
}

void Documento::Annota(Sezione sezione, const Modifica& modifica, GenereModifica genere, Cursore prima,
                       Autore autore) {
  if (modifica.Tolti == 0 && modifica.Messi.empty()) return;
  registro_.Annota({.Dove = sezione,
                    .Posto = modifica.Dove,
                    .Tolti = Testo(sezione).Byte({.Inizio = modifica.Dove, .Lunghezza = modifica.Tolti}),
                    .Messi = modifica.Messi},
                   genere, prima);
  Cambia(sezione, modifica, autore);
}

void Documento::Applica(Sezione sezione, const Modifica& modifica, GenereModifica genere, Cursore prima) {
  stato_.Modificato = true;
  Annota(sezione, modifica, genere, prima, Autore::Utente);
}

CursoreSezione Documento::Annulla() {
  const Passo& passo = registro_.Annulla();
  for (auto ultima = passo.Variazioni.rbegin(); ultima != passo.Variazioni.rend(); ++ultima)
    Cambia(ultima->Dove, ultima->Indietro(), Autore::Utente);
  stato_.Modificato = true;
  return {.Dove = passo.Variazioni.front().Dove, .Dentro = passo.Prima};
}

CursoreSezione Documento::Ripeti() {
  const Passo& passo = registro_.Ripeti();
  for (const Variazione& variazione : passo.Variazioni)
    Cambia(variazione.Dove, variazione.Avanti(), Autore::Utente);
  stato_.Modificato = true;
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
