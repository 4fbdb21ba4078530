// What the program says of files whose names are no text: one line that a terminal can show.
#include <gtest/gtest.h>

#include "batch/Esecuzione.h"
#include "batch/Esempi.h"
#include "common/TestoPercorso.h"
#include "supporto/ConNome.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

struct Caso {
  const char* Nome;
  std::string Byte;
  std::string Mostrato;
};
using prova::PrintTo;

class NomeNeiMessaggiTest : public testing::TestWithParam<Caso> {
 protected:
  Esecuzione EseguiQui(const std::vector<std::string>& argomenti) const {
    return Esegui(argomenti, {.Cartella = Cartella.Percorso()});
  }
  Esecuzione EseguiCon(std::vector<std::string> argomenti) const {
    return EseguiQui(Host.Argomenti(argomenti));
  }
  static Esecuzione Errore(const std::string& testo) { return {2, "", Detto(testo)}; }
  void SetUp() override {
    if (!NomePossibile(Byte())) GTEST_SKIP() << "no file can have that name here";
  }
  fs::path File() const { return Cartella.Percorso() / PercorsoDaTesto(Byte()); }
  static const std::string& Byte() { return GetParam().Byte; }
  static const std::string& Mostrato() { return GetParam().Mostrato; }

  HostDiProva Host;
  CartellaTemporanea Cartella;
};

TEST_P(NomeNeiMessaggiTest, OfATemplateIsShownInOneLine) {
  const std::string manca = Mostrato() + ": Si è verificato l'errore: 53 Impossibile trovare il file";
  EXPECT_EQ(EseguiCon({"stampa", "--tipo", "2", Byte()}), Errore(manca));
  EXPECT_EQ(EseguiCon({"normalizza", "--tipo", "2", Byte()}), Errore(manca));
  Crea(File(), "t\r\n" + NelFile("C2;2;") + "\r\nc\r\n");
  EXPECT_EQ(EseguiCon({"stampa", "--tipo", "1", Byte()}).Errori,
            Detto(Mostrato() + ": avviso: il file ha meno delle 2 righe di corpo che il marcatore promette"));
  Crea(File(), "t\r\n" + NelFile("C99999;1;") + "\r\nc\r\n");
  EXPECT_EQ(EseguiCon({"stampa", "--tipo", "1", Byte()}).Errori,
            Detto(Mostrato() + ": avviso: lettura interrotta: Si è verificato l'errore: 6 Overflow"));
  EXPECT_EQ(EseguiCon({"normalizza", "--tipo", "1", Byte()}),
            Errore(Mostrato() + ": Si è verificato l'errore: 6 Overflow"));
}

TEST_P(NomeNeiMessaggiTest, OfAnOutputIsShownInOneLine) {
  Crea(Cartella / "m.img", "x\r\n");
  fs::create_directory(File());
  const std::string cartella =
      Mostrato() + ": Si è verificato l'errore: 75 Errore di accesso al percorso/file";
  EXPECT_EQ(EseguiCon({"stampa", "--tipo", "2", "-o", Byte(), "m.img"}), Errore(cartella));
  EXPECT_EQ(EseguiCon({"normalizza", "--tipo", "2", "-o", Byte(), "m.img"}), Errore(cartella));
  EXPECT_EQ(EseguiCon({"normalizza", "--tipo", "2", "-o", Byte(), "m.img", "n.img"}),
            Errore("-o vuole un file solo: " + Mostrato()));
}

TEST_P(NomeNeiMessaggiTest, OfACatalogueIsShownInOneLine) {
  Crea(File(), "1\r\n");
  EXPECT_EQ(EseguiQui({"--campi", Byte(), "tipi"}),
            Errore("Si è verificato l'errore: 5 Chiamata di routine o argomento non validi - " + Mostrato() +
                   ", riga 1"));
  Crea(File(), Contenuto(Host.Catalogo()));
  EXPECT_EQ(EseguiQui({"--campi", Byte(), "campi", "--tipo", "3"}),
            Errore(Mostrato() + ": tipo di documento 3 sconosciuto"));
}

TEST_P(NomeNeiMessaggiTest, AnythingElseOnTheCommandLineIsShownInOneLine) {
  const std::string aiuto = " (--help elenca gli argomenti)";
  EXPECT_EQ(EseguiQui({Byte()}), Errore("comando sconosciuto: " + Mostrato() + aiuto));
  EXPECT_EQ(EseguiQui({"tipi", Byte()}), Errore("argomento non previsto: " + Mostrato() + aiuto));
  EXPECT_EQ(EseguiQui({"tipi", "--" + Byte()}), Errore("argomento non previsto: --" + Mostrato() + aiuto));
  EXPECT_EQ(EseguiQui({"campi", "--tipo", Byte()}),
            Errore("--tipo: vuole un numero, non \"" + Mostrato() + "\"" + aiuto));
  EXPECT_EQ(EseguiQui({"campi", "--tipo", "1", "--sezione", Byte()}),
            Errore("--sezione: vuole testata, corpo o piede, non \"" + Mostrato() + "\"" + aiuto));
  EXPECT_EQ(EseguiQui({"stampa", "--tipo", "1", "--veri", Byte(), "m.img"}),
            Errore("--veri: vuole numeri separati da virgole, non \"" + Mostrato() + "\"" + aiuto));
}

INSTANTIATE_TEST_SUITE_P(
    Nomi, NomeNeiMessaggiTest,
    testing::Values(Caso{"plain", "m n.img", "m n.img"}, Caso{"utf8", "caff\xC3\xA8", "caff\xC3\xA8"},
                    Caso{"windows1252", "caff\xE8", "caff\\xE8"}, Caso{"line_feed", "a\nb", "a\\x0Ab"},
                    Caso{"line_end", "a\r\nb", "a\\x0D\\x0Ab"}, Caso{"tab", "a\tb", "a\\x09b"},
                    Caso{"terminal", "\x1B[2J", "\\x1B[2J"}, Caso{"delete", "a\x7F", "a\\x7F"},
                    Caso{"next_line", "a\xC2\x85", "a\\xC2\\x85"},
                    Caso{"paragraph", "a\xE2\x80\xA9", "a\\xE2\\x80\\xA9"},
                    Caso{"cut_short", "\xE2\x82", "\\xE2\\x82"}, Caso{"backslash", "a\\nb", "a\\nb"},
                    Caso{"brackets", "[x]", "[x]"}),
    [](const auto& caso) { return std::string(caso.param.Nome); });

}  // namespace
}  // namespace parvik::prova
