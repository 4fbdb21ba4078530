// docs/code-grammar.md
#include <gtest/gtest.h>

#include <sstream>

#include "common/NumeroLeniente.h"
#include "common/Windows1252.h"
#include "docs/Pagine.h"
#include "docs/Riletto.h"
#include "tokens/Codice.h"
#include "tokens/Pezzi.h"

namespace parvik::prova {
namespace {

constexpr std::string_view Pagina = "code-grammar.md";

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
  const std::vector<Variabile> variabili = VariabiliDellaPagina(Pagina);
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
