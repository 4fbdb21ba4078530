// The guide: the manual beside the window, and inside its dialogs (docs/menus.md).
#include <gtest/gtest.h>

#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTextBrowser>
#include <QTreeView>

#include "Finestra.h"
#include "app/qtPagineGuida.h"
#include "docs/Manuale.h"
#include "supporto/ConNome.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;
using prova::Finestra;
using prova::Trova;

QDialog& Guida(const QObject& padre) {
  return *Trova<QDialog>(padre, "frmGuida");
}

QTextBrowser& Testo(const QObject& padre) {
  return *Trova<QTextBrowser>(Guida(padre), "txtGuida");
}

/// The page that shows: its way in the manual, without an ending.
QString Aperta(const QObject& padre) {
  const QString file = Testo(padre).source().toLocalFile();
  return file.section("/manuale/", 1).chopped(static_cast<qsizetype>(sizeof ".html" - 1));
}

void F1(QWidget& dove) {
  QTest::keyClick(&dove, Qt::Key_F1);
}

TEST(Guida, OpensThePageOfWhatHasTheFocus) {
  Finestra finestra;
  EXPECT_EQ(PaginaPer(nullptr), "primi-passi");
  F1(*finestra);
  EXPECT_EQ(Aperta(*finestra), "primi-passi");
  EXPECT_TRUE(Testo(*finestra).toPlainText().startsWith("Primi passi"));
  finestra.Attiva();
  finestra.Scegli(1);
  F1(finestra.Sezione(0));
  EXPECT_EQ(Aperta(*finestra), "sezioni");
  EXPECT_EQ(PaginaPer(&finestra.Anteprima()), "anteprima");
  finestra.Azione("mnuTrova").trigger();
  EXPECT_EQ(PaginaPer(Trova<QWidget>(*finestra, "txtCerca")), "trovare-e-sostituire");
  finestra.Azione("mnuPannelloCampi").trigger();
  EXPECT_EQ(PaginaPer(Trova<QWidget>(*finestra, "txtFiltro")), "inserire-i-campi");
  finestra.Azione("mnuVerifica").trigger();
  EXPECT_EQ(PaginaPer(Trova<QWidget>(*finestra, "lstProblemi")), "verifica");
}

TEST(Guida, OpensThePageOfTheChosenProblemsRule) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Sezione(0).setPlainText("\u00ABX\u00BB\n");
  QTest::keyClick(&finestra.Sezione(0), Qt::Key_F8);
  auto& elenco = *Trova<QTreeView>(*finestra, "lstProblemi");
  ASSERT_TRUE(QTest::qWaitFor([&] { return elenco.model()->rowCount() == 1; }));
  elenco.setCurrentIndex(elenco.model()->index(0, 0));
  elenco.setFocus();
  F1(elenco);
  EXPECT_EQ(Aperta(*finestra), "regole/codice-sconosciuto");
}

struct PaginaDialogo {
  std::string Nome;  // the menu entry
  std::string Pagina;
};
using prova::PrintTo;

class GuidaNeiDialoghi : public testing::TestWithParam<PaginaDialogo> {};

TEST_P(GuidaNeiDialoghi, CanBeReadWhileTheDialogIsOpen) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Sezione(0).setPlainText("abc\n");
  QString aperta;
  prova::NelProssimoDialogo([&](QDialog& dialogo) {
    QWidget* const fuoco = dialogo.focusWidget();
    F1(fuoco != nullptr ? *fuoco : dialogo);
    QDialog& guida = Guida(dialogo);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&guida));
    aperta = Aperta(dialogo);
    QTest::mouseClick(Trova<QPushButton>(guida, "cmdIndice"), Qt::LeftButton);
    EXPECT_EQ(Aperta(dialogo), "indice") << "it is not blocked";
    QTest::keyClick(&Testo(dialogo), Qt::Key_Escape);
    EXPECT_FALSE(guida.isVisible());
    EXPECT_TRUE(dialogo.isVisible());
    dialogo.activateWindow();
    QTest::keyClick(&dialogo, Qt::Key_Escape);
  });
  finestra.Azione(GetParam().Nome.c_str()).trigger();
  EXPECT_EQ(aperta.toStdString(), GetParam().Pagina);
}

