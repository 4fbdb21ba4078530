#include "tokens/Gruppi.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <string>
#include <vector>

#include "supporto/ConNome.h"
#include "tokens/Generatori.h"

namespace parvik::prova {
namespace {

/// A group by name, to be shown and walked.
struct Nominato {
  std::string Nome;
  Gruppo Quale;
};
using Elenco = std::vector<Nominato>;

void Aggiungi(Elenco& elenco, std::string nome, const std::optional<Gruppo>& gruppo) {
  if (gruppo) elenco.push_back({std::move(nome), *gruppo});
}

Elenco Elenca(std::monostate /*sconosciuto*/) {
  return {};
}
Elenco Elenca(const GruppiVariabile& gruppi) {
  Elenco elenco{{"number", gruppi.Numero}};
  Aggiungi(elenco, "lines", gruppi.Righe);
  Aggiungi(elenco, "width", gruppi.Larghezza);
  Aggiungi(elenco, "alignment", gruppi.Allineamento);
  Aggiungi(elenco, "fill", gruppi.Riempimento);
  if (gruppi.Numerico) Aggiungi(elenco, "numeric", gruppi.Numerico->Tutto);
  if (gruppi.Numerico) Aggiungi(elenco, "decimals", gruppi.Numerico->Decimali);
  Aggiungi(elenco, "euro", gruppi.Euro);
  return elenco;
}
Elenco Elenca(const GruppiCostante& gruppi) {
  return {{"text", gruppi.Testo}};
}
Elenco Elenca(const GruppiFlag& gruppi) {
  Elenco elenco{{"number", gruppi.Numero}};
  Aggiungi(elenco, "switch", gruppi.Interruttore);
  return elenco;
}
Elenco Elenca(const GruppiStile& gruppi) {
  return {{"word", gruppi.Parola}};
}
Elenco Elenca(const GruppiLingua& gruppi) {
  Elenco elenco{{"index", gruppi.Indice}};
  Aggiungi(elenco, "width", gruppi.Larghezza);
  return elenco;
}
Elenco Elenca(const GruppiPagina& gruppi) {
  return {{"number", gruppi.Numero}};
}

Elenco ElencaGruppi(const GruppiCodice& codice) {
  return std::visit([](const auto& gruppi) { return Elenca(gruppi); }, codice);
}

struct CasoGruppi {
  const char* Nome;
  std::string_view Contenuto;
  std::string_view Attesi;  // name, place and bytes of each group
};
using prova::PrintTo;

class GruppiTest : public testing::TestWithParam<CasoGruppi> {};

TEST_P(GruppiTest, AreGivenWithTheirPlaces) {
  std::string trovati;
  for (const Nominato& gruppo : ElencaGruppi(Gruppi(GetParam().Contenuto))) {
    if (!trovati.empty()) trovati += ' ';
    trovati +=
        gruppo.Nome + "@" + std::to_string(gruppo.Quale.Inizio) + "=" + std::string(gruppo.Quale.Testo);
  }
  EXPECT_EQ(trovati, GetParam().Attesi);
}

INSTANTIATE_TEST_SUITE_P(
    Casi, GruppiTest,
    testing::Values(
        CasoGruppi{"string", "V12;30L", "number@1=12 width@4=30 alignment@6=L"},
        CasoGruppi{"lines_and_fill", "V40,3;35L\".\"",
                   "number@1=40 lines@4=3 width@6=35 alignment@8=L fill@10=."},
        CasoGruppi{"numeric", "V25;12R\"*\";.0,2-;1",
                   "number@1=25 width@4=12 alignment@6=R fill@8=* numeric@11=.0,2- decimals@14=2 euro@17=1"},
        CasoGruppi{"no_euro", "V8;10R;0", "number@1=8 width@3=10 alignment@5=R numeric@7=0"},
        CasoGruppi{"letter_in_front", "V8;R12", "number@1=8 width@4=12 alignment@3=R"},
        CasoGruppi{"bare_width", "V8;12", "number@1=8 width@3=12"},
        CasoGruppi{"sign", "V8;-5L", "number@1=8 width@4=5L alignment@3=-"},
        CasoGruppi{"fill_of_a_separator", "V12;5L\";\"", "number@1=12 width@4=5 alignment@5=L numeric@8=\""},
        CasoGruppi{"euro_of_more_characters", "V8;4R;0;12",
                   "number@1=8 width@3=4 alignment@4=R numeric@6=0 euro@9=2"},
        CasoGruppi{"only_separators", "V;;;", "number@1= width@2= numeric@3= euro@3=;"},
        CasoGruppi{"number_alone", "V12", "number@1=12 width@3="},
        CasoGruppi{"letter_alone", "V", "number@1= width@1="},
        CasoGruppi{"constant", "V0;\"a\"b\"", "text@4=a\"b"},
        CasoGruppi{"constant_without_quotes", "V0;Totale", "text@0=V0;T"},
        CasoGruppi{"constant_too_short", "V0;\"\"", "text@4="},
        CasoGruppi{"flag", "F14S", "number@1=14 switch@3=S"},
        CasoGruppi{"flag_without_switch", "F7", "number@1=7"}, CasoGruppi{"flag_alone", "F", "number@1="},
        CasoGruppi{"style", "S;GRASSETTO", "word@2=GRASSETTO"}, CasoGruppi{"style_alone", "S", "word@1="},
        CasoGruppi{"language", "L5;20", "index@1=5 width@3=20"},
        CasoGruppi{"language_alone", "L5", "index@1=5"},
        CasoGruppi{"empty_width", "L5;", "index@1=5 width@3="}, CasoGruppi{"page", "P12", "number@1=12"},
        CasoGruppi{"unknown", "X1;2", ""}, CasoGruppi{"empty", "", ""}),
    [](const auto& caso) { return std::string(caso.param.Nome); });

TEST(NumeroDi, IsZeroForWhatIsNoNumberOfSixteenBits) {
  EXPECT_EQ(NumeroDi({.Inizio = 0, .Testo = "-12"}), -12);
  EXPECT_EQ(NumeroDi({.Inizio = 0, .Testo = "x"}), 0);
  EXPECT_EQ(NumeroDi({.Inizio = 0, .Testo = "70000"}), 0);
  EXPECT_EQ(QuantitaDi({.Inizio = 0, .Testo = "12"}), 12);
  EXPECT_EQ(QuantitaDi({.Inizio = 0, .Testo = "-12"}), 0);
}

void ProvaPosti(const std::string& contenuto, const Elenco& elenco) {
  for (const Nominato& gruppo : elenco) {
    RC_ASSERT(gruppo.Quale.Fine() <= contenuto.size());
    RC_ASSERT(contenuto.substr(gruppo.Quale.Inizio, gruppo.Quale.Testo.size()) == gruppo.Quale.Testo);
  }
}

TEST(ProprietaGruppi, EveryGroupStandsWhereItSaysWhateverTheContent) {
  EXPECT_TRUE(rc::check([] {
    const std::string contenuto = *rc::gen::oneOf(ContenutoSimile(), QualunqueTesto());
    ProvaPosti(contenuto, ElencaGruppi(Gruppi(contenuto)));
    ProvaPosti(contenuto, Elenca(GruppiDiVariabile(contenuto)));
    ProvaPosti(contenuto, Elenca(GruppiDiCostante(contenuto)));
    ProvaPosti(contenuto, Elenca(GruppiDiFlag(contenuto)));
    ProvaPosti(contenuto, Elenca(GruppiDiStile(contenuto)));
    ProvaPosti(contenuto, Elenca(GruppiDiLingua(contenuto)));
    ProvaPosti(contenuto, Elenca(GruppiDiPagina(contenuto)));
  }));
}

}  // namespace
}  // namespace parvik::prova
