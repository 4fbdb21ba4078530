#include "template/qtTrovati.h"

#include <QColor>
#include <QTextBlock>
#include <algorithm>

#include "common/qtTinte.h"
#include "template/txtRigaDisposta.h"

namespace parvik {
namespace {

// Three to one at least on what they are drawn on.
constexpr QRgb SuChiaro = 0xFF9A6400;
constexpr QRgb SuScuro = 0xFFFFB347;
constexpr int Velo = 32;  // of 255
constexpr qreal LarghezzaMinima = 3;

}  // namespace

void DisegnaTrovato(QPainter& pittore, const QRectF& dove, bool attuale, const QPalette& tavolozza) {
  const bool chiaro = Estremo(tavolozza.color(QPalette::Base).rgb()) == Nero;
  const QColor colore(chiaro ? SuChiaro : SuScuro);
  QColor velo = colore;
  velo.setAlpha(Velo);
  const qreal tratto = attuale ? 2 : 1;
  const qreal larga = std::max(dove.width(), LarghezzaMinima);
  const QRectF dentro = QRectF(dove.topLeft(), QSizeF(larga, dove.height()))
                            .adjusted(tratto / 2, tratto / 2, -tratto / 2, -tratto / 2);
  pittore.save();
  pittore.setPen(QPen(colore, tratto, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  pittore.setBrush(velo);
  pittore.drawRect(dentro);
  pittore.restore();
}

void DisegnaTrovati(QPainter& pittore, const QTextBlock& riga, QPointF dove, const LettoreTrovati& trovati,
                    const txtSpecchio& specchio, const QPalette& tavolozza) {
  const auto disposta = txtRigaDisposta::Di(riga, dove, specchio);
  if (!disposta) return;
  for (const PostoSegnato& posto : trovati(disposta->Byte())) {
    const QPointF alto(disposta->X(posto.Parte.Inizio), disposta->Alto());
    const QPointF basso(disposta->X(posto.Parte.Fine()), disposta->Basso());
    DisegnaTrovato(pittore, QRectF(alto, basso), posto.Attuale, tavolozza);
  }
}

}  // namespace parvik
