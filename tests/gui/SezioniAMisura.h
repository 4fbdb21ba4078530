// The sections of a template shown to measure, with neither a window nor a catalogue around them.
#pragma once

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>
#include <array>
#include <memory>
#include <string>

#include "common/qtTesto.h"
#include "output/CampiAMisura.h"
#include "output/CatalogoDiProva.h"
#include "supporto/TestoConSelezione.h"
#include "template/txtTCP.h"
#include "tokens/ConLarghezza.h"

namespace parvik::prova {

/// Variables 1 to 9, strings and, from 5 on, numbers.
inline std::vector<Variabile> VariabiliAMisura() {
  std::vector<Variabile> variabili;
  for (std::int16_t numero = 1; numero < 10; ++numero) {
    Variabile variabile;
    variabile.Intero1 = numero;
    variabile.Descrizione = "Campo " + std::to_string(numero);
    variabile.Intero4 = numero < 5 ? 0 : 1;
    variabile.Testo3 = "0";
    variabili.push_back(variabile);
  }
  return variabili;
}

class SezioniAMisura {
 public:
  /// The Testata as a drawing: see supporto/TestoConSelezione.h.
  explicit SezioniAMisura(const char* disegno = "|") {
    const ConSelezione caso(disegno);
    Modello.Imposta(Sezione::Testata, caso.Testo.Byte());
    for (const Sezione sezione : TutteLeSezioni) {
      auto& editor = editori_[Indice(sezione)];
      editor = std::make_unique<txtTCP>(Modello, sezione, nullptr);
      editor->resize(900, 300);
      editor->show();
      QObject::connect(editor.get(), &txtTCP::CodiceDaAprire, editor.get(),
                       [this](const std::string& contenuto) { Aperti.push_back(contenuto); });
      QObject::connect(editor.get(), &txtTCP::VariabileDaInserire, editor.get(), [this] { ++Variabili; });
    }
    Editor().Poni(CursoreSu(caso.Selezionato));
    Accendi(true);
  }

  void Accendi(bool accesa) {
    for (auto& editor : editori_) editor->MostraAMisura(accesa ? &Campi : nullptr, Lettore());
    Aspetta();
  }
  /// Until every line is coloured.
  static void Aspetta() { QApplication::processEvents(); }

  txtTCP& Editor(Sezione sezione = Sezione::Testata) { return *editori_[Indice(sezione)]; }
  std::string Disegno() {
    return Scritto(Modello.Testo(Sezione::Testata), Editor().CursoreAttuale().Selezionato());
  }
  SezioniAMisura& Premi(Qt::Key tasto, Qt::KeyboardModifiers con = {}) {
    QTest::keyClick(&Editor(), tasto, con);
    return *this;
  }

  /// The width of a cell.
  qreal Cella(Sezione sezione = Sezione::Testata) {
    return QFontMetricsF(Editor(sezione).font()).horizontalAdvance(u'M');
  }
  /// The left edge of a byte of a line, in cells from the line's beginning.
  qreal Colonna(Sezione sezione, int riga, std::size_t byte) {
    QTextDocument& testo = *Editor(sezione).document();
    const QTextBlock blocco = testo.findBlockByNumber(riga);
    testo.documentLayout()->blockBoundingRect(blocco);  // lays it out, where it does not show
    const QTextLine linea = blocco.layout()->lineAt(0);
    return (linea.cursorToX(static_cast<int>(byte)) - linea.cursorToX(0)) / Cella(sezione);
  }
  /// A point of the viewport, so many cells from the beginning of a line.
  QPoint Punto(int riga, double celle) {
    QTextCursor cursore(Editor().document()->findBlockByNumber(riga));
    const QRect posto = Editor().cursorRect(cursore);
    return {posto.left() + static_cast<int>(celle * Cella()), posto.center().y()};
  }

  LettoreCampi Lettore() const {
    return {.Testo = [](std::string_view contenuto,
                        const PostoCampo& posto) { return TestoCampo(contenuto, posto, VariabiliAMisura()); },
            .ConLarghezza =
                [](std::string_view contenuto, std::int16_t larghezza) {
                  return ConLarghezza(contenuto, larghezza, VariabiliAMisura());
                }};
  }

  Documento Modello;
  FlagPerStampe Flag = FlagDi({{.Numero = 1, .Vero = false}, {.Numero = 2, .Vero = true}});
  CampiAMisura Campi{Modello, Flag};
  std::vector<std::string> Aperti;
  int Variabili = 0;

 private:
  std::array<std::unique_ptr<txtTCP>, MaxSezioni> editori_;
};

}  // namespace parvik::prova
