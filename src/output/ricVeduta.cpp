#include "output/ricVeduta.h"

#include <algorithm>

namespace parvik {

VedutaAnteprima::VedutaAnteprima(const TestoAnteprima& testo, const Celle& celle, Finestrella finestrella)
    : testo_(testo), celle_(celle), finestrella_(finestrella) {
  qreal alto = finestrella.PrimaRiga == 0 ? Margine : 0;
  std::size_t riga = std::min(finestrella.PrimaRiga, testo.NumRighe() - 1);
  do {
    righe_.push_back({.Riga = riga, .Alto = alto, .Altezze = AltezzeDi(testo, riga, celle)});
    alto = righe_.back().Basso();
    ++riga;
  } while (alto < finestrella.Dimensione.height() && riga < testo.NumRighe());
}

std::vector<std::size_t> VedutaAnteprima::Righe() const {
  std::vector<std::size_t> righe;
  righe.reserve(righe_.size());
  for (const RigaVisibile& riga : righe_) righe.push_back(riga.Riga);
  return righe;
}

std::size_t VedutaAnteprima::UltimaRigaIntera() const {
  const bool intera = righe_.size() == 1 || righe_.back().Basso() <= finestrella_.Dimensione.height();
  return intera ? righe_.back().Riga : righe_.back().Riga - 1;
}

std::size_t VedutaAnteprima::PrimaRigaPer(const TestoAnteprima& testo, const Celle& celle, std::size_t ultima,
                                          int altezza) {
  qreal occupata = 0;
  for (std::size_t riga = ultima + 1; riga-- > 0;) {
    occupata += AltezzeDi(testo, riga, celle).Altezza();
    if (occupata + (riga == 0 ? Margine : 0) > altezza) return std::min(riga + 1, ultima);
  }
  return 0;
}

/// Exact for the lines that show; for others as if all lines up to there had the pane's own height.
qreal VedutaAnteprima::AltoDi(std::size_t riga) const {
  const qreal altezza = celle_.Altezza({});
  const RigaVisibile& prima = righe_.front();
  const RigaVisibile& ultima = righe_.back();
  if (riga < prima.Riga) return prima.Alto - static_cast<qreal>(prima.Riga - riga) * altezza;
  if (riga > ultima.Riga) return ultima.Basso() + static_cast<qreal>(riga - ultima.Riga - 1) * altezza;
  return righe_[riga - prima.Riga].Alto;
}

QRectF VedutaAnteprima::RettangoloDi(std::size_t byte) const {
  const std::size_t riga = testo_.RigaDi(byte);
  const qreal x = XDi(testo_, riga, byte - testo_.InizioRiga(riga), celle_);
  return {XDelTesto() + x, AltoDi(riga), celle_.Avanzamento(testo_.AspettoDi(byte)),
          AltezzeDi(testo_, riga, celle_).Altezza()};
}

const VedutaAnteprima::RigaVisibile& VedutaAnteprima::RigaAllAltezza(qreal y) const {
  const auto riga = std::ranges::find_if(righe_, [y](const RigaVisibile& r) { return y < r.Basso(); });
  return riga == righe_.end() ? righe_.back() : *riga;
}

std::size_t VedutaAnteprima::CarattereA(QPointF punto) const {
  const std::size_t riga = RigaAllAltezza(punto.y()).Riga;
  return testo_.InizioRiga(riga) + ColonnaA(testo_, riga, punto.x() - XDelTesto(), celle_);
}

std::size_t VedutaAnteprima::PostoA(QPointF punto) const {
  const std::size_t riga = RigaAllAltezza(punto.y()).Riga;
  return testo_.InizioRiga(riga) + ColonnaVicina(testo_, riga, punto.x() - XDelTesto(), celle_);
}

void VedutaAnteprima::Disegna(QPainter& pittore, const QRectF& parte, const Selezione& scelto,
                              const QPalette& tavolozza, QPalette::ColorGroup gruppo) const {
  for (const RigaVisibile& riga : righe_) {
    if (riga.Basso() > parte.top() && riga.Alto < parte.bottom())
      DisegnaUnaRiga(pittore, riga, parte, scelto, tavolozza, gruppo);
  }
}

void VedutaAnteprima::DisegnaUnaRiga(QPainter& pittore, const RigaVisibile& riga, const QRectF& parte,
                                     const Selezione& scelto, const QPalette& tavolozza,
                                     QPalette::ColorGroup gruppo) const {
  const std::size_t inizio = testo_.InizioRiga(riga.Riga);
  const std::size_t termine = testo_.TermineRiga(riga.Riga);
  const std::size_t sceltoDa = std::clamp(scelto.Inizio, inizio, termine) - inizio;
  const std::size_t sceltoA = std::clamp(scelto.Fine(), inizio, termine) - inizio;
  const bool fineScelta = scelto.Inizio <= termine && scelto.Fine() > termine;
  if (sceltoA > sceltoDa || fineScelta) {
    const qreal sinistra = XDi(testo_, riga.Riga, sceltoDa, celle_);
    // A line end that is selected shows as a cell.
    const qreal destra = XDi(testo_, riga.Riga, sceltoA, celle_) +
                         (fineScelta ? celle_.Avanzamento(testo_.AspettoDi(termine)) : 0);
    const QRectF fondo(XDelTesto() + sinistra, riga.Alto, destra - sinistra, riga.Altezze.Altezza());
    pittore.fillRect(fondo.intersected(parte), tavolozza.brush(gruppo, QPalette::Highlight));
  }
  // A column more on each side: slanted letters lean out of their cells.
  const std::size_t prima = ColonnaA(testo_, riga.Riga, parte.left() - XDelTesto(), celle_);
  const std::size_t ultima = ColonnaA(testo_, riga.Riga, parte.right() - XDelTesto(), celle_);
  const std::size_t da = prima - std::min<std::size_t>(prima, 1);
  const std::size_t a = std::min(ultima + 2, termine - inizio);
  const QPointF base(XDelTesto(), riga.Alto + riga.Altezze.Ascesa);
  const auto disegna = [&](std::size_t dal, std::size_t al, QPalette::ColorRole colore) {
    if (dal >= al) return;
    pittore.setPen(tavolozza.color(gruppo, colore));
    DisegnaRiga(pittore, base, testo_, riga.Riga, dal, al, celle_);
  };
  disegna(da, std::min(sceltoDa, a), QPalette::Text);
  disegna(std::max(da, sceltoDa), std::min(sceltoA, a), QPalette::HighlightedText);
  disegna(std::max(da, sceltoA), a, QPalette::Text);
}

}  // namespace parvik
