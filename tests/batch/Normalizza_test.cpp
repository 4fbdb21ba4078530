#include <gtest/gtest.h>

#include "batch/Esecuzione.h"
#include "batch/Esempi.h"
#include "common/FileDiProva.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

const Esecuzione Fatto = {0, "", ""};

class NormalizzaTest : public testing::Test {
 protected:
  Esecuzione Normalizza(std::vector<std::string> altri, const std::string& tipo = "1") const {
    altri.insert(altri.begin(), {"normalizza", "--tipo", tipo});
    return Esegui(Host.Argomenti(std::move(altri)));
  }
  std::string Modello(const std::string& byte, std::string_view nome = "m.img") const {
    return Host.Modello(nome, byte).string();
  }
  /// What becomes of a file in place.
  std::string Normalizzato(const std::string& byte, const std::string& tipo = "1") const {
    const std::string m = Modello(byte);
    EXPECT_EQ(Normalizza({m}, tipo), Fatto);
    return Contenuto(m);
  }

  HostDiProva Host;
};

TEST_F(NormalizzaTest, CompletesLineEndsInPlace) {
  EXPECT_EQ(Normalizzato("a\rb\r\nc", "2"), "a\r\nb\r\nc\r\n");
  EXPECT_EQ(Normalizzato("a\nb\n", "2"), "a\nb\n\r\n");
}

TEST_F(NormalizzaTest, WritesTheMarkerAnew) {
  EXPECT_EQ(Normalizzato("t\r\nx" + NelFile("C 024 righe;1.0;C") + "y\r\nc\r\np"),
            "t\r\n" + NelFile("C24;1;C") + "\r\nc\r\np\r\n");
  EXPECT_EQ(Normalizzato("t\r\n" + NelFile("C23;1;CS") + "\r\nc\r\np\r\n"),
            "t\r\n" + NelFile("C23;1;CS") + "\r\nc\r\np\r\n");
}

TEST_F(NormalizzaTest, GivesATemplateWithoutAMarkerTheOneOfAFreshProgram) {
  EXPECT_EQ(Normalizzato("t\r\n"), "t\r\n" + NelFile("C23;0;") + "\r\n");
  EXPECT_EQ(Normalizzato(""), NelFile("C23;0;") + "\r\n");
}

TEST_F(NormalizzaTest, LeavesAnEmptyTemplateOfOneSectionEmpty) {
  EXPECT_EQ(Normalizzato("", "2"), "");
}

TEST_F(NormalizzaTest, SavesTheEditorsDelimitersAsThoseOfFiles) {
  EXPECT_EQ(Normalizzato("\xAB"
                         "P1\xBB \xAE"
                         "P2\xAF\r\n",
                         "2"),
            "\xAE"
            "P1\xAF \xAE"
            "P2\xAF\r\n");
}

TEST_F(NormalizzaTest, KeepsEveryOtherByte) {
  std::string tutti;
  for (int v = 0; v < 256; ++v) tutti += static_cast<char>(static_cast<unsigned char>(v));
  std::erase_if(tutti, [](char c) { return c == '\r' || c == '\xAB' || c == '\xBB'; });
  EXPECT_EQ(Normalizzato(tutti + "\r\n", "2"), tutti + "\r\n");
}

TEST_F(NormalizzaTest, WritesIntoTheFileNamedAndLeavesTheTemplate) {
  const std::string m = Modello("a\rb");
  const fs::path uscita = Host.Percorso() / "n.img";
  EXPECT_EQ(Normalizza({"-o", uscita.string(), m}, "2"), Fatto);
  EXPECT_EQ(Contenuto(uscita), "a\r\nb\r\n");
  EXPECT_EQ(Contenuto(m), "a\rb");
}

TEST_F(NormalizzaTest, NormalisesEachOfSeveralFiles) {
  const std::string a = Modello("a", "a.img");
  const std::string b = Modello("b", "b.img");
  EXPECT_EQ(Normalizza({a, b}, "2"), Fatto);
  EXPECT_EQ(Contenuto(a), "a\r\n");
  EXPECT_EQ(Contenuto(b), "b\r\n");
}

TEST_F(NormalizzaTest, StartsEachFileAsInAFreshProgram) {
  const std::string a = Modello("t\r\n" + NelFile("C5;1;CS") + "\r\nc\r\n", "a.img");
  const std::string b = Modello("t\r\n", "b.img");
  EXPECT_EQ(Normalizza({a, b}), Fatto);
  EXPECT_EQ(Contenuto(b), "t\r\n" + NelFile("C23;0;") + "\r\n");
}

TEST_F(NormalizzaTest, GoesOnAfterAFileThatFails) {
  const std::string a = Modello("a", "a.img");
  const std::string manca = (Host.Percorso() / "manca.img").string();
  const std::string b = Modello("b", "b.img");
  EXPECT_EQ(Normalizza({a, manca, b}, "2"),
            (Esecuzione{2, "", Detto(manca + ": Si è verificato l'errore: 53 Impossibile trovare il file")}));
  EXPECT_EQ(Contenuto(a), "a\r\n");
  EXPECT_EQ(Contenuto(b), "b\r\n");
  EXPECT_FALSE(fs::exists(manca));
}

