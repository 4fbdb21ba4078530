#include "template/txtRigaMisurata.h"

#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>
#include <string_view>
#include <vector>

#include "output/ricCelle.h"
#include "template/qtColori.h"
#include "template/txtMisura.h"
#include "template/txtSegni.h"

namespace parvik {
namespace {

class Disegnatore {
 public:
  Disegnatore(QPainter& pittore, const QTextBlock& blocco, QPointF dove, const RigaDaDisegnare& riga,
              const PennaRiga& penna)
      : pittore_(pittore),
        disposta_(*blocco.layout()),
        linea_(disposta_.lineAt(0)),
        dove_(dove),
        riga_(riga),
        penna_(penna),
        tavolozza_(penna.Editor.palette()),
        gruppo_(!penna.Editor.isEnabled() ? QPalette::Disabled
                : penna.Editor.hasFocus() ? QPalette::Active
                                          : QPalette::Inactive),
        scelta_(riga.Cursore.Selezionato()) {}

  /// Literal text, in pieces that are selected or not.
  void Testo(const Selezione& parte, const Aspetto& aspetto) {
    std::size_t qui = parte.Inizio;
    for (const std::size_t taglio : Tagli(parte)) {
      TestoUniforme({.Inizio = qui, .Lunghezza = taglio - qui}, aspetto);
      qui = taglio;
    }
  }

  void Campo(const PezzoMisurato& pezzo, const std::string& testo, const Aspetto& aspetto) {
    const QRectF posto = Posto(pezzo.Parte);
    const QColor tinta = penna_.Colori.Colore(*pezzo.Codice);
    const bool scelto = Scelto(pezzo.Parte.Inizio);
    const bool corrente = Corrente(pezzo.Parte);
    const QColor fondo = scelto     ? tavolozza_.color(gruppo_, QPalette::Highlight)
                         : corrente ? penna_.Colori.FondoCodiceAttivo()
                                    : penna_.Colori.FondoCampo(*pezzo.Codice);
    pittore_.fillRect(posto, fondo);
    pittore_.setPen(QPen(tinta, corrente ? 2 : 1));
    pittore_.drawRect(posto.adjusted(0.5, 0.5, -0.5, -0.5));
    pittore_.setPen(scelto ? tavolozza_.color(gruppo_, QPalette::HighlightedText) : tinta);
    penna_.Caratteri.Disegna(pittore_, {posto.left(), Base()}, testo, aspetto);
  }

  void Segno(const PezzoMisurato& pezzo) {
    const QColor tinta = penna_.Colori.Colore(*pezzo.Codice);
    const bool evidente = Corrente(pezzo.Parte) || Scelto(pezzo.Parte.Inizio);
    segni_.push_back({.X = X(pezzo.Parte.Inizio),
                      .Quale = *pezzo.Codice,
                      .Mostrato = pezzo.Mostrato,
                      .Tinta = tinta,
                      .Fondo = evidente ? penna_.Colori.FondoCodiceAttivo() : QColor()});
  }

  /// The marks over everything else, and the selected line end.
  void Finisci() {
    if (Scelto(riga_.Byte.size())) {
      const qreal x = X(riga_.Byte.size());
      pittore_.fillRect(QRectF(x, Alto(), penna_.Caratteri.Avanzamento({}), linea_.height()),
                        tavolozza_.color(gruppo_, QPalette::Highlight));
    }
    DisegnaSegni(pittore_, segni_, Alto(), linea_.height());
    Composizione();
  }

 private:
  /// Where the line's literal text is cut: by the selection, by what is being composed, by the colours of
  /// codes that are no fields.
  std::vector<std::size_t> Tagli(const Selezione& parte) const {
    std::vector<std::size_t> tagli;
    const auto taglia = [&](std::size_t dove) {
      if (dove > parte.Inizio && dove < parte.Fine()) tagli.push_back(dove);
    };
    const auto nellaRiga = [&](std::size_t byte) { return byte > riga_.Inizio ? byte - riga_.Inizio : 0; };
    if (scelta_.Lunghezza > 0) {
      taglia(nellaRiga(scelta_.Inizio));
      taglia(nellaRiga(scelta_.Fine()));
    }
    if (!disposta_.preeditAreaText().isEmpty())
      taglia(static_cast<std::size_t>(disposta_.preeditAreaPosition()));
    for (const QTextLayout::FormatRange& colorato : disposta_.formats()) {
      taglia(static_cast<std::size_t>(colorato.start));
      taglia(static_cast<std::size_t>(colorato.start) + static_cast<std::size_t>(colorato.length));
    }
    tagli.push_back(parte.Fine());
    std::ranges::sort(tagli);
    return tagli;
  }

