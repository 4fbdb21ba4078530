// A template that was not saved when the program ended, in the window (docs/recupero.md).
#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QToolBar>
#include <map>

#include "Finestra.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using prova::Finestra;
using prova::Trova;

class RecuperoInFinestra : public testing::Test {
 protected:
  RecuperoInFinestra() {
    finestra_.ImpostaIntervallo(10ms);
    finestra_.Riavvia();
  }
  void Ricorda() { finestra_.Azione("mnuRicorda").trigger(); }
  void Apri() {
    finestra_.Scegli(1);
    finestra_.Apri("FATT01.IMG");
  }
  void Batti(const char* testo) {
    Testata().moveCursor(QTextCursor::Start);
    QTest::keyClicks(&Testata(), testo);
  }
  fs::path Cartella() const { return finestra_.Stato() / "ordavia"; }
  /// The copies on the disk, by their names.
  std::map<std::string, std::string> Copie() const {
    std::map<std::string, std::string> copie;
    if (!fs::exists(Cartella())) return copie;
    for (const auto& voce : fs::directory_iterator(Cartella()))
      if (voce.path().extension() == ".copia") copie[voce.path().filename()] = prova::Contenuto(voce.path());
    return copie;
  }
  bool AttendiCopiaCon(const std::string& testo) {
    return QTest::qWaitFor([&] {
      const auto copie = Copie();
      return copie.size() == 1 && copie.begin()->second.find(testo) != std::string::npos;
    });
  }
  bool AttendiNulla() {
    return QTest::qWaitFor([&] { return !fs::exists(Cartella()); });
  }
  /// The program ends suddenly, and is started again: the copies are there, their owner is not.
  void MuoriERiavvia() {
    const auto copie = Copie();
    finestra_.Persona().RisponderaSeChiesto(Risposta::No);
    finestra_.RiavviaDopo([&] {
      EXPECT_FALSE(fs::exists(Cartella())) << "an orderly end leaves nothing";
      for (const auto& [nome, byte] : copie) prova::Crea(Cartella() / nome, byte);
      if (!copie.empty()) fs::permissions(Cartella(), fs::perms(0700));
    });
  }
  bool AttendiBarra() {
    return QTest::qWaitFor([&] { return CeLaBarra(); });
  }
  bool CeLaBarra() {
    auto* barra = finestra_->findChild<QToolBar*>("barRecupero");
    return barra != nullptr && barra->isVisible();
  }
  QToolBar& Barra() { return *Trova<QToolBar>(*finestra_, "barRecupero"); }
  void Clicca(const char* nome) { QTest::mouseClick(Trova<QPushButton>(Barra(), nome), Qt::LeftButton); }
  QString Detto() { return Trova<QLabel>(Barra(), "lblNotizia")->text(); }
  QPlainTextEdit& Testata() { return finestra_.Sezione(0); }
  /// One session that ended suddenly with that typed in.
  void UnaSessionePersaCon(const char* testo) {
    Ricorda();
    Apri();
    Batti(testo);
    EXPECT_TRUE(AttendiCopiaCon(testo));
    MuoriERiavvia();
  }

  Finestra finestra_;
};

TEST_F(RecuperoInFinestra, NothingIsWrittenWhileNothingIsKept) {
  Apri();
  Batti("xx");
  QTest::qWait(50);  // five times the interval: nothing is to come
  EXPECT_TRUE(fs::is_empty(finestra_.Stato()));
  MuoriERiavvia();
  EXPECT_FALSE(CeLaBarra());
}

TEST_F(RecuperoInFinestra, AModifiedTemplateIsKeptAndFollowsTheTyping) {
  Ricorda();
  Apri();
  EXPECT_TRUE(Copie().empty());
  Batti("primo");
  EXPECT_TRUE(AttendiCopiaCon("primo"));
  Batti("secondo");
  EXPECT_TRUE(AttendiCopiaCon("secondoprimo"));
}

