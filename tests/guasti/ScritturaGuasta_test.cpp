// The safe writer when system calls do less than they were asked for, and when more than one of them fails.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <string>

#include "common/FileDiProva.h"
#include "guasti/Guasti.h"
#include "sistema/ScritturaSicura.h"
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
  EsitoScrittura Scrivi(const std::vector<Guasto>& guasti) {
    const GuastiInCorso inCorso({.Cartelle = {Cartella.Percorso()}, .Guasti = guasti});
    EsitoScrittura esito = ScriviFile(File, Nuovo);
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
    const EsitoScrittura esito = Scrivi({{.Chiamata = scritture[0], .Quale = Genere::ScritturaCorta},
                                         {.Chiamata = scritture[0] + 1, .Errore = ENOSPC}});
    ASSERT_FALSE(esito);
    EXPECT_EQ(NumeroErrore::DiscoPieno, esito.Errore().Numero);
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
    const EsitoScrittura esito = Scrivi({corta, pieno, {.Chiamata = i, .Errore = EIO, .PerSempre = true}});
    ASSERT_FALSE(esito);
    EXPECT_EQ(NumeroErrore::DiscoPieno, esito.Errore().Numero);  // the first failure is the one to tell
    const Elenco nomi = Nomi(Cartella.Percorso());
    const auto copia =
        std::ranges::find_if(nomi, [](const std::string& nome) { return nome.ends_with(".vecchio~"); });
    if (copia != nomi.end()) {
      ++copie;
      EXPECT_EQ(Vecchio, Contenuto(Cartella / *copia));
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

/// Saves a file of this mode while the one call of this name fails; its mode then, and whether that was said.
struct Esito {
  unsigned int Modo = 0;
  bool Detto = false;

  bool operator==(const Esito&) const = default;
};

class DirittiGuasti : public ScritturaGuasta {
 protected:
  Esito Salva(std::string_view chiamata, int errore, mode_t modo) {
    const std::vector<int> quali = Quali(chiamata);
    EXPECT_EQ(1U, quali.size());
    if (quali.size() != 1) return {};
    EXPECT_EQ(0, ::chmod(File.c_str(), modo));
    const EsitoScrittura scritto = Scrivi({{.Chiamata = quali[0], .Errore = errore}});
    EXPECT_TRUE(scritto) << chiamata;
    return {.Modo = Modo(File), .Detto = scritto && scritto->Accesso == Diritti::Ridotti};
  }
};

TEST_F(DirittiGuasti, GoToTheOwnerAloneWhenTheAccessListCannotBeKnown) {
  for (const char* chiamata : {"listxattr", "fremovexattr"}) {
    EXPECT_EQ((Esito{0600, true}), Salva(chiamata, EIO, 0664)) << chiamata;
    EXPECT_EQ((Esito{0600, false}), Salva(chiamata, EIO, 0600)) << chiamata;
  }
}

TEST_F(DirittiGuasti, AreNotWidenedWhenTheModeCannotBeGiven) {
  EXPECT_EQ((Esito{0600, true}), Salva("fchmod", EPERM, 0664));
  EXPECT_EQ((Esito{0600, false}), Salva("fchmod", EPERM, 0600));
  if (::geteuid() != 0) GTEST_SKIP() << "only root writes to a file that its owner may not write to";
  EXPECT_EQ((Esito{0400, true}), Salva("fchmod", EPERM, 0444));
}

/// The folder hands an access list on, and the system says that there are none.
TEST_F(DirittiGuasti, AreNotWidenedByTheFoldersAccessListWhenThatOfTheFileCannotBeRead) {
  const std::string nessuno(4, '\xFF');
  const auto voce = [](char genere, char diritti, const std::string& chi) {
    return std::string{genere, '\0', diritti, '\0'} + chi;
  };
  const std::string lista = std::string("\x02\0\0\0", 4) + voce(0x01, 6, nessuno) +
                            voce(0x02, 6, std::string("\xD2\x04\0\0", 4)) + voce(0x04, 6, nessuno) +
                            voce(0x10, 6, nessuno) + voce(0x20, 0, nessuno);
  const char* cartella = Cartella.Percorso().c_str();
  if (::setxattr(cartella, "system.posix_acl_default", lista.data(), lista.size(), 0) != 0)
    GTEST_SKIP() << "no access lists here";
  EXPECT_EQ((Esito{0600, true}), Salva("listxattr", ENOTSUP, 0664));
  EXPECT_LT(::getxattr(File.c_str(), "system.posix_acl_access", nullptr, 0), 0);
}

TEST(TestoAvviso, SaysThatRightsAreFewerAndNothingWhereAllIsAsBefore) {
  EXPECT_EQ("Il file è salvato, ma con diritti di accesso più ristretti di prima",
            TestoAvviso({.Accesso = Diritti::Ridotti}));
  EXPECT_EQ("", TestoAvviso({}));
}

}  // namespace
}  // namespace parvik::prova
