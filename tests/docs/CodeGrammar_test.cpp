// docs/code-grammar.md
#include <gtest/gtest.h>

#include <optional>
#include <sstream>

#include "catalogue/Catalogo.h"
#include "common/NumeroLeniente.h"
#include "common/Windows1252.h"
#include "docs/Pagine.h"
#include "tokens/Codice.h"
#include "tokens/CodiceCostante.h"
#include "tokens/CodiceFlag.h"
#include "tokens/CodiceLingua.h"
#include "tokens/CodicePagina.h"
#include "tokens/CodiceStile.h"
#include "tokens/CodiceVariabile.h"
#include "tokens/Pezzi.h"

namespace parvik::prova {
namespace {

constexpr std::string_view Pagina = "code-grammar.md";

std::string NomeTipo(TipoCodice tipo) {
  switch (tipo) {
    case TipoCodice::Variabile:
      return "variable";
    case TipoCodice::Costante:
      return "constant";
    case TipoCodice::Flag:
      return "flag";
    case TipoCodice::Stile:
      return "style";
    case TipoCodice::Lingua:
      return "language";
    case TipoCodice::Pagina:
      return "page number";
    default:
      return "unknown";
  }
}

/// The page's own variables, read as those of a section.
std::vector<Variabile> VariabiliDellaPagina() {
  const std::string testata = "1,\"Prova;P;1;1;4;0;0;0;0;0;0;0;0;0;0\"\r\n//fine documenti\r\n";
  const auto catalogo = Catalogo::CaricaCampi(testata + FileEsempio(Pagina, "variables"));
  if (!catalogo) return {};
  return catalogo->LeggiVariabili(catalogo->TipiDoc()[0], Sezione::Testata).Voci;
}

std::string Racconta(const VariabileLetta& letta) {
  const Variabile& v = letta.Formato;
  std::string testo = letta.Voce ? "entry " + std::to_string(*letta.Voce) : "no entry";
  testo += ": number " + std::to_string(v.Intero1);
  if (v.Intero5 != 0) testo += ", " + std::to_string(v.Intero5) + " lines";
  testo += ", width " + std::to_string(v.Intero2) + (v.Intero3 == 1 ? ", left" : ", right");
  if (!v.Testo1.empty()) testo += ", fill " + v.Testo1;
  if (v.Intero4 == 0) return testo;
  testo += ", numeric";
  if (v.Intero8 == 1) testo += ", thousands";
  if (v.Intero7 == 1) testo += ", zero";
  testo += ", decimals " + v.Testo2;
  if (v.Intero6 == 1) testo += ", sign";
  return testo + ", euro " + v.Testo3;
}

struct Riletto {
  std::string Detto;
  std::string Ricostruito;
};

Riletto Rileggi(std::string_view contenuto, std::span<const Variabile> variabili) {
  switch (Riconosci(contenuto)) {
    case TipoCodice::Variabile: {
      const VariabileLetta letta = LeggiVariabile(contenuto, variabili);
      return {Racconta(letta), CostruisciVariabile(letta.Formato)};
    }
    case TipoCodice::Costante: {
      const std::string testo = LeggiCostante(contenuto);
      return {testo, CostruisciCostante(testo)};
    }
    case TipoCodice::Flag: {
      const CodiceFlag flag = LeggiFlag(contenuto);
      return {"number " + (flag.Numero.empty() ? "none" : flag.Numero) + ", switch " + flag.Interruttore,
              CostruisciFlag(flag)};
    }
    case TipoCodice::Stile: {
      const std::optional<Stile> stile = StileDi(LeggiStile(contenuto));
      if (!stile) return {};
      return {std::string(ParolaStile(*stile)), CostruisciStile(*stile)};
    }
    case TipoCodice::Lingua: {
      const CodiceLingua lingua = LeggiLingua(contenuto);
      std::string detto = "index " + lingua.IndiceTabella + ", width";
      if (!lingua.Lunghezza.empty()) detto += " " + lingua.Lunghezza;
      return {detto, CostruisciLingua(lingua)};
    }
    case TipoCodice::Pagina: {
      const std::string numero = LeggiPagina(contenuto);
      return {numero, CostruisciPagina(numero)};
    }
    default:
      return {};
  }
}

std::string_view NomePezzo(GenerePezzo genere) {
  if (genere == GenerePezzo::Codice) return "code";
  return genere == GenerePezzo::Testo ? "text" : "stray";
}

TEST(CodeGrammarPage, TellsWhereCodesStand) {
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "pieces", 3)) {
    const std::string testo = riga.Byte(0);
    std::string pezzi;
    std::string generi;
    LettorePezzi lettore(testo);
    while (const auto pezzo = lettore.Prossimo()) {
      if (!generi.empty()) {
        pezzi += '\xA6';
        generi += ", ";
      }
      pezzi += pezzo->In(testo);
      generi += NomePezzo(pezzo->Genere);
    }
    EXPECT_EQ(pezzi, riga.Byte(1)) << riga.Posto();
    EXPECT_EQ(generi, riga.Testo(2)) << riga.Posto();
  }
}

TEST(CodeGrammarPage, TellsTheKindsOfCodes) {
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "kinds", 2)) {
    EXPECT_EQ(NomeTipo(Riconosci(riga.Byte(0))), riga.Testo(1)) << riga.Posto();
  }
}

TEST(CodeGrammarPage, TellsWhatCodesReadAsAndHowTheyAreRebuilt) {
  const std::vector<Variabile> variabili = VariabiliDellaPagina();
  ASSERT_EQ(variabili.size(), 4U);
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "codes", 4)) {
    const std::string contenuto = riga.Byte(0);
    const Riletto riletto = Rileggi(contenuto, variabili);
    EXPECT_EQ(NomeTipo(Riconosci(contenuto)), riga.Testo(1)) << riga.Posto();
    EXPECT_EQ(Utf8DaAnsi(riletto.Detto), riga.Testo(2)) << riga.Posto();
    EXPECT_EQ(Utf8DaAnsi(riletto.Ricostruito), Utf8DaAnsi(riga.Byte(3))) << riga.Posto();
  }
}

std::string Scritto(double numero) {
  std::ostringstream testo;
  testo << numero + 0.0;  // a zero has no sign here
  return testo.str();
}

std::string Scritto(const Esito<std::int16_t>& intero) {
  if (!intero) return "error " + std::to_string(static_cast<int>(intero.Errore()));
  return std::to_string(*intero);
}

TEST(CodeGrammarPage, TellsHowNumbersAreRead) {
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "numbers", 5)) {
    const std::string testo = riga.Byte(0);
    EXPECT_EQ(Scritto(NumeroLeniente(testo)), riga.Testo(1)) << riga.Posto();
    EXPECT_EQ(Scritto(InteroLeniente(testo)), riga.Testo(2)) << riga.Posto();
    EXPECT_EQ(std::to_string(LunghezzaLeniente(testo)), riga.Testo(3)) << riga.Posto();
    EXPECT_EQ(EUnNumero(testo), riga.Si(4)) << riga.Posto();
  }
}

}  // namespace
}  // namespace parvik::prova
