#include "common/qtDialoghi.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QTest>
#include <QTreeView>
#include <QWindow>

#include "Finestra.h"

namespace parvik {
namespace {

using prova::NelProssimoDialogo;

QMessageBox& Scatola(QDialog& dialogo) {
  return *qobject_cast<QMessageBox*>(&dialogo);
}

QString Senza(QString testo) {
  return testo.remove('&');
}

TEST(QtDialoghi, AQuestionHasItalianButtonsAndItsOwnTitle) {
  NelProssimoDialogo([](QDialog& dialogo) {
    QMessageBox& scatola = Scatola(dialogo);
    EXPECT_EQ(scatola.windowTitle(), "File immagine");
    EXPECT_EQ(scatola.text(), QString::fromUtf8("Il file è stato modificato, vuoi salvare?"));
    EXPECT_EQ(scatola.icon(), QMessageBox::Question);
    EXPECT_EQ(Senza(scatola.button(QMessageBox::Yes)->text()), QString::fromUtf8("Sì"));
    EXPECT_EQ(Senza(scatola.button(QMessageBox::No)->text()), "No");
    EXPECT_EQ(Senza(scatola.button(QMessageBox::Cancel)->text()), "Annulla");
    QTest::mouseClick(scatola.button(QMessageBox::No), Qt::LeftButton);
  });
  qtDialoghi dialoghi;
  EXPECT_EQ(dialoghi.Chiedi({.Testo = "Il file è stato modificato, vuoi salvare?",
                             .Simbolo = Icona::Domanda,
                             .Tasti = Pulsanti::SiNoAnnulla,
                             .Titolo = "File immagine"}),
            Risposta::No);
}

TEST(QtDialoghi, EscapeOnAQuestionIsCancel) {
  NelProssimoDialogo([](QDialog& dialogo) { QTest::keyClick(&dialogo, Qt::Key_Escape); });
  qtDialoghi dialoghi;
  EXPECT_EQ(dialoghi.Chiedi({.Testo = "?", .Simbolo = Icona::Domanda, .Tasti = Pulsanti::SiNoAnnulla}),
            Risposta::Annulla);
}

TEST(QtDialoghi, AnErrorHasTheCriticalIconAndIsReadAsPlainText) {
  NelProssimoDialogo([](QDialog& dialogo) {
    EXPECT_EQ(Scatola(dialogo).icon(), QMessageBox::Critical);
    EXPECT_EQ(Scatola(dialogo).windowTitle(), "Ordavia");
    EXPECT_EQ(Scatola(dialogo).text(), "uno <b>due</b>\ntre");
    EXPECT_EQ(Scatola(dialogo).textFormat(), Qt::PlainText);
    QTest::keyClick(&dialogo, Qt::Key_Return);
  });
  qtDialoghi dialoghi;
  EXPECT_EQ(dialoghi.Chiedi({.Testo = "uno <b>due</b>\r\ntre"}), Risposta::Ok);
}

TEST(QtDialoghi, AMessageBeforeThereIsAWindowHasTheProgramsIconAndItsOwn) {
  ASSERT_TRUE(QApplication::windowIcon().isNull()) << "as at the start of the program";
  NelProssimoDialogo([](QDialog& dialogo) {
    EXPECT_FALSE(dialogo.windowIcon().pixmap(16, 16).isNull());
    EXPECT_FALSE(dialogo.windowHandle()->icon().isNull());
    EXPECT_FALSE(Scatola(dialogo).iconPixmap().isNull());
    QTest::keyClick(&dialogo, Qt::Key_Return);
  });
  qtDialoghi dialoghi;
  EXPECT_EQ(dialoghi.Chiedi({.Testo = "fatale"}), Risposta::Ok);
}

class QtDialoghiFile : public testing::Test {
 protected:
  RichiestaFile Richiesta(RichiestaFile::Scopo uso) const {
    RichiestaFile richiesta;
    richiesta.Uso = uso;
    richiesta.Titolo = "Apri File Immagine";
    richiesta.Cartella = cartella_.Percorso();
    richiesta.EtichettaFiltro = "File IMG (*.img)";
    richiesta.Modello = "FATT*.IMG";
    return richiesta;
  }

