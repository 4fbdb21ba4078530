// The body of the catalogue: the flags of a section.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "catalogue/CampiDiProva.h"
#include "catalogue/Catalogo.h"

namespace parvik::prova {
namespace {

using Testi = std::vector<std::string>;

const Testi TreFlag = {"0001,\"Uno;1;N", "0002,\"Due;2;S", "0003,\"Tre;3;N"};

Testi Nomi(const Tabella<Flag>& tabella) {
  Testi nomi;
  for (const Flag& flag : tabella.Voci) nomi.push_back(flag.Descrizione);
  return nomi;
}

Flag Condizione(std::size_t quale) {
  return CondPagina()[quale];
}

TEST(LeggiFlags, ReadsThreeFieldsTheLastToTheEndOfTheLine) {
  const Tabella<Flag> tabella =
      FlagTestata(ConCorpo("0;0", "1;2", {"0001,\"Uno; 12x;S;e \"altro\"", "0002,\"Due;2;"}));
  EXPECT_EQ(std::nullopt, tabella.Errore);
  EXPECT_EQ((std::vector<Flag>{{"Uno", 12, "S;e \"altro\""}, {"Due", 2, ""}}), tabella.Voci);
}

TEST(LeggiFlags, RefusesALineOfTwoFields) {
  const Tabella<Flag> tabella = FlagTestata(ConCorpo("0;0", "1;2", {"0001,\"Uno;1;N", "0002,\"Due;2"}));
  EXPECT_EQ(NumeroErrore::ArgomentoNonValido, tabella.Errore);
  EXPECT_EQ((std::vector<Flag>{{"Uno", 1, "N"}}), tabella.Voci);
}

TEST(LeggiFlags, RefusesANumberBeyond16Bits) {
  const Tabella<Flag> tabella = FlagTestata(ConCorpo("0;0", "1;2", {"0001,\"Uno;40000;N", "0002,\"Due;2;N"}));
  EXPECT_EQ(NumeroErrore::Overflow, tabella.Errore);
  EXPECT_TRUE(tabella.Voci.empty());
}

TEST(LeggiFlags, SkipsCommentsAndEmptyLinesAmongBodyLines) {
  const Testi corpo = {"// flag", "", TreFlag[0], "   ", "  // altri", TreFlag[1], TreFlag[2], "// fine"};
  EXPECT_EQ((Testi{"Uno", "Due", "Tre"}), Nomi(FlagTestata(ConCorpo("0;0", "1;3", corpo))));
}

TEST(LeggiFlags, StartsAtTheFirstLineOfThatNumber) {
  const Testi corpo = {"0001,\"Uno;1;N", "0005,\"Cinque;5;N", "0002,\"Due;2;N", "0005,\"Altro;5;N"};
  EXPECT_EQ((Testi{"Cinque", "Due"}), Nomi(FlagTestata(ConCorpo("0;0", "5;6", corpo))));
}

TEST(LeggiFlags, TakesTheFollowingLinesWhateverTheirNumbers) {
  const Testi corpo = {"0001,\"Uno;1;N", "0900,\"Due;2;N", "niente,\"Tre;3;N", "\"Quattro;4;N"};
  EXPECT_EQ((Testi{"Uno", "Due", "Tre", "Quattro"}), Nomi(FlagTestata(ConCorpo("0;0", "1;4", corpo))));
}

TEST(LeggiFlags, ReadsALinesNumberFromItsFirstFourCharacters) {
  const Testi corpo = {"00123,\"Dodici;1;N", "7,\"Sette;2;N", "8 ,\"Otto;3;N"};
  EXPECT_EQ((Testi{"Dodici", "Sette"}), Nomi(FlagTestata(ConCorpo("0;0", "12;13", corpo))));
  EXPECT_EQ((Testi{"Sette", "Otto"}), Nomi(FlagTestata(ConCorpo("0;0", "7;8", corpo))));
}

TEST(LeggiFlags, EndsALineAtALoneCarriageReturn) {
  const Catalogo catalogo =
      Carica(RigaTipo(1, "0;0", "1;2") + "\r//fine documenti\r0001,\"Uno;1;N\r0002,\"Due;2;S\r");
  EXPECT_EQ((std::vector<Flag>{{"Uno", 1, "N"}, {"Due", 2, "S"}}), FlagTestata(catalogo).Voci);
}

TEST(LeggiFlags, NeverParsesTheLineOfARangeOfOne) {
  const Tabella<Flag> tabella = FlagTestata(ConCorpo("0;0", "1;1", {"0001,senza apici"}));
  EXPECT_EQ(std::nullopt, tabella.Errore);
  EXPECT_TRUE(tabella.Voci.empty());
}

TEST(LeggiFlags, FindsNothingInARangeThatRunsBackward) {
  for (const char* intervallo : {"2;1", "3;1", "32767;-32768"}) {
    const Tabella<Flag> tabella = FlagTestata(ConCorpo("0;0", intervallo, TreFlag));
    EXPECT_EQ(std::nullopt, tabella.Errore) << intervallo;
    EXPECT_TRUE(tabella.Voci.empty()) << intervallo;
  }
}

TEST(LeggiFlags, FindsNothingInARangeThatStartsNowhere) {
  for (const char* intervallo : {"4;6", "-5;9", "-32768;32767"}) {
    const Tabella<Flag> tabella = FlagTestata(ConCorpo("0;0", intervallo, TreFlag));
    EXPECT_EQ(std::nullopt, tabella.Errore) << intervallo;
    EXPECT_TRUE(tabella.Voci.empty()) << intervallo;
  }
}

TEST(LeggiFlags, MeetsALineOfAnotherVersionPastTheLastBodyLine) {
  const Tabella<Flag> tabella = FlagTestata(ConCorpo("0;0", "2;4", TreFlag));
  EXPECT_EQ(NumeroErrore::ArgomentoNonValido, tabella.Errore);
  EXPECT_EQ((Testi{"Due", "Tre"}), Nomi(tabella));
}

TEST(LeggiFlags, PicksTheRunsOfEachSection) {
  const Catalogo catalogo =
      Carica("1,\"A;T;3;0;0;0;0;0;0;1;2;2;3;3;4\"\r\n//fine documenti\r\n" +
             Righe({"0001,\"Uno;1;N", "0002,\"Due;2;N", "0003,\"Tre;3;N", "0004,\"Quattro;4;N"}));
  const TipoDoc& tipo = catalogo.TipiDoc()[0];
  EXPECT_EQ((Testi{"Uno", "Due"}), Nomi(catalogo.LeggiFlags(tipo, Sezione::Testata)));
  EXPECT_EQ((Testi{"Due", "Tre"}), Nomi(catalogo.LeggiFlags(tipo, Sezione::Corpo)));
  EXPECT_EQ((Testi{"Tre", "Quattro"}), Nomi(catalogo.LeggiFlags(tipo, Sezione::Piede)));
}

TEST(CondPagina, HoldsTheThreePageConditions) {
  EXPECT_EQ((std::vector<Flag>{{"Solo prima pagina", 97, "N"},
                               {"Escluso ultima pagina", 98, "N"},
                               {"Su tutte le pagine", 99, "N"}}),
            std::vector<Flag>(CondPagina().begin(), CondPagina().end()));
}

TEST(CaricaFlag, HasNineSlotsForASectionOfFiveFlags) {
  Testi corpo;
  std::vector<Flag> attesi;
  for (int i = 1; i <= 5; ++i) {
    corpo.push_back("000" + std::to_string(i) + ",\"F" + std::to_string(i) + ";" + std::to_string(i) + ";S");
    attesi.push_back({"F" + std::to_string(i), static_cast<std::int16_t>(i), "S"});
  }
  for (std::size_t i = 0; i < 3; ++i) attesi.push_back(Condizione(i));
  attesi.emplace_back();
  const Catalogo catalogo = ConCorpo("0;0", "1;5", corpo);
  const Tabella<Flag> tabella = catalogo.CaricaFlag(catalogo.TipiDoc()[0], Sezione::Testata);
  EXPECT_EQ(std::nullopt, tabella.Errore);
  EXPECT_EQ(attesi, tabella.Voci);
}

TEST(CaricaFlag, HasOneEmptyRecordBeforeThePageConditionsForASectionWithoutFlags) {
  const std::vector<Flag> attesi = {Flag{}, Condizione(0), Condizione(1), Condizione(2), Flag{}};
  for (const char* intervallo : {"1;1", "2;1", "9;12"}) {
    const Catalogo catalogo = ConCorpo("0;0", intervallo, TreFlag);
    const Tabella<Flag> tabella = catalogo.CaricaFlag(catalogo.TipiDoc()[0], Sezione::Testata);
    EXPECT_EQ(std::nullopt, tabella.Errore) << intervallo;
    EXPECT_EQ(attesi, tabella.Voci) << intervallo;
  }
}

TEST(CaricaFlag, EndsWithWhatWasReadAfterAnError) {
  const Catalogo catalogo = ConCorpo("0;0", "1;3", {TreFlag[0], "0002,\"Due", TreFlag[2]});
  const Tabella<Flag> tabella = catalogo.CaricaFlag(catalogo.TipiDoc()[0], Sezione::Testata);
  EXPECT_EQ(NumeroErrore::ArgomentoNonValido, tabella.Errore);
  EXPECT_EQ((std::vector<Flag>{{"Uno", 1, "N"}}), tabella.Voci);
}

}  // namespace
}  // namespace parvik::prova