TEST_F(NormalizzaTest, WarnsWhenTheMarkerPromisesMoreLinesThanTheFileHasAndCountsThem) {
  const std::string m = Modello("t\r\n" + NelFile("C8;4;S") + "\r\nc\r\nd\r\n");
  EXPECT_EQ(
      Normalizza({m}),
      (Esecuzione{0, "",
                  Detto(m + ": avviso: il file ha meno delle 4 righe di corpo che il marcatore promette")}));
  EXPECT_EQ(Contenuto(m), "t\r\n" + NelFile("C8;2;S") + "\r\nc\r\nd\r\n");
}

TEST_F(NormalizzaTest, RefusesAMarkerNumberBeyond16BitsAndLeavesTheFile) {
  for (const std::string marcatore : {"C8;40000;", "C40000;1;", "C8;-32769;"}) {
    const std::string byte = "t\r" + NelFile(marcatore) + "\r\nc\r\np";
    const std::string m = Modello(byte);
    EXPECT_EQ(Normalizza({m}), (Esecuzione{2, "", Detto(m + ": Si è verificato l'errore: 6 Overflow")}));
    EXPECT_EQ(Contenuto(m), byte);
  }
}

TEST_F(NormalizzaTest, RefusesAMarkerNumberBeyond16BitsAtTheEndOfTheFile) {
  const std::string byte = "t\r\n" + NelFile("C8;40000;") + "\r\n";
  const std::string m = Modello(byte);
  EXPECT_EQ(Normalizza({m}), (Esecuzione{2, "", Detto(m + ": Si è verificato l'errore: 6 Overflow")}));
  EXPECT_EQ(Contenuto(m), byte);
}

TEST_F(NormalizzaTest, RefusesAPipe) {
  const std::string tubo = (Host.Percorso() / "tubo.img").string();
  if (!FaiPipe(tubo)) GTEST_SKIP() << "no pipes in folders here";
  EXPECT_EQ(
      Normalizza({tubo}),
      (Esecuzione{2, "", Detto(tubo + ": Si è verificato l'errore: 75 Errore di accesso al percorso/file")}));
}

TEST_F(NormalizzaTest, RefusesAFolder) {
  EXPECT_EQ(
      Normalizza({Host.Percorso().string()}),
      (Esecuzione{
          2, "", Detto(Host.Percorso(), "Si è verificato l'errore: 75 Errore di accesso al percorso/file")}));
}

TEST_F(NormalizzaTest, CannotWriteIntoAFolderThatIsNotThere) {
  const fs::path dove = Host.Percorso() / "manca" / "n.img";
  EXPECT_EQ(Normalizza({"-o", dove.string(), Modello("a")}),
            (Esecuzione{2, "", Detto(dove, "Si è verificato l'errore: 76 Impossibile trovare il percorso")}));
}

TEST_F(NormalizzaTest, WritesThroughALinkAndKeepsTheLink) {
  if (!Collegamenti()) GTEST_SKIP() << "no links here";
  const std::string m = Modello("a");
  const fs::path legame = Host.Percorso() / "legame.img";
  fs::create_symlink(m, legame);
  EXPECT_EQ(Normalizza({legame.string()}, "2"), Fatto);
  EXPECT_EQ(Contenuto(m), "a\r\n");
  EXPECT_TRUE(fs::is_symlink(legame));
}

TEST_F(NormalizzaTest, LeavesNothingElseInTheFolder) {
  Crea(Host.Percorso() / "fuori" / "m.img", "a");
  EXPECT_EQ(Normalizza({(Host.Percorso() / "fuori" / "m.img").string()}, "2"), Fatto);
  EXPECT_EQ(Nomi(Host.Percorso() / "fuori"), std::vector<std::string>{"m.img"});
}

TEST_F(NormalizzaTest, NeedsNoVariablesAndNoFlagsOfTheCatalogue) {
  const fs::path catalogo = Host.Percorso() / "altro.txt";
  Crea(catalogo, "1,\"T;T;1;1;2;9;9;9;9;1;2;9;9;9;9\"\r\n//fine documenti\r\n0001,x\r\n0002,x\r\n");
  const std::string m = Modello("a");
  EXPECT_EQ(Esegui({"--campi", catalogo.string(), "normalizza", "--tipo", "1", m}), Fatto);
  EXPECT_EQ(Contenuto(m), "a\r\n");
}

TEST_F(NormalizzaTest, LeavesEveryExampleAsItIs) {
  for (const ModelloEsempio& modello : ModelliEsempio()) {
    const std::string byte = Contenuto(FileDi(modello));
    const std::string m = Modello(byte, modello.Nome);
    EXPECT_EQ(EseguiEsempio({"normalizza", "--tipo", std::to_string(modello.Tipo), m}), Fatto)
        << modello.Nome;
    EXPECT_EQ(Contenuto(m), byte) << modello.Nome;
  }
}

}  // namespace
}  // namespace parvik::prova
