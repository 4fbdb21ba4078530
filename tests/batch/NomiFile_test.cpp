// Names of files and folders on the command line: whatever stands in them, they are names.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "batch/Esecuzione.h"
#include "batch/Esempi.h"
#include "common/TestoPercorso.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

const std::string Prima = "a\rb";
const std::string Dopo = "a\r\nb\r\n";
const Esecuzione Fatto = {0, "", ""};

/// Every name that a file may have where something else was, or might be, read into it.
const std::vector<std::string> Nomi = {
    "[x]",  "[x,y]",        "[[x]]",    "[]",   "[,]",    "[x",         "x]",   "x,y",
    "%%",   "{}",           "++",       "+",    "-",      "=",          "=x",   "==x",
    "x=y",  "\"x\"",        "'x'",      "\"",   "`x`",    "x y",        " ",    " x ",
    "x\ny", "x\r\ny",       "x\ty",     "x\\y", "x:y",    "#x",         ";x",   "@x",
    "~",    "$x",           "*",        "tipi", "stampa", "normalizza", "true", "IMG",
    "1",    "caff\xC3\xA8", "caff\xE8", "\x01"};
/// Names that are options where they are not behind "--" or in the place of a value.
const std::vector<std::string> ComeOpzioni = {
    "--",       "-x.img", "-o",       "-ox",       "-h",   "--help",   "--help=x", "--tipo",
    "--tipo=2", "--x",    "--x=y",    "--campi=x", "---x", "-1",       "-12",      "--1",
    "-[x]",     "--[x]",  "-=",       "--=",       "--=x", "- x",      "-!x",      "--\n",
    "--?=x",    "-o=x",   "--velkor", "-o[",       "--o",  "--veri=1", "-oo",      "-\xE8"};

std::vector<std::string> Possibili(std::vector<std::string> nomi) {
  std::erase_if(nomi, [](const std::string& nome) { return !NomePossibile(nome); });
  return nomi;
}

std::vector<std::string> NomiSoli() {
  return Possibili(Nomi);
}

std::vector<std::string> TuttiINomi() {
  std::vector<std::string> tutti = NomiSoli();
  const std::vector<std::string> opzioni = Possibili(ComeOpzioni);
  tutti.insert(tutti.end(), opzioni.begin(), opzioni.end());
  return tutti;
}

class NomiFileTest : public testing::Test {
 protected:
  /// In the folder of the files, so that a name is the whole word.
  Esecuzione Esegui(std::vector<std::string> argomenti) const {
    argomenti.insert(argomenti.begin(), {"--velkor", Host.Percorso().string()});
    return EseguiQui(argomenti);
  }
  Esecuzione EseguiQui(const std::vector<std::string>& argomenti) const {
    return prova::Esegui(argomenti, {.Cartella = Cartella.Percorso()});
  }
  fs::path File(const std::string& nome) const { return Cartella.Percorso() / PercorsoDaTesto(nome); }
  void CreaTutti(const std::vector<std::string>& nomi) const {
    for (const std::string& nome : nomi) Crea(File(nome), Prima);
  }
  /// The files that are not as they were.
  std::set<std::string> Cambiati() const {
    std::set<std::string> cambiati;
    for (const auto& voce : fs::directory_iterator(Cartella.Percorso())) {
      if (Contenuto(voce.path()) != Prima) cambiati.insert(TestoPercorso(voce.path().filename()));
    }
    return cambiati;
  }

  HostDiProva Host;
  CartellaTemporanea Cartella;
};

TEST_F(NomiFileTest, ATemplateIsTheFileOfThatNameAndNoOther) {
  CreaTutti(TuttiINomi());
  CreaTutti({"x", "y", "a", "b"});
  for (const std::string& nome : NomiSoli()) {
    EXPECT_EQ(Esegui({"normalizza", "--tipo", "2", nome}), Fatto) << nome;
    EXPECT_EQ(Cambiati(), std::set{nome});
    EXPECT_EQ(Contenuto(File(nome)), Dopo) << nome;
    Crea(File(nome), Prima);
  }
}

TEST_F(NomiFileTest, BehindTwoDashesEveryWordIsAName) {
  CreaTutti(TuttiINomi());
  CreaTutti({"x", "y"});
  for (const std::string& nome : TuttiINomi()) {
    EXPECT_EQ(Esegui({"normalizza", "--tipo", "2", "--", nome}), Fatto) << nome;
    EXPECT_EQ(Cambiati(), std::set{nome});
    EXPECT_EQ(Contenuto(File(nome)), Dopo) << nome;
    Crea(File(nome), Prima);
  }
}

