#include "app/lblBarra.h"

#include <QEvent>
#include <QGlyphRun>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace parvik {

lblBarra::lblBarra(const char* nome, Qt::TextElideMode taglio, QWidget* padre)
    : QLabel(padre), taglio_(taglio) {
  setObjectName(nome);
  setTextFormat(Qt::PlainText);
  setAutoFillBackground(true);  // the bar behind it need not be drawn
  Poni({});
}

void lblBarra::Scrivi(const QString& testo) {
  if (testo == text()) return;
  setAttribute(Qt::WA_UpdatesDisabled, true);  // the base class would draw all of it anew
  setText(testo);
  setAttribute(Qt::WA_UpdatesDisabled, false);
  const QList<quint32> prima = glifi_;
  const QList<qreal> postiPrima = posti_;
  Componi();
  update(Diverso(prima, postiPrima));
}

void lblBarra::Poni(const QRect& posto) {
  if (posto == geometry()) return;
  setFixedSize(posto.size());
  move(posto.topLeft());
  Componi();
  update();
}

void lblBarra::changeEvent(QEvent* evento) {
  QLabel::changeEvent(evento);
  if (evento->type() != QEvent::FontChange) return;
  segni_ = {};
  Componi();
}

/// What is drawn, and where.
void lblBarra::Componi() {
  glifi_.clear();
  posti_ = {0};
  if (!segni_.isValid() && !text().isEmpty()) segni_ = QRawFont::fromFont(font());
  mostrato_ = text();
  glifi_ = segni_.glyphIndexesForString(mostrato_);
  for (const QPointF& passo : segni_.advancesForGlyphIndexes(glifi_)) posti_ += posti_.last() + passo.x();
  const bool mancanti = glifi_.size() != mostrato_.size() || glifi_.contains(0);
  intero_ = mancanti ? fontMetrics().horizontalAdvance(text()) : static_cast<int>(std::ceil(posti_.last()));
  if (mancanti || intero_ > width()) {
    glifi_.clear();
    mostrato_ = fontMetrics().elidedText(text(), taglio_, width());
  }
  const QString intero = mostrato_ == text() ? QString() : text();
  if (intero != toolTip()) setToolTip(intero);
}

/// The part of this in which something else is drawn now.
QRect lblBarra::Diverso(const QList<quint32>& prima, const QList<qreal>& postiPrima) const {
  if (prima.isEmpty() || glifi_.isEmpty()) return rect();
  const auto primo = std::mismatch(prima.begin(), prima.end(), glifi_.begin(), glifi_.end());
  const auto da = static_cast<int>(std::floor(posti_.at(primo.second - glifi_.begin())));
  const auto a = static_cast<int>(std::ceil(std::max(posti_.last(), postiPrima.last())));
  return {da, 0, a - da, height()};
}

/// The base class would cut the text off.
void lblBarra::paintEvent(QPaintEvent* evento) {
  QPainter pittore(this);
  const QFontMetrics misure = fontMetrics();
  const int riga = (height() + misure.ascent() - misure.descent()) / 2;
  const QPointF base(0, riga);
  pittore.setPen(palette().color(foregroundRole()));
  if (glifi_.isEmpty()) {
    pittore.drawText(base, mostrato_);
    return;
  }
  const auto quale = [this](int x) {
    const auto oltre = std::upper_bound(posti_.begin(), posti_.end(), x);
    return std::clamp<qsizetype>(oltre - posti_.begin() - 1, 0, glifi_.size() - 1);
  };
  const qsizetype da = std::max<qsizetype>(quale(evento->rect().left()) - 1, 0);  // letters lean out
  const qsizetype quanti = quale(evento->rect().right()) - da + 1;
  QList<QPointF> posti;
  for (qsizetype i = da; i < da + quanti; ++i) posti += QPointF(posti_.at(i), 0);
  QGlyphRun fila;
  fila.setRawFont(segni_);
  fila.setGlyphIndexes(glifi_.mid(da, quanti));
  fila.setPositions(posti);
  pittore.drawGlyphRun(base, fila);
}

}  // namespace parvik