TEST_F(RecuperoInFinestra, ASaveANewAndTurningItOffTakeItAway) {
  Ricorda();
  Apri();
  Batti("uno");
  ASSERT_TRUE(AttendiCopiaCon("uno"));
  finestra_.Azione("mnuSalva").trigger();
  EXPECT_TRUE(AttendiNulla()) << "saved";
  Batti("due");
  ASSERT_TRUE(AttendiCopiaCon("due"));
  Ricorda();
  EXPECT_TRUE(AttendiNulla()) << "turned off";
  Ricorda();
  ASSERT_TRUE(AttendiCopiaCon("due"));
  finestra_.Persona().Rispondera(Risposta::No);
  finestra_.Azione("mnuNuovo").trigger();
  EXPECT_TRUE(AttendiNulla()) << "given up";
}

TEST_F(RecuperoInFinestra, AnOrderlyEndLeavesNothing) {
  Ricorda();
  Apri();
  Batti("uno");
  ASSERT_TRUE(AttendiCopiaCon("uno"));
  finestra_.Persona().Rispondera(Risposta::No);
  EXPECT_TRUE(finestra_->close());
  EXPECT_FALSE(fs::exists(Cartella()));
}

TEST_F(RecuperoInFinestra, TheNextStartOffersItWithoutGettingInTheWay) {
  UnaSessionePersaCon("perduto");
  ASSERT_TRUE(AttendiBarra());
  EXPECT_TRUE(Detto().startsWith("Non era stato salvato: «FATT01.IMG» (Fattura")) << Detto().toStdString();
  EXPECT_TRUE(Detto().contains(QRegularExpression(", del \\d\\d/\\d\\d/\\d{4} alle \\d\\d:\\d\\d$")))
      << Detto().toStdString();
  EXPECT_EQ(Barra().accessibleName(), "Recupero");
  EXPECT_EQ(Trova<QPushButton>(Barra(), "cmdRipristina")->text(), "Ripristina");
  EXPECT_EQ(Trova<QPushButton>(Barra(), "cmdScarta")->text(), "Scarta");
  EXPECT_EQ(Trova<QPushButton>(Barra(), "cmdDopo")->text(), "Decidi dopo");
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_EQ(finestra_->windowTitle(), "Ordavia");
}

TEST_F(RecuperoInFinestra, RipristinaBringsItBackAndTheOldCopyGoesOnceThereIsANewOne) {
  UnaSessionePersaCon("perduto");
  ASSERT_TRUE(AttendiBarra());
  const std::string vecchia = Copie().begin()->first;
  Clicca("cmdRipristina");
  EXPECT_TRUE(Copie().contains(vecchia)) << "until the new one is on the disk";
  EXPECT_TRUE(Testata().toPlainText().startsWith("perduto"));
  EXPECT_TRUE(finestra_->windowTitle().endsWith("FATT01.IMG"));
  EXPECT_TRUE(Testata().hasFocus());
  EXPECT_FALSE(CeLaBarra());
  EXPECT_TRUE(QTest::qWaitFor([&] { return Copie().size() == 1 && !Copie().contains(vecchia); }));
  EXPECT_TRUE(AttendiCopiaCon("perduto"));
  finestra_.Azione("mnuSalva").trigger();
  EXPECT_TRUE(AttendiNulla());
  EXPECT_TRUE(prova::Contenuto(finestra_.Modello("FATT01.IMG")).starts_with("perduto"));
  EXPECT_FALSE(fs::exists(finestra_.Modello("FATT01.IMG~"))) << "it came from there";
}

TEST_F(RecuperoInFinestra, WhereNoNewCopyCanBeWrittenTheOldOneStays) {
  UnaSessionePersaCon("perduto");
  ASSERT_TRUE(AttendiBarra());
  const fs::path vecchia = Cartella() / Copie().begin()->first;
  fs::permissions(Cartella(), fs::perms(0755));  // not the user's alone any more
  Clicca("cmdRipristina");
  Batti("ancora");
  QTest::qWait(50);  // five times the interval
  EXPECT_TRUE(fs::exists(vecchia));
  EXPECT_TRUE(Testata().toPlainText().startsWith("ancoraperduto"));
  finestra_.Azione("mnuSalva").trigger();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !fs::exists(vecchia); })) << "saved, it is not needed";
}

