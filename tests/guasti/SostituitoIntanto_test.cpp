// What another program does to the files of a save that is stopped on its way.
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <string>

#include "common/FileDiProva.h"
#include "guasti/Salvatore.h"
#include "sistema/ScritturaSicura.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;
using Elenco = std::vector<std::string>;
using Stato = Salvatore::Stato;

class SostituitoIntanto : public testing::Test {
 protected:
  explicit SostituitoIntanto(bool dueNomi = false) : DueNomi(dueNomi) {}
  void SetUp() override { Ricomincia(); }
  void Ricomincia() const {
    for (const std::string& nome : Nomi(Cartella.Percorso())) fs::remove(Cartella / nome);
    Crea(File, std::string(1000, 'v'));
    if (DueNomi) fs::create_hard_link(File, Cartella / "b.img");
  }
  PianoGuasti Piano(const std::vector<int>& fermate, int senzaLucchetti = 0) const {
    PianoGuasti piano{.Cartelle = {Cartella.Percorso()}, .Guasti = {}, .SenzaLucchetti = senzaLucchetti};
    for (const int fermata : fermate)
      piano.Guasti.push_back({.Chiamata = fermata, .Quale = Guasto::Genere::Fermata});
    return piano;
  }
  /// The number of the last call of this name that a sound save makes.
  int Quale(std::string_view chiamata) const {
    Elenco chiamate;
    {
      const GuastiInCorso inCorso(Piano({}));
      EXPECT_TRUE(ScriviFile(File, "nuovo"));
      chiamate = GuastiInCorso::Chiamate();
    }
    Ricomincia();
    const auto ultima = std::find_if(chiamate.rbegin(), chiamate.rend(),
                                     [&](const std::string& fatta) { return fatta.starts_with(chiamata); });
    EXPECT_NE(ultima, chiamate.rend()) << chiamata;
    return static_cast<int>(chiamate.rend() - ultima);
  }
  fs::path Provvisorio() const {
    for (const std::string& nome : Nomi(Cartella.Percorso())) {
      if (nome.ends_with(".nuovo~")) return Cartella / nome;
    }
    ADD_FAILURE() << "no provisional file";
    return {};
  }
  void SostituisciFile() const {
    Crea(Cartella / "altro", "di un altro");
    fs::rename(Cartella / "altro", File);
  }

  const bool DueNomi;
  CartellaTemporanea Cartella;
  const fs::path File = Cartella / "a.img";
};

class SostituitoSulPosto : public SostituitoIntanto {
 protected:
  SostituitoSulPosto() : SostituitoIntanto(true) {}
};

TEST_F(SostituitoIntanto, OnlyItsOwnFileIsGivenTheName) {
  Salvatore salvatore(File, "nuovo", Piano({Quale("fsync .a.img")}));
  ASSERT_TRUE(salvatore.Fermo());
  const fs::path provvisorio = Provvisorio();
  fs::remove(provvisorio);
  Crea(provvisorio, "");
  salvatore.Prosegui();
  EXPECT_EQ(salvatore.Ora(), Stato::InUso);
  EXPECT_EQ(Contenuto(File), std::string(1000, 'v'));
}

TEST_F(SostituitoIntanto, AFileThatSomebodyTookAwayIsInUseAndNotMissing) {
  Salvatore salvatore(File, "nuovo", Piano({Quale("fsync .a.img")}));
  ASSERT_TRUE(salvatore.Fermo());
  fs::remove(Provvisorio());
  salvatore.Prosegui();
  EXPECT_EQ(salvatore.Ora(), Stato::InUso);
  EXPECT_EQ(Contenuto(File), std::string(1000, 'v'));
}

/// However far the writing in place has come, the file that has its name now is not touched.
TEST_F(SostituitoSulPosto, AFileThatTookItsPlaceIsLeftAlone) {
  for (const char* chiamata : {"rename .a.img", "open a.img", "write a.img", "fsync a.img"}) {
    Salvatore salvatore(File, "nuovo", Piano({Quale(chiamata)}));
    ASSERT_TRUE(salvatore.Fermo());
    SostituisciFile();
    salvatore.Prosegui();
    EXPECT_EQ(salvatore.Ora(), Stato::InUso) << chiamata;
    EXPECT_EQ(Contenuto(File), "di un altro") << chiamata;
    EXPECT_EQ(Nomi(Cartella.Percorso()), (Elenco{"a.img", "b.img"})) << chiamata;
    Ricomincia();
  }
}

/// Each has seen the other only before it was decided who writes over the file.
TEST_F(SostituitoSulPosto, WithoutLocksTwoThatWriteOverTheFileNeverMixWhatTheyWrite) {
  const std::string suo(700, 'p');
  const std::string altrui(900, 's');
  const int crea = Quale("flock .a.img") - 1;
  const int pubblica = Quale("rename .a.img");
  const int tronca = Quale("ftruncate a.img");
  // The first has the earlier time, and makes its file after the second one has looked around.
  Salvatore primo(File, suo, Piano({crea, pubblica + 2}, ENOLCK));
  ASSERT_TRUE(primo.Fermo());
  Salvatore secondo(File, altrui, Piano({pubblica, tronca}, ENOLCK));
  ASSERT_TRUE(secondo.Fermo());
  primo.Avanza();
  ASSERT_TRUE(primo.Fermo());
  secondo.Avanza();
  primo.Prosegui();
  secondo.Prosegui();
  const std::string byte = Contenuto(File);
  EXPECT_TRUE((primo.Ora() == Stato::Scritto && byte == suo) ||
              (secondo.Ora() == Stato::Scritto && byte == altrui) || byte == std::string(1000, 'v'))
      << byte;
  EXPECT_EQ(Nomi(Cartella.Percorso()), (Elenco{"a.img", "b.img"}));
}

}  // namespace
}  // namespace parvik::prova
