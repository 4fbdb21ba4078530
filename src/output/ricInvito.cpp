#include "output/ricInvito.h"

#include <QGuiApplication>

#include "common/qtTinte.h"

namespace parvik {
namespace {

constexpr int Margine = 24;  // pixels

/// That of a hint, which palettes often have fainter than can be read.
QColor ColoreInvito(const QPalette& tavolozza) {
  const QRgb base = tavolozza.color(QPalette::Base).rgb();
  const QColor tenue = tavolozza.color(QPalette::PlaceholderText);
  return Leggibile(Misto(base, tenue.rgb(), tenue.alphaF()), Estremo(base), base, base);
}

}  // namespace

QString TestoInvito() {
  return QStringLiteral(
      "L'anteprima è vuota.\nSi riempie con File, Stampa, Anteprima, o spegnendo e riaccendendo "
      "Visualizzazione, Anteprima.");
}

void DisegnaInvito(QPainter& pittore, const QRect& pannello, const QPalette& tavolozza) {
  pittore.save();
  pittore.setFont(QGuiApplication::font());
  pittore.setPen(ColoreInvito(tavolozza));
  const QRect posto = pannello.adjusted(Margine, Margine, -Margine, -Margine);
  pittore.drawText(posto, Qt::AlignCenter | Qt::TextWordWrap, TestoInvito());
  pittore.restore();
}

}  // namespace parvik
