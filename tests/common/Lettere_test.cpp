#include "common/Lettere.h"

#include <gtest/gtest.h>

#include <string>

#include "common/Windows1252.h"

namespace parvik::prova {
namespace {

std::string Piccole(const std::string& utf8) {
  return Utf8DaAnsi(InMinuscolo(AnsiDaUtf8(utf8)));
}

std::string Nude(const std::string& utf8) {
  return Utf8DaAnsi(InLettereNude(AnsiDaUtf8(utf8)));
}

TEST(Lettere, HaveTheirSmallOnes) {
  EXPECT_EQ(Piccole("QUALITÀ Œ Š Ž Ÿ Þ × ÷ 12 à"), "qualità œ š ž ÿ þ × ÷ 12 à");
}

TEST(Lettere, LoseTheirAccents) {
  EXPECT_EQ(Nude("ÀÁÂÃÄÅ Ç ÈÉÊË ÌÍÎÏ Ñ ÒÓÔÕÖØ ÙÚÛÜ Ý Ÿ Š Ž"), "aaaaaa c eeee iiii n oooooo uuuu y y s z");
  EXPECT_EQ(Nude("àáâãäå ç èéêë ìíîï ñ òóôõöø ùúûü ýÿ š ž"), "aaaaaa c eeee iiii n oooooo uuuu yy s z");
  EXPECT_EQ(Nude("Æ Œ ß Ð Þ × ÷ € « » 12"), "æ œ ß ð þ × ÷ € « » 12");
}

TEST(Lettere, KeepTheirNumberOfBytes) {
  for (int valore = 0; valore < 256; ++valore) {
    const char c = static_cast<char>(valore);
    EXPECT_EQ(LetteraNuda(LetteraNuda(c)), LetteraNuda(c)) << valore;
    EXPECT_EQ(LetteraPiccola(LetteraPiccola(c)), LetteraPiccola(c)) << valore;
    EXPECT_EQ(LetteraOCifra(c), LetteraOCifra(LetteraPiccola(c))) << valore;
  }
}

TEST(Lettere, AreWhatWordsAreMadeOf) {
  for (const char c : AnsiDaUtf8("azAZ09àÀéßÞÿšŽœƒ")) EXPECT_TRUE(LetteraOCifra(c)) << Utf8DaAnsi({&c, 1});
  for (const char c : AnsiDaUtf8(" .,;-_'\"«»×÷€°§@[`{/:"))
    EXPECT_FALSE(LetteraOCifra(c)) << Utf8DaAnsi({&c, 1});
}

}  // namespace
}  // namespace parvik::prova
