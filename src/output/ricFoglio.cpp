#include "output/ricFoglio.h"

#include <QLineF>
#include <cmath>

#include "common/qtTinte.h"

namespace parvik {
namespace {

constexpr QRgb Rosso = 0xFFE00000;
constexpr double ForzaBordi = 0.6;  // of the text's colour in that of the edges

/// In the middle of a pixel, so that it is one pixel wide.
qreal SulPixel(qreal x) {
  return std::floor(x) + 0.5;
}

}  // namespace

bool ricFoglio::Imposta(const Foglio& foglio, const TestoAnteprima& testo) {
  if (foglio == foglio_) return false;
  foglio_ = foglio;
  misura_.reset();
  if (foglio.Quale != Carta::Nessuna) misura_ = MisuraFoglio{.Pagina = PaginaDi(foglio, CellaSuCarta())};
  Misura(testo);
  return true;
}

void ricFoglio::Misura(const TestoAnteprima& testo) {
  if (misura_) misura_->Oltre = RigheOltre(testo, misura_->Pagina);
}

void ricFoglio::DisegnaOltre(QPainter& pittore, const VedutaAnteprima& veduta,
                             const QPalette& tavolozza) const {
  if (!misura_ || misura_->Oltre == 0) return;
  const QRgb base = tavolozza.color(QPalette::Base).rgb();
  const QColor colore = FondoSu(base, Rosso, Estremo(base));
  const TestoAnteprima& testo = veduta.Testo();
  for (const std::size_t riga : veduta.Righe()) {
    const std::size_t fuori = testo.InizioRiga(riga) + ColonneDentro(testo, riga, misura_->Pagina);
    const std::size_t termine = testo.TermineRiga(riga);
    if (fuori == termine) continue;
    QRectF fondo = veduta.RettangoloDi(fuori);
    fondo.setRight(veduta.RettangoloDi(termine).left());
    pittore.fillRect(fondo, colore);
  }
}

void ricFoglio::DisegnaBordi(QPainter& pittore, const VedutaAnteprima& veduta,
                             const QPalette& tavolozza) const {
  if (!misura_ || veduta.Testo().Testo().empty()) return;
  const QRgb base = tavolozza.color(QPalette::Base).rgb();
  const QSize finestra = veduta.Dimensione();
  pittore.setPen(QPen(QColor(Misto(base, Estremo(base), ForzaBordi)), 1, Qt::DashLine));
  const qreal destra = SulPixel(veduta.XDellaColonna(misura_->Pagina.Colonne));
  pittore.drawLine(QLineF(destra, 0, destra, finestra.height()));
  for (const std::size_t riga : veduta.Righe()) {
    if (riga == 0 || riga % misura_->Pagina.Righe != 0) continue;
    const qreal alto = SulPixel(veduta.RettangoloDi(veduta.Testo().InizioRiga(riga)).top());
    pittore.drawLine(QLineF(0, alto, finestra.width(), alto));
  }
}

}  // namespace parvik
