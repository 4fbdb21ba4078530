// The bar above the sections that tells of the template's file (docs/notizie.md).
#include <gtest/gtest.h>

#include <QAccessible>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QToolBar>
#include <chrono>

#include "Finestra.h"
#include "Tavolozze.h"
#include "app/qtNotizie.h"
#include "common/qtTinte.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;
using prova::Finestra;
using prova::Trova;

class BarraAvviso : public testing::Test {
 protected:
  BarraAvviso() {
    finestra_.Scegli(1);
    finestra_.Apri("FATT01.IMG");
    Testata().setFocus();
  }
  void Altrui(const std::string& byte) {
    prova::Crea(File(), byte);
    fs::last_write_time(File(), fs::last_write_time(File()) + std::chrono::seconds(++volte_));
  }
  /// The user comes back from another window.
  void TornaAllaFinestra() {
    QEvent attivata(QEvent::WindowActivate);
    QApplication::sendEvent(&*finestra_, &attivata);
    auto& notizie = *finestra_->findChild<qtNotizie*>();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !notizie.AlLavoro(); }));
    Finestra::Calma();
  }
  bool CeLaBarra() {
    auto* barra = finestra_->findChild<QToolBar*>("barAvviso");
    return barra != nullptr && barra->isVisible();
  }
  QToolBar& Barra() { return *Trova<QToolBar>(*finestra_, "barAvviso"); }
  QPushButton& Pulsante(const char* nome) { return *Trova<QPushButton>(Barra(), nome); }
  QString Detto() { return Trova<QLabel>(Barra(), "lblNotizia")->text(); }
  QPlainTextEdit& Testata() { return finestra_.Sezione(0); }
  fs::path File() const { return finestra_.Modello("FATT01.IMG"); }

  Finestra finestra_;
  int volte_ = 0;
};

TEST_F(BarraAvviso, IsNotThereWhileTheFileIsAsItWasRead) {
  TornaAllaFinestra();
  EXPECT_EQ(finestra_->findChild<QToolBar*>("barAvviso"), nullptr) << "nothing to tell, nothing made";
}

TEST_F(BarraAvviso, TellsThatAnotherProgramWroteTheFileAndTakesNothingFromTheUser) {
  Altrui("altrui\r\n");
  TornaAllaFinestra();
  ASSERT_TRUE(CeLaBarra());
  EXPECT_EQ(Detto(), "«FATT01.IMG» è stato cambiato da un altro programma");
  EXPECT_EQ(Trova<QLabel>(Barra(), "lblNotizia")->toolTip(), QString::fromStdString(File().string()));
  EXPECT_EQ(Barra().accessibleName(), "Avviso");
  EXPECT_EQ(Pulsante("cmdRicarica").text(), "Ricarica");
  EXPECT_EQ(Pulsante("cmdIgnora").text(), "Ignora");
  EXPECT_EQ(finestra_->toolBarArea(&Barra()), Qt::TopToolBarArea);
  EXPECT_EQ(QApplication::focusWidget(), &Testata());
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  const QPoint barra = Barra().mapTo(&*finestra_, QPoint());
  EXPECT_GE(Testata().mapTo(&*finestra_, QPoint()).y(), barra.y() + Barra().height());
}

TEST_F(BarraAvviso, RicaricaReadsTheFileAgain) {
  Altrui("altrui\r\n");
  TornaAllaFinestra();
  QTest::mouseClick(&Pulsante("cmdRicarica"), Qt::LeftButton);
  EXPECT_EQ(Testata().toPlainText(), "altrui\n");
  EXPECT_FALSE(CeLaBarra());
  EXPECT_TRUE(Testata().hasFocus());
  TornaAllaFinestra();
  EXPECT_FALSE(CeLaBarra());
}

