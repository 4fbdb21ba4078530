// The program's main road, from the choice of a document type to the saved file, through the window.
#include <gtest/gtest.h>

#include <QTest>

#include "Finestra.h"
#include "common/qtTesto.h"
#include "supporto/ConNome.h"

namespace parvik {
namespace {

using prova::Contenuto;
using prova::Crea;
using prova::Finestra;

struct Esempio {
  const char* Nome;
  int Tipo;
};
using prova::PrintTo;

class OgniEsempio : public testing::TestWithParam<Esempio> {};

TEST_P(OgniEsempio, OpenedAndSavedUnchangedIsTheSameFile) {
  Finestra finestra;
  const std::string prima = Contenuto(finestra.Modello(GetParam().Nome));
  finestra.Scegli(GetParam().Tipo);
  finestra.Apri(GetParam().Nome);
  finestra.Azione("mnuSalva").trigger();
  EXPECT_EQ(Contenuto(finestra.Modello(GetParam().Nome)), prima);
}

TEST_P(OgniEsempio, ThePreviewEndsWithTheEndMarkerAndHoldsNoCode) {
  Finestra finestra;
  finestra.Scegli(GetParam().Tipo);
  finestra.Apri(GetParam().Nome);
  EXPECT_FALSE(finestra.Azione("mnuAnte").isChecked()) << "opening turns the preview off";
  finestra.Azione("mnuAnte").trigger();
  const QString testo = finestra.TestoAnteprima();
  EXPECT_TRUE(testo.endsWith("\n\n--- Fine file ---")) << testo.right(40).toStdString();
  EXPECT_FALSE(testo.contains(QChar(0xAB)));
  EXPECT_FALSE(testo.contains("S;"));
}

INSTANTIATE_TEST_SUITE_P(Modelli, OgniEsempio,
                         testing::Values(Esempio{"FATT01.IMG", 1}, Esempio{"FATTEST.IMG", 1},
                                         Esempio{"NCRED01.IMG", 3}, Esempio{"DDT01.IMG", 4},
                                         Esempio{"ORDCL01.IMG", 5}, Esempio{"PREV01.IMG", 7},
                                         Esempio{"RICEV01.IMG", 8}, Esempio{"ESTCL01.IMG", 10},
                                         Esempio{"LIST01.IMG", 12}, Esempio{"COLLO01.IMG", 14},
                                         Esempio{"SOLL01.IMG", 15}),
                         [](const auto& caso) {
                           const std::string nome = caso.param.Nome;
                           return nome.substr(0, nome.find('.'));
                         });

TEST(Strada, EveryByteSurvivesFileEditorAndFile) {
  Finestra finestra;
  std::string byte;
  for (int valore = 0; valore < 256; ++valore) {
    const char c = static_cast<char>(static_cast<unsigned char>(valore));
    if (c != '\r' && c != '\xAB' && c != '\xBB') byte += c;  // a line end, and what is saved as its file form
  }
  byte += "\r\n";
  Crea(finestra.Modello("LISTX.IMG"), byte);
  finestra.Scegli(12);
  finestra.Apri("LISTX.IMG");
  finestra.Azione("mnuSalva").trigger();
  EXPECT_EQ(Contenuto(finestra.Modello("LISTX.IMG")), byte);
}

TEST(Strada, TypedChangeSavedAndCaptionFromTheFileName) {
  Finestra finestra;
  Crea(finestra.Modello("LISTX.IMG"), "uno\r\n");
  finestra.Scegli(12);
  finestra.Apri("LISTX.IMG");
  EXPECT_EQ(finestra->windowTitle(), "Ordavia - MG/LISTX.IMG");
  QTest::keyClicks(&finestra.Sezione(0), "zero ");
  QTest::keyClick(&finestra.Sezione(0), Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(Contenuto(finestra.Modello("LISTX.IMG")), "zero uno\r\n");
}

TEST(Strada, AnArrowKeyMakesTheTemplateModified) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Apri("FATT01.IMG");
  QTest::keyClick(&finestra.Sezione(0), Qt::Key_Down);
  finestra.Persona().Rispondera(Risposta::Annulla);
  EXPECT_FALSE(finestra->close());
  EXPECT_TRUE(finestra->isVisible());
}

TEST(Strada, AShortcutAndAnAccessKeyLeaveAnUntouchedTemplateUnmodified) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Apri("FATT01.IMG");
  QWidget* testata = &finestra.Sezione(0);
  QTest::keyPress(testata, Qt::Key_Control);
  finestra.Persona().Scegliera(finestra.Modello("FATT01.IMG"));
  QTest::keyClick(testata, Qt::Key_O, Qt::ControlModifier);
  QTest::keyRelease(testata, Qt::Key_Control);
  QTest::keyPress(testata, Qt::Key_Alt);
  QTest::keyClick(testata, Qt::Key_F, Qt::AltModifier);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
  QTest::keyClick(testata, Qt::Key_Q, Qt::ControlModifier);
  EXPECT_FALSE(finestra->isVisible()) << "closed without a question";
  EXPECT_TRUE(finestra.Persona().Messaggi.empty());
}

TEST(Strada, ClosingAnUnmodifiedTemplateAsksNothing) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Apri("FATT01.IMG");
  finestra.Azione("mnuEsci").trigger();
  EXPECT_FALSE(finestra->isVisible());
  EXPECT_TRUE(finestra.Persona().Messaggi.empty());
}

