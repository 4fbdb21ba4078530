#include "common/qtAttesa.h"

#include <gtest/gtest.h>
#include <pthread.h>

#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <new>
#include <semaphore>
#include <system_error>
#include <thread>

#include "Finestra.h"

namespace parvik {
namespace {

using namespace std::chrono_literals;

void FinoAlloStop(const std::stop_token& smetti) {
  std::binary_semaphore fermo(0);
  const std::stop_callback via(smetti, [&fermo] { fermo.release(); });
  fermo.acquire();
}

/// Sees whether the box is shown, however shortly.
class Spia : public QObject {
 public:
  Spia() { qApp->installEventFilter(this); }
  bool Mostrata = false;

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override {
    if (evento->type() == QEvent::Show && oggetto->objectName() == "frmAttesa") Mostrata = true;
    return QObject::eventFilter(oggetto, evento);
  }
};

TEST(AttendiLavoro, RunsTheWorkOnAnotherThreadAndReturnsWhenItHasEnded) {
  const std::thread::id questo = std::this_thread::get_id();
  std::thread::id altro = questo;
  EXPECT_TRUE(AttendiLavoro(nullptr, [&](std::stop_token) { altro = std::this_thread::get_id(); }));
  EXPECT_NE(altro, questo);
}

TEST(AttendiLavoro, ShortWorkShowsNothing) {
  const Spia spia;
  std::binary_semaphore via(0);
  QTimer::singleShot(0, [&via] { via.release(); });  // the work ends while it is waited for
  EXPECT_TRUE(AttendiLavoro(nullptr, [&](std::stop_token) { via.acquire(); }));
  EXPECT_FALSE(spia.Mostrata);
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
  std::counting_semaphore<> battiti(0);
  QTimer orologio;
  QObject::connect(&orologio, &QTimer::timeout, [&] { battiti.release(); });
  orologio.start(10);
  bool vivo = true;
  EXPECT_TRUE(AttendiLavoro(nullptr, [&](std::stop_token) {
    for (int i = 0; i < 4; ++i) vivo = vivo && battiti.try_acquire_for(20s);
  }));
  EXPECT_TRUE(vivo);
}

/// While it lives the system has no thread to give: none with so large a stack.
class SenzaFili {
 public:
  SenzaFili() {
    pthread_getattr_default_np(&prima_);
    pthread_attr_t enorme = prima_;
    pthread_attr_setstacksize(&enorme, std::size_t{1} << 60U);
    pthread_setattr_default_np(&enorme);
  }
  SenzaFili(const SenzaFili&) = delete;
  SenzaFili& operator=(const SenzaFili&) = delete;
  ~SenzaFili() { pthread_setattr_default_np(&prima_); }

 private:
  pthread_attr_t prima_;
};

TEST(AttendiLavoro, WithoutAThreadTheWorkIsDoneAllTheSame) {
  const SenzaFili senza;
  EXPECT_THROW(std::thread([] {}).join(), std::system_error);
  std::thread::id altro;
  EXPECT_TRUE(AttendiLavoro(nullptr, [&](std::stop_token) { altro = std::this_thread::get_id(); }));
  EXPECT_EQ(altro, std::this_thread::get_id());
}

TEST(AttendiLavoro, WorkThatRunsOutOfMemoryFails) {
  const Esito<void> esito = AttendiLavoro(nullptr, [](std::stop_token) { throw std::bad_alloc(); });
  ASSERT_FALSE(esito);
  EXPECT_EQ(esito.Errore(), NumeroErrore::MemoriaEsaurita);
}

}  // namespace
}  // namespace parvik
