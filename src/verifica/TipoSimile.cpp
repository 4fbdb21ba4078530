#include "verifica/TipoSimile.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>

#include "common/NumeroLeniente.h"
#include "tokens/Codice.h"
#include "tokens/Gruppi.h"
#include "tokens/Pezzi.h"

namespace parvik {
namespace {

/// How often each variable is used; without a number of one's own, those whose number is none.
using Usate = std::map<std::optional<std::int16_t>, std::size_t>;

std::optional<std::int16_t> NumeroVariabile(std::string_view contenuto) {
  const Esito<std::int16_t> letto = InteroLeniente(GruppiDiVariabile(contenuto).Numero.Testo);
  return letto ? std::optional(*letto) : std::nullopt;
}

void Conta(std::string_view testo, Usate& usate) {
  LettorePezzi pezzi(testo);
  while (const auto pezzo = pezzi.Prossimo()) {
    if (pezzo->Genere != GenerePezzo::Codice) continue;
    const std::string_view contenuto = ContenutoDi(pezzo->In(testo));
    if (Riconosci(contenuto) == TipoCodice::Variabile) ++usate[NumeroVariabile(contenuto)];
  }
}

std::size_t Somma(const Usate& usate) {
  std::size_t somma = 0;
  for (const auto& [numero, quante] : usate) somma += quante;
  return somma;
}

std::size_t Note(const Usate& usate, const Catalogo& catalogo, const TipoDoc& tipo) {
  std::set<std::int16_t> numeri;
  for (const Sezione sezione : TutteLeSezioni) {
    if (sezione != Sezione::Testata && !HaTreSezioni(tipo.NumSezioni)) break;
    for (const Variabile& voce : catalogo.LeggiVariabili(tipo, sezione).Voci) numeri.insert(voce.Intero1);
  }
  std::size_t note = 0;
  for (const auto& [numero, quante] : usate)
    if (numero && numeri.contains(*numero)) note += quante;
  return note;
}

}  // namespace

const TipoDoc* TipoSimile(const std::array<std::string_view, MaxSezioni>& testi, const VociTipo& voci,
                          const Catalogo& catalogo) {
  Usate usate;
  for (const Sezione sezione : voci.Sezioni()) Conta(testi[Indice(sezione)], usate);
  const std::size_t tutte = Somma(usate);
  std::erase_if(
      usate, [&](const auto& voce) { return voce.first && !voci.ConNumero<Variabile>(*voce.first).empty(); });
  if (2 * Somma(usate) <= tutte) return nullptr;
  const TipoDoc* simile = nullptr;
  std::size_t massimo = tutte / 2;
  for (const TipoDoc& tipo : catalogo.TipiDoc()) {
    if (tipo.Descrizione.empty() || tipo.Indice == voci.Tipo().Indice) continue;
    const std::size_t note = Note(usate, catalogo, tipo);
    if (note <= massimo) continue;
    massimo = note;
    simile = &tipo;
  }
  return simile;
}

}  // namespace parvik
