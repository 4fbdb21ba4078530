// Typing: from a key to what it paints, in the Testata of the editor's window and in a bare QPlainTextEdit
// with the same text in the same colours, key by key in turn.
#include <QApplication>
#include <QMainWindow>
#include <QPainter>
#include <QTextBlock>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <iostream>
#include <optional>
#include <string>

#include "Dati.h"
#include "Resoconto.h"
#include "finestre/Banco.h"
#include "finestre/Battitura.h"

namespace parvik::bench {
namespace {

using Orologio = std::chrono::steady_clock;
using Millisecondi = std::chrono::duration<double, std::milli>;

constexpr int Tasti = 600;  // in each editor
constexpr int TastiContati = 100;
constexpr std::size_t RigheCorte = 60;
constexpr double Sbarra = 1.25;
constexpr double SbarraSosta = 50;             // milliseconds
constexpr double MillisecondiDiCambio = 4000;  // more than it takes
constexpr double Mezzo = 0.5;
constexpr double QuasiTutti = 0.99;

/// How the sections are shown.
enum class Modo { Testo, Campi };

/// A QPlainTextEdit that draws a frame around each of its codes.
class ConRiquadri final : public QPlainTextEdit {
 public:
  using QPlainTextEdit::QPlainTextEdit;

 protected:
  void paintEvent(QPaintEvent* evento) override {
    QPlainTextEdit::paintEvent(evento);
    QPainter pittore(viewport());
    QPointF dove = contentOffset();
    for (QTextBlock riga = firstVisibleBlock(); riga.isValid() && dove.y() <= evento->rect().bottom();
         riga = riga.next()) {
      const qreal altezza = blockBoundingRect(riga).height();
      if (dove.y() + altezza >= evento->rect().top()) Riquadra(pittore, riga, dove, altezza);
      dove.ry() += altezza;
    }
  }

 private:
  static void Riquadra(QPainter& pittore, const QTextBlock& riga, QPointF dove, qreal altezza) {
    const QTextLine linea = riga.layout()->lineAt(0);
    for (const QTextLayout::FormatRange& tratto : riga.layout()->formats()) {
      const qreal sinistra = dove.x() + linea.cursorToX(tratto.start);
      const qreal destra = dove.x() + linea.cursorToX(tratto.start + tratto.length);
      const QRectF posto(sinistra, dove.y(), destra - sinistra, altezza);
      pittore.fillRect(posto, QColor(0xE6, 0xEE, 0xFA));
      pittore.setPen(tratto.format.foreground().color());
      pittore.drawRect(posto);
    }
  }
};

/// A QPlainTextEdit at the right of the editor, of the same size, with a text, its colours and its room.
class Nudo {
 public:
  explicit Nudo(const QPlainTextEdit& modello, Modo modo = Modo::Testo)
      : editor_(modo == Modo::Testo ? new QPlainTextEdit(&finestra_) : new ConRiquadri(&finestra_)) {
    finestra_.setCentralWidget(editor_);
    editor_->setFont(modello.font());
    editor_->setLineWrapMode(QPlainTextEdit::NoWrap);
    editor_->setFocusPolicy(Qt::NoFocus);  // no caret to draw, as in the other window
    editor_->setPlainText(modello.toPlainText());
    Colora(*modello.document());
    finestra_.move(modello.window()->width(), 0);
    finestra_.resize(modello.size());
    finestra_.show();
  }
  QPlainTextEdit& Editor() { return *editor_; }

 private:
  void Colora(const QTextDocument& modello) {
    QTextBlock suo = editor_->document()->begin();
    for (QTextBlock blocco = modello.begin(); blocco.isValid(); blocco = blocco.next(), suo = suo.next())
      suo.layout()->setFormats(blocco.layout()->formats());
  }

  QMainWindow finestra_;
  QPlainTextEdit* editor_;
};

/// What the median key took in the editor, in milliseconds.
double Misura(std::size_t righe, Modo modo = Modo::Testo) {
  Banco banco;
  banco.Apri(Modello(2 * righe));  // half of it is the Testata
  if (modo == Modo::Campi) banco.MostraAMisura();
  Nudo nudo(banco.Testata(), modo);
  Svuota();
  Battitura nostra(banco.Testata());
  Battitura sua(nudo.Editor());
  for (int i = 0; i < Tasti; ++i) {
    sua.Premi(i);
    nostra.Premi(i);
  }
  const std::string come = modo == Modo::Campi ? "fields to measure, " : "";
  const std::string cosa = "key to repaint, " + come + std::to_string(righe) + " lines, ";
  std::cerr << cosa << "p50 and p99: editor " << nostra.Quantile(Mezzo) << " and "
            << nostra.Quantile(QuasiTutti) << " ms, bare " << sua.Quantile(Mezzo) << " and "
            << sua.Quantile(QuasiTutti) << " ms\n";
  StampaAlPiu(cosa + "p50, of a bare editor's", nostra.Quantile(Mezzo) / sua.Quantile(Mezzo), Sbarra);
  StampaAlPiu(cosa + "p99, of a bare editor's", nostra.Quantile(QuasiTutti) / sua.Quantile(QuasiTutti),
              Sbarra);
  return nostra.Quantile(Mezzo);
}

/// Switches to fields and back, and tells how long the window was away from its events at most.
void MisuraCambio(std::size_t righe) {
  Banco banco;
  banco.Apri(Modello(2 * righe));
  double sosta = 0;
  for (int volta = 0; volta < 2; ++volta) {
    bool comandato = false;
    QTimer::singleShot(0, [&] {
      banco.Comanda("mnuMisura");
      comandato = true;
    });
    const auto inizio = Orologio::now();
    while (!comandato || Millisecondi(Orologio::now() - inizio).count() < MillisecondiDiCambio) {
      const auto prima = Orologio::now();
      QCoreApplication::processEvents();
      sosta = std::max(sosta, Millisecondi(Orologio::now() - prima).count());
    }
  }
  StampaAlPiu("fields to measure, " + std::to_string(righe) + " lines, ms of the longest stall of a switch",
              sosta, SbarraSosta);
}

/// Keys in one of the two alone, to count the instructions of Premi.
void Conta(bool nudo) {
  QApplication::setCursorFlashTime(0);  // nothing happens by itself
  Banco banco;
  banco.Apri(Modello(2 * RigheCorte));
  Nudo altro(banco.Testata());
  Svuota();
  Battitura prova(nudo ? altro.Editor() : banco.Testata());
  for (int i = 0; i < TastiContati; ++i) prova.Premi(i);
}

}  // namespace
}  // namespace parvik::bench

int main(int argc, char** argv) {
  using namespace parvik::bench;
  QApplication programma(argc, argv);
  if (argc == 2) {
    Conta(std::string(argv[1]) == "bare");
    return EXIT_SUCCESS;
  }
  const double corta = Misura(RigheCorte);
  if (argc == 1) Misura(6'000);
  const double lunga = Misura(60'000);
  for (const std::size_t righe : {RigheCorte, std::size_t{6'000}}) Misura(righe, Modo::Campi);
  for (const std::size_t righe : {RigheCorte, std::size_t{60'000}}) MisuraCambio(righe);
  StampaAlPiu("key to repaint, p50 at 60,000 lines, of that at 60", lunga / corta, Sbarra);
}
