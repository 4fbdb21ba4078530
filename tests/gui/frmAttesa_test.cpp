#include "common/frmAttesa.h"

#include <gtest/gtest.h>

#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <new>
#include <thread>

#include "Finestra.h"

namespace parvik {
namespace {

using namespace std::chrono_literals;

void FinoAlloStop(const std::stop_token& smetti) {
  while (!smetti.stop_requested()) std::this_thread::sleep_for(1ms);
}

TEST(AttendiLavoro, RunsTheWorkOnAnotherThreadAndReturnsWhenItHasEnded) {
  const std::thread::id questo = std::this_thread::get_id();
  std::thread::id altro = questo;
  EXPECT_TRUE(AttendiLavoro(nullptr, [&](std::stop_token) { altro = std::this_thread::get_id(); }));
  EXPECT_NE(altro, questo);
}

TEST(AttendiLavoro, ShortWorkShowsNothing) {
  bool mostrata = false;
  EXPECT_TRUE(AttendiLavoro(nullptr, [&](std::stop_token) { std::this_thread::sleep_for(100ms); }));
  for (const QWidget* finestra : QApplication::topLevelWidgets()) {
    mostrata = mostrata || finestra->objectName() == "frmAttesa";
  }
  EXPECT_FALSE(mostrata);
}

TEST(AttendiLavoro, LongWorkShowsABoxAndAnnullaStopsIt) {
  QString titolo;
  QString testo;
  prova::NelProssimoDialogo([&](QDialog& scatola) {
    titolo = scatola.windowTitle();
    testo = qobject_cast<QProgressDialog*>(&scatola)->labelText();
    auto* annulla = scatola.findChild<QPushButton*>();
    ASSERT_NE(annulla, nullptr);
    EXPECT_EQ(annulla->text(), "Annulla");
    QTest::mouseClick(annulla, Qt::LeftButton);
  });
  bool smesso = false;
  EXPECT_TRUE(AttendiLavoro(nullptr, [&](const std::stop_token& smetti) {
    FinoAlloStop(smetti);
    smesso = smetti.stop_requested();
  }));
  EXPECT_TRUE(smesso);
  EXPECT_EQ(titolo, "Ordavia");
  EXPECT_EQ(testo, "Elaborazione in corso...");
}

TEST(AttendiLavoro, EscapeStopsItToo) {
  prova::NelProssimoDialogo([](QDialog& scatola) { QTest::keyClick(&scatola, Qt::Key_Escape); });
  EXPECT_TRUE(AttendiLavoro(nullptr, FinoAlloStop));
}

TEST(AttendiLavoro, TheProgramStaysAliveMeanwhile) {
  int battiti = 0;
  QTimer orologio;
  QObject::connect(&orologio, &QTimer::timeout, [&] { ++battiti; });
  orologio.start(10);
  EXPECT_TRUE(AttendiLavoro(nullptr, [](std::stop_token) { std::this_thread::sleep_for(300ms); }));
  EXPECT_GT(battiti, 3);
}

TEST(AttendiLavoro, WorkThatRunsOutOfMemoryFails) {
  const Esito<void> esito = AttendiLavoro(nullptr, [](std::stop_token) { throw std::bad_alloc(); });
  ASSERT_FALSE(esito);
  EXPECT_EQ(esito.Errore(), NumeroErrore::MemoriaEsaurita);
}

}  // namespace
}  // namespace parvik
