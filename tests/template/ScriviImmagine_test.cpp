#include <gtest/gtest.h>

#include <string>

#include "template/CopiaRighe.h"
#include "template/ImmagineModello.h"
#include "template/Modelli.h"

namespace parvik::prova {
namespace {

using namespace std::string_literals;

/// The file of three sections; the texts and settings are those after the writing.
struct Scritto {
  TestiSezioni Testi;
  ImpostazioniCorpo Corpo = {.RigheCorpo = 23, .LineeCorpo = 99, .FlagSbarra = "", .FlagAccorpa = ""};
  std::string File = {};
};

Scritto Tre(TestiSezioni testi) {
  Scritto scritto{.Testi = std::move(testi)};
  const Esito<std::string> file = ScriviImmagine(scritto.Testi, scritto.Corpo, Formato::TreSezioni);
  EXPECT_TRUE(file);
  if (file) scritto.File = *file;
  return scritto;
}

std::string Una(const std::string& testata) {
  TestiSezioni testi = {testata, "corpo\r\n", "piede\r\n"};
  ImpostazioniCorpo corpo = Precedenti();
  const Esito<std::string> file = ScriviImmagine(testi, corpo, Formato::UnaSezione);
  EXPECT_EQ((TestiSezioni{testata, "corpo\r\n", "piede\r\n"}), testi);
  EXPECT_EQ(Precedenti(), corpo);
  return file ? *file : "failed";
}

TEST(ScriviImmagine, WritesTheLinesOfOneSectionAndNothingOfTheOthers) {
  EXPECT_EQ("a\r\n\r\nb\r\n", Una("a\r\n\r\nb\r\n"));
  EXPECT_EQ("", Una(""));
}

TEST(ScriviImmagine, LosesAnUnfinishedLastLineOfOneSection) {
  EXPECT_EQ("a\r\n", Una("a\r\nb"));
  EXPECT_EQ("", Una("abc"));
}

TEST(ScriviImmagine, SkipsWhateverFollowsACarriageReturn) {
  EXPECT_EQ("a\r\n\r\n", Una("a\rb\r\n"));
  EXPECT_EQ("a\r\nc\r\n", Una("a\rbc\r\n"));
  EXPECT_EQ("a\r\n", Una("a\r"));
  EXPECT_EQ("a\r\n", Una("a\r\r\n"));
}

TEST(ScriviImmagine, TurnsTheEditorsDelimitersIntoThoseOfFilesAndLeavesTheLatterAlone) {
  EXPECT_EQ("x" + CodiceFile("V1") + CodiceFile("N") + "\r\n",
            Una("x" + Codice("V1") + CodiceFile("N") + "\r\n"));
}

TEST(ScriviImmagine, KeepsEveryByteButLineEndsAndDelimiters) {
  std::string byte;
  for (int i = 0; i < 256; ++i) {
    const char c = static_cast<char>(i);
    if (c != '\r' && c != DelimApertura && c != DelimChiusura) byte.push_back(c);
  }
  EXPECT_EQ(byte + "\r\n", Una(byte + "\r\n"));
}

TEST(ScriviImmagine, WritesThreeSectionsWithTheMarkerBetweenTheFirstTwo) {
  const Scritto scritto = Tre({"t1\r\nt2\r\n", "c1\r\nc2\r\nc3\r\n", "p1\r\n"});
  EXPECT_EQ("t1\r\nt2\r\n" + Marcatore("23;3;") + "c1\r\nc2\r\nc3\r\np1\r\n", scritto.File);
  EXPECT_EQ((ImpostazioniCorpo{23, 3, "", ""}), scritto.Corpo);
  EXPECT_EQ((TestiSezioni{"t1\r\nt2\r\n", "c1\r\nc2\r\nc3\r\n", "p1\r\n"}), scritto.Testi);
}

TEST(ScriviImmagine, ConvertsTheDelimitersOfAllThreeSections) {
  const std::string prima = Codice("V1") + "\r\n";
  const std::string dopo = CodiceFile("V1") + "\r\n";
  EXPECT_EQ(dopo + Marcatore("23;1;") + dopo + dopo, Tre({prima, prima, prima}).File);
}

TEST(ScriviImmagine, WritesTheMarkerFirstWhenTheTestataIsEmptyAndItIsReadBackIntoTheTestata) {
  const Scritto scritto = Tre({"", "c\r\n", "p\r\n"});
  EXPECT_EQ(Marcatore("23;1;") + "c\r\np\r\n", scritto.File);
  EXPECT_EQ((TestiSezioni{Codice("C23;1;") + "\r\nc\r\np\r\n", "", ""}), LeggiTre(scritto.File).Testi);
}

TEST(ScriviImmagine, AddsAnEmptyLineAfterAnUnfinishedTestata) {
  const Scritto scritto = Tre({"abc", "c\r\n", ""});
  EXPECT_EQ("abc\r\n\r\n" + Marcatore("23;1;") + "c\r\n", scritto.File);
  EXPECT_EQ("abc", scritto.Testi[0]);
  EXPECT_EQ("abc\r\n\r\n", LeggiTre(scritto.File).Testi[0]);
}

TEST(ScriviImmagine, AddsAnEmptyLineAfterAnUnfinishedPiede) {
  const Scritto scritto = Tre({"t\r\n", "", "p\r\nq" + Codice("N")});
  EXPECT_EQ("t\r\n" + Marcatore("23;0;") + "p\r\nq" + CodiceFile("N") + "\r\n\r\n", scritto.File);
}

TEST(ScriviImmagine, CompletesAnUnfinishedCorpoInItsOwnText) {
  const Scritto scritto = Tre({"t\r\n", "x", ""});
  EXPECT_EQ("t\r\n" + Marcatore("23;1;") + "x\r\n", scritto.File);
  EXPECT_EQ("x\r\n", scritto.Testi[1]);
  EXPECT_EQ(1, scritto.Corpo.LineeCorpo);
}

TEST(ScriviImmagine, WritesNothingOfACorpoOfSpaces) {
  const Scritto scritto = Tre({"t\r\n", "   ", ""});
  EXPECT_EQ("t\r\n" + Marcatore("23;0;"), scritto.File);
  EXPECT_EQ("   ", scritto.Testi[1]);
  EXPECT_EQ(0, scritto.Corpo.LineeCorpo);
}

TEST(ScriviImmagine, DropsAnUnfinishedPartThatHoldsOnlySpacesButKeepsFinishedLinesOfSpaces) {
  EXPECT_EQ("t\r\n  \r\n" + Marcatore("23;1;") + "  \r\np\r\n",
            Tre({"t\r\n  \r\n  ", "  \r\n  ", "p\r\n \n "}).File);
}

TEST(ScriviImmagine, TakesATabForText) {
  EXPECT_EQ("t\r\n" + Marcatore("23;0;") + "\t\r\n\r\n", Tre({"t\r\n", "", "\t"}).File);
}

TEST(ScriviImmagine, WritesEachSettingOfTheMarker) {
  for (const auto& [corpo, valori] : {std::pair(ImpostazioniCorpo{23, 9, "C", "S"}, "23;1;CS"),
                                      std::pair(ImpostazioniCorpo{23, 9, "", "S"}, "23;1;S"),
                                      std::pair(ImpostazioniCorpo{0, 9, "C", ""}, "0;1;C"),
                                      std::pair(ImpostazioniCorpo{-32768, 9, "", ""}, "-32768;1;"),
                                      std::pair(ImpostazioniCorpo{32767, 9, "C", "\x81"}, "32767;1;C\x81")}) {
    TestiSezioni testi = {"t\r\n", "c\r\n", ""};
    ImpostazioniCorpo scritte = corpo;
    const Esito<std::string> file = ScriviImmagine(testi, scritte, Formato::TreSezioni);
    ASSERT_TRUE(file);
    EXPECT_EQ("t\r\n" + Marcatore(valori) + "c\r\n", *file);
  }
}

TEST(ScriviImmagine, WritesTheMarkerWithoutConvertingIt) {
  TestiSezioni testi = {"t\r\n", "", ""};
  ImpostazioniCorpo corpo = {.RigheCorpo = 1, .LineeCorpo = 0, .FlagSbarra = "C", .FlagAccorpa = "\xAB"};
  const Esito<std::string> file = ScriviImmagine(testi, corpo, Formato::TreSezioni);
  ASSERT_TRUE(file);
  EXPECT_EQ("t\r\n" + Marcatore("1;0;C\xAB"), *file);
}

TEST(ScriviImmagine, RefusesABodyOfMoreThan32767LinesAndChangesNothing) {
  std::string corpo;
  for (int i = 0; i < 32767; ++i) corpo += "\r\n";
  EXPECT_EQ(32767, Tre({"t\r\n", corpo, ""}).Corpo.LineeCorpo);

  corpo += "x";
  TestiSezioni testi = {"t\r\n", corpo, "p\r\n"};
  ImpostazioniCorpo impostazioni = Precedenti();
  const Esito<std::string> file = ScriviImmagine(testi, impostazioni, Formato::TreSezioni);
  ASSERT_FALSE(file);
  EXPECT_EQ(NumeroErrore::Overflow, file.Errore());
  EXPECT_EQ((TestiSezioni{"t\r\n", corpo, "p\r\n"}), testi);
  EXPECT_EQ(Precedenti(), impostazioni);
}

TEST(ImpostazioniPredefinite, AreThoseOfAFreshType) {
  EXPECT_EQ((ImpostazioniCorpo{23, 1, "", ""}), ImpostazioniPredefinite());
}

TEST(Delimitatori, AreConvertedInTheWholeTextBothWays) {
  std::string testo =
      "\xAE\xAE"
      "a\xAF\xAB\xBB";
  DelimitatoriVersoEditor(testo);
  EXPECT_EQ(
      "\xAB\xAB"
      "a\xBB\xAB\xBB",
      testo);
  DelimitatoriVersoFile(testo);
  EXPECT_EQ(
      "\xAE\xAE"
      "a\xAF\xAE\xAF",
      testo);
}

}  // namespace
}  // namespace parvik::prova