TEST(Strada, ClosingAfterNoLeavesTheFileAlone) {
  Finestra finestra;
  const std::string prima = Contenuto(finestra.Modello("FATT01.IMG"));
  finestra.Scegli(1);
  finestra.Apri("FATT01.IMG");
  QTest::keyClicks(&finestra.Sezione(0), "x");
  finestra.Persona().Rispondera(Risposta::No);
  EXPECT_TRUE(finestra->close());
  EXPECT_EQ(Contenuto(finestra.Modello("FATT01.IMG")), prima);
}

TEST(Strada, NewGoesBackToTheStateWithoutATypeAndKeepsTheTexts) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Apri("FATT01.IMG");
  const QString testata = finestra.Sezione(0).toPlainText();
  finestra.Azione("mnuNuovo").trigger();
  EXPECT_EQ(finestra->windowTitle(), "Ordavia");
  EXPECT_FALSE(finestra.Sezione(0).isVisible());
  EXPECT_EQ(finestra.Sezione(0).toPlainText(), testata);
  EXPECT_TRUE(finestra.Azione("mnuScelta").isEnabled());
  finestra.Scegli(1);
  EXPECT_EQ(finestra.Sezione(0).toPlainText(), "\n");
}

TEST(Strada, F4AfterNewDoesNothing) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Apri("FATT01.IMG");
  finestra.Sezione(0).setFocus();
  const QString testata = finestra.Sezione(0).toPlainText();
  QTest::keyClick(&finestra.Sezione(0), Qt::Key_N, Qt::ControlModifier);
  for (const Qt::Key tasto : {Qt::Key_F4, Qt::Key_Backspace, Qt::Key_Space, Qt::Key_X})
    QTest::keyClick(QApplication::focusWidget() == nullptr ? &*finestra : QApplication::focusWidget(), tasto);
  EXPECT_EQ(finestra.Sezione(0).toPlainText(), testata);
}

TEST(Strada, SaveAsTakesTheNameAndShowsWhatTheFileHolds) {
  Finestra finestra;
  finestra.Scegli(1);
  for (int i = 0; i < 3; ++i) {
    finestra.Sezione(i).selectAll();
    QTest::keyClicks(&finestra.Sezione(i), "abc");
  }
  finestra.Persona().Scegliera(finestra.Modello("FATTNUOVA"));
  finestra.Azione("mnuSalvaNome").trigger();
  EXPECT_EQ(Contenuto(finestra.Modello("FATTNUOVA.img")),
            "abc\r\n\r\n\xAE"
            "C23;1;\xAF\r\nabc\r\nabc\r\n\r\n");
  EXPECT_EQ(finestra.Sezione(0).toPlainText(), "abc\n\n");
  EXPECT_EQ(finestra.Sezione(1).toPlainText(), "abc\n");
  EXPECT_EQ(finestra->windowTitle(), "Ordavia - ATTNUOVA.img");
}

TEST(Strada, SaveAsWithTheNameOfAFileButItsExtensionReplacesThatFile) {
  Finestra finestra;
  finestra.Scegli(1);
  QTest::keyClicks(&finestra.Sezione(0), "abc");
  const auto quanti = [&finestra] {
    return std::distance(std::filesystem::directory_iterator(finestra.Cartella() / "D_IMG"), {});
  };
  const auto prima = quanti();
  finestra.Persona().Scegliera(finestra.Modello("FATT01"));
  finestra.Azione("mnuSalvaNome").trigger();
  EXPECT_TRUE(Contenuto(finestra.Modello("FATT01.IMG")).starts_with("abc\r\n"));
  EXPECT_EQ(finestra->windowTitle(), "Ordavia - G/FATT01.IMG");
  EXPECT_EQ(quanti(), prima + 1) << "nothing new but FATT01.IMG~";
  EXPECT_TRUE(std::filesystem::exists(finestra.Modello("FATT01.IMG~")));
}

TEST(Strada, TheBodyIsCompletedWhenItIsSaved) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Apri("FATT01.IMG");
  finestra.Sezione(1).selectAll();
  QTest::keyClicks(&finestra.Sezione(1), "x");
  finestra.Azione("mnuSalva").trigger();
  EXPECT_EQ(finestra.Sezione(1).toPlainText(), "x\n");
}

}  // namespace
}  // namespace parvik
