// Long texts: they are gone over in pieces of a few thousand bytes, and nothing may show where one ends.
#include "template/CopiaRighe.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "common/LettoreRighe.h"

namespace parvik::prova {
namespace {

std::string ConDelimitatori(std::string testo, void (*scambia)(std::span<char>)) {
  scambia(testo);
  return testo;
}

/// Line by line.
std::string Letto(std::string_view file) {
  std::string sezione;
  LettoreRighe righe(file);
  while (const auto riga = righe.Prossima()) sezione.append(*riga).append("\r\n");
  return ConDelimitatori(sezione, DelimitatoriVersoEditor);
}

/// Byte by byte; `resto` is where the unfinished line begins.
std::string Scritto(std::string_view sezione, std::size_t& resto) {
  std::string file;
  resto = 0;
  for (std::size_t i = 0; i < sezione.size(); ++i) {
    if (sezione[i] != '\r') {
      file += sezione[i];
      continue;
    }
    file += "\r\n";
    resto = file.size();
    ++i;
  }
  return ConDelimitatori(file, DelimitatoriVersoFile);
}

/// Every text of four bytes of the alphabet at every place around the end of the first and second piece, in
/// the middle of a text and at its end.
void PerOgniTesto(void (*controlla)(const std::string&)) {
  constexpr std::string_view Alfabeto = "\r\na\xAE\xAB";
  constexpr std::size_t Pezzo = 8192;
  constexpr std::size_t Testi = 625;
  std::string mezzo(4, Alfabeto.front());
  for (std::size_t numero = 0; numero < Testi; ++numero) {
    for (std::size_t i = 0, resto = numero; i < mezzo.size(); ++i, resto /= Alfabeto.size()) {
      mezzo[i] = Alfabeto[resto % Alfabeto.size()];
    }
    for (std::size_t prima = Pezzo - 5; prima <= Pezzo; ++prima) {
      const std::string testo = std::string(prima, 'x') + mezzo;
      controlla(testo);
      if (numero % 5 == 0) controlla(testo + "fine\r\n" + testo);
    }
  }
}

TEST(CopiaRighe, ReadsLongTextsAsLineByLine) {
  PerOgniTesto([](const std::string& testo) {
    std::string sezione = "prima";
    AggiungiDaFile(testo, sezione);
    ASSERT_TRUE(sezione == "prima" + Letto(testo));
  });
}

TEST(CopiaRighe, ReadsLongTextsWhereTheyStand) {
  PerOgniTesto([](const std::string& testo) {
    std::string sezione = testo;
    if (!RendiRighe(sezione)) {
      std::string completata;
      AggiungiDaFile(sezione, completata);
      sezione = completata;
      ASSERT_TRUE(sezione.size() > testo.size());
    } else if (!sezione.empty() && !sezione.ends_with("\r\n")) {
      sezione += "\r\n";
    }
    ASSERT_TRUE(sezione == Letto(testo));
  });
}

TEST(CopiaRighe, WritesLongTextsAsByteByByte) {
  PerOgniTesto([](const std::string& testo) {
    std::string file = "prima";
    std::size_t atteso = 0;
    const std::string scritto = Scritto(testo, atteso);
    const std::size_t resto = AggiungiVersoFile(testo, file);
    ASSERT_TRUE(file == "prima" + scritto);
    ASSERT_EQ(resto, 5 + atteso);
  });
}

TEST(CopiaRighe, FindsAPairOfBytesWhereverItStands) {
  constexpr std::size_t Lunghezza = 20'000;
  std::string testo(Lunghezza, '\xAE');
  ASSERT_EQ(TrovaCoppia(testo,
                        "\xAE"
                        "C",
                        0),
            std::string::npos);
  for (std::size_t posto = 1; posto < Lunghezza;
       posto = posto < 8'190 || posto > 8'200 ? posto + 97 : posto + 1) {
    testo[posto] = 'C';
    ASSERT_EQ(TrovaCoppia(testo,
                          "\xAE"
                          "C",
                          0),
              posto - 1);
    ASSERT_EQ(TrovaCoppia(testo,
                          "\xAE"
                          "C",
                          posto - 1),
              posto - 1);
    ASSERT_EQ(TrovaCoppia(testo,
                          "\xAE"
                          "C",
                          posto),
              std::string::npos);
    testo[posto] = '\xAE';
  }
}

TEST(CopiaRighe, FindsNoPairInTextsThatAreTooShort) {
  EXPECT_EQ(TrovaCoppia("", "ab", 0), std::string::npos);
  EXPECT_EQ(TrovaCoppia("a", "ab", 0), std::string::npos);
  EXPECT_EQ(TrovaCoppia("ab", "ab", 2), std::string::npos);
}

}  // namespace
}  // namespace parvik::prova
