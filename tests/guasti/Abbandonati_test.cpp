// Whose provisional files beside a file are taken away by the next save, and whose keep it from saving.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>
#include <filesystem>
#include <string>

#include "common/FileDiProva.h"
#include "guasti/Guasti.h"
#include "sistema/ScritturaSicura.h"
#include "sistema/posix/Descrittore.h"
#include "sistema/posix/NomiProvvisori.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;
using Elenco = std::vector<std::string>;

class Abbandonati : public testing::Test {
 protected:
  void SetUp() override { Crea(File, "vecchio"); }

  /// One that began a while ago, in another process that runs: the one that started the tests.
  static Scrivente Vivo() {
    Scrivente chi = Scrivente::Questo();
    chi.Inizio -= 1000;
    chi.Processo = static_cast<std::uint32_t>(::getppid());
    chi.Nascita = 0;  // not known
    return chi;
  }
  static Scrivente DiAltroSistema() {
    Scrivente chi = Vivo();
    ++chi.Sistema;
    return chi;
  }
  fs::path Lascia(const Scrivente& chi, Provvisorio genere = Provvisorio::Nuovo) const {
    fs::path nome = NomeProvvisorio(File, chi, genere);
    Crea(nome, "a meta'");
    return nome;
  }
  static void Invecchia(const fs::path& file, time_t secondi) {
    const timespec quando = {.tv_sec = ::time(nullptr) - secondi, .tv_nsec = 0};
    const timespec tempi[] = {quando, quando};
    ASSERT_EQ(0, ::utimensat(AT_FDCWD, file.c_str(), tempi, 0));
  }
  /// Where there are no locks, unless `errore` is 0.
  std::string Salva(int errore = ENOLCK) const {
    const GuastiInCorso inCorso({.Cartelle = {Cartella.Percorso()}, .Guasti = {}, .SenzaLucchetti = errore});
    const EsitoScrittura esito = ScriviFile(File, "nuovo");
    if (esito) return "salvato";
    return esito.Errore().Nota.find("in uso") != std::string::npos ? "in uso" : TestoErrore(esito.Errore());
  }
  void AttendiSalvatoESgombero(int errore = ENOLCK) const {
    EXPECT_EQ("salvato", Salva(errore));
    EXPECT_EQ("nuovo", Contenuto(File));
    EXPECT_EQ(Elenco{"a.img"}, Nomi(Cartella.Percorso()));
  }
  void AttendiInUso(const fs::path& diAltri, int errore = ENOLCK) const {
    EXPECT_EQ("in uso", Salva(errore));
    EXPECT_EQ("vecchio", Contenuto(File));
    EXPECT_EQ((Elenco{diAltri.filename(), "a.img"}), Nomi(Cartella.Percorso()));
  }

  CartellaTemporanea Cartella;
  const fs::path File = Cartella / "a.img";
};

TEST_F(Abbandonati, AreThoseThatNobodyHasLocked) {
  Lascia(Vivo());
  Lascia(DiAltroSistema());
  AttendiSalvatoESgombero(0);
}

TEST_F(Abbandonati, AreNotThoseThatSomebodyHasLocked) {
  Scrivente morto = Vivo();
  morto.Nascita = 1;
  const fs::path suo = Lascia(morto);
  const Descrittore file(::open(suo.c_str(), O_WRONLY | O_CLOEXEC));
  ASSERT_EQ(0, ::flock(file.Numero(), LOCK_EX));
  AttendiInUso(suo, 0);
}

TEST_F(Abbandonati, AreWithoutLocksThoseOfProcessesThatAreGone) {
  Scrivente morto = Vivo();
  morto.Nascita = 1;  // another process has its number
  Lascia(morto);
  AttendiSalvatoESgombero();
}

TEST_F(Abbandonati, AreWithoutLocksNotThoseOfProcessesThatRun) {
  AttendiInUso(Lascia(Vivo()));
}

TEST_F(Abbandonati, AreWithoutLocksThoseThatThisProcessCouldNotTakeAway) {
  Scrivente io = Scrivente::Questo();
  io.Inizio -= 1000;
  Lascia(io);
  AttendiSalvatoESgombero();
}

TEST_F(Abbandonati, AreWithoutLocksThoseOfOtherSystemsThatHaveNotBeenWrittenToForTenMinutes) {
  const fs::path suo = Lascia(DiAltroSistema());
  Invecchia(suo, 590);
  AttendiInUso(suo);
  Invecchia(suo, 610);
  AttendiSalvatoESgombero();
}

TEST_F(Abbandonati, AreWithoutLocksThoseThatNameNoWriterAfterTheSameTime) {
  const fs::path suo = Cartella / ".a.img.nuovo~";
  Crea(suo, "a meta'");
  AttendiInUso(suo);
  Invecchia(suo, 610);
  AttendiSalvatoESgombero();
}

TEST_F(Abbandonati, AreNotThoseOfWhoBeganLaterWhoGivesWay) {
  Scrivente dopo = Vivo();
  dopo.Inizio += 1'000'000'000'000;
  const fs::path suo = Lascia(dopo);
  EXPECT_EQ("salvato", Salva());
  EXPECT_EQ("nuovo", Contenuto(File));
  EXPECT_EQ((Elenco{suo.filename(), "a.img"}), Nomi(Cartella.Percorso()));
}

TEST_F(Abbandonati, AreNotTheCopiesOfWhoWritesOverTheFileWheneverThatBegan) {
  Scrivente dopo = Vivo();
  dopo.Inizio += 1'000'000'000'000;
  AttendiInUso(Lascia(dopo, Provvisorio::Vecchio));
}

TEST_F(Abbandonati, AreKeptAsThePreviousContentWhenTheyAreCopies) {
  Scrivente morto = Vivo();
  morto.Nascita = 1;
  Lascia(morto, Provvisorio::Vecchio);
  EXPECT_EQ("salvato", Salva());
  EXPECT_EQ("nuovo", Contenuto(File));
  EXPECT_EQ("a meta'", Contenuto(Cartella / "a.img~"));
  EXPECT_EQ((Elenco{"a.img", "a.img~"}), Nomi(Cartella.Percorso()));
}

TEST_F(Abbandonati, DoNotKeepASaveFromSucceedingWhenTheyCannotBeTakenAway) {
  const fs::path suo = Lascia(Vivo());
  fs::remove(suo);
  fs::create_directory(suo);  // nothing that unlink takes away
  EXPECT_EQ("salvato", Salva(0));
  EXPECT_EQ("nuovo", Contenuto(File));
}

TEST_F(Abbandonati, AreNotLookedForWhereAFileInPlaceIsLockedBySomebody) {
  fs::create_hard_link(File, Cartella / "b.img");
  const Descrittore file(::open(File.c_str(), O_RDONLY | O_CLOEXEC));
  ASSERT_EQ(0, ::flock(file.Numero(), LOCK_SH));
  EXPECT_EQ("in uso", Salva(0));
  EXPECT_EQ("vecchio", Contenuto(File));
  EXPECT_EQ((Elenco{"a.img", "b.img"}), Nomi(Cartella.Percorso()));
}

}  // namespace
}  // namespace parvik::prova