  static void Scrivi(QDialog& dialogo, const QString& nome) {
    auto* campo = prova::Trova<QLineEdit>(dialogo, "fileNameEdit");
    campo->setFocus();
    campo->selectAll();
    QTest::keyClicks(campo, nome);
    QTest::keyClick(campo, Qt::Key_Return);
  }

  prova::CartellaTemporanea cartella_;
};

TEST_F(QtDialoghiFile, TheFilterShowsItsLabelAndMatchesWithoutRegardToCase) {
  for (const char* nome : {"FATT01.IMG", "fatt02.img", "DDT01.IMG", "fatt.txt"})
    prova::Crea(cartella_ / nome, "");
  NelProssimoDialogo([](QDialog& dialogo) {
    EXPECT_EQ(dialogo.windowTitle(), "Apri File Immagine");
    EXPECT_EQ(prova::Trova<QComboBox>(dialogo, "fileTypeCombo")->currentText(), "File IMG (*.img)");
    auto* lista = prova::Trova<QTreeView>(dialogo, "treeView");
    const auto righe = [lista] { return lista->model()->rowCount(lista->rootIndex()); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return righe() > 0; }));
    QStringList nomi;
    for (int i = 0; i < righe(); ++i)
      nomi += lista->model()->index(i, 0, lista->rootIndex()).data().toString();
    nomi.sort();
    EXPECT_EQ(nomi, QStringList({"FATT01.IMG", "fatt02.img"}));
    dialogo.reject();
  });
  qtDialoghi dialoghi;
  EXPECT_TRUE(dialoghi.ScegliFile(Richiesta(RichiestaFile::Scopo::Apri)).empty());
}

TEST_F(QtDialoghiFile, ATypedNameIsGivenAsItWasTyped) {
  NelProssimoDialogo([](QDialog& dialogo) { Scrivi(dialogo, "nuovo"); });
  qtDialoghi dialoghi;
  EXPECT_EQ(dialoghi.ScegliFile(Richiesta(RichiestaFile::Scopo::Salva)), cartella_ / "nuovo");
}

TEST_F(QtDialoghiFile, OpeningANameThatDoesNotExistAsksNothingEither) {
  NelProssimoDialogo([](QDialog& dialogo) { Scrivi(dialogo, "manca.img"); });
  qtDialoghi dialoghi;
  EXPECT_EQ(dialoghi.ScegliFile(Richiesta(RichiestaFile::Scopo::Apri)), cartella_ / "manca.img");
}

TEST_F(QtDialoghiFile, SavingOverAnExistingFileAsksNothing) {
  prova::Crea(cartella_ / "FATT01.IMG", "x");
  NelProssimoDialogo([](QDialog& dialogo) { Scrivi(dialogo, "FATT01.IMG"); });
  qtDialoghi dialoghi;
  EXPECT_EQ(dialoghi.ScegliFile(Richiesta(RichiestaFile::Scopo::Salva)), cartella_ / "FATT01.IMG");
}

TEST_F(QtDialoghiFile, TheProposedNameStandsInTheNameField) {
  RichiestaFile richiesta = Richiesta(RichiestaFile::Scopo::Salva);
  richiesta.NomeProposto = "FATT.IMG";
  NelProssimoDialogo([](QDialog& dialogo) {
    EXPECT_EQ(prova::Trova<QLineEdit>(dialogo, "fileNameEdit")->text(), "FATT.IMG");
    QTest::keyClick(&dialogo, Qt::Key_Escape);
  });
  qtDialoghi dialoghi;
  EXPECT_TRUE(dialoghi.ScegliFile(richiesta).empty());
}

TEST(VoceFiltro, CharactersThatTheToolkitWouldMisreadBecomeWildcards) {
  EXPECT_EQ(VoceFiltro("File IMG (*.img)", "FATT*.IMG"), "File IMG (*.img) (FATT*.IMG)");
  EXPECT_EQ(VoceFiltro("File IMG (*.img)", QString::fromUtf8("Etich. à (b)*.img")),
            "File IMG (*.img) (Etich.????b?*.img)");
}

}  // namespace
}  // namespace parvik
