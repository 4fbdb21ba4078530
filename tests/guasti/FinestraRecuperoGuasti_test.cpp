// The copies that the window keeps of a template, and its sign that one is open, when the system calls for
// them fail (docs/recupero.md, docs/notizie.md).
#include <gtest/gtest.h>

#include <QPlainTextEdit>
#include <QTest>
#include <cerrno>

#include "guasti/Guasti.h"
#include "gui/Finestra.h"
#include "sistema/Presenza.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

class FinestraRecuperoGuasti : public testing::Test {
 protected:
  FinestraRecuperoGuasti() {
    finestra_.ImpostaIntervallo(5ms);
    finestra_.Riavvia();
    finestra_.Scegli(1);
    finestra_.Azione("mnuRicorda").trigger();
    Finestra::Calma();
  }
  bool CeUnaCopia() const {
    std::error_code errore;
    for (fs::directory_iterator voce(finestra_.Stato() / "ordavia", errore);
         !errore && voce != fs::directory_iterator(); voce.increment(errore))
      if (voce->path().extension() == ".copia") return true;
    return false;
  }

  Finestra finestra_;
};

TEST_F(FinestraRecuperoGuasti, AFullDiskCostsTheCopyAndNobodyIsTold) {
  {
    const GuastiInCorso inCorso({.Cartelle = {finestra_.Stato().string()},
                                 .Guasti = {{.Chiamata = 1, .Errore = ENOSPC, .PerSempre = true}}});
    QTest::keyClicks(&finestra_.Sezione(0), "abc");
    EXPECT_TRUE(QTest::qWaitFor([] { return GuastiInCorso::Chiamate().size() > 10; })) << "it is tried again";
    EXPECT_TRUE(finestra_.Sezione(0).toPlainText().startsWith("abc"));
    EXPECT_TRUE(finestra_.Persona().Messaggi.empty());
  }
  EXPECT_TRUE(QTest::qWaitFor([this] { return CeUnaCopia(); })) << "there is room again";
}

TEST_F(FinestraRecuperoGuasti, WhereThereAreNoLocksNoCopyIsWrittenAndNobodyIsTold) {
  const GuastiInCorso inCorso(
      {.Cartelle = {finestra_.Stato().string()}, .Guasti = {}, .SenzaLucchetti = ENOLCK});
  QTest::keyClicks(&finestra_.Sezione(0), "abc");
  EXPECT_TRUE(QTest::qWaitFor([] { return GuastiInCorso::Chiamate().size() > 10; }));
  EXPECT_FALSE(CeUnaCopia());
  finestra_.Azione("mnuRicorda").trigger();
  Finestra::Calma();
  EXPECT_TRUE(QTest::qWaitFor([this] { return fs::is_empty(finestra_.Stato()); }))
      << "nothing is left behind";
  EXPECT_TRUE(finestra_.Persona().Messaggi.empty());
}

TEST(PresenzaSenzaLucchetti, TellsNothing) {
  const CartellaTemporanea cartella;
  const GuastiInCorso inCorso({.Cartelle = {}, .Guasti = {}, .SenzaLucchetti = ENOLCK});
  EXPECT_EQ(Presenza(cartella / "sua" / "segno").Trovati(), Presenza::Altri::Ignoti);
  EXPECT_TRUE(fs::is_empty(cartella / "sua"));
}

}  // namespace
}  // namespace parvik::prova
