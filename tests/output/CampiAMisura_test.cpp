// The cells of the codes, line by line: literal cases.
#include "output/CampiAMisura.h"

#include <gtest/gtest.h>

#include <string>

#include "output/CatalogoDiProva.h"

namespace parvik::prova {
namespace {

constexpr const char* A = "\xAB";
constexpr const char* C = "\xBB";

/// With « and » for { and }, and whole line ends for \n.
std::string Testo(std::string_view scritto) {
  std::string testo;
  for (const char c : scritto) {
    if (c == '\n') {
      testo += "\r\n";
    } else if (c == '{' || c == '}') {
      testo += c == '{' ? A : C;
    } else {
      testo += c;
    }
  }
  return testo;
}

class Campi : public testing::Test {
 protected:
  void Metti(Sezione sezione, std::string_view scritto) { documento_.Imposta(sezione, Testo(scritto)); }

  /// A line as its pieces: literal text by its length, a field by its cells in brackets; "!" where it does
  /// not show, of a flag where it hides what is behind it.
  std::string Riga(Sezione sezione, std::size_t riga) {
    std::string detta;
    for (const PezzoMisurato& pezzo : campi_.Riga(sezione, riga).Pezzi) {
      const std::string celle = std::to_string(pezzo.Celle());
      detta += pezzo.Codice ? (pezzo.Mostrato ? "[" : "![") + celle + "]" : celle;
      detta += ' ';
    }
    return detta;
  }
  void RipetiCorpo(std::int16_t volte) {
    documento_.Stato().Corpo.RigheCorpo = volte;
    documento_.Stato().Corpo.LineeCorpo = 1;
  }
  std::string Prima(std::string_view scritto) {
    Metti(Sezione::Testata, scritto);
    return Riga(Sezione::Testata, 0);
  }

