// A section editor on its own, on a drawn text.
#pragma once

#include <QApplication>
#include <QTest>
#include <string>
#include <vector>

#include "Finestra.h"
#include "common/frmTesto.h"
#include "supporto/TestoConSelezione.h"
#include "template/txtTCP.h"

namespace parvik::prova {

/// An editor on a drawn text, and what it drew back.
class EditorDiProva {
 public:
  explicit EditorDiProva(const char* disegno) : editor_(Sezione::Testata, nullptr) {
    const ConSelezione caso(disegno);
    editor_.setPlainText(PerSchermo(caso.Testo).replace(u'\u240A', u'\n'));
    Seleziona(caso.Selezionato);
    QObject::connect(&editor_, &txtTCP::CodiceDaAprire, &editor_,
                     [this](const std::string& contenuto) { Aperti.push_back(contenuto); });
    QObject::connect(&editor_, &txtTCP::VariabileDaInserire, &editor_, [this] { ++Variabili; });
  }

  void Seleziona(Selezione selezione) {
    QTextCursor cursore(editor_.document());
    cursore.setPosition(static_cast<int>(selezione.Inizio));
    cursore.setPosition(static_cast<int>(selezione.Fine()), QTextCursor::KeepAnchor);
    editor_.setTextCursor(cursore);
  }
  EditorDiProva& Premi(Qt::Key tasto, Qt::KeyboardModifiers con = {}) {
    QTest::keyClick(&editor_, tasto, con);
    return *this;
  }
  EditorDiProva& Scrivi(const QString& testo) {
    QTest::keyClicks(&editor_, testo);
    return *this;
  }
  EditorDiProva& Tieni(Qt::Key tasto, const QString& testo = {}) {  // the keyboard repeats it
    QKeyEvent ripetuto(QEvent::KeyPress, tasto, Qt::NoModifier, testo, true);
    QApplication::sendEvent(&editor_, &ripetuto);
    return *this;
  }
  EditorDiProva& Mostra() {
    editor_.resize(600, 200);
    editor_.show();
    return *this;
  }
  /// A point of the viewport, in the left or right half of the character at a position.
  QPoint Punto(int posizione, double parte = 0.25) {
    QTextCursor cursore(editor_.document());
    cursore.setPosition(posizione);
    const QRect davanti = editor_.cursorRect(cursore);
    const int larghezza = editor_.fontMetrics().horizontalAdvance(u'M');
    return {davanti.left() + static_cast<int>(larghezza * parte), davanti.center().y()};
  }
  /// A line end is a blank.
  std::string Testo() const {
    return DaSchermo(editor_.document()->toRawText().replace(QChar(0x2029), u' '));
  }
  std::string Disegno() const {
    const QTextCursor cursore = editor_.textCursor();
    const Selezione selezione{
        .Inizio = static_cast<std::size_t>(cursore.selectionStart()),
        .Lunghezza = static_cast<std::size_t>(cursore.selectionEnd() - cursore.selectionStart())};
    return prova::Scritto(Testo(), selezione);
  }
  txtTCP& Widget() { return editor_; }

  std::vector<std::string> Aperti;
  int Variabili = 0;

 private:
  txtTCP editor_;
};

}  // namespace parvik::prova
