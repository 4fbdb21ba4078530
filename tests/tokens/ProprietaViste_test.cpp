// The two views of a content: what the groups say, and what the run reads. Where they part, it is in one of
// the ways that docs/code-grammar.md tables.
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include "common/NumeroLeniente.h"
#include "supporto/DifferenzeViste.h"
#include "tokens/Codice.h"
#include "tokens/CodiceCorsa.h"
#include "tokens/CodiceFlag.h"
#include "tokens/CodiceLingua.h"
#include "tokens/CodiceStile.h"
#include "tokens/CodiceVariabile.h"
#include "tokens/Generatori.h"
#include "tokens/Gruppi.h"

namespace parvik::prova {
namespace {

/// Parts of variable codes, in their order, each missing or out of order now and then.
rc::Gen<std::string> VariabileMalformata() {
  const auto scelta = [](std::vector<std::string> parti) { return rc::gen::elementOf(std::move(parti)); };
  const auto misura =
      scelta({"12",   "7",     "0",      "12L",      "7R",  "R12", "-5",    "-5L", " 6L", "+3", ".7R",
              "2.5L", "40000", "99999R", "1234567L", "5LL", "5x",  "1.2.3", "L",   "",    "30"});
  const auto riempimento = scelta({"", "", "\"*\"", "\"", "\"*", "\"\"", "\"ab\"", "\";\"", "\"\"\""});
  const auto coda = scelta({"", "", ";#;0", ";0;1", ";.0,2-;1", ";#", ";", ";;", ";0,;0", ";\"*\";0", ";\"#",
                            ";0;", ";0;12", ";#\"", "#", "x", ";;#"});
  const auto ordinata =
      rc::gen::map(rc::gen::tuple(scelta({"12", "12,3", "", "x", "1\"*\""}), misura, riempimento, coda),
                   [](const auto& parti) {
                     const auto& [testa, larghezza, riempie, resto] = parti;
                     return "V" + testa + ";" + larghezza + riempie + resto;
                   });
  return rc::gen::oneOf(
      ordinata, rc::gen::map(ContenutoSimile(), [](const std::string& testo) { return "V12;" + testo; }),
      rc::gen::map(ContenutoSimile(), [](const std::string& testo) { return "V" + testo; }));
}

/// What the run fills with where a code has no fill.
bool Predefinito(char riempimento) {
  return riempimento == '$' || riempimento == ' ';
}

bool StessoRiempimento(const GruppiVariabile& gruppi, const CampoCorsa& campo) {
  if (gruppi.Riempimento) return gruppi.Riempimento->Testo == std::string(1, campo.Riempimento);
  return Predefinito(campo.Riempimento);
}

TEST(ProprietaViste, PartOnAWidthOrAFillInTheWaysOfTheTableAlone) {
  EXPECT_TRUE(rc::check([] {
    const std::string contenuto = *VariabileMalformata();
    RC_PRE(Riconosci(contenuto) == TipoCodice::Variabile);
    const GruppiVariabile gruppi = GruppiDiVariabile(contenuto);
    const CampoCorsa campo = VariabileCorsa(contenuto);
    if (static_cast<std::size_t>(QuantitaDi(gruppi.Larghezza)) != campo.Larghezza) {
      RC_ASSERT(!DifferenzeDiLarghezza(contenuto).empty());
      RC_TAG(DifferenzeDiLarghezza(contenuto).front());
    }
    if (!StessoRiempimento(gruppi, campo)) {
      RC_ASSERT(!DifferenzeDiRiempimento(contenuto).empty());
      RC_TAG(DifferenzeDiRiempimento(contenuto).front());
    }
  }));
}

TEST(ProprietaViste, PartOnAConstantOnlyWhereItIsNotInQuotes) {
  EXPECT_TRUE(rc::check([] {
    const std::string inizio = *rc::gen::elementOf(std::vector<std::string>{"V0;", "V0;\"", "C", "C0;\""});
    const std::string contenuto = inizio + *ContenutoSimile();
    RC_PRE(Riconosci(contenuto) == TipoCodice::Costante);
    const bool uguali = GruppiDiCostante(contenuto).Testo.Testo == CostanteCorsa(contenuto);
    RC_ASSERT(uguali || !DifferenzeDiTesto(contenuto).empty());
  }));
}

TEST(ProprietaViste, PartOnAStyleOnlyWhereTheMarkerIsNotWhole) {
  EXPECT_TRUE(rc::check([] {
    const std::string contenuto =
        *rc::gen::elementOf(std::vector<std::string>{"S", "S;", "S;G"}) + *ContenutoSimile();
    const std::string_view marcatore = StileCorsa(contenuto);
    const auto stile = marcatore.size() == 4 && marcatore.starts_with("S;") ? StileDi(marcatore.substr(2))
                                                                            : std::optional<Stile>();
    RC_ASSERT(stile == StileDi(GruppiDiStile(contenuto).Parola.Testo) ||
              !DifferenzeDiStile(contenuto).empty());
  }));
}

TEST(ProprietaViste, AgreeOnTheNumberOfAnyFlagAndTheWidthOfAnyLanguageString) {
  EXPECT_TRUE(rc::check([] {
    const std::string flag = "F" + *ContenutoSimile();
    RC_ASSERT(FlagCorsa(flag) == NumeroLeniente(GruppiDiFlag(flag).Numero.Testo));
    const std::string lingua = "L" + *ContenutoSimile();
    RC_ASSERT(LinguaCorsa(lingua).Larghezza == LunghezzaLeniente(LeggiLingua(lingua).Lunghezza));
    const std::string pagina = "P" + *ContenutoSimile();
    RC_ASSERT(PaginaCorsa(pagina) == GruppiDiPagina(pagina).Numero.Testo);
  }));
}

Variabile QualunqueNumerica() {
  Variabile v;
  v.Intero1 = 25;
  v.Intero2 = *rc::gen::inRange<std::int16_t>(0, 1000);
  v.Intero3 = *rc::gen::inRange<std::int16_t>(0, 2);
  v.Intero4 = 1;
  v.Intero5 = 0;
  v.Intero6 = *rc::gen::inRange<std::int16_t>(0, 2);
  v.Intero7 = *rc::gen::inRange<std::int16_t>(0, 2);
  v.Intero8 = *rc::gen::inRange<std::int16_t>(0, 2);
  v.Testo1 = *rc::gen::elementOf(std::vector<std::string>{"", "*", ".", "0", "x"});
  v.Testo2 = std::to_string(*rc::gen::inRange(0, 10));
  v.Testo3 = *rc::gen::elementOf(std::vector<std::string>{"0", "1"});
  return v;
}

TEST(ProprietaViste, AgreeOnEveryNumericVariableThatWasBuilt) {
  EXPECT_TRUE(rc::check([] {
    const Variabile v = QualunqueNumerica();
    const std::string codice = CostruisciVariabile(v);
    const CampoCorsa campo = VariabileCorsa(ContenutoDi(codice));
    RC_ASSERT(Differenze(ContenutoDi(codice)).empty());
    RC_ASSERT(campo.Larghezza == static_cast<std::size_t>(v.Intero2));
    RC_ASSERT(campo.Riempimento == (v.Testo1.empty() ? ' ' : v.Testo1.front()));
    RC_ASSERT(campo.Zero == (v.Intero7 == 1));
    if (!campo.Zero) return;
    RC_ASSERT(campo.ADestra == (v.Intero3 == 0));
    RC_ASSERT(campo.Decimali.value_or(0) == LunghezzaLeniente(v.Testo2));
  }));
}

}  // namespace
}  // namespace parvik::prova
