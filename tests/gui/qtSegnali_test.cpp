// Signals and the event loops; what they mean to the windows is tested in fineSessione_test.cpp.
#include "app/qtSegnali.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <csignal>

#include "Regia.h"

namespace parvik {
namespace {

using prova::Regia;

constexpr int Stato = 7;
constexpr int Fermata = 99;

void Manda(int segnale) {
  EXPECT_EQ(std::raise(segnale), 0);
}

TEST(QtSegnali, WhenTheProgramMayEndItsLoopEndsWithTheStatus) {
  const SegnaliFine segnali;
  const qtSegnali fine(segnali, Stato, [] { return true; });
  Regia regia;
  regia.Poi(
      "the start", [] { return true; }, [] { Manda(SIGINT); });
  EXPECT_EQ(regia.Esegui(), Stato);
}

TEST(QtSegnali, WhenTheProgramMayNotEndEverythingGoesOn) {
  const SegnaliFine segnali;
  int domande = 0;
  const qtSegnali fine(segnali, Stato, [&domande] {
    ++domande;
    return false;
  });
  Regia regia;
  regia.Poi(
      "the start", [] { return true; }, [] { Manda(SIGTERM); });
  regia.Poi(
      "the question", [&] { return domande == 1; }, [] { QApplication::exit(Fermata); });
  EXPECT_EQ(regia.Esegui(), Fermata);
}

TEST(QtSegnali, ASignalThatComesBeforeTheLoopIsTakenInIt) {
  const SegnaliFine segnali;
  Manda(SIGHUP);
  const qtSegnali fine(segnali, Stato, [] { return true; });
  Regia regia;
  EXPECT_EQ(regia.Esegui(), Stato);
}

TEST(QtSegnali, ASignalThatComesWhileTheQuestionIsOpenIsHandedOnToo) {
  const SegnaliFine segnali;
  int domande = 0;
  const qtSegnali fine(segnali, Stato, [&domande] {
    if (++domande == 2) return true;
    QDialog domanda;
    Manda(SIGTERM);
    return domanda.exec() == QDialog::Accepted;
  });
  Regia regia;
  regia.Poi(
      "the start", [] { return true; }, [] { Manda(SIGTERM); });
  EXPECT_EQ(regia.Esegui(), Stato);
  EXPECT_EQ(domande, 2);
}

TEST(QtSegnali, WhoWaitsForADialogIsToldThatItWasGivenUp) {
  const SegnaliFine segnali;
  const qtSegnali fine(segnali, Stato, [] { return true; });
  Regia regia;
  QDialog dialogo;
  int risposta = -1;
  QObject::connect(&dialogo, &QDialog::finished, [&risposta](int esito) { risposta = esito; });
  regia.Poi(
      "the start", [] { return true; }, [&dialogo] { dialogo.exec(); });
  regia.Poi(
      "the dialog", [&dialogo] { return dialogo.isVisible(); }, [] { Manda(SIGTERM); });
  EXPECT_EQ(regia.Esegui(), Stato);
  EXPECT_EQ(risposta, QDialog::Rejected);
}

}  // namespace
}  // namespace parvik
