// The program killed with a template that was not saved, and started again (docs/recupero.md); and started
// twice (docs/notizie.md).
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <csignal>

#include "Programma.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;
using namespace prova;

class ProgrammaUcciso : public Programma {
 protected:
  ProgrammaUcciso() { Crea(casa_ / ".config" / "ordavia" / "parvik32.ini", "[General]\nRicorda=true\n"); }
  fs::path Cartella() const { return casa_ / ".local" / "state" / "ordavia"; }
  /// The copies on the disk, one behind the other.
  std::string Copie() const {
    std::string copie;
    std::error_code errore;
    for (fs::directory_iterator voce(Cartella(), errore); !errore && voce != fs::directory_iterator();
         voce.increment(errore))
      if (voce->path().extension() == ".copia") copie += Contenuto(voce->path());
    return copie;
  }
  bool AttendiCopiaCon(const char* testo, int millisecondi) {
    return QTest::qWaitFor([&] { return Copie().find(testo) != std::string::npos; }, millisecondi);
  }
  /// Whether some process holds the sign of the copy that there is.
  bool SegnoPreso() const {
    std::error_code errore;
    for (fs::directory_iterator voce(Cartella(), errore); !errore && voce != fs::directory_iterator();
         voce.increment(errore)) {
      if (voce->path().extension() != ".vivo") continue;
      const int numero = ::open(voce->path().c_str(), O_RDWR | O_CLOEXEC);
      const bool libero = ::flock(numero, LOCK_EX | LOCK_NB) == 0;
      ::close(numero);
      return !libero;
    }
    return false;
  }
  void Uccidi() {
    Manda(SIGKILL);
    EXPECT_EQ(Fine(), -1);
  }
};

constexpr int DieciSecondi = 10'000;
constexpr int Agio = 5'000;  // for a machine that has other things to do

TEST_F(ProgrammaUcciso, LosesTenSecondsOfTypingAtMostAndOffersTheRestAtTheNextStart) {
  Avvia();
  ScegliIlPrimoTipo();
  QElapsedTimer orologio;
  orologio.start();
  for (const char* tasto : {"q", "w", "z"}) Premi(ConTipo, tasto);
  EXPECT_TRUE(AttendiCopiaCon("qwz", DieciSecondi + Agio));
  EXPECT_GE(orologio.elapsed(), DieciSecondi - 1000) << "and no more often";
  Uccidi();
  EXPECT_THAT(Copie(), testing::HasSubstr("qwz"));
  Riavvia();
  Attendi(Finestra);
  // Who offers the copy has its sign; the buttons of the bar then stand last on the way of the Tab key,
  // Ripristina the third from the end.
  EXPECT_TRUE(QTest::qWaitFor([this] { return SegnoPreso(); }, TempoMassimo));
  for (int i = 0; i < 3; ++i) Premi(Finestra, "ISO_Left_Tab", SchermoX::Maiuscole);
  schermo_->Premi("space");
  Attendi(ConTipo);
  EXPECT_TRUE(AttendiCopiaCon("qwz", Agio)) << "one's own copy";
  Uccidi();
  EXPECT_THAT(Copie(), testing::HasSubstr("qwz")) << "killed once more, nothing is lost";
}

TEST_F(ProgrammaUcciso, AnOrderlyEndLeavesNoCopy) {
  Avvia();
  ScegliIlPrimoTipo();
  Premi(ConTipo, "q");
  EXPECT_TRUE(AttendiCopiaCon("q", DieciSecondi + Agio));
  Manda(SIGTERM);
  Premi(Domanda, "n", SchermoX::Alt);
  EXPECT_EQ(Fine(), EXIT_SUCCESS);
  EXPECT_FALSE(fs::exists(Cartella()));
}

class ProgrammaDueVolte : public Programma {
 protected:
  ProgrammaDueVolte() {
    fs::create_directory(esecuzione_);
    altre_["XDG_RUNTIME_DIR"] = QString::fromStdString(esecuzione_.string());
    fs::permissions(esecuzione_, fs::perms(0700));
  }
  std::size_t Lucchetti() const {
    std::error_code errore;
    const fs::directory_iterator voci(esecuzione_ / "ordavia", errore);
    return errore ? 0 : static_cast<std::size_t>(std::distance(voci, fs::directory_iterator()));
  }
  QStringList ConModello() const {
    return {"--tipo", "1", QString::fromStdString((velkor_ / "D_IMG" / "FATT01.IMG").string())};
  }

  const fs::path esecuzione_ = cartella_ / "esecuzione";
};

TEST_F(ProgrammaDueVolte, EachStartIsAWindowOfItsOwnAndTheLockGoesWithTheLastOne) {
  constexpr const char* ConModelloAperto = "Ordavia - G/FATT01.IMG";
  Avvia();
  Attendi(Finestra);
  Manda(SIGTERM);
  EXPECT_EQ(Fine(), EXIT_SUCCESS);
  EXPECT_EQ(Lucchetti(), 0U) << "nothing was open";
  Riavvia(ConModello());
  Attendi(ConModelloAperto);
  EXPECT_EQ(Lucchetti(), 1U);
  QProcess secondo;
  secondo.setProcessEnvironment(processo_.processEnvironment());
  secondo.start(processo_.program(), ConModello());
  EXPECT_TRUE(QTest::qWaitFor([&] { return schermo_->Quante(ConModelloAperto) == 2; }, TempoMassimo));
  EXPECT_EQ(Lucchetti(), 1U);
  Manda(SIGTERM);
  EXPECT_EQ(Fine(), EXIT_SUCCESS);
  EXPECT_EQ(Lucchetti(), 1U) << "the other one has it open still";
  secondo.terminate();
  EXPECT_TRUE(QTest::qWaitFor([&] { return secondo.state() == QProcess::NotRunning; }, TempoMassimo));
  EXPECT_EQ(Lucchetti(), 0U);
  EXPECT_THAT(InCasa(), testing::IsEmpty());
}

}  // namespace
}  // namespace parvik