  Documento documento_;
  FlagPerStampe flag_ = FlagDi({{.Numero = 1, .Vero = false}, {.Numero = 2, .Vero = true}});
  CampiAMisura campi_{documento_, flag_};
};

TEST_F(Campi, TakeWhatTheyPrint) {
  EXPECT_EQ(Prima("Cliente: {V105;29L\".\"} fine\n"), "9 [29] 5 ");
  EXPECT_EQ(Prima("{V0;\"Totale\"}{P12}{L5;8}{L5}\n"), "[6] [2] [8] [10] ");
  EXPECT_EQ(Prima("{V40,3;35L}x\n"), "[35] 1 ");
}

TEST_F(Campi, TakeNothingWhereNothingPrints) {
  EXPECT_EQ(Prima("a{S;GRASSETTO}b\n"), "1 [0] 1 ");
  EXPECT_EQ(Prima("{V1;0L}\n"), "[0] ");
}

TEST_F(Campi, BehindAFalseFlagTakeNothingAndAreHiddenOnlyOnce) {
  EXPECT_EQ(Prima("{F1N}{V1;5L}{V1;5L}\n"), "![0] ![0] [5] ");
  EXPECT_EQ(Prima("{F1N}\n{V1;5L}\n"), "![0] ");
  EXPECT_EQ(Riga(Sezione::Testata, 1), "![0] ");
}

TEST_F(Campi, FollowThePrintFlags) {
  flag_.SettaNumero(1, true);
  campi_.AggiornaFlag(false);
  EXPECT_EQ(Prima("{F1N}{V1;5L}\n"), "[0] [5] ");
}

TEST_F(Campi, CanBeMeasuredAsIfEveryFlagWereTrue) {
  campi_.AggiornaFlag(true);
  EXPECT_EQ(Prima("{F1N}{V1;5L}\n"), "[0] [5] ");
  campi_.AggiornaFlag(false);
  EXPECT_EQ(Prima("{F1N}{V1;5L}\n"), "![0] ![0] ");
}

TEST_F(Campi, OfUnknownKindTakeWhatTheCodeBeforePrinted) {
  EXPECT_EQ(Prima("{V1;7L}\nabc{X}{X}{F1N}{X}{X}\n"), "[7] ");
  EXPECT_EQ(Riga(Sezione::Testata, 1), "3 [7] [7] ![0] ![0] [0] ");
}

TEST_F(Campi, LookBackOverTheSections) {
  Metti(Sezione::Testata, "{V1;7L}{F1N}\n");
  Metti(Sezione::Corpo, "{V1;3L}{V1;4L}\n");
  Metti(Sezione::Piede, "{X}\n");
  RipetiCorpo(4);
  EXPECT_EQ(Riga(Sezione::Corpo, 0), "![0] [4] ");
  EXPECT_EQ(Riga(Sezione::Piede, 0), "[4] ");
}

TEST_F(Campi, OfABodyThatIsNotPrintedAreMeasuredAsIfItWereOnce) {
  Metti(Sezione::Testata, "{V1;7L}\n");
  Metti(Sezione::Corpo, "{X}{V1;4L}\n");
  Metti(Sezione::Piede, "{X}\n");
  RipetiCorpo(0);
  EXPECT_EQ(Riga(Sezione::Corpo, 0), "[7] [4] ");
  EXPECT_EQ(Riga(Sezione::Piede, 0), "[7] ");
}

TEST_F(Campi, OfALastLineWithoutItsEndAreMeasured) {
  Metti(Sezione::Testata, "a\n{V1;7L}");
  EXPECT_EQ(Riga(Sezione::Testata, 1), "[7] ");
}

TEST_F(Campi, StayTextWhereTheyAreNotClosedOrRunOverALineEnd) {
  EXPECT_EQ(Prima("a{V1;7L\n"), "7 ");
  EXPECT_EQ(Prima("a{V0;\"x\ny\"}b{V1;2L}\n"), "7 ");
  EXPECT_EQ(Riga(Sezione::Testata, 1), "3 1 [2] ");
}

TEST_F(Campi, OfMoreThan999CellsAreCutAndTellTheirWidth) {
  Metti(Sezione::Testata, "{V1;1200L}x\n");
  const RigaMisurata riga = campi_.Riga(Sezione::Testata, 0);
  ASSERT_EQ(riga.Pezzi.size(), 2U);
  EXPECT_EQ(riga.Pezzi[0].Celle(), 999U);
  EXPECT_EQ(riga.Pezzi[0].Larghezza, 1200U);
  EXPECT_EQ(campi_.Colonna(Sezione::Testata, 10), 1200U);
}

TEST_F(Campi, HaveTheirColumnOnPaper) {
  Metti(Sezione::Testata, "uno\nab{V105;29L}cd\n");
  const std::size_t riga = 5;
  EXPECT_EQ(campi_.Colonna(Sezione::Testata, riga), 0U);
  EXPECT_EQ(campi_.Colonna(Sezione::Testata, riga + 2), 2U);
  EXPECT_EQ(campi_.Colonna(Sezione::Testata, riga + 4), 2U);  // inside the code
  EXPECT_EQ(campi_.Colonna(Sezione::Testata, riga + 12), 31U);
  EXPECT_EQ(campi_.Colonna(Sezione::Testata, riga + 14), 33U);
}

TEST_F(Campi, LookAsTheLastStyleSaysThatIsShown) {
  Metti(Sezione::Testata, "a{S;GRASSETTO}b{S;xx}c{F1N}{S;ITALICO}d{S;NORMALE}e\n");
  Metti(Sezione::Corpo, "a{S;SOTTOLINEATO}\n");
  Metti(Sezione::Piede, "a\n");
  const auto aspetto = [this](char c) {
    const std::string testo = documento_.Testo(Sezione::Testata).Byte();
    const Aspetto come = campi_.AspettoA(Sezione::Testata, testo.find(c, testo.find('b')));
    return std::string(come.Grassetto ? "g" : "") + (come.Italico ? "i" : "") +
           (come.Sottolineato ? "s" : "");
  };
  EXPECT_EQ(campi_.AspettoA(Sezione::Testata, 0), Aspetto());
  EXPECT_EQ(aspetto('b'), "g");
  EXPECT_EQ(aspetto('c'), "g");
  EXPECT_EQ(aspetto('d'), "g");
  EXPECT_EQ(aspetto('e'), "");
  EXPECT_FALSE(campi_.AspettoA(Sezione::Piede, 0).Sottolineato);
  RipetiCorpo(2);
  EXPECT_TRUE(campi_.AspettoA(Sezione::Piede, 0).Sottolineato);
}

}  // namespace
}  // namespace parvik::prova
