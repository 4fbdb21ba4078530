// A section editor on its own, on a drawn text.
#pragma once

#include <QApplication>
#include <QTest>
#include <algorithm>
#include <string>
#include <vector>

#include "Finestra.h"
#include "common/qtTesto.h"
#include "supporto/TestoConSelezione.h"
#include "template/txtTCP.h"

namespace parvik::prova {

/// An editor on a drawn text, and what it drew back.
class EditorDiProva {
 public:
  explicit EditorDiProva(const char* disegno) {
    const ConSelezione caso(disegno);
    modello_.Imposta(Sezione::Testata, caso.Testo.Byte());
    Seleziona(caso.Selezionato);
    QObject::connect(&editor_, &txtTCP::CodiceDaAprire, &editor_,
                     [this](const std::string& contenuto) { Aperti.push_back(contenuto); });
    QObject::connect(&editor_, &txtTCP::VariabileDaInserire, &editor_, [this] { ++Variabili; });
  }

  void Seleziona(Selezione selezione) { editor_.Poni(CursoreSu(selezione)); }
  /// As a dialog's OK does it.
  void Inserisci(const char* codice) {
    const Selezione scelta = editor_.CursoreAttuale().Selezionato();
    modello_.Applica(
        Sezione::Testata,
        {.Dove = scelta.Inizio, .Tolti = scelta.Lunghezza, .Messi = ConSelezione(codice).Testo.Byte()},
        GenereModifica::Intera, editor_.CursoreAttuale());
  }
  void Annulla() { editor_.Poni(modello_.Annulla().Dentro); }
  void Ripeti() { editor_.Poni(modello_.Ripeti().Dentro); }
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
  /// What the widget shows, as bytes. A line end is a blank.
  std::string Testo() const {
    return DaSchermo(editor_.document()->toRawText().replace(QChar(QChar::ParagraphSeparator), u' '));
  }
  /// What the document says.
  const TestoSezione& NelModello() const { return modello_.Testo(Sezione::Testata); }
  Documento& Modello() { return modello_; }
  /// The document's text with the widget's selection. A line end is a blank.
  std::string Disegno() const {
    std::string disegno = prova::Scritto(NelModello(), editor_.CursoreAttuale().Selezionato());
    std::ranges::replace(disegno, '\n', ' ');
    return disegno;
  }
  txtTCP& Widget() { return editor_; }

  std::vector<std::string> Aperti;
  int Variabili = 0;

 private:
  Documento modello_;
  txtTCP editor_{modello_, Sezione::Testata, nullptr};
};

}  // namespace parvik::prova
