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

void ProvaSelezione(const TestoSezione& testo, const EsitoTasto& esito) {
  if (esito.Azione != AzioneTasto::Allarga && esito.Azione != AzioneTasto::ApriCodice) return;
  Esigi(esito.Nuova.Fine() <= testo.Dimensione() && esito.Nuova.Lunghezza > 0,
        "a selection lies in the text");
  if (esito.Azione != AzioneTasto::ApriCodice) return;
  const std::string codice = testo.Byte(esito.Nuova);
  Esigi(codice.front() == DelimApertura && codice.find(DelimChiusura) == codice.size() - 1,
        "an opened code is whole, and no more than one");
}

/// Only the text up to the next delimiters matters.
void ProvaParte(const TestoSezione& intero, Selezione selezione, TastoSezione tasto,
                const EsitoTasto& esito) {
  const std::string testo = intero.Byte();
  const std::size_t davanti = std::string_view(testo)
                                  .substr(0, selezione.Inizio == 0 ? 0 : selezione.Inizio - 1)
                                  .find_last_of(Delimitatori);
  const std::size_t dietro = testo.find(DelimChiusura, selezione.Fine());
  const std::size_t da = davanti == std::string::npos ? 0 : davanti;
  const std::size_t fine = dietro == std::string::npos ? testo.size() : dietro + 1;
  EsitoTasto ridotto = PremiTasto(TestoSezione(std::string_view(testo).substr(da, fine - da)),
                                  {.Inizio = selezione.Inizio - da, .Lunghezza = selezione.Lunghezza}, tasto);
  if (ridotto.Azione == AzioneTasto::Allarga || ridotto.Azione == AzioneTasto::ApriCodice)
    ridotto.Nuova.Inizio += da;
  Esigi(ridotto == esito, "only the text up to the next delimiters matters");
}

/// A place that cuts no line end.
std::size_t PostoIntero(Ingresso& ingresso, const TestoSezione& testo) {
  const Selezione riga = testo.Riga(Posto(ingresso, testo.Righe() - 1));
  return riga.Inizio + Posto(ingresso, riga.Lunghezza);
}

void Prova(Ingresso ingresso, const std::string& byte) {
  prova::BancoSezione banco{TestoSezione(byte)};
  const bool ordinato = Ordinato(byte);
  const std::vector<std::string> prima = prova::Codici(banco.Testo());
  for (unsigned char scelta = ingresso.Byte(); scelta != 0; scelta = ingresso.Byte()) {
    const auto tasto = static_cast<TastoSezione>(scelta % 5);
    const std::size_t uno = PostoIntero(ingresso, banco.Testo());
    const Selezione selezione =
        Cursore{.Ancora = uno, .Posto = scelta >= 128 ? PostoIntero(ingresso, banco.Testo()) : uno}
            .Selezionato();
    const EsitoTasto esito = PremiTasto(banco.Testo(), selezione, tasto);
    ProvaSelezione(banco.Testo(), esito);
    ProvaParte(banco.Testo(), selezione, tasto, esito);
    banco.Seleziona(selezione);
    banco.Comandi().Premi(tasto, Pressione::Prima);
    Esigi(banco.Selezionato().Fine() <= banco.Testo().Dimensione(), "the selection stays in the text");
    banco.Comandi().Premi(tasto, Pressione::Prima);
  }
  if (!ordinato) return;
  Esigi(Ordinato(banco.Testo().Byte()), "no key leaves half a code");
  for (const std::string& codice : prova::Codici(banco.Testo())) {
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