TEST_F(BarraAvviso, RicaricaAsksAboutAModifiedTemplateAsApriDoes) {
  Altrui("altrui\r\n");
  QTest::keyClicks(&Testata(), "mio");
  const QString mio = Testata().toPlainText();
  TornaAllaFinestra();
  finestra_.Persona().Rispondera(Risposta::Annulla);
  QTest::mouseClick(&Pulsante("cmdRicarica"), Qt::LeftButton);
  EXPECT_EQ(Testata().toPlainText(), mio);
  EXPECT_TRUE(CeLaBarra()) << "it still holds";
  finestra_.Persona().Rispondera(Risposta::No);
  QTest::mouseClick(&Pulsante("cmdRicarica"), Qt::LeftButton);
  EXPECT_EQ(Testata().toPlainText(), "altrui\n");
  EXPECT_FALSE(CeLaBarra());
}

TEST_F(BarraAvviso, IgnoraEndsItForThisContentOnly) {
  Altrui("altrui\r\n");
  TornaAllaFinestra();
  QTest::mouseClick(&Pulsante("cmdIgnora"), Qt::LeftButton);
  EXPECT_FALSE(CeLaBarra());
  TornaAllaFinestra();
  EXPECT_FALSE(CeLaBarra());
  Altrui("altro\r\n");
  TornaAllaFinestra();
  EXPECT_TRUE(CeLaBarra());
}

TEST_F(BarraAvviso, IsReachedByTabAndLeftByEscapeBackToTheSection) {
  Altrui("altrui\r\n");
  TornaAllaFinestra();
  for (int i = 0; i < 40 && !Pulsante("cmdRicarica").hasFocus(); ++i)
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  ASSERT_TRUE(Pulsante("cmdRicarica").hasFocus());
  QTest::keyClick(&Pulsante("cmdRicarica"), Qt::Key_Tab);
  EXPECT_TRUE(Pulsante("cmdIgnora").hasFocus());
  QTest::keyClick(&Pulsante("cmdIgnora"), Qt::Key_Escape);
  EXPECT_FALSE(CeLaBarra());
  EXPECT_NE(qobject_cast<QPlainTextEdit*>(QApplication::focusWidget()), nullptr)
      << QApplication::focusWidget()->objectName().toStdString();
  TornaAllaFinestra();
  EXPECT_FALSE(CeLaBarra());
}

TEST_F(BarraAvviso, EnterOnAButtonPressesIt) {
  Altrui("altrui\r\n");
  TornaAllaFinestra();
  Pulsante("cmdRicarica").setFocus();
  QTest::keyClick(&Pulsante("cmdRicarica"), Qt::Key_Return);
  EXPECT_EQ(Testata().toPlainText(), "altrui\n");
  EXPECT_TRUE(Testata().hasFocus());
}

TEST_F(BarraAvviso, TellsThatTheFileHasGoneWithoutRicarica) {
  fs::remove(File());
  TornaAllaFinestra();
  ASSERT_TRUE(CeLaBarra());
  EXPECT_EQ(Detto(), "«FATT01.IMG» non c'è più: è stato tolto o spostato");
  EXPECT_FALSE(Pulsante("cmdRicarica").isVisible());
  EXPECT_TRUE(Pulsante("cmdIgnora").isVisible());
}

TEST_F(BarraAvviso, GoesWhenTheTemplateIsGivenUp) {
  Altrui("altrui\r\n");
  TornaAllaFinestra();
  finestra_.Azione("mnuNuovo").trigger();
  EXPECT_FALSE(CeLaBarra());
  TornaAllaFinestra();
  EXPECT_FALSE(CeLaBarra());
}

TEST_F(BarraAvviso, ASaveKeepsTheOthersContentAndTheStatusBarSaysWhere) {
  Altrui("altrui\r\n");
  TornaAllaFinestra();
  finestra_.Azione("mnuSalva").trigger();
  EXPECT_FALSE(CeLaBarra());
  const std::string tenuta = File().string() + "~";
  EXPECT_EQ(prova::Contenuto(tenuta), "altrui\r\n");
  auto& percorso = *Trova<QLabel>(*finestra_, "lblPercorso");
  EXPECT_TRUE(QTest::qWaitFor([&] {
    return percorso.text() == "La versione trovata sul disco è in FATT01.IMG~";
  })) << percorso.text().toStdString();
}

