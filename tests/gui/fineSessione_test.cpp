// SIGTERM, SIGHUP and SIGINT while the closing question, or what it was answered with, is at work.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "Segnali.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;
using prova::ApriCorpoEnorme;
using prova::Contenuto;
using prova::Domanda;
using prova::InPrimoPiano;
using prova::NessunDialogo;
using prova::Premi;
using prova::PremiTasto;
using prova::Scena;
using prova::ScriviNome;
using prova::Segnale;
using prova::Segnali;

class OgniSegnale : public testing::TestWithParam<Segnale> {
 protected:
  /// A modified template without a file, and "Sì" to the question of the close box: Save As is open.
  static void FinoASalvaConNome(Scena& scena) {
    scena.ScegliTipo();
    scena.Modifica();
    scena.Quando(NessunDialogo, [&scena] { scena.Editor()->close(); });
    scena.Quando(Domanda, [] { Premi(QMessageBox::Yes); });
    scena.Segnale("Salva con nome");
  }
  /// A modified template on a full disk, and "Sì" to the question of the close box: the error is on show.
  static void FinoAlDiscoPieno(Scena& scena) {
    scena.ScegliTipo();
    scena.Apri("FATT01.IMG");
    scena.Modifica();
    fs::remove(scena.Modello());
    fs::create_symlink("/dev/full", scena.Modello());
    scena.Quando(NessunDialogo, [&scena] { scena.Editor()->close(); });
    scena.Quando(Domanda, [] { Premi(QMessageBox::Yes); });
    scena.Quando("Ordavia", [] {
      EXPECT_EQ(qobject_cast<QMessageBox*>(InPrimoPiano())->text(),
                "Si è verificato l'errore: 61 Disco pieno");
    });
    scena.Segnale("Ordavia");
  }
  static fs::path Nuovo(Scena& scena) { return scena.Editor().Modello("NUOVO.IMG"); }

  Scena scena_{GetParam().Numero};
};

TEST_P(OgniSegnale, InFrontOfTheChoiceOfATypeEndsTheProgram) {
  scena_.Comando("mnuScelta");
  scena_.Segnale("frmScelta");
  EXPECT_EQ(scena_.Esegui(), EXIT_SUCCESS);
}

TEST_P(OgniSegnale, WhileTheCloseBoxAsksChangesNothing) {
  scena_.ScegliTipo();
  scena_.Modifica();
  scena_.Quando(NessunDialogo, [this] { scena_.Editor()->close(); });
  scena_.Segnale(Domanda);
  scena_.NienteDiNuovo();
  scena_.Quando(Domanda, [] { Premi(QMessageBox::Cancel); });
  scena_.Quando(NessunDialogo, [this] { EXPECT_TRUE(scena_.Editor()->isVisible()); });
  scena_.FermaTutto();
  EXPECT_EQ(scena_.Esegui(), Scena::Fermata);
  EXPECT_TRUE(scena_.TestoIntatto());
}

TEST_P(OgniSegnale, WhileSiIsCarriedOutAsksAndAfterAnnullaTheSaveGoesOn) {
  FinoASalvaConNome(scena_);
  scena_.Chiesto(QMessageBox::Cancel);
  scena_.Tornata();
  scena_.Quando("Salva con nome", [this] { ScriviNome(Nuovo(scena_)); });
  EXPECT_EQ(scena_.Esegui(), EXIT_SUCCESS);
  EXPECT_TRUE(Contenuto(Nuovo(scena_)).starts_with("testo"));
}

TEST_P(OgniSegnale, WhileSiIsCarriedOutAsksAndNoEndsTheProgramUnwritten) {
  FinoASalvaConNome(scena_);
  scena_.Chiesto(QMessageBox::No);
  EXPECT_EQ(scena_.Esegui(), EXIT_SUCCESS);
  EXPECT_FALSE(fs::exists(Nuovo(scena_)));
}

TEST_P(OgniSegnale, WhileSiIsCarriedOutAsksAndSiAsksForANameInItsTurn) {
  FinoASalvaConNome(scena_);
  scena_.Chiesto(QMessageBox::Yes);
  scena_.Quando("Salva con nome", [this] { ScriviNome(Nuovo(scena_)); });
  EXPECT_EQ(scena_.Esegui(), EXIT_SUCCESS);
  EXPECT_TRUE(Contenuto(Nuovo(scena_)).starts_with("testo"));
}

