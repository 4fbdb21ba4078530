// SIGTERM, SIGHUP and SIGINT in every state of the windows: whatever is open, the program asks as closing
// does, or ends when nothing is modified.
#include <gtest/gtest.h>

#include <QMenu>
#include <QPushButton>
#include <cstdlib>
#include <vector>

#include "Segnali.h"

namespace parvik {
namespace {

using prova::ApriCorpoEnorme;
using prova::ApriTantePagine;
using prova::Domanda;
using prova::InPrimoPiano;
using prova::NessunDialogo;
using prova::PremiTasto;
using prova::Scena;
using prova::ScriviNome;
using prova::Segnale;
using prova::Segnali;
using prova::Trova;

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
      {"export", "Esporta PDF", [](Scena& scena) { scena.Comando("mnuEsportaPdf"); }},
      {"long_export", "frmEsportaPdf",
       [](Scena& scena) {
         scena.Comando("mnuEsportaPdf");
         scena.Quando("Esporta PDF", [&scena] { ScriviNome(scena.Editor().Cartella() / "lungo.pdf"); });
       },
       ApriTantePagine},
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

}  // namespace
}  // namespace parvik
