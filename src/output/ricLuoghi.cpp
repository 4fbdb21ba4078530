#include "output/ricLuoghi.h"

#include <QSizeF>
#include <algorithm>

#include "common/qtTinte.h"

namespace parvik {
namespace {

/// What of a line lies in the window's width.
Selezione InVista(const VedutaAnteprima& veduta, std::size_t riga) {
  const qreal meta = veduta.RettangoloDi(veduta.Testo().InizioRiga(riga)).center().y();
  const std::size_t da = veduta.CarattereA({0, meta});
  const std::size_t a = veduta.CarattereA({static_cast<qreal>(veduta.Dimensione().width()), meta});
  return {.Inizio = da, .Lunghezza = a + 1 - da};
}

/// What of a mark lies in a line. A line end takes a cell, as where it is selected.
QRectF Fondo(const VedutaAnteprima& veduta, std::size_t riga, const Selezione& segno) {
  const std::size_t inizio = veduta.Testo().InizioRiga(riga);
  const std::size_t termine = veduta.Testo().TermineRiga(riga);
  QRectF fondo = veduta.RettangoloDi(std::max(segno.Inizio, inizio));
  const QRectF fine = veduta.RettangoloDi(std::min(segno.Fine(), termine));
  fondo.setRight(segno.Fine() > termine ? fine.right() : fine.left());
  return fondo;
}

}  // namespace

std::vector<QRectF> ricLuoghi::Rettangoli(const VedutaAnteprima& veduta) const {
  std::vector<QRectF> rettangoli;
  if (segni_.Vuoti()) return rettangoli;
  for (const std::size_t riga : veduta.Righe()) {
    for (const Selezione& segno : segni_.In(InVista(veduta, riga)))
      rettangoli.push_back(Fondo(veduta, riga, segno));
  }
  return rettangoli;
}

void ricLuoghi::Disegna(QPainter& pittore, const VedutaAnteprima& veduta, const QPalette& tavolozza,
                        QPalette::ColorGroup gruppo) const {
  if (segni_.Vuoti()) return;
  const QRgb base = tavolozza.color(gruppo, QPalette::Base).rgb();
  const QRgb evidenza = tavolozza.color(QPalette::Active, QPalette::Highlight).rgb();
  const QColor colore = FondoSu(base, evidenza, Estremo(base));
  for (const QRectF& fondo : Rettangoli(veduta)) pittore.fillRect(fondo, colore);
}

void DisegnaTrovati(QPainter& pittore, const VedutaAnteprima& veduta, const LettoreTrovati& trovati,
                    const QPalette& tavolozza) {
  for (const std::size_t riga : veduta.Righe()) {
    for (const PostoSegnato& posto : trovati(InVista(veduta, riga)))
      DisegnaTrovato(pittore, Fondo(veduta, riga, posto.Parte), posto.Attuale, tavolozza);
  }
}

std::optional<Selezione> ricLuoghi::DaRivelare(const VedutaAnteprima& veduta) const {
  const std::vector<std::size_t> righe = veduta.Righe();
  const QRectF finestra(QPointF(), QSizeF(veduta.Dimensione()));
  const auto intero = [&finestra](const QRectF& fondo) { return finestra.contains(fondo); };
  if (std::ranges::any_of(Rettangoli(veduta), intero)) return std::nullopt;
  return segni_.Da(veduta.Testo().InizioRiga(righe.front()));
}

}  // namespace parvik