TEST_P(OgniSegnale, WhoGivesUpSavingTwiceKeepsTheProgramAndTheText) {
  FinoASalvaConNome(scena_);
  scena_.Chiesto(QMessageBox::Yes);
  scena_.Quando("Salva con nome", [] { PremiTasto(Qt::Key_Escape); });
  scena_.Tornata();
  scena_.Quando("Salva con nome", [] { PremiTasto(Qt::Key_Escape); });
  scena_.Quando(NessunDialogo, [this] { EXPECT_TRUE(scena_.Editor()->isVisible()); });
  scena_.FermaTutto();
  EXPECT_EQ(scena_.Esegui(), Scena::Fermata);
  EXPECT_TRUE(scena_.TestoIntatto());
}

TEST_P(OgniSegnale, WhileTheErrorOfSiIsOnShowAsksAndAfterAnnullaTheProgramStays) {
  FinoAlDiscoPieno(scena_);
  scena_.Chiesto(QMessageBox::Cancel);
  scena_.Tornata();
  scena_.Quando("Ordavia", [] { Premi(QMessageBox::Ok); });
  scena_.Quando(NessunDialogo, [this] { EXPECT_TRUE(scena_.Editor()->isVisible()); });
  scena_.FermaTutto();
  EXPECT_EQ(scena_.Esegui(), Scena::Fermata);
  EXPECT_TRUE(scena_.TestoIntatto());
}

TEST_P(OgniSegnale, WhileTheErrorOfSiIsOnShowAsksAndASecondFailureKeepsTheProgramToo) {
  FinoAlDiscoPieno(scena_);
  scena_.Chiesto(QMessageBox::Yes);
  scena_.Quando("Ordavia", [] { Premi(QMessageBox::Ok); });
  scena_.Tornata();
  scena_.Quando("Ordavia", [] { Premi(QMessageBox::Ok); });
  scena_.Quando(NessunDialogo, [this] { EXPECT_TRUE(scena_.Editor()->isVisible()); });
  scena_.FermaTutto();
  EXPECT_EQ(scena_.Esegui(), Scena::Fermata);
  EXPECT_TRUE(scena_.TestoIntatto());
}

TEST_P(OgniSegnale, WhileTheErrorOfSiIsOnShowAsksAndNoEndsTheProgram) {
  FinoAlDiscoPieno(scena_);
  scena_.Chiesto(QMessageBox::No);
  EXPECT_EQ(scena_.Esegui(), EXIT_SUCCESS);
}

/// The signal is there when the work begins: it comes before the box that says so.
void SegnaleEPoiUnLungoLavoro(Scena& scena) {
  scena.Segnale(NessunDialogo, [&scena] { scena.Editor().Azione("mnuAnte").trigger(); });
}

TEST_P(OgniSegnale, BeforeTheBoxOfALongRunEndsTheProgramWhenNothingIsModified) {
  scena_.ScegliTipo();
  ApriCorpoEnorme(scena_);
  SegnaleEPoiUnLungoLavoro(scena_);
  EXPECT_EQ(scena_.Esegui(), EXIT_SUCCESS);
}

TEST_P(OgniSegnale, BeforeTheBoxOfALongRunAsksAndAfterAnnullaTheRunGoesOn) {
  scena_.ScegliTipo();
  ApriCorpoEnorme(scena_);
  scena_.Modifica();
  SegnaleEPoiUnLungoLavoro(scena_);
  scena_.Chiesto(QMessageBox::Cancel);
  scena_.Segnale("frmAttesa");
  scena_.Chiesto(QMessageBox::No);
  EXPECT_EQ(scena_.Esegui(), EXIT_SUCCESS);
  EXPECT_TRUE(scena_.FileIntatto());
}

INSTANTIATE_TEST_SUITE_P(Segnali, OgniSegnale, testing::ValuesIn(Segnali),
                         [](const auto& segnale) { return std::string(segnale.param.Nome); });

}  // namespace
}  // namespace parvik
