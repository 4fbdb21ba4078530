#include <gtest/gtest.h>

#include <algorithm>

#include "batch/Esecuzione.h"
#include "batch/Esempi.h"

namespace parvik::prova {
namespace {

std::string Tipo(int numero, std::string_view testo) {
  return std::to_string(numero) + ",\"" + std::string(testo) + ";3;1;1;1;1;1;1;1;1;1;1;1;1\"\r\n";
}

/// `tipi` on a catalogue whose head is this.
Esecuzione TipiDi(const std::string& testata) {
  const CartellaTemporanea cartella;
  Crea(cartella / "campi.txt", testata + "//fine documenti\r\n");
  return Esegui({"--campi", (cartella / "campi.txt").string(), "tipi"});
}

TEST(Tipi, ListsNumberDescriptionTitleAndSectionCount) {
  const HostDiProva host;
  EXPECT_EQ(Esegui(host.Argomenti({"tipi"})),
            (Esecuzione{0, "1\tFattura\tFATT*.IMG\t3\n2\tListino\tLIST*.IMG\t1\n", ""}));
}

TEST(Tipi, EndsAtTheFirstGap) {
  EXPECT_EQ(TipiDi(Tipo(3, "c;C") + Tipo(1, "a;A") + Tipo(5, "e;E") + Tipo(2, "b;B")),
            (Esecuzione{0, "1\ta\tA\t3\n2\tb\tB\t3\n3\tc\tC\t3\n", ""}));
}

TEST(Tipi, PrintsNothingForACatalogueWithoutTypes) {
  EXPECT_EQ(TipiDi(""), (Esecuzione{0, "", ""}));
}

TEST(Tipi, PrintsTextsInUtf8AndControlCharactersAsSpaces) {
  EXPECT_EQ(TipiDi(Tipo(1, "Citt\xE0 \x80\x81|\t|\x01|\n|\x7F|;T\xC8\t*")),
            (Esecuzione{0, "1\tCittà €\xC2\x81| | | | |\tTÈ *\t3\n", ""}));
}

TEST(Tipi, ListsTheExampleWithoutItsLastSlot) {
  const Esecuzione esecuzione = EseguiEsempio({"tipi"});
  EXPECT_EQ(esecuzione.Stato, 0);
  EXPECT_EQ(esecuzione.Errori, "");
  EXPECT_EQ(std::ranges::count(esecuzione.Uscita, '\n'), 22);
  EXPECT_TRUE(esecuzione.Uscita.starts_with("1\tFattura immediata\tFATT*.IMG\t3\n"));
  EXPECT_TRUE(esecuzione.Uscita.ends_with("22\tProvvigioni agenti\tPROVV*.IMG\t3\n"));
}

}  // namespace
}  // namespace parvik::prova
