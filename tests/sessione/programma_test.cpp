// The program itself on a display of its own: what it leaves in the home folder, how large its windows are,
// and what signals do to it.
#include "Programma.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QStandardPaths>
#include <csignal>
#include <cstdio>
#include <filesystem>

namespace parvik {
namespace {

namespace fs = std::filesystem;
using namespace prova;

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
