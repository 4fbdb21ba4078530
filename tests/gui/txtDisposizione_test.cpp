// What a change of a section repaints: its own lines, and nothing less.
#include "template/txtDisposizione.h"

#include <gtest/gtest.h>

#include <QAbstractEventDispatcher>
#include <QPaintEvent>
#include <QScreen>
#include <QTest>
#include <QTextBlock>
#include <functional>
#include <vector>

#include "Finestra.h"
#include "template/txtTCP.h"

namespace parvik {
namespace {

/// Adds up what is painted.
class Pittura final : public QObject {
 public:
  explicit Pittura(QWidget* osservato) { osservato->installEventFilter(this); }
  QRegion Zona;

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override {
    if (evento->type() == QEvent::Paint) Zona += static_cast<QPaintEvent*>(evento)->region();
    return QObject::eventFilter(oggetto, evento);
  }
};

class TxtDisposizione : public testing::Test {
 protected:
  TxtDisposizione() {
    std::string testo;
    for (int i = 0; i < 40; ++i) testo += "riga \xABV" + std::to_string(i) + "\xBB fine \xABS;GR\xBB\r\n";
    modello_.Imposta(Sezione::Testata, testo);
    editor_.resize(500, 300);
    editor_.show();
    editor_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&editor_));
    FinoAllaQuiete();
  }

  /// Until nothing is left to do: what was to be painted is painted.
  static void FinoAllaQuiete() {
    while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) {
    }
  }

  void VaiA(int riga, int colonna) {
    QTextCursor cursore(editor_.document()->findBlockByNumber(riga));
    cursore.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, colonna);
    editor_.setTextCursor(cursore);
    FinoAllaQuiete();
  }

  /// What is on the screen is what a window painted anew would show.
  void AttendiSchermoVero() {
    FinoAllaQuiete();
    const QImage schermo = editor_.screen()->grabWindow(editor_.winId()).toImage();
    const QImage vero = editor_.grab().toImage();
    ASSERT_FALSE(schermo.isNull());
    EXPECT_TRUE(schermo.convertToFormat(QImage::Format_RGB32) == vero.convertToFormat(QImage::Format_RGB32));
  }

  void InserisciCodice(const char* codice) {
    const Selezione scelta = editor_.CursoreAttuale().Selezionato();
    modello_.Applica(Sezione::Testata, {.Dove = scelta.Inizio, .Tolti = scelta.Lunghezza, .Messi = codice},
                     GenereModifica::Intera, editor_.CursoreAttuale());
  }

  Documento modello_;
  txtTCP editor_{modello_, Sezione::Testata, nullptr};
};

TEST_F(TxtDisposizione, AKeyInAColouredLineRepaintsThatLineOnly) {
  VaiA(3, 2);
  Pittura pittura(editor_.viewport());
  QTest::keyClick(&editor_, Qt::Key_X);
  FinoAllaQuiete();
  EXPECT_FALSE(pittura.Zona.isEmpty());
  EXPECT_LE(pittura.Zona.boundingRect().height(), 2 * editor_.fontMetrics().lineSpacing());
}

TEST_F(TxtDisposizione, EveryKindOfChangeIsSeenOnTheScreenAtOnce) {
  const std::vector<std::function<void()>> cambiamenti = {
      [&] { QTest::keyClick(&editor_, Qt::Key_X); },
      [&] { QTest::keyClick(&editor_, Qt::Key_Return); },
      [&] { QTest::keyClick(&editor_, Qt::Key_Backspace); },
      [&] { QTest::keyClick(&editor_, Qt::Key_Backspace); },
      [&] { QTest::keyClick(&editor_, Qt::Key_Delete); },
      [&] { editor_.Incolla("uno\n\xC2\xABV7\xC2\xBB due\ntre"); },
      [&] { InserisciCodice("\xABV9\xBB"); },
      [&] { modello_.Annulla(); },
      [&] { modello_.Annulla(); },
      [&] { modello_.Ripeti(); },
      [&] {
        editor_.moveCursor(QTextCursor::Down, QTextCursor::KeepAnchor);
        editor_.moveCursor(QTextCursor::Down, QTextCursor::KeepAnchor);
        editor_.Incolla("a\nb\nc");  // as many lines as before
      },
      [&] { editor_.selectAll(); },
      [&] { editor_.Elimina(); },
      [&] { modello_.Annulla(); },
      [&] { modello_.CompletaUltimaRiga(Sezione::Testata); },
      [&] { modello_.Imposta(Sezione::Testata, "altro \xABV1\xBB\r\n"); },
  };
  VaiA(3, 5);
  AttendiSchermoVero();
  for (std::size_t i = 0; i < cambiamenti.size(); ++i) {
    const testing::ScopedTrace dove(__FILE__, __LINE__, i);
    editor_.setCursorWidth(0);  // it blinks
    cambiamenti[i]();
    AttendiSchermoVero();
  }
}

}  // namespace
}  // namespace parvik