INSTANTIATE_TEST_SUITE_P(OgniDialogo, GuidaNeiDialoghi,
                         testing::Values(PaginaDialogo{"mnuVar", "finestre/frmVar"},
                                         PaginaDialogo{"mnuFlag", "finestre/frmFlag"},
                                         PaginaDialogo{"mnuStile", "finestre/frmStile"},
                                         PaginaDialogo{"mnuLingua", "finestre/frmLingua"},
                                         PaginaDialogo{"mnuPagina", "finestre/frmPagina"},
                                         PaginaDialogo{"mnuCostante", "finestre/frmCostante"},
                                         PaginaDialogo{"mnuComando", "finestre/frmComando"},
                                         PaginaDialogo{"mnuStampa", "finestre/frmDestStampa"},
                                         PaginaDialogo{"mnuFoglio", "finestre/frmFoglio"},
                                         PaginaDialogo{"mnuInfo", "finestre/frmAbout"}),
                         [](const auto& riga) { return riga.param.Nome; });

/// The screen of these tests has room beside a small dialog.
TEST(Guida, LeavesTheDialogInSight) {
  Finestra finestra;
  finestra.Scegli(1);
  prova::NelProssimoDialogo([](QDialog& dialogo) {
    dialogo.move(0, 100);
    F1(dialogo);
    EXPECT_FALSE(Guida(dialogo).geometry().intersects(dialogo.geometry()));
    dialogo.reject();
  });
  finestra.Azione("mnuPagina").trigger();
}

TEST(Guida, OpensInADialogThatAnotherOneHasOpened) {
  Finestra finestra;
  finestra.Scegli(1);
  QString aperta;
  prova::NelProssimoDialogo([&](QDialog& variabile) {
    prova::NelProssimoDialogo([&](QDialog& flag) {
      F1(*Trova<QListWidget>(flag, "lstFlag"));
      aperta = Aperta(flag);
      flag.reject();
    });
    QTest::mouseClick(Trova<QPushButton>(variabile, "cmdFlag"), Qt::LeftButton);
    variabile.reject();
  });
  finestra.Azione("mnuVar").trigger();
  EXPECT_EQ(aperta, "finestre/frmFlag");
}

TEST(Guida, OpensBesideTheSmallWindows) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Azione("mnuSettaFlag").trigger();
  auto& flag = *Trova<QDialog>(*finestra, "frmSettaFlag");
  flag.activateWindow();
  ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &flag; }));
  F1(*Trova<QListWidget>(flag, "lstFlag"));
  EXPECT_EQ(Aperta(*finestra), "finestre/frmSettaFlag");
}

TEST(Guida, OpensOnAQuestionAndOnAChoiceOfAFile) {
  Finestra finestra;
  QMessageBox domanda(QMessageBox::Question, {}, {}, QMessageBox::Ok, &*finestra);
  QFileDialog file(&*finestra);
  file.setOption(QFileDialog::DontUseNativeDialog);
  EXPECT_EQ(PaginaPer(&domanda), "messaggi");
  EXPECT_EQ(PaginaPer(&file), "salvare");
}

/// Menus, panels and dialogs are many: none may lead to a page that there is not.
TEST(Guida, KnowsOnlyPagesThatTheManualHas) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Apri("FATT01.IMG");
  for (const char* nome :
       {"mnuSostituisci", "mnuVerifica", "mnuPannelloCampi", "mnuSettaFlag", "mnuRighe", "mnuGuida"})
    finestra.Azione(nome).trigger();
  const QDir manuale(QString::fromStdString((finestra.Cartella() / "PARVIK" / "manuale").string()));
  std::set<QString> pagine;
  for (const QWidget* controllo : finestra->findChildren<QWidget*>()) pagine.insert(PaginaPer(controllo));
  EXPECT_GT(pagine.size(), 6U);
  for (const QString& pagina : pagine) EXPECT_TRUE(manuale.exists(pagina + ".html")) << pagina.toStdString();
}

