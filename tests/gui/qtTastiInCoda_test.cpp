// Keys that were on their way when a dialog opened, and keys that are held: they do nothing in it.
#include <gtest/gtest.h>

#include <QShortcut>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "Finestra.h"

namespace parvik {
namespace {

using prova::Finestra;
using prova::NelProssimoDialogo;

QKeyEvent* Premuto(Qt::Key tasto, const QString& testo = {}) {
  return new QKeyEvent(QEvent::KeyPress, tasto, Qt::NoModifier, testo);
}

void Manda(QWidget* a, Qt::Key tasto, bool ripetuto, quint64 quando = 0) {
  QKeyEvent premuto(QEvent::KeyPress, tasto, Qt::NoModifier, {}, ripetuto);
  premuto.setTimestamp(quando);
  QApplication::sendEvent(a, &premuto);
}

/// Counts the dialogs that open, and gives each up as soon as it is the active window.
class Rinuncia final : public QObject {
 public:
  Rinuncia() {
    orologio_.setInterval(1);
    connect(&orologio_, &QTimer::timeout, this, [this] {
      auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (dialogo == nullptr || !dialogo->isVisible()) return;
      if (!dialogo->isActiveWindow()) return dialogo->activateWindow();
      ++Aperti;
      dialogo->reject();
    });
    orologio_.start();
  }

  int Aperti = 0;

 private:
  QTimer orologio_;
};

/// Sends keys to a dialog in the moment in which it is shown, when nobody has seen it yet.
class AppenaMostrato final : public QObject {
 public:
  explicit AppenaMostrato(Qt::Key tasto) : tasto_(tasto) { qApp->installEventFilter(this); }
  bool Mandato = false;

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override {
    auto* dialogo = qobject_cast<QDialog*>(oggetto);
    if (dialogo != nullptr && evento->type() == QEvent::Show && !Mandato) {
      Mandato = true;
      QCoreApplication::postEvent(dialogo, Premuto(tasto_));
    }
    return false;
  }

 private:
  Qt::Key tasto_;
};

class InCoda : public testing::Test {
 protected:
  InCoda() {
    finestra_.Scegli(1);
    finestra_.Sezione(0).setFocus();
  }
  QWidget* Testata() { return &finestra_.Sezione(0); }

