// The program itself on a display of its own: what it leaves in the home folder, how large its windows are,
// and what signals do to it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <set>

#include "SchermoX.h"
#include "supporto/Cartelle.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;
using prova::SchermoX;

constexpr const char* Finestra = "Ordavia";  // the window without a type, and messages
constexpr const char* ConTipo = "Ordavia - FATT*.IMG";
constexpr const char* Domanda = "File immagine";
constexpr int TempoMassimo = 20'000;  // milliseconds

/// A display of a given size.
class Xvfb {
 public:
  Xvfb(int larghezza, int altezza) {
    const QString misura = QStringLiteral("%1x%2x24").arg(larghezza).arg(altezza);
    processo_.start("Xvfb", {"-displayfd", "1", "-screen", "0", misura, "-nolisten", "tcp"});
    EXPECT_TRUE(QTest::qWaitFor([this] { return processo_.canReadLine(); }, TempoMassimo));
    nome_ = ":" + processo_.readLine().trimmed().toStdString();
  }
  Xvfb(const Xvfb&) = delete;
  Xvfb& operator=(const Xvfb&) = delete;
  ~Xvfb() {
    processo_.terminate();
    processo_.waitForFinished();
  }

  const std::string& Nome() const { return nome_; }

 private:
  QProcess processo_;
  std::string nome_;
};

/// An installation with the program, a home folder, and the program at work between the two.
class Programma : public testing::Test {
 protected:
  Programma() {
    fs::create_directory(casa_);
    fs::copy(prova::Esempio(), velkor_, fs::copy_options::recursive);
    fs::create_directories(velkor_ / "PARVIK");
    for (const char* nome : {"parvik32", "parvik32-stampa.so"})
      fs::copy_file(prova::ModuloStampa().parent_path() / nome, velkor_ / "PARVIK" / nome);
  }
  ~Programma() override {
    processo_.kill();
    processo_.waitForFinished();
  }

  void Avvia(int larghezza = 1280, int altezza = 1024, const char* scala = "1") {
    xvfb_ = std::make_unique<Xvfb>(larghezza, altezza);
    schermo_ = std::make_unique<SchermoX>(xvfb_->Nome());
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    for (const QString& nome : ambiente.keys())
      if (nome.startsWith("XDG_")) ambiente.remove(nome);
    for (const char* nome : {"WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "SESSION_MANAGER"}) ambiente.remove(nome);
    ambiente.insert("HOME", QString::fromStdString(casa_.string()));
    ambiente.insert("DISPLAY", QString::fromStdString(xvfb_->Nome()));
    ambiente.insert("QT_SCALE_FACTOR", scala);
    processo_.setProcessEnvironment(ambiente);
    processo_.setProcessChannelMode(QProcess::ForwardedChannels);
    processo_.start(QString::fromStdString((velkor_ / "PARVIK" / "parvik32").string()), QStringList());
    ASSERT_TRUE(processo_.waitForStarted());
  }

  SchermoX::Misura Attendi(const char* titolo) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return schermo_->Finestra(titolo).has_value(); }, TempoMassimo))
        << titolo;
    return schermo_->Finestra(titolo).value_or(SchermoX::Misura());
  }
  void AttendiSenza(const char* titolo) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return !schermo_->Finestra(titolo); }, TempoMassimo)) << titolo;
  }
  /// Keys to a window once it is there.
  void Premi(const char* titolo, const char* tasto, unsigned modificatori = SchermoX::Nessuno) {
    Attendi(titolo);
    schermo_->Premi(titolo, tasto, modificatori);
  }

  void ScegliIlPrimoTipo() {
    Premi(Finestra, "f", SchermoX::Alt);
    schermo_->Premi("t");
    Premi("Tipo Stampa", "Return");
    AttendiSenza("Tipo Stampa");
  }

  void Manda(int segnale) { EXPECT_EQ(::kill(static_cast<pid_t>(processo_.processId()), segnale), 0); }
  /// The status; -1 for a program that did not end by itself.
  int Fine() {
    if (!QTest::qWaitFor([this] { return processo_.state() == QProcess::NotRunning; }, TempoMassimo))
      return -1;
    return processo_.exitStatus() == QProcess::NormalExit ? processo_.exitCode() : -1;
  }

  /// The files in the home folder, but for those of the fonts' library.
  std::set<std::string> InCasa() const {
    std::set<std::string> file;
    for (const fs::directory_entry& voce : fs::recursive_directory_iterator(casa_)) {
      const std::string nome = voce.path().lexically_relative(casa_).string();
      if (nome != ".cache" && !nome.starts_with(".cache/fontconfig")) file.insert(nome);
    }
    return file;
  }

  prova::CartellaTemporanea cartella_;
  fs::path casa_ = cartella_ / "casa";
  fs::path velkor_ = cartella_ / "VELKOR";
  QProcess processo_;
  std::unique_ptr<Xvfb> xvfb_;
  std::unique_ptr<SchermoX> schermo_;
};

