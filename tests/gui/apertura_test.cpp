// Opening from outside: what the command line names, and files dropped on the window.
#include <gtest/gtest.h>

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QListWidget>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTest>
#include <QUrl>

#include "Finestra.h"

namespace parvik::prova {
namespace {

/// What the pointer carries, let go of in the middle of a widget. Whether the widget took it.
bool Deposita(QWidget& bersaglio, const QMimeData& dati) {
  const QPoint centro = bersaglio.rect().center();
  QDragEnterEvent entra(centro, Qt::CopyAction | Qt::MoveAction, &dati, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&bersaglio, &entra);
  QDropEvent lascia(centro, Qt::CopyAction | Qt::MoveAction, &dati, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&bersaglio, &lascia);
  return entra.isAccepted() && lascia.isAccepted();
}

class AperturaTest : public testing::Test {
 protected:
  static std::unique_ptr<QMimeData> File(const std::vector<std::filesystem::path>& percorsi) {
    auto dati = std::make_unique<QMimeData>();
    QList<QUrl> indirizzi;
    for (const auto& percorso : percorsi) indirizzi += QUrl::fromLocalFile(QString::fromStdString(percorso));
    dati->setUrls(indirizzi);
    dati->setText("il nome del file");
    return dati;
  }
  bool AttendiTitolo(const char* titolo) {
    return QTest::qWaitFor([&] { return finestra_->windowTitle() == titolo; });
  }
  QWidget& Vista(int sezione) { return *finestra_.Sezione(sezione).viewport(); }

  Finestra finestra_;
};

TEST_F(AperturaTest, AFileDroppedOnTheWindowIsOpened) {
  finestra_.Scegli(1);
  EXPECT_TRUE(Deposita(*finestra_, *File({finestra_.Modello("FATT01.IMG")})));
  EXPECT_TRUE(AttendiTitolo("Ordavia - G/FATT01.IMG"));
}

TEST_F(AperturaTest, AFileDroppedOnASectionIsOpenedAndNotPasted) {
  finestra_.Scegli(1);
  EXPECT_TRUE(Deposita(Vista(1), *File({finestra_.Modello("FATT01.IMG")})));
  EXPECT_TRUE(AttendiTitolo("Ordavia - G/FATT01.IMG"));
  EXPECT_FALSE(finestra_.Sezione(1).toPlainText().contains("il nome del file"));
}

TEST_F(AperturaTest, ADropAsksAboutAModifiedTemplateAsOpenDoes) {
  finestra_.Scegli(1);
  QTest::keyClick(&finestra_.Sezione(0), 'x');
  finestra_.Persona().Rispondera(Risposta::Annulla);
  Deposita(*finestra_, *File({finestra_.Modello("FATT01.IMG")}));
  EXPECT_TRUE(QTest::qWaitFor([&] { return finestra_.Persona().Messaggi.size() == 1; }));
  EXPECT_EQ(finestra_.Sezione(0).toPlainText(), "x\n");
}

TEST_F(AperturaTest, SeveralFilesAreNotTaken) {
  finestra_.Scegli(1);
  EXPECT_FALSE(
      Deposita(Vista(0), *File({finestra_.Modello("FATT01.IMG"), finestra_.Modello("FATTEST.IMG")})));
  QApplication::processEvents();
  EXPECT_EQ(finestra_.Sezione(0).toPlainText(), "\n");
}

TEST_F(AperturaTest, TextIsStillDroppedIntoASection) {
  finestra_.Scegli(1);
  QMimeData testo;
  testo.setText("ciao");
  Deposita(Vista(0), testo);
  EXPECT_TRUE(finestra_.Sezione(0).toPlainText().contains("ciao"));
}

TEST_F(AperturaTest, WithoutATypeTheTypesAreOfferedWithTheFittingOneSelected) {
  NelProssimoDialogo([](QDialog& dialogo) {
    EXPECT_EQ(dialogo.windowTitle(), "Tipo Stampa");
    EXPECT_EQ(Trova<QListWidget>(dialogo, "lstScelta")->currentRow(), 3);
    dialogo.accept();
  });
  EXPECT_TRUE(Deposita(*finestra_, *File({finestra_.Modello("DDT01.IMG")})));
  EXPECT_TRUE(AttendiTitolo("Ordavia - MG/DDT01.IMG"));
}

TEST_F(AperturaTest, WithoutATypeCancelLeavesTheWindowAsItIs) {
  NelProssimoDialogo([](QDialog& dialogo) { dialogo.reject(); });
  finestra_->Comincia({}, finestra_.Modello("DDT01.IMG"));
  EXPECT_EQ(finestra_->windowTitle(), "Ordavia");
}

TEST_F(AperturaTest, TheCommandLineChoosesTheTypeAndOpensTheFile) {
  finestra_->Comincia(0, finestra_.Modello("FATT01.IMG"));
  EXPECT_EQ(finestra_->windowTitle(), "Ordavia - G/FATT01.IMG");
  EXPECT_TRUE(finestra_.Sezione(0).toPlainText().contains("FATTURA"));
}

TEST_F(AperturaTest, TheCommandLineMayNameATypeAlone) {
  finestra_->Comincia(11, {});
  EXPECT_EQ(finestra_->windowTitle(), "Ordavia - LIST*.IMG");
}

TEST_F(AperturaTest, AFileThatIsNotThereIsToldAndNothingElseChanges) {
  finestra_.Persona().Rispondera(Risposta::Ok);
  const std::filesystem::path manca = finestra_.Modello("MANCA.IMG");
  finestra_->Comincia(0, manca);
  EXPECT_EQ(finestra_->windowTitle(), "Ordavia");
  ASSERT_EQ(finestra_.Persona().Messaggi.size(), 1U);
  EXPECT_EQ(finestra_.Persona().Messaggi.front().Testo,
            "Si è verificato l'errore: 53 Impossibile trovare il file\r\n" + manca.string());
}

}  // namespace
}  // namespace parvik::prova
