// The output run does what its rules say word for word, on texts rich in what they give a meaning to.
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include "output/CatalogoDiProva.h"
#include "output/Leggibile.h"
#include "supporto/RiferimentoStampa.h"
#include "supporto/RiferimentoStili.h"

namespace parvik::prova {
namespace {

rc::Gen<std::string> Concatenati(std::vector<std::string> pezzi) {
  return rc::gen::map(rc::gen::container<std::vector<std::string>>(rc::gen::elementOf(std::move(pezzi))),
                      [](const std::vector<std::string>& scelti) {
                        std::string testo;
                        for (const std::string& pezzo : scelti) testo += pezzo;
                        return testo;
                      });
}

const std::vector<std::string> Lettere = {"\xAB",
                                          "\xAB",
                                          "\xBB",
                                          "\xBB",
                                          ";",
                                          ";",
                                          "\"",
                                          "S",
                                          "V",
                                          "F",
                                          "L",
                                          "P",
                                          "R",
                                          "C",
                                          "N",
                                          "X",
                                          "0",
                                          "1",
                                          "2",
                                          "3",
                                          ",",
                                          ".",
                                          "-",
                                          "#",
                                          "*",
                                          " ",
                                          "\r\n",
                                          "\r\n",
                                          "\r",
                                          "\n",
                                          "a",
                                          "\xE0",
                                          "\xAB"
                                          "V",
                                          "\xAB"
                                          "F",
                                          "V0;"};

const std::vector<std::string> Codici = {
    "\xAB"
    "F1N\xBB",
    "\xAB"
    "F2S\xBB",
    "\xAB"
    "F3\xBB",
    "\xAB"
    "F97N\xBB",
    "\xAB"
    "F50N\xBB",
    "\xAB"
    "V12;4L\xBB",
    "\xAB"
    "V1;7R\"*\";.0,2-;1\xBB",
    "\xAB"
    "V1;3R;0,2;0\xBB",
    "\xAB"
    "V1;5L;#;0\xBB",
    "\xAB"
    "V1;5R;#\xBB",
    "\xAB"
    "V0;\"testo\"\xBB",
    "\xAB"
    "L5;3\xBB",
    "\xAB"
    "L5\xBB",
    "\xAB"
    "P1\xBB",
    "\xAB"
    "S;GRASSETTO\xBB",
    "\xAB"
    "S;NORMALE\xBB",
    "\xAB"
    "S;G\xBB",
    "\xAB"
    "X\xBB",
    "\xAB\xBB",
    "\xAB"
    "Cabcdef\xBB",
    "S;",
    "S",
    ";",
    "x",
    " ",
    "\r\n",
    "\r\n",
    "\r",
    "\n",
    "\xAB",
    "\xBB"};

constexpr std::string_view CodaAnteprima = "\r\n--- Fine file ---";

/// A variable code with groups that may or may not make sense.
rc::Gen<std::string> Variabili() {
  const auto gruppo =
      Concatenati({"0", "1", "2", "5", ",", ".", "#", "-", "L", "R", "\"*\"", "\"", ";", ";", " "});
  return rc::gen::map(rc::gen::container<std::vector<std::string>>(gruppo),
                      [](const std::vector<std::string>& gruppi) {
                        std::string testo;
                        for (const std::string& g : gruppi)
                          testo +=
                              "\xAB"
                              "V1;" +
                              g +
                              "\xBB"
                              "|\r\n";
                        return testo;
                      });
}

rc::Gen<std::string> Sezione() {
  return rc::gen::oneOf(rc::gen::just(std::string("\r\n")), Concatenati(Lettere), Concatenati(Codici),
                        Variabili());
}

/// Numbers that rows have, have twice, and have cut.
std::vector<FlagDiProva> Flag() {
  std::vector<FlagDiProva> flag;
  for (const int numero : {1, 2, 3, 2, 123, -5, 0})
    flag.push_back({.Numero = numero, .Vero = *rc::gen::arbitrary<bool>()});
  return flag;
}

struct Prova {
  DatiRiferimento Riferimento;
  FlagPerStampe Flag;

