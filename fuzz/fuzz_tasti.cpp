// The key rules of the section editor.
#include <algorithm>

#include "Bersaglio.h"
#include "common/Delimitatori.h"
#include "supporto/Tasti.h"

namespace parvik::fuzz {
namespace {

constexpr std::string_view Delimitatori = "\xAB\xBB";

/// Every delimiter belongs to a code, and no code has another in it.
bool Ordinato(std::string_view testo) {
  bool dentro = false;
  for (const char c : testo) {
    if (c != DelimApertura && c != DelimChiusura) continue;
    if (dentro == (c == DelimApertura)) return false;
    dentro = !dentro;
  }
  return !dentro;
}

/// A place in the text, from two bytes of the input.
std::size_t Posto(Ingresso& ingresso, std::size_t massimo) {
  const std::size_t alto = ingresso.Byte();
  return (alto << 8U | ingresso.Byte()) % (massimo + 1);
}

void ProvaSelezione(std::string_view testo, const EsitoTasto& esito) {
  if (esito.Azione != AzioneTasto::Allarga && esito.Azione != AzioneTasto::ApriCodice) return;
  Esigi(esito.Nuova.Fine() <= testo.size() && esito.Nuova.Lunghezza > 0, "a selection lies in the text");
  if (esito.Azione != AzioneTasto::ApriCodice) return;
  const std::string_view codice = testo.substr(esito.Nuova.Inizio, esito.Nuova.Lunghezza);
  Esigi(codice.front() == DelimApertura && codice.find(DelimChiusura) == codice.size() - 1,
        "an opened code is whole, and no more than one");
}

/// Only the text up to the next delimiters matters.
void ProvaParte(std::string_view testo, Selezione selezione, TastoSezione tasto, const EsitoTasto& intero) {
  const std::size_t davanti =
      testo.substr(0, selezione.Inizio == 0 ? 0 : selezione.Inizio - 1).find_last_of(Delimitatori);
  const std::size_t dietro = testo.find(DelimChiusura, selezione.Fine());
  const std::size_t da = davanti == std::string_view::npos ? 0 : davanti;
  const std::size_t fine = dietro == std::string_view::npos ? testo.size() : dietro + 1;
  EsitoTasto ridotto = PremiTasto(testo.substr(da, fine - da),
                                  {.Inizio = selezione.Inizio - da, .Lunghezza = selezione.Lunghezza}, tasto);
  if (ridotto.Azione == AzioneTasto::Allarga || ridotto.Azione == AzioneTasto::ApriCodice)
    ridotto.Nuova.Inizio += da;
  Esigi(ridotto == intero, "only the text up to the next delimiters matters");
}

void Prova(Ingresso ingresso, std::string testo) {
  const bool ordinato = Ordinato(testo);
  const std::vector<std::string> prima = prova::Codici(testo);
  for (unsigned char scelta = ingresso.Byte(); scelta != 0; scelta = ingresso.Byte()) {
    const auto tasto = static_cast<TastoSezione>(scelta % 4);
    Selezione selezione;
    selezione.Inizio = Posto(ingresso, testo.size());
    if (scelta >= 128) selezione.Lunghezza = Posto(ingresso, testo.size() - selezione.Inizio);
    const EsitoTasto esito = PremiTasto(testo, selezione, tasto);
    ProvaSelezione(testo, esito);
    ProvaParte(testo, selezione, tasto, esito);
    prova::Obbedisci(testo, selezione, tasto);
    Esigi(selezione.Fine() <= testo.size(), "the selection stays in the text");
    prova::Obbedisci(testo, selezione, tasto);
  }
  if (!ordinato) return;
  Esigi(Ordinato(testo), "no key leaves half a code");
  for (const std::string& codice : prova::Codici(testo)) {
    Esigi(std::ranges::find(prima, codice) != prima.end(), "no key makes a code that was not there");
  }
}

}  // namespace
}  // namespace parvik::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t dimensione) {
  parvik::fuzz::Ingresso ingresso(dati, dimensione);
  const std::string testo(ingresso.Testo());
  parvik::fuzz::Prova(ingresso, testo);
  return 0;
}