TEST_F(Programma, LeavesNothingInTheHomeFolderAfterFileDialogsAndPrinting) {
  Avvia();
  ScegliIlPrimoTipo();
  Premi(ConTipo, "o", SchermoX::Controllo);
  Premi("Apri File Immagine", "Escape");
  AttendiSenza("Apri File Immagine");
  Premi(ConTipo, "s", SchermoX::Controllo | SchermoX::Maiuscole);
  Premi("Salva con nome", "Escape");
  AttendiSenza("Salva con nome");
  Premi(ConTipo, "x");
  Premi(ConTipo, "p", SchermoX::Controllo);  // with the print dialog where there is a printer
  Premi("Destinazione stampa", "Return");
  AttendiSenza("Destinazione stampa");
  Manda(SIGTERM);
  Premi(Domanda, "n", SchermoX::Alt);
  EXPECT_EQ(Fine(), EXIT_SUCCESS);
  EXPECT_THAT(InCasa(), testing::IsEmpty());
}

// --- the screen's free area

struct Formato {
  const char* Nome;
  int Larghezza;
  int Altezza;
  const char* Scala = "1";
};

void PrintTo(const Formato& formato, std::ostream* uscita) {
  *uscita << formato.Nome;
}

class ProgrammaSuSchermo : public Programma, public testing::WithParamInterface<Formato> {
 protected:
  void Avvia() { Programma::Avvia(GetParam().Larghezza, GetParam().Altezza, GetParam().Scala); }
  static void StaNelloSchermo(const SchermoX::Misura& misura) {
    EXPECT_GT(misura.Larghezza, GetParam().Larghezza / 2);
    EXPECT_LE(misura.Larghezza, GetParam().Larghezza);
    EXPECT_GT(misura.Altezza, GetParam().Altezza / 2);
    EXPECT_LE(misura.Altezza, GetParam().Altezza);
  }
};

TEST_P(ProgrammaSuSchermo, TheFirstWindowAndTheFileDialogAreNoLargerThanTheScreen) {
  Avvia();
  StaNelloSchermo(Attendi(Finestra));
  ScegliIlPrimoTipo();
  Premi(ConTipo, "o", SchermoX::Controllo);
  StaNelloSchermo(Attendi("Apri File Immagine"));
}

INSTANTIATE_TEST_SUITE_P(Schermi, ProgrammaSuSchermo,
                         testing::Values(Formato{"vga", 640, 480}, Formato{"svga", 800, 600},
                                         Formato{"netbook", 1024, 600},
                                         Formato{"laptop_at_double_scale", 1366, 768, "2"}),
                         [](const auto& formato) { return std::string(formato.param.Nome); });

// --- signals

struct Segnale {
  const char* Nome;
  int Numero;
};

void PrintTo(const Segnale& segnale, std::ostream* uscita) {
  *uscita << segnale.Nome;
}

class ProgrammaConSegnale : public Programma, public testing::WithParamInterface<Segnale> {
 protected:
  void Manda() { Programma::Manda(GetParam().Numero); }
  void SenzaCatalogo() const { fs::remove(velkor_ / "D_IMG" / "CAMPI.TXT"); }
};

TEST_P(ProgrammaConSegnale, AtAStartUpMessageEndsTheProgramWithStatusOne) {
  fs::remove(velkor_ / "VELKOR.INI");
  Avvia();
  Attendi(Finestra);
  Manda();
  EXPECT_EQ(Fine(), EXIT_FAILURE);
}

TEST_P(ProgrammaConSegnale, AtAStartUpQuestionEndsTheProgramWithStatusOne) {
  SenzaCatalogo();
  Avvia();
  Attendi(Finestra);
  Manda();
  EXPECT_EQ(Fine(), EXIT_FAILURE);
}

TEST_P(ProgrammaConSegnale, AtTheSearchForTheCatalogueEndsTheProgramWithStatusOne) {
  SenzaCatalogo();
  Avvia();
  Premi(Finestra, "Return");
  Attendi("Apri file CAMPI.TXT");
  Manda();
  EXPECT_EQ(Fine(), EXIT_FAILURE);
  EXPECT_THAT(InCasa(), testing::IsEmpty());
}

TEST_P(ProgrammaConSegnale, WithNothingModifiedEndsTheProgram) {
  Avvia();
  Attendi(Finestra);
  Manda();
  EXPECT_EQ(Fine(), EXIT_SUCCESS);
}

TEST_P(ProgrammaConSegnale, WithATextTypedInAsksAndAnnullaKeepsTheProgramAndNoEndsIt) {
  Avvia();
  ScegliIlPrimoTipo();
  Premi(ConTipo, "x");
  Premi(ConTipo, "s", SchermoX::Controllo | SchermoX::Maiuscole);
  Attendi("Salva con nome");
  Manda();
  Premi(Domanda, "Escape");
  AttendiSenza(Domanda);
  Attendi("Salva con nome");
  Manda();
  Premi(Domanda, "n", SchermoX::Alt);
  EXPECT_EQ(Fine(), EXIT_SUCCESS);
}

INSTANTIATE_TEST_SUITE_P(Segnali, ProgrammaConSegnale,
                         testing::Values(Segnale{"SIGTERM", SIGTERM}, Segnale{"SIGHUP", SIGHUP},
                                         Segnale{"SIGINT", SIGINT}),
                         [](const auto& segnale) { return std::string(segnale.param.Nome); });

}  // namespace
}  // namespace parvik

int main(int argc, char** argv) {
  constexpr int Saltato = 77;
  ::testing::InitGoogleTest(&argc, argv);
  if (QStandardPaths::findExecutable("Xvfb").isEmpty()) {
    std::puts("skipped: there is no Xvfb");
    return Saltato;
  }
  const QCoreApplication attese(argc, argv);  // whose event loop the tests wait in
  return RUN_ALL_TESTS();
}
