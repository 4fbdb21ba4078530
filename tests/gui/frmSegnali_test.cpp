#include "app/frmSegnali.h"

#include <gtest/gtest.h>

#include <QTest>
#include <csignal>

#include "Finestra.h"

namespace parvik {
namespace {

using prova::Finestra;

class FrmSegnali : public testing::Test {
 protected:
  void Manda(int segnale) {
    EXPECT_EQ(std::raise(segnale), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return chiamate_ > 0; }));
  }

  bool Chiudi() {
    ++chiamate_;
    return finestra_->close();
  }

  SegnaliFine segnali_;
  Finestra finestra_;
  int chiamate_ = 0;
  frmSegnali fine_{segnali_, [this] { return Chiudi(); }};
};

TEST_F(FrmSegnali, SigtermClosesAnUnmodifiedWindowWithoutAQuestion) {
  Manda(SIGTERM);
  EXPECT_FALSE(finestra_->isVisible());
  EXPECT_TRUE(finestra_.Persona().Messaggi.empty());
}

TEST_F(FrmSegnali, SigtermAsksAboutAModifiedTemplateAndAnnullaKeepsItOpen) {
  finestra_.Scegli(12);
  QTest::keyClicks(&finestra_.Sezione(0), "testo");
  finestra_.Persona().Rispondera(Risposta::Annulla);
  Manda(SIGTERM);
  ASSERT_EQ(finestra_.Persona().Messaggi.size(), 1U);
  EXPECT_EQ(finestra_.Persona().Messaggi[0].Testo, "Il file è stato modificato, vuoi salvare?");
  EXPECT_TRUE(finestra_->isVisible());
  EXPECT_TRUE(finestra_.Sezione(0).toPlainText().startsWith("testo"));
}

TEST_F(FrmSegnali, SighupWritesNothingByItself) {
  finestra_.Scegli(1);
  finestra_.Apri("FATT01.IMG");
  const std::string prima = prova::Contenuto(finestra_.Modello("FATT01.IMG"));
  QTest::keyClicks(&finestra_.Sezione(0), "testo");
  finestra_.Persona().Rispondera(Risposta::No);
  Manda(SIGHUP);
  EXPECT_FALSE(finestra_->isVisible());
  EXPECT_EQ(prova::Contenuto(finestra_.Modello("FATT01.IMG")), prima);
}

TEST_F(FrmSegnali, WithYesTheTemplateIsSavedFirst) {
  finestra_.Scegli(1);
  finestra_.Apri("FATT01.IMG");
  QTest::keyClicks(&finestra_.Sezione(0), "testo");
  finestra_.Persona().Rispondera(Risposta::Si);
  Manda(SIGTERM);
  EXPECT_FALSE(finestra_->isVisible());
  EXPECT_EQ(prova::Contenuto(finestra_.Modello("FATT01.IMG")).substr(0, 5), "testo");
}

TEST(FrmSegnaliDueVolte, ASecondSignalWhileTheQuestionIsOpenAsksNothingMore) {
  const SegnaliFine segnali;
  int domande = 0;
  const frmSegnali fine(segnali, [&domande] {
    ++domande;
    EXPECT_EQ(std::raise(SIGTERM), 0);
    QTest::qWait(50);
    return false;
  });
  EXPECT_EQ(std::raise(SIGTERM), 0);
  QTest::qWait(200);
  EXPECT_EQ(domande, 1);
}

}  // namespace
}  // namespace parvik