TEST_F(NomiFileTest, ManyNamesAreAsManyFilesInTheirOrder) {
  const std::vector<std::string> tutti = TuttiINomi();
  std::string atteso;
  for (std::size_t i = 0; i < tutti.size(); ++i) {
    const std::string riga = std::to_string(i) + "\r\n";
    Crea(File(tutti[i]), riga);
    atteso += riga;
  }
  std::vector<std::string> argomenti = {"stampa", "--tipo", "2"};
  const auto soli = static_cast<std::ptrdiff_t>(NomiSoli().size());
  argomenti.insert(argomenti.end(), tutti.begin(), tutti.begin() + soli);
  argomenti.emplace_back("--");
  argomenti.insert(argomenti.end(), tutti.begin() + soli, tutti.end());
  EXPECT_EQ(Esegui(argomenti), (Esecuzione{0, atteso, ""}));
}

TEST_F(NomiFileTest, TheOutputIsTheFileOfThatName) {
  Crea(Cartella / "modello", Prima);
  for (const std::string& nome : TuttiINomi()) {
    for (const std::vector<std::string>& opzione :
         {std::vector<std::string>{"-o", nome}, std::vector<std::string>{"-o" + nome}}) {
      std::vector<std::string> argomenti = {"normalizza", "--tipo", "2"};
      argomenti.insert(argomenti.end(), opzione.begin(), opzione.end());
      argomenti.emplace_back("modello");
      EXPECT_EQ(Esegui(argomenti), Fatto) << nome;
      EXPECT_EQ(Cambiati(), std::set{nome});
      EXPECT_EQ(Contenuto(File(nome)), Dopo) << nome;
      fs::remove(File(nome));
    }
  }
}

TEST_F(NomiFileTest, TheCatalogueIsTheFileOfThatName) {
  const std::string catalogo = Contenuto(Host.Catalogo());
  const Esecuzione atteso = prova::Esegui({"--velkor", Host.Percorso().string(), "tipi"});
  ASSERT_EQ(atteso.Stato, 0);
  for (const std::string& nome : TuttiINomi()) {
    Crea(File(nome), catalogo);
    EXPECT_EQ(EseguiQui({"--campi", nome, "tipi"}), atteso) << nome;
    EXPECT_EQ(EseguiQui({"--campi=" + nome, "tipi"}), atteso) << nome;
    EXPECT_EQ(EseguiQui({"tipi", "--campi", nome}), atteso) << nome;
    EXPECT_EQ(EseguiQui({"tipi", "--campi=" + nome}), atteso) << nome;
    fs::remove(File(nome));
  }
}

TEST_F(NomiFileTest, TheHostDirectoryIsTheFolderOfThatName) {
  const std::string catalogo = Contenuto(Host.Catalogo());
  const Esecuzione atteso = prova::Esegui({"--velkor", Host.Percorso().string(), "tipi"});
  ASSERT_EQ(atteso.Stato, 0);
  for (const std::string& nome : TuttiINomi()) {
    Crea(File(nome) / "D_IMG" / "CAMPI.TXT", catalogo);
    EXPECT_EQ(EseguiQui({"--velkor", nome, "tipi"}), atteso) << nome;
    EXPECT_EQ(EseguiQui({"tipi", "--velkor=" + nome}), atteso) << nome;
    fs::remove_all(File(nome));
  }
}

TEST_F(NomiFileTest, AnEmptyNameIsTheNextWordOfNobody) {
  const std::string aiuto = " (--help elenca gli argomenti)";
  CreaTutti({"x"});
  EXPECT_EQ(EseguiQui({"--campi=", "tipi"}), (Esecuzione{2, "", Detto("--campi: vuole un nome" + aiuto)}));
  EXPECT_EQ(EseguiQui({"--velkor=", "tipi"}), (Esecuzione{2, "", Detto("--velkor: vuole un nome" + aiuto)}));
  EXPECT_EQ(Esegui({"normalizza", "--tipo", "2", "-o", "", "x"}),
            (Esecuzione{2, "", Detto("-o: vuole un nome" + aiuto)}));
  EXPECT_EQ(Esegui({"normalizza", "--tipo", "2", ""}),
            (Esecuzione{2, "", Detto("IMG: vuole un nome" + aiuto)}));
  EXPECT_EQ(Esegui({"normalizza", "--tipo", "2", "x", ""}),
            (Esecuzione{2, "", Detto("IMG: vuole un nome" + aiuto)}));
  EXPECT_EQ(Cambiati(), std::set<std::string>());
}

/// A word in front of "--" that begins with "-" is an option, known or not.
TEST_F(NomiFileTest, AnUnknownOptionIsNoFile) {
  CreaTutti({"-12", "--1", "-[x]", "--x=y", "--[x]", "-x.img", "x"});
  for (const std::string nome : {"-12", "--1", "-[x]", "--x=y", "--[x]", "-x.img"}) {
    EXPECT_EQ(
        Esegui({"normalizza", "--tipo", "2", "x", nome}),
        (Esecuzione{2, "", Detto("argomento non previsto: " + nome + " (--help elenca gli argomenti)")}))
        << nome;
  }
  EXPECT_EQ(Cambiati(), std::set<std::string>());
}

}  // namespace
}  // namespace parvik::prova
