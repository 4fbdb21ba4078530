// Logging out, as a session manager tells it (gestore.cpp): whether the user is asked, and what becomes of
// the session.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <QTest>
#include <QTimer>
#include <string>

#include "Finestra.h"
#include "app/qtSegnali.h"
#include "sistema/SegnaliFine.h"

namespace parvik {
namespace {

using prova::Contenuto;
using prova::Finestra;

class Sessione : public testing::Test {
 protected:
  static constexpr int VersoGestore = 3;
  static constexpr int DalGestore = 4;

  Sessione() {
    fcntl(DalGestore, F_SETFL, O_NONBLOCK);
    // A program that was told to exit opens no dialog any more, until its event loop begins anew: the test
    // before this one may have ended.
    QTimer::singleShot(0, qApp, [] { QApplication::exit(); });
    QApplication::exec();
  }

  void Modifica() {
    finestra_.Scegli(1);
    finestra_.Apri("FATT01.IMG");
    prima_ = Contenuto(finestra_.Modello("FATT01.IMG"));
    QTest::keyClicks(&finestra_.Sezione(0), "testo");
  }

  /// What the manager saw until the client said that it was through.
  std::string Manda(char comando) {
    EXPECT_EQ(write(VersoGestore, &comando, 1), 1);
    std::string visto;
    EXPECT_TRUE(QTest::qWaitFor([&visto] {
      char c = 0;
      while (read(DalGestore, &c, 1) == 1) visto += c == '\n' ? ' ' : c;
      return visto.ends_with("pronto ") || visto.ends_with("nessuno ");
    }));
    return visto;
  }
  std::string EsceChiedendo() { return Manda('u'); }
  std::string EsceSenzaChiedere() { return Manda('s'); }

  bool FileIntatto() const { return Contenuto(finestra_.Modello("FATT01.IMG")) == prima_; }

  SegnaliFine segnali_;
  Finestra finestra_;
  qtSegnali fine_{segnali_, EXIT_SUCCESS, [this] { return finestra_->PuoChiudere(); }};
  std::string prima_;
};

TEST_F(Sessione, WithAnUnmodifiedTemplateItEndsWithoutAQuestionToTheUser) {
  EXPECT_THAT(EsceChiedendo(), testing::EndsWith("risposto pronto "));
  EXPECT_TRUE(finestra_.Persona().Messaggi.empty());
  EXPECT_FALSE(finestra_->isVisible());
}

TEST_F(Sessione, WithAModifiedTemplateAnnullaKeepsProgramAndSession) {
  Modifica();
  finestra_.Persona().Rispondera(Risposta::Annulla);
  EXPECT_EQ(EsceChiedendo(), "domanda annullata non pronto ");
  ASSERT_EQ(finestra_.Persona().Messaggi.size(), 1U);
  EXPECT_EQ(finestra_.Persona().Messaggi[0].Testo, "Il file è stato modificato, vuoi salvare?");
  EXPECT_TRUE(finestra_->isVisible());
  EXPECT_TRUE(FileIntatto());
}

TEST_F(Sessione, WithAModifiedTemplateNoEndsItAndWritesNothing) {
  Modifica();
  finestra_.Persona().Rispondera(Risposta::No);
  EXPECT_EQ(EsceChiedendo(), "domanda risposto pronto ");
  EXPECT_FALSE(finestra_->isVisible());
  EXPECT_TRUE(FileIntatto());
}

TEST_F(Sessione, WithAModifiedTemplateSiSavesItAndEnds) {
  Modifica();
  finestra_.Persona().Rispondera(Risposta::Si);
  EXPECT_EQ(EsceChiedendo(), "domanda risposto pronto ");
  EXPECT_FALSE(finestra_->isVisible());
  EXPECT_TRUE(Contenuto(finestra_.Modello("FATT01.IMG")) == "testo" + prima_);
}

TEST_F(Sessione, WhereNobodyMayBeAskedNothingIsWrittenByItself) {
  Modifica();
  EXPECT_EQ(EsceSenzaChiedere(), "pronto ");
  EXPECT_TRUE(finestra_.Persona().Messaggi.empty());
  EXPECT_TRUE(finestra_->isVisible());
  EXPECT_TRUE(FileIntatto());
}

}  // namespace
}  // namespace parvik