  DatiStampa Dati() const {
    return {.Testi = {Riferimento.Testi[0], Riferimento.Testi[1], Riferimento.Testi[2]},
            .NumSezioni = static_cast<std::int16_t>(Riferimento.NumSezioni),
            .RigheCorpo = static_cast<std::int16_t>(Riferimento.RigheCorpo),
            .LineeCorpo = static_cast<std::int16_t>(Riferimento.LineeCorpo),
            .Flag = Flag};
  }
};

Prova ProvaCasuale() {
  Prova prova;
  for (std::string& testo : prova.Riferimento.Testi) testo = *Sezione();
  prova.Riferimento.NumSezioni =
      *rc::gen::weightedElement<int>({{6, 3}, {3, 1}, {1, 2}, {1, 0}, {1, 7}, {1, -1}});
  prova.Riferimento.RigheCorpo = *rc::gen::inRange(-3, 9);
  prova.Riferimento.LineeCorpo = *rc::gen::inRange(-1, 5);
  prova.Flag = FlagDi(Flag());
  prova.Riferimento.RigheFlag = prova.Flag.Righe();
  return prova;
}

void StampaUguale(TipoStampa destinazione) {
  const Prova prova = ProvaCasuale();
  Raccolta raccolta;
  RC_ASSERT(!!GeneraStampa(prova.Dati(), destinazione, raccolta));
  RC_ASSERT(raccolta.Testo == StampaDiRiferimento(prova.Riferimento, static_cast<int>(destinazione)));
  RC_ASSERT(!testing::Test::HasFailure());
}

TEST(ProprietaStampa, HoldForTheTextFile) {
  EXPECT_TRUE(rc::check([] { StampaUguale(TipoStampa::File); }));
}

TEST(ProprietaStampa, HoldForTheAuxiliaryPane) {
  EXPECT_TRUE(rc::check([] { StampaUguale(TipoStampa::Ausiliario); }));
}

TEST(ProprietaStampa, HoldForThePreview) {
  EXPECT_TRUE(rc::check([] {
    const Prova prova = ProvaCasuale();
    const TestoConAspetti riferimento = StiliDiRiferimento(StampaDiRiferimento(prova.Riferimento, 2));
    const Anteprima anteprima = GeneraAnteprima(prova.Dati());
    RC_ASSERT(anteprima.Testo == riferimento.Testo);
    RC_ASSERT(AspettiPerByte(anteprima.Testo, anteprima.Tratti) == riferimento.Aspetti);
    RC_ASSERT(!testing::Test::HasFailure());
  }));
}

/// Of a short run: whole lines, as many as fit.
TEST(ProprietaStampa, HoldForTheBeginningOfThePreview) {
  EXPECT_TRUE(rc::check([] {
    const Prova prova = ProvaCasuale();
    const std::string intera = StampaDiRiferimento(prova.Riferimento, 2);
    const std::string righe = intera.substr(0, intera.size() - std::min(intera.size(), CodaAnteprima.size()));
    const auto massimo = *rc::gen::inRange<std::size_t>(0, righe.size() + 3);
    const InizioAnteprima inizio = *GeneraInizioAnteprima(prova.Dati(), massimo);
    RC_ASSERT(inizio.Intera == (righe.size() <= massimo));
    const std::size_t fine = righe.substr(0, massimo).rfind("\r\n");
    const TestoConAspetti riferimento = StiliDiRiferimento(
        inizio.Intera ? intera : righe.substr(0, fine == std::string::npos ? 0 : fine + 2));
    RC_ASSERT(inizio.Testo.Testo == riferimento.Testo);
    RC_ASSERT(AspettiPerByte(inizio.Testo.Testo, inizio.Testo.Tratti) == riferimento.Aspetti);
  }));
}

TEST(ProprietaStampa, HoldForOneVariableOfAnyFormat) {
  EXPECT_TRUE(rc::check([] {
    Prova prova;
    prova.Riferimento.Testi[0] = *Variabili();
    prova.Riferimento.NumSezioni = 1;
    Raccolta raccolta;
    RC_ASSERT(!!GeneraStampa(prova.Dati(), TipoStampa::File, raccolta));
    RC_ASSERT(raccolta.Testo == StampaDiRiferimento(prova.Riferimento, 1));
  }));
}

}  // namespace
}  // namespace parvik::prova
