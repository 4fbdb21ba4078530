// The readers and builders of all kinds of codes.
#include <array>

#include "Bersaglio.h"
#include "common/Delimitatori.h"
#include "common/NumeroLeniente.h"
#include "tokens/Codice.h"
#include "tokens/CodiceCostante.h"
#include "tokens/CodiceFlag.h"
#include "tokens/CodiceLingua.h"
#include "tokens/CodicePagina.h"
#include "tokens/CodiceStile.h"
#include "tokens/CodiceVariabile.h"
#include "tokens/DescriviCodice.h"
#include "tokens/Pezzi.h"
#include "tokens/ValoreCampo.h"

namespace parvik::fuzz {
namespace {

/// Number 12 is a string, 25 and 0 are numeric.
const std::array<Variabile, 3>& Variabili() {
  static const std::array<Variabile, 3> variabili = [] {
    std::array<Variabile, 3> tre;
    tre[0].Descrizione = "Cliente";
    tre[0].Intero1 = 12;
    tre[1].Descrizione = "Totale";
    tre[1].Intero1 = 25;
    tre[1].Intero4 = 1;
    tre[1].Testo3 = "1";
    tre[2].Intero4 = 1;
    tre[2].Testo3 = "0";
    return tre;
  }();
  return variabili;
}

const std::array<Flag, 2>& Flags() {
  static const std::array<Flag, 2> flag = {Flag{.Descrizione = "Cliente estero", .Codice = 3, .Valore = "N"},
                                           Flag{}};
  return flag;
}

/// What `ricostruisci` makes of a content, once it has been made, stays as it is.
template <class Ricostruisci>
void ProvaStabile(std::string_view contenuto, Ricostruisci ricostruisci) {
  const std::string codice = ricostruisci(contenuto);
  if (codice.empty()) return;
  Esigi(codice.front() == DelimApertura && codice.back() == DelimChiusura, "a code has its delimiters");
  Esigi(ricostruisci(ContenutoDi(codice)) == codice, "a built code is read and built again the same");
}

void ProvaVariabile(std::string_view contenuto) {
  const VariabileLetta letta = LeggiVariabile(contenuto, Variabili());
  const Variabile& formato = letta.Formato;
  Esigi(formato.Intero2 >= 0 && formato.Intero5 >= 0, "no width and no line count is negative");
  Esigi(formato.Testo1.size() <= 1 && formato.Testo2.size() == 1, "fill and decimals are one character");
  Esigi(letta.Voce.has_value() == (formato.Intero1 == 12 || formato.Intero1 == 25 || formato.Intero1 == 0),
        "an entry is found by its number");
  // Spellings that the grammar cannot carry: separators and switches in the place of a text.
  if (formato.Testo1 == ";" || formato.Testo3 == ";" || formato.Testo2 == "-" || formato.Testo2 == ".")
    return;
  if (formato.Testo2 == ";") return;
  ProvaStabile(contenuto, [](std::string_view c) {
    return CostruisciVariabile(LeggiVariabile(c, Variabili()).Formato);
  });
}

void ProvaLingua(std::string_view contenuto) {
  const CodiceLingua lingua = LeggiLingua(contenuto);
  Esigi(lingua.IndiceTabella.find(';') == std::string::npos, "an index ends at its separator");
  if (lingua.Lunghezza.empty()) return;  // is not written, and then reads as 10
  ProvaStabile(contenuto, [](std::string_view c) { return CostruisciLingua(LeggiLingua(c)); });
}

bool EUtf8DiUnaRiga(std::string_view testo) {
  for (std::size_t i = 0; i < testo.size(); ++i) {
    const auto primo = static_cast<unsigned char>(testo[i]);
    if (primo < 0x20 || primo == 0x7F) return false;
    if (primo < 0x80) continue;
    const std::size_t altri = primo >= 0xE0 ? 2 : 1;
    if (primo < 0xC2 || primo > 0xEF || i + altri >= testo.size()) return false;
    for (std::size_t j = 1; j <= altri; ++j) {
      if ((static_cast<unsigned char>(testo[i + j]) & 0xC0U) != 0x80U) return false;
    }
    i += altri;
  }
  return true;
}

void ProvaNumeri(std::string_view testo) {
  const double numero = NumeroLeniente(testo);
  Esigi(numero == numero, "a number is a number");
  Esigi(LunghezzaLeniente(testo) <= LunghezzaMassima, "a length has a bound");
  const Esito<std::int16_t> intero = InteroLeniente(testo);
  if (intero) {
    const Esito<std::int16_t> scritto = InteroLeniente(std::to_string(*intero));
    Esigi(scritto && *scritto == *intero, "a written number is read as it was");
  }
  const FormatoCampo formato{.Larghezza = intero ? *intero : 0,
                             .Riempimento = testo,
                             .ZeroVisibile = testo.size() % 2 == 0,
                             .ConDecimali = testo.size() % 3 == 0,
                             .Decimali = testo};
  Esigi(ValoreCampo(formato).size() <= 2 * LunghezzaMassima + testo.size(), "a sample has a bound");
}

void ProvaPezzo(GenerePezzo genere, std::string_view pezzo) {
  constexpr std::string_view Delimitatori = "\xAB\xBB";
  if (genere == GenerePezzo::Codice) {
    Esigi(pezzo.front() == DelimApertura, "a code begins with its opening delimiter");
    Esigi(pezzo.find(DelimChiusura) == pezzo.size() - 1, "a code ends with its first closing delimiter");
    Esigi(ConDelimitatori(ContenutoDi(pezzo)) == pezzo, "a code is its content in delimiters");
    return;
  }
  const bool soloTesto = pezzo.find_first_of(Delimitatori) == std::string_view::npos;
  const bool soloUno = pezzo.size() == 1 && !soloTesto;
  Esigi(genere == GenerePezzo::Testo ? soloTesto : soloUno,
        "text has no delimiter, and a stray one is alone");
}

void ProvaPezzi(std::string_view testo) {
  std::size_t fine = 0;
  LettorePezzi lettore(testo);
  LettoreCorsa corsa(testo);
  while (const auto pezzo = lettore.Prossimo()) {
    Esigi(pezzo->Inizio == fine && pezzo->Fine > fine, "pieces leave no gap and do not overlap");
    fine = pezzo->Fine;
    const std::string_view byte = pezzo->In(testo);
    ProvaPezzo(pezzo->Genere, byte);
    if (pezzo->Genere != GenerePezzo::Codice) continue;
    Esigi(corsa.Prossimo() && corsa.ConCodice(), "the run reads every code");
    Esigi(corsa.Contenuto() == ContenutoDi(byte), "the run reads the same code");
  }
  Esigi(fine == testo.size(), "pieces cover the whole text");
  Esigi(!corsa.Prossimo() || !corsa.ConCodice(), "the run reads no code more");
}

void Prova(std::string_view contenuto) {
  Esigi(Riconosci(contenuto) == TipoCodice::Sconosciuto || !contenuto.empty(), "an empty code has no kind");
  Esigi(EUtf8DiUnaRiga(DescriviCodice(contenuto, Variabili(), Flags())), "a description is a line of UTF-8");
  ProvaVariabile(contenuto);
  ProvaLingua(contenuto);
  ProvaStabile(contenuto, [](std::string_view c) { return CostruisciCostante(LeggiCostante(c)); });
  ProvaStabile(contenuto, [](std::string_view c) { return CostruisciFlag(LeggiFlag(c)); });
  ProvaStabile(contenuto, [](std::string_view c) { return CostruisciPagina(LeggiPagina(c)); });
  ProvaStabile(contenuto, [](std::string_view c) {
    const auto stile = StileDi(LeggiStile(c));
    return stile ? CostruisciStile(*stile) : std::string();
  });
  ProvaNumeri(contenuto);
  ProvaPezzi(contenuto);
}

}  // namespace
}  // namespace parvik::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t dimensione) {
  parvik::fuzz::Prova(parvik::fuzz::Ingresso(dati, dimensione).Resto());
  return 0;
}
