// The safe writer when system calls do less than they were asked for, and when more than one of them fails.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <string>

#include "common/FileDiProva.h"
#include "common/ScritturaSicura.h"
#include "guasti/Guasti.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;
using Elenco = std::vector<std::string>;
using Genere = Guasto::Genere;

class ScritturaGuasta : public testing::Test {
 protected:
  void SetUp() override { Ricomincia(); }
  void Ricomincia() const {
    for (const std::string& nome : Nomi(Cartella.Percorso())) fs::remove(Cartella / nome);
    Crea(File, Vecchio);
    if (DueNomi) fs::create_hard_link(File, Cartella / "b.img");
  }
  Esito<void> Scrivi(const std::vector<Guasto>& guasti) {
    const GuastiInCorso inCorso({.Cartelle = {Cartella.Percorso()}, .Guasti = guasti});
    Esito<void> esito = ScriviFile(File, Nuovo);
    Chiamate = GuastiInCorso::Chiamate();
    return esito;
  }
  /// Numbers of the calls, from 1, that a sound save makes by this name.
  std::vector<int> Quali(std::string_view chiamata) {
    EXPECT_TRUE(Scrivi({}));
    std::vector<int> quali;
    for (std::size_t i = 0; i < Chiamate.size(); ++i) {
      if (Chiamate[i].starts_with(chiamata)) quali.push_back(static_cast<int>(i) + 1);
    }
    Ricomincia();
    return quali;
  }
  /// The disk takes half of the one write of this name, and no more: the old file must stand.
  void RiempiIlDiscoAMeta(std::string_view scrittura) {
    const std::vector<int> scritture = Quali(scrittura);
    ASSERT_EQ(1U, scritture.size());
    const Esito<void> esito = Scrivi({{.Chiamata = scritture[0], .Quale = Genere::ScritturaCorta},
                                      {.Chiamata = scritture[0] + 1, .Errore = ENOSPC}});
    ASSERT_FALSE(esito);
    EXPECT_EQ(NumeroErrore::DiscoPieno, esito.Errore());
    EXPECT_EQ(Vecchio, Contenuto(File));
  }

  CartellaTemporanea Cartella;
  const fs::path File = Cartella / "a.img";
  const std::string Vecchio = std::string(1000, 'v');
  const std::string Nuovo = std::string(700, 'n');
  bool DueNomi = false;
  Elenco Chiamate;
};

TEST_F(ScritturaGuasta, GoesOnAfterShortWrites) {
  for (const bool due : {false, true}) {
    DueNomi = due;
    Ricomincia();
    EXPECT_TRUE(Scrivi({{.Chiamata = 1, .Quale = Genere::ScritturaCorta, .PerSempre = true}}));
    EXPECT_GT(std::ranges::count_if(Chiamate, [](const std::string& c) { return c.starts_with("write"); }),
              9);
    EXPECT_EQ(Nuovo, Contenuto(File));
    EXPECT_EQ((due ? Elenco{"a.img", "b.img"} : Elenco{"a.img"}), Nomi(Cartella.Percorso()));
  }
}

TEST_F(ScritturaGuasta, LeavesTheOldFileWhenTheDiskFillsUpInTheMiddle) {
  RiempiIlDiscoAMeta("write");
  EXPECT_EQ(Elenco{"a.img"}, Nomi(Cartella.Percorso()));
}

TEST_F(ScritturaGuasta, PutsTheOldContentBackWhenTheDiskFillsUpInTheMiddleOfWritingInPlace) {
  DueNomi = true;
  Ricomincia();
  RiempiIlDiscoAMeta("write a.img");
  EXPECT_EQ((Elenco{"a.img", "b.img"}), Nomi(Cartella.Percorso()));
}

/// The second fault befalls each call that is made after the first one in turn.
TEST_F(ScritturaGuasta, KeepsTheOldBytesWholeWhenPuttingThemBackFailsToo) {
  DueNomi = true;
  Ricomincia();
  const std::vector<int> scritture = Quali("write a.img");
  ASSERT_EQ(1U, scritture.size());
  const Guasto corta = {.Chiamata = scritture[0], .Quale = Genere::ScritturaCorta};
  const Guasto pieno = {.Chiamata = scritture[0] + 1, .Errore = ENOSPC};
  ASSERT_FALSE(Scrivi({corta, pieno}));
  const int chiamate = static_cast<int>(Chiamate.size());
  int copie = 0;
  for (int i = pieno.Chiamata + 1; i <= chiamate; ++i) {
    Ricomincia();
    const Esito<void> esito = Scrivi({corta, pieno, {.Chiamata = i, .Errore = EIO, .PerSempre = true}});
    ASSERT_FALSE(esito);
    EXPECT_EQ(NumeroErrore::DiscoPieno, esito.Errore());  // the first failure is the one to tell
    const fs::path copia = Cartella / ".a.img.vecchio~";
    if (fs::exists(copia)) {
      ++copie;
      EXPECT_EQ(Vecchio, Contenuto(copia));
    } else {
      EXPECT_EQ(Vecchio, Contenuto(File));
    }
    EXPECT_TRUE(ScriviFile(File, Nuovo));
    EXPECT_EQ(Nuovo, Contenuto(Cartella / "b.img"));
  }
  EXPECT_GT(copie, 3);
}

TEST_F(ScritturaGuasta, CountsAWriteOfNothingAsAnErrorAndNotAsProgress) {
  const std::vector<int> scritture = Quali("write");
  ASSERT_EQ(1U, scritture.size());
  EXPECT_FALSE(Scrivi({{.Chiamata = scritture[0], .Errore = EIO, .PerSempre = true}}));
  EXPECT_EQ(Vecchio, Contenuto(File));
}

TEST_F(ScritturaGuasta, GivesRightsToTheOwnerAloneWhenTheAccessListCannotBeKnown) {
  ASSERT_EQ(0, ::chmod(File.c_str(), 0664));
  for (const char* chiamata : {"listxattr", "fremovexattr"}) {
    const std::vector<int> quali = Quali(chiamata);
    ASSERT_EQ(1U, quali.size());
    ASSERT_EQ(0, ::chmod(File.c_str(), 0664));
    EXPECT_TRUE(Scrivi({{.Chiamata = quali[0], .Errore = EIO}}));
    EXPECT_EQ(0600U, Modo(File)) << chiamata;
  }
}

TEST_F(ScritturaGuasta, GivesNoLaxerModeWhenTheModeCannotBeGiven) {
  ASSERT_EQ(0, ::chmod(File.c_str(), 0664));
  const std::vector<int> quali = Quali("fchmod");
  ASSERT_EQ(1U, quali.size());
  ASSERT_EQ(0, ::chmod(File.c_str(), 0664));
  EXPECT_TRUE(Scrivi({{.Chiamata = quali[0], .Errore = EPERM}}));
  EXPECT_EQ(0600U, Modo(File));
}

}  // namespace
}  // namespace parvik::prova