TEST_F(BarraAvviso, AnAlertAndTheButtonsTellTheNoticeToAssistiveTechnologies) {
  Altrui("altrui\r\n");
  TornaAllaFinestra();
  const QAccessibleInterface& avviso =
      *QAccessible::queryAccessibleInterface(Pulsante("cmdIgnora").parentWidget());
  EXPECT_EQ(avviso.role(), QAccessible::AlertMessage);
  EXPECT_EQ(avviso.text(QAccessible::Name), Detto());
  EXPECT_EQ(Barra().accessibleDescription(), Detto());
  for (const char* nome : {"cmdRicarica", "cmdIgnora"})
    EXPECT_EQ(Pulsante(nome).accessibleDescription(), Detto());
}

TEST_F(BarraAvviso, AVeryLongNameIsShortenedAndTheButtonsStayInTheWindow) {
  const fs::path lungo = finestra_.Modello((std::string(200, 'N') + ".IMG").c_str());
  fs::copy_file(File(), lungo);
  finestra_.Apri(lungo.filename().c_str());
  fs::remove(lungo);
  TornaAllaFinestra();
  finestra_->resize(640, 480);
  Finestra::Calma();
  EXPECT_EQ(finestra_->width(), 640);
  const QPushButton& ignora = Pulsante("cmdIgnora");
  EXPECT_TRUE(ignora.isVisible());
  EXPECT_LE(ignora.mapTo(&*finestra_, QPoint(ignora.width(), 0)).x(), 640);
  EXPECT_TRUE(Detto().contains(QString(200, u'N')));
}

TEST_F(BarraAvviso, IsLegibleInEveryPalette) {
  Altrui("altrui\r\n");
  TornaAllaFinestra();
  const QPalette prima = QApplication::palette();
  for (const auto& [fondo, testo] : {std::pair(Qt::white, Qt::black), std::pair(Qt::black, Qt::white)}) {
    QPalette tavolozza = prima;
    tavolozza.setColor(QPalette::Window, fondo);
    tavolozza.setColor(QPalette::WindowText, testo);
    QApplication::setPalette(tavolozza);
    Finestra::Calma();
    auto& etichetta = *Trova<QLabel>(Barra(), "lblNotizia");
    EXPECT_GE(Contrasto(etichetta.palette().color(QPalette::WindowText).rgb(),
                        etichetta.palette().color(QPalette::Window).rgb()),
              ContrastoMinimo);
    EXPECT_NE(etichetta.palette().color(QPalette::Window), QColor(fondo)) << "set off from the window";
    EXPECT_EQ(etichetta.grab().toImage().pixelColor(0, 0), etichetta.palette().color(QPalette::Window));
  }
  QApplication::setPalette(prima);
}

TEST_F(BarraAvviso, TellsThatTheTemplateIsOpenInAnotherWindowAndRefusesNothing) {
  EXPECT_EQ(finestra_->findChild<QToolBar*>("barAvviso"), nullptr);
  auto dati = Avvia({.DirProgramma = finestra_.Cartella() / "PARVIK",
                     .CartelleConfigurazione = {},
                     .CartellaEsecuzione = finestra_.Esecuzione()},
                    finestra_.Persona());
  ASSERT_TRUE(dati);
  frmParvik seconda(std::move(*dati), finestra_.Persona());
  seconda.show();
  seconda.Comincia(0, File());
  auto& barra = *Trova<QToolBar>(seconda, "barAvviso");
  EXPECT_TRUE(barra.isVisible());
  EXPECT_EQ(Trova<QLabel>(barra, "lblNotizia")->text(), "«FATT01.IMG» è già aperto in un'altra finestra");
  EXPECT_FALSE(Trova<QPushButton>(barra, "cmdRicarica")->isVisible());
  EXPECT_EQ(Trova<QPlainTextEdit>(seconda, "txtTCP_0")->toPlainText(), Testata().toPlainText());
  QTest::mouseClick(Trova<QPushButton>(barra, "cmdIgnora"), Qt::LeftButton);
  EXPECT_FALSE(barra.isVisible());
}

}  // namespace
}  // namespace parvik