TEST_F(RecuperoInFinestra, RipristinaAsksAboutAModifiedTemplate) {
  UnaSessionePersaCon("perduto");
  ASSERT_TRUE(AttendiBarra());
  finestra_.Scegli(2);
  Batti("altro");
  finestra_.Persona().Rispondera(Risposta::Annulla);
  Clicca("cmdRipristina");
  EXPECT_TRUE(Testata().toPlainText().startsWith("altro"));
  EXPECT_TRUE(CeLaBarra());
  finestra_.Persona().Rispondera(Risposta::No);
  Clicca("cmdRipristina");
  EXPECT_TRUE(Testata().toPlainText().startsWith("perduto"));
}

TEST_F(RecuperoInFinestra, ScartaTakesItAwayForGood) {
  UnaSessionePersaCon("perduto");
  ASSERT_TRUE(AttendiBarra());
  Clicca("cmdScarta");
  EXPECT_FALSE(CeLaBarra());
  EXPECT_FALSE(fs::exists(Cartella()));
}

TEST_F(RecuperoInFinestra, DecidiDopoAndEscapeLeaveItForTheNextStart) {
  UnaSessionePersaCon("perduto");
  ASSERT_TRUE(AttendiBarra());
  Clicca("cmdDopo");
  EXPECT_FALSE(CeLaBarra());
  ASSERT_EQ(Copie().size(), 1U);
  finestra_.Riavvia();
  ASSERT_TRUE(AttendiBarra());
  auto& pulsante = *Trova<QPushButton>(Barra(), "cmdRipristina");
  pulsante.setFocus();
  QTest::keyClick(&pulsante, Qt::Key_Escape);
  EXPECT_FALSE(CeLaBarra());
  EXPECT_EQ(Copie().size(), 1U);
}

TEST_F(RecuperoInFinestra, OneComesAfterTheOther) {
  UnaSessionePersaCon("perduto");
  ASSERT_TRUE(AttendiBarra());
  fs::copy_file(Cartella() / Copie().begin()->first,
                Cartella() / ("recupero-" + std::string(16, '0') + ".copia"));
  finestra_.Riavvia();
  ASSERT_TRUE(AttendiBarra());
  Clicca("cmdScarta");
  EXPECT_TRUE(CeLaBarra());
  EXPECT_EQ(Copie().size(), 1U);
  Clicca("cmdScarta");
  EXPECT_FALSE(CeLaBarra());
  EXPECT_TRUE(Copie().empty());
}

TEST_F(RecuperoInFinestra, TurningItOffEndsTheOfferAndKeepsTheCopy) {
  UnaSessionePersaCon("perduto");
  ASSERT_TRUE(AttendiBarra());
  Ricorda();
  EXPECT_FALSE(CeLaBarra());
  EXPECT_EQ(Copie().size(), 1U) << "it is not this session's to throw away";
  Ricorda();
  EXPECT_TRUE(AttendiBarra());
}

TEST_F(RecuperoInFinestra, BrokenCopiesAreNotOffered) {
  Ricorda();
  prova::Crea(Cartella() / ("recupero-" + std::string(16, 'a') + ".copia"), "ordavia-recupero 1\n");
  fs::permissions(Cartella(), fs::perms(0700));
  finestra_.Riavvia();
  Finestra::Calma();
  QTest::qWait(50);
  EXPECT_FALSE(CeLaBarra());
}

TEST_F(RecuperoInFinestra, WithoutAPlaceToKeepItTheWindowGoesOnAsEver) {
  fs::remove(finestra_.Stato());
  prova::Crea(finestra_.Stato(), "a file in the folder's place");
  Ricorda();
  Apri();
  Batti("xx");
  QTest::qWait(50);  // five times the interval
  EXPECT_TRUE(Testata().toPlainText().startsWith("xx"));
  finestra_.Azione("mnuSalva").trigger();
  EXPECT_TRUE(prova::Contenuto(finestra_.Modello("FATT01.IMG")).starts_with("xx"));
  EXPECT_EQ(prova::Contenuto(finestra_.Stato()), "a file in the folder's place");
}

}  // namespace
}  // namespace parvik