  Finestra finestra_;
};

TEST_F(InCoda, AKeyTypedTwiceOpensOneDialog) {
  Rinuncia rinuncia;
  QCoreApplication::postEvent(Testata(), Premuto(Qt::Key_F4));
  QCoreApplication::postEvent(Testata(), Premuto(Qt::Key_F4));
  QCoreApplication::postEvent(Testata(), Premuto(Qt::Key_X, "x"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return rinuncia.Aperti > 0; }));
  QCoreApplication::processEvents();
  EXPECT_EQ(rinuncia.Aperti, 1);
  EXPECT_EQ(finestra_.Sezione(0).toPlainText(), "\n");
}

TEST_F(InCoda, AnEnterTypedBeforeTheDialogCanBeSeenDoesNotConfirmIt) {
  const AppenaMostrato invio(Qt::Key_Return);
  bool visto = false;
  NelProssimoDialogo([&visto](QDialog& dialogo) {
    visto = true;
    dialogo.reject();
  });
  QTest::keyClick(Testata(), Qt::Key_F4);
  EXPECT_TRUE(invio.Mandato);
  EXPECT_TRUE(visto);
  EXPECT_EQ(finestra_.Sezione(0).toPlainText(), "\n");
  NelProssimoDialogo([](QDialog& dialogo) { dialogo.reject(); });  // where Enter closed the first one
  QTest::keyClick(Testata(), Qt::Key_F4);
}

TEST_F(InCoda, AKeyOlderThanTheDialogDoesNotActInItAndALaterOneDoes) {
  constexpr quint64 Premuto = 50'000;
  constexpr quint64 Dopo = 100'000;
  NelProssimoDialogo([](QDialog& dialogo) {
    Manda(&dialogo, Qt::Key_Return, false, Premuto);
    Manda(&dialogo, Qt::Key_Escape, false, Premuto - 1);
    EXPECT_TRUE(dialogo.isVisible());
    Manda(&dialogo, Qt::Key_Return, false, Dopo);
    EXPECT_FALSE(dialogo.isVisible());
  });
  Manda(Testata(), Qt::Key_F4, false, Premuto);
  EXPECT_TRUE(finestra_.Sezione(0).toPlainText().startsWith(QChar(0xAB)));
}

TEST_F(InCoda, AKeyThatIsHeldDoesNothingInTheDialogThatItOpened) {
  NelProssimoDialogo([](QDialog& dialogo) {
    for (const Qt::Key tasto : {Qt::Key_F4, Qt::Key_Return, Qt::Key_Escape}) Manda(&dialogo, tasto, true);
    EXPECT_TRUE(dialogo.isVisible());
    QTest::keyClick(&dialogo, Qt::Key_Escape);
    EXPECT_FALSE(dialogo.isVisible());
  });
  QTest::keyClick(Testata(), Qt::Key_F4);
}

TEST_F(InCoda, AKeyThatIsHeldInADialogRepeatsInIt) {
  NelProssimoDialogo([](QDialog& dialogo) {
    QTest::keyPress(&dialogo, Qt::Key_Escape, Qt::ControlModifier);
    Manda(&dialogo, Qt::Key_Escape, true);
    EXPECT_FALSE(dialogo.isVisible());
  });
  QTest::keyClick(Testata(), Qt::Key_F4);
}

TEST_F(InCoda, AKeyThatClosedADialogDoesNothingInTheSectionWhileItIsHeld) {
  NelProssimoDialogo([](QDialog& dialogo) { QTest::keyPress(&dialogo, Qt::Key_Return); });
  QTest::keyClick(Testata(), Qt::Key_F4);
  const QString testo = finestra_.Sezione(0).toPlainText();
  Manda(Testata(), Qt::Key_Return, true);
  EXPECT_EQ(finestra_.Sezione(0).toPlainText(), testo);
}

TEST_F(InCoda, AListThatDropsDownInFrontOfADialogTakesKeys) {
  NelProssimoDialogo([](QDialog& dialogo) {
    QWidget lista(nullptr, Qt::Popup);  // as the toolkit makes those that complete a name
    lista.show();
    bool preso = false;
    QObject::connect(new QShortcut(Qt::Key_F9, &lista), &QShortcut::activated, [&preso] { preso = true; });
    QTest::keyClick(&lista, Qt::Key_F9);
    EXPECT_TRUE(preso);
    lista.close();
    dialogo.reject();
  });
  QTest::keyClick(Testata(), Qt::Key_F4);
}

/// A key as the display reports it, to the window itself.
void Riporta(QWidget& finestra, QEvent::Type cosa, Qt::Key tasto, quint64 quando) {
  QKeyEvent evento(cosa, tasto, Qt::NoModifier);
  evento.setTimestamp(quando);
  QApplication::sendEvent(finestra.windowHandle(), &evento);
}

TEST_F(InCoda, ARepetitionThatTheToolkitTakesForAPressIsOne) {
  QPlainTextEdit& testata = finestra_.Sezione(0);
  QTest::keyClicks(&testata, "abc");
  Rinuncia rinuncia;
  Riporta(*finestra_, QEvent::KeyPress, Qt::Key_F4, 1000);
  EXPECT_TRUE(QTest::qWaitFor([&] { return rinuncia.Aperti == 1; }));
  finestra_.Attiva();
  // Held: released and pressed again in the same moment.
  Riporta(*finestra_, QEvent::KeyRelease, Qt::Key_F4, 1700);
  Riporta(*finestra_, QEvent::KeyPress, Qt::Key_F4, 1700);
  EXPECT_EQ(rinuncia.Aperti, 1);
  // Pressed anew.
  Riporta(*finestra_, QEvent::KeyRelease, Qt::Key_F4, 1800);
  Riporta(*finestra_, QEvent::KeyPress, Qt::Key_F4, 1900);
  EXPECT_EQ(rinuncia.Aperti, 2);
}

}  // namespace
}  // namespace parvik
