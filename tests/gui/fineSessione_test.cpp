// SIGTERM, SIGHUP and SIGINT in every state of the windows: whatever is open, the program asks as closing
// does, or ends when nothing is modified.
#include <gtest/gtest.h>

#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <array>
#include <csignal>

#include "Scena.h"
#include "template/ImmagineModello.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;
using prova::Contenuto;
using prova::Domanda;
using prova::InPrimoPiano;
using prova::NessunDialogo;
using prova::Premi;
using prova::PremiTasto;
using prova::Scena;
using prova::ScriviNome;
using prova::Trova;

struct Segnale {
  const char* Nome;
  int Numero;
};

void PrintTo(const Segnale& segnale, std::ostream* uscita) {
  *uscita << segnale.Nome;
}

constexpr std::array<Segnale, 3> Segnali = {{{"SIGTERM", SIGTERM}, {"SIGHUP", SIGHUP}, {"SIGINT", SIGINT}}};

/// Gigabytes of work: a body of one long line, 32,767 times.
void ApriCorpoEnorme(Scena& scena) {
  TestiSezioni testi = {"\r\n", std::string(60'000, 'x') + "\r\n", "\r\n"};
  ImpostazioniCorpo corpo = ImpostazioniPredefinite();
  corpo.RigheCorpo = 32767;
  prova::Crea(scena.Editor().Modello("ENORME.IMG"), *ScriviImmagine(testi, corpo, Formato::TreSezioni));
  scena.Apri("ENORME.IMG");
}

void ApriFattura(Scena& scena) {
  scena.Apri("FATT01.IMG");
}

void StampaSu(Scena& scena, const char* opzione) {
  scena.Comando("mnuStampa");
  scena.Quando("frmDestStampa", [opzione] {
    Trova<QWidget>(*InPrimoPiano(), opzione)->setFocus();
    PremiTasto(Qt::Key_Return);
  });
}

struct Stato {
  const char* Nome;
  const char* Davanti;  // when the signal comes: a dialog by its objectName or its title
  void (*Porta)(Scena& scena);
  void (*Apri)(Scena& scena) = ApriFattura;
};

void PrintTo(const Stato& stato, std::ostream* uscita) {
  *uscita << stato.Nome;
}

const std::vector<Stato>& StatiDiOgniModello() {
  static const std::vector<Stato> stati = {
      {"no_dialog", NessunDialogo, [](Scena&) {}},
      {"about", "frmAbout", [](Scena& scena) { scena.Comando("mnuInfo"); }},
      {"variable", "frmVar", [](Scena& scena) { scena.Comando("mnuVar"); }},
      {"flag_of_a_variable", "frmFlag",
       [](Scena& scena) {
         scena.Comando("mnuVar");
         scena.Quando("frmVar", [] { Trova<QPushButton>(*InPrimoPiano(), "cmdFlag")->click(); });
       }},
      {"flag", "frmFlag", [](Scena& scena) { scena.Comando("mnuFlag"); }},
      {"style", "frmStile", [](Scena& scena) { scena.Comando("mnuStile"); }},
      {"language", "frmLingua", [](Scena& scena) { scena.Comando("mnuLingua"); }},
      {"page_number", "frmPagina", [](Scena& scena) { scena.Comando("mnuPagina"); }},
      {"constant", "frmCostante", [](Scena& scena) { scena.Comando("mnuCostante"); }},
      {"body_command", "frmComando", [](Scena& scena) { scena.Comando("mnuComando"); }},
      {"open", "Apri File Immagine", [](Scena& scena) { scena.ComandoCheChiede("mnuApri"); }},
      {"save_as", "Salva con nome", [](Scena& scena) { scena.Comando("mnuSalvaNome"); }},
      {"destination", "frmDestStampa", [](Scena& scena) { scena.Comando("mnuStampa"); }},
      {"text_file", "QFileDialog", [](Scena& scena) { StampaSu(scena, "optFile"); }},
      {"long_preview", "frmAttesa", [](Scena& scena) { scena.Comando("mnuAnte"); }, ApriCorpoEnorme},
      {"long_text_file", "frmAttesa",
       [](Scena& scena) {
         StampaSu(scena, "optFile");
         scena.Quando("QFileDialog", [&scena] { ScriviNome(scena.Editor().Cartella() / "lungo.txt"); });
       },
       ApriCorpoEnorme},
      {"modeless_windows", NessunDialogo,
       [](Scena& scena) {
         scena.Comando("mnuRighe");
         scena.Comando("mnuSettaFlag");
       }},
      {"a_menu", NessunDialogo,
       [](Scena& scena) {
         scena.Quando(NessunDialogo, [&scena] {
           QMenu menu(&*scena.Editor());
           menu.addAction("voce");
           menu.exec(QPoint(10, 10));
         });
         scena.Passi().Poi(
             "the menu", [] { return QApplication::activePopupWidget() != nullptr; }, [] {});
       }},
  };
  return stati;
}

/// Those that only a modified template knows.
const std::vector<Stato>& StatiDiUnModelloModificato() {
  static const std::vector<Stato> stati = {
      {"question_of_new", Domanda, [](Scena& scena) { scena.Comando("mnuNuovo"); }},
      {"question_of_open", Domanda, [](Scena& scena) { scena.Comando("mnuApri"); }},
  };
  return stati;
}

std::vector<Stato> Tutti() {
  std::vector<Stato> stati = StatiDiOgniModello();
  const std::vector<Stato>& altri = StatiDiUnModelloModificato();
  stati.insert(stati.end(), altri.begin(), altri.end());
  return stati;
}

class StatoDiFinestra : public testing::TestWithParam<Stato> {
 protected:
  /// `prova` with the state reached, once for each signal.
  template <class Prova>
  void PerOgniSegnale(bool modificato, Prova&& prova) {
    for (const Segnale& segnale : Segnali) {
      SCOPED_TRACE(segnale.Nome);
      Scena scena(segnale.Numero);
      scena.ScegliTipo();
      GetParam().Apri(scena);
      if (modificato) scena.Modifica();
      GetParam().Porta(scena);
      scena.Segnale(GetParam().Davanti);
      prova(scena);
    }
  }
};

class OgniStato : public StatoDiFinestra {};
class OgniStatoModificato : public StatoDiFinestra {};

TEST_P(OgniStato, WithNothingModifiedTheSignalEndsTheProgram) {
  PerOgniSegnale(false, [](Scena& scena) {
    EXPECT_EQ(scena.Esegui(), EXIT_SUCCESS);
    EXPECT_TRUE(scena.FileIntatto());
  });
}

TEST_P(OgniStatoModificato, AnnullaKeepsEverythingAndASecondSignalAsksAgainAndNoEndsItUnwritten) {
  PerOgniSegnale(true, [](Scena& scena) {
    scena.Chiesto(QMessageBox::Cancel);
    scena.Tornata();
    scena.Segnale(GetParam().Davanti);
    scena.Chiesto(QMessageBox::No);
    EXPECT_EQ(scena.Esegui(), EXIT_SUCCESS);
    EXPECT_TRUE(scena.FileIntatto());
  });
}

TEST_P(OgniStatoModificato, AfterAnnullaTheDialogStillAnswersToEscape) {
  PerOgniSegnale(true, [](Scena& scena) {
    scena.Chiesto(QMessageBox::Cancel);
    scena.Tornata();
    const QDialog* dialogo = nullptr;
    if (GetParam().Davanti != NessunDialogo) {
      scena.Quando(GetParam().Davanti, [&dialogo] {
        dialogo = InPrimoPiano();
        PremiTasto(Qt::Key_Escape);
      });
    }
    const auto chiuso = [&dialogo] {
      return dialogo == nullptr || QApplication::activeModalWidget() != dialogo;
    };
    scena.Passi().Poi("the dialog to close", chiuso, [] { QApplication::exit(Scena::Fermata); });
    EXPECT_EQ(scena.Esegui(), Scena::Fermata);
    EXPECT_TRUE(scena.TestoIntatto());
  });
}

TEST_P(OgniStatoModificato, SiSavesAndEndsTheProgram) {
  PerOgniSegnale(true, [](Scena& scena) {
    scena.Chiesto(QMessageBox::Yes);
    EXPECT_EQ(scena.Esegui(), EXIT_SUCCESS);
    EXPECT_TRUE(scena.FileSalvato());
  });
}

std::string NomeDi(const testing::TestParamInfo<Stato>& stato) {
  return stato.param.Nome;
}

INSTANTIATE_TEST_SUITE_P(Stati, OgniStato, testing::ValuesIn(StatiDiOgniModello()), NomeDi);
INSTANTIATE_TEST_SUITE_P(Stati, OgniStatoModificato, testing::ValuesIn(Tutti()), NomeDi);

// --- while the closing question, or what it was answered with, is at work

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