TEST(Guida, FollowsLinksAndGoesBackAndForward) {
  Finestra finestra;
  F1(*finestra);
  QTextBrowser& testo = Testo(*finestra);
  auto& indietro = *Trova<QPushButton>(Guida(*finestra), "cmdIndietro");
  EXPECT_FALSE(indietro.isEnabled());
  QTest::mouseClick(Trova<QPushButton>(Guida(*finestra), "cmdIndice"), Qt::LeftButton);
  EXPECT_EQ(Aperta(*finestra), "indice");
  testo.setSource(testo.source().resolved(QUrl("regole/cornice.html")));
  EXPECT_EQ(Aperta(*finestra), "regole/cornice");
  testo.setSource(testo.source().resolved(QUrl("../verifica.html")));
  EXPECT_EQ(Aperta(*finestra), "verifica");
  QTest::keyClick(&testo, Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Aperta(*finestra), "regole/cornice");
  QTest::keyClick(&testo, Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(Aperta(*finestra), "verifica");
  QTest::mouseClick(&indietro, Qt::LeftButton);
  EXPECT_EQ(Aperta(*finestra), "regole/cornice");
}

TEST(Guida, FollowsTheFirstLinkByKeyboard) {
  Finestra finestra;
  F1(*finestra);
  QTest::mouseClick(Trova<QPushButton>(Guida(*finestra), "cmdIndice"), Qt::LeftButton);
  Testo(*finestra).setFocus();
  QTest::keyClick(&Testo(*finestra), Qt::Key_Tab);
  QTest::keyClick(&Testo(*finestra), Qt::Key_Return);
  EXPECT_EQ(Aperta(*finestra), "installare");
  EXPECT_TRUE(Guida(*finestra).isVisible());
}

TEST(Guida, LooksForAWordOnThePage) {
  Finestra finestra;
  F1(*finestra);
  auto& cerca = *Trova<QLineEdit>(Guida(*finestra), "txtCercaGuida");
  cerca.setFocus();
  QTest::keyClicks(&cerca, "modello");
  QTest::keyClick(&cerca, Qt::Key_Return);
  EXPECT_EQ(Testo(*finestra).textCursor().selectedText(), "modello");
  const int prima = Testo(*finestra).textCursor().position();
  QTest::keyClick(&cerca, Qt::Key_Return);
  EXPECT_GT(Testo(*finestra).textCursor().position(), prima);
  for (int i = 0; i < 50 && Testo(*finestra).textCursor().position() != prima; ++i)
    QTest::keyClick(&cerca, Qt::Key_Return);
  EXPECT_EQ(Testo(*finestra).textCursor().position(), prima) << "around the end";
  EXPECT_TRUE(Guida(*finestra).isVisible());
}

/// The keys that menus show, in the words of the manual.
void ElencaITasti(const QString& testo) {
  for (const VoceMenu& voce : VociMenu()) {
    if (*voce.Scorciatoia == '\0') continue;
    const QString tasto = QKeySequence(voce.Scorciatoia).toString(QKeySequence::NativeText);
    EXPECT_TRUE(testo.contains(QString(tasto).replace("Shift", "Maiusc"))) << voce.Nome;
  }
}

TEST(Guida, ListsAllKeysOfTheMenus) {
  Finestra finestra;
  F1(*finestra);
  Testo(*finestra).setSource(Testo(*finestra).source().resolved(QUrl("tasti.html")));
  ElencaITasti(Testo(*finestra).toPlainText());
  QTest::mouseClick(Trova<QPushButton>(Guida(*finestra), "cmdChiudi"), Qt::LeftButton);
  EXPECT_FALSE(Guida(*finestra).isVisible());
}

TEST(Guida, ShowsThePicturesOfThePagesWithinItsWidth) {
  Finestra finestra;
  F1(*finestra);
  QTextBrowser& testo = Testo(*finestra);
  for (const int larghezza : {900, 400}) {
    Guida(*finestra).resize(larghezza, 500);
    Finestra::Calma();
    testo.reload();
    const auto immagine =
        testo.document()
            ->resource(QTextDocument::ImageResource, testo.source().resolved(QUrl("immagini/inizio.png")))
            .value<QImage>();
    EXPECT_GT(immagine.width(), larghezza * 3 / 4);
    EXPECT_LE(immagine.width(), testo.viewport()->width());
    EXPECT_EQ(testo.horizontalScrollBar()->maximum(), 0) << larghezza;
  }
}

TEST(Guida, SaysWhereThereIsNoManualAndShowsFirstStepsAndKeys) {
  Finestra finestra;
  fs::remove(finestra.Cartella() / "PARVIK" / "manuale");
  F1(*finestra);
  const QString testo = Testo(*finestra).toPlainText();
  EXPECT_TRUE(testo.contains("Il manuale non è installato"));
  EXPECT_TRUE(testo.contains("Scegliere il tipo di stampa"));
  ElencaITasti(testo);
}

TEST(Guida, ReadsNothingBeforeItIsAskedFor) {
  Finestra finestra;
  finestra.Scegli(1);
  EXPECT_EQ(finestra->findChild<QTextBrowser*>(), nullptr);
}

}  // namespace
}  // namespace parvik
