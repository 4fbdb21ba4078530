// The print command through the window: destinations, silences, and work that takes long.
#include <gtest/gtest.h>

#include <QLabel>
#include <QListWidget>
#include <QProcess>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>

#include "Finestra.h"
#include "template/ImmagineModello.h"

namespace parvik {
namespace {

using prova::Contenuto;
using prova::Finestra;
using prova::NelProssimoDialogo;
using prova::Trova;

/// Chooses a destination by its option's name, and OK.
void StampaSu(Finestra& finestra, const char* opzione) {
  NelProssimoDialogo([opzione](QDialog& dialogo) {
    Trova<QWidget>(dialogo, opzione)->setFocus();
    QTest::keyClick(&dialogo, Qt::Key_Return);
  });
  finestra.Azione("mnuStampa").trigger();
}

std::string Mostrato(Finestra& finestra) {
  return std::string(finestra.Anteprima().Contenuto().Testo());
}

std::string DallaRigaDiComando(Finestra& finestra, int tipo, const char* modello) {
  QProcess processo;
  processo.start(QString::fromStdString(prova::Batch().string()),
                 {"--velkor", QString::fromStdString(finestra.Cartella().string()), "stampa", "--tipo",
                  QString::number(tipo), QString::fromStdString(finestra.Modello(modello).string())});
  EXPECT_TRUE(processo.waitForFinished());
  EXPECT_EQ(processo.exitCode(), 0) << processo.readAllStandardError().toStdString();
  return processo.readAllStandardOutput().toStdString();
}

struct Esemplare {
  int Tipo;
  const char* Modello;
};

void PrintTo(const Esemplare& esemplare, std::ostream* uscita) {
  *uscita << esemplare.Modello;
}

class StampaSuFile : public testing::TestWithParam<Esemplare> {};

TEST_P(StampaSuFile, HasTheBytesThatTheBatchProgramWrites) {
  Finestra finestra;
  finestra.Scegli(GetParam().Tipo);
  finestra.Apri(GetParam().Modello);
  const std::filesystem::path uscita = finestra.Cartella() / "D_STM" / "uscita.txt";
  finestra.Persona().Scegliera(uscita);
  StampaSu(finestra, "optFile");
  const std::string attese = DallaRigaDiComando(finestra, GetParam().Tipo, GetParam().Modello);
  EXPECT_FALSE(attese.empty());
  EXPECT_EQ(Contenuto(uscita), attese);
}

INSTANTIATE_TEST_SUITE_P(Esempi, StampaSuFile,
                         testing::Values(Esemplare{1, "FATT01.IMG"}, Esemplare{12, "LIST01.IMG"}),
                         [](const auto& esempio) { return std::string(esempio.param.Modello, 6); });

TEST(FinestraStampa, CancelInTheDestinationDialogDoesNothingAtAll) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Apri("FATT01.IMG");
  ASSERT_FALSE(finestra.Anteprima().isVisible()) << "opening turns it off";
  NelProssimoDialogo(
      [](QDialog& dialogo) { QTest::mouseClick(Trova<QPushButton>(dialogo, "cmdCanc"), Qt::LeftButton); });
  finestra.Azione("mnuStampa").trigger();
  EXPECT_FALSE(finestra.Anteprima().isVisible());
  EXPECT_EQ(Mostrato(finestra), "");
}

TEST(FinestraStampa, AnteprimaShowsThePaneWithItsTextAndRendersAgainWhenItIsShown) {
  Finestra finestra;
  finestra.Scegli(12);
  finestra.Azione("mnuAnte").trigger();
  finestra.Sezione(0).setPlainText("prima\n");
  StampaSu(finestra, "optAnte");
  EXPECT_TRUE(finestra.Anteprima().isVisible());
  EXPECT_TRUE(finestra.Azione("mnuAnte").isChecked());
  EXPECT_EQ(Mostrato(finestra), "prima\r\n\r\n--- Fine file ---");
  finestra.Sezione(0).setPlainText("dopo\n");
  StampaSu(finestra, "optAnte");
  EXPECT_TRUE(finestra.Anteprima().isVisible());
  EXPECT_EQ(Mostrato(finestra), "dopo\r\n\r\n--- Fine file ---");
}

TEST(FinestraStampa, OnAMachineWithoutAPrinterTheCommandEndsWithoutAWord) {
  qputenv("CUPS_SERVER", "/nonexistent/cups.sock");
  Finestra finestra;
  finestra.Scegli(12);
  finestra.Azione("mnuAnte").trigger();
  finestra.Sezione(0).setPlainText("testo\n");
  StampaSu(finestra, "optStampa");
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_FALSE(finestra.Anteprima().isVisible());
  EXPECT_TRUE(finestra.Persona().Messaggi.empty());
}

/// Two gigabytes of preview: a body of one long line, 32,767 times.
void ApriCorpoEnorme(Finestra& finestra) {
  TestiSezioni testi = {"\r\n", std::string(60'000, 'x') + "\r\n", "\r\n"};
  ImpostazioniCorpo corpo = ImpostazioniPredefinite();
  corpo.RigheCorpo = 32767;
  prova::Crea(finestra.Modello("ENORME.IMG"), *ScriviImmagine(testi, corpo, Formato::TreSezioni));
  finestra.Scegli(1);
  finestra.Apri("ENORME.IMG");
}

TEST(FinestraStampa, AHugePreviewSaysThatItIsMadeAndCanBeGivenUp) {
  Finestra finestra;
  ApriCorpoEnorme(finestra);
  QString testo;
  NelProssimoDialogo([&](QDialog& attesa) {
    testo = qobject_cast<QProgressDialog*>(&attesa)->labelText();
    EXPECT_FALSE(finestra->close()) << "not while a command is at work";
    QTest::mouseClick(attesa.findChild<QPushButton*>(), Qt::LeftButton);
  });
  finestra.Azione("mnuAnte").trigger();
  EXPECT_EQ(testo, "Elaborazione in corso...");
  EXPECT_TRUE(finestra.Anteprima().isVisible());
  const std::string mostrato = Mostrato(finestra);
  EXPECT_TRUE(mostrato.starts_with("xxxx"));
  EXPECT_TRUE(mostrato.ends_with("xxxx\r\n")) << "whole lines, and no end marker";
}

TEST(FinestraStampa, AHugeTextFileThatIsGivenUpLeavesTheOldOneWhole) {
  Finestra finestra;
  ApriCorpoEnorme(finestra);
  const std::filesystem::path uscita = finestra.Cartella() / "D_STM" / "uscita.txt";
  prova::Crea(uscita, "vecchio");
  const auto contenuti = [&uscita] {
    return std::distance(std::filesystem::directory_iterator(uscita.parent_path()), {});
  };
  const auto prima = contenuti();
  finestra.Persona().Scegliera(uscita);
  NelProssimoDialogo([](QDialog& destinazione) {
    NelProssimoDialogo([](QDialog& attesa) { QTest::keyClick(&attesa, Qt::Key_Escape); });
    Trova<QWidget>(destinazione, "optFile")->setFocus();
    QTest::keyClick(&destinazione, Qt::Key_Return);
  });
  finestra.Azione("mnuStampa").trigger();
  EXPECT_EQ(Contenuto(uscita), "vecchio");
  EXPECT_EQ(contenuti(), prima);
}

}  // namespace
}  // namespace parvik