  void TestoUniforme(const Selezione& parte, const Aspetto& aspetto) {
    if (parte.Lunghezza == 0) return;
    const bool scelto = Scelto(parte.Inizio);
    if (scelto) pittore_.fillRect(Posto(parte), tavolozza_.color(gruppo_, QPalette::Highlight));
    pittore_.setPen(scelto ? tavolozza_.color(gruppo_, QPalette::HighlightedText) : ColoreDi(parte.Inizio));
    penna_.Caratteri.Disegna(pittore_, {X(parte.Inizio), Base()},
                             std::string_view(riga_.Byte).substr(parte.Inizio, parte.Lunghezza), aspetto);
  }

  /// Of literal text, or of a code that is shown as it is written.
  QColor ColoreDi(std::size_t byte) const {
    const auto posizione = static_cast<int>(byte);
    for (const QTextLayout::FormatRange& colorato : disposta_.formats()) {
      const bool qui = colorato.start <= posizione && posizione < colorato.start + colorato.length;
      if (qui && colorato.format.hasProperty(QTextFormat::ForegroundBrush))
        return colorato.format.foreground().color();
    }
    return tavolozza_.color(gruppo_, QPalette::Text);
  }

  /// What an input method is composing, which stands at the caret.
  void Composizione() {
    const QString testo = disposta_.preeditAreaText();
    if (testo.isEmpty()) return;
    QFont carattere = penna_.Editor.font();
    carattere.setUnderline(true);
    pittore_.setFont(carattere);
    pittore_.setPen(tavolozza_.color(gruppo_, QPalette::Text));
    pittore_.drawText(QPointF(dove_.x() + linea_.cursorToX(disposta_.preeditAreaPosition()), Base()), testo);
  }

  /// The left edge of a byte of the line. What is being composed takes room in front of those behind it.
  qreal X(std::size_t byte) const {
    int posizione = static_cast<int>(byte);
    const auto composti = static_cast<int>(disposta_.preeditAreaText().size());
    if (composti > 0 && posizione >= disposta_.preeditAreaPosition()) posizione += composti;
    return dove_.x() + linea_.cursorToX(posizione);
  }
  qreal Alto() const { return dove_.y() + linea_.y(); }
  qreal Base() const { return Alto() + linea_.ascent(); }
  QRectF Posto(const Selezione& parte) const {
    const qreal sinistra = X(parte.Inizio);
    return {sinistra, Alto(), X(parte.Fine()) - sinistra, linea_.height()};
  }
  bool Scelto(std::size_t byte) const {
    const std::size_t posto = riga_.Inizio + byte;
    return posto >= scelta_.Inizio && posto < scelta_.Fine();
  }
  /// Right behind the caret.
  bool Corrente(const Selezione& parte) const {
    return scelta_.Lunghezza == 0 && riga_.Cursore.Posto == riga_.Inizio + parte.Inizio;
  }

  QPainter& pittore_;
  const QTextLayout& disposta_;
  QTextLine linea_;
  QPointF dove_;
  const RigaDaDisegnare& riga_;
  const PennaRiga& penna_;
  QPalette tavolozza_;
  QPalette::ColorGroup gruppo_;
  Selezione scelta_;
  std::vector<SegnoCodice> segni_;
};

}  // namespace

void DisegnaRigaMisurata(QPainter& pittore, const QTextBlock& blocco, QPointF dove,
                         const RigaDaDisegnare& riga, const PennaRiga& penna,
                         const std::function<Aspetto(std::size_t)>& aspetto, const LettoreCampi& lettore) {
  Disegnatore disegnatore(pittore, blocco, dove, riga, penna);
  for (const PezzoMisurato& pezzo : riga.Misurata.Pezzi) {
    if (pezzo.Codice && pezzo.Larghezza == 0) {
      disegnatore.Segno(pezzo);
      continue;
    }
    const Aspetto come = aspetto(riga.Inizio + pezzo.Parte.Inizio);
    if (!pezzo.Codice) {
      disegnatore.Testo(pezzo.Parte, come);
      continue;
    }
    const std::string_view codice =
        std::string_view(riga.Byte).substr(pezzo.Parte.Inizio, pezzo.Parte.Lunghezza);
    const PostoCampo posto{.Celle = pezzo.Celle(), .Larghezza = pezzo.Larghezza};
    disegnatore.Campo(pezzo, lettore.Testo(ContenutoDi(codice), posto), come);
  }
  disegnatore.Finisci();
}

}  // namespace parvik
