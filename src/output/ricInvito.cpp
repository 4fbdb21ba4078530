#include "output/ricInvito.h"

#include <QGuiApplication>

namespace parvik {
namespace {

constexpr int Margine = 24;  // pixels

}  // namespace

QString TestoInvito() {
  return QStringLiteral(
      "L'anteprima è vuota.\nSi riempie con File, Stampa, Anteprima, o spegnendo e riaccendendo "
      "Visualizzazione, Anteprima.");
}

void DisegnaInvito(QPainter& pittore, const QRect& pannello, const QPalette& tavolozza) {
  pittore.save();
  pittore.setFont(QGuiApplication::font());
  pittore.setPen(tavolozza.color(QPalette::PlaceholderText));
  const QRect posto = pannello.adjusted(Margine, Margine, -Margine, -Margine);
  pittore.drawText(posto, Qt::AlignCenter | Qt::TextWordWrap, TestoInvito());
  pittore.restore();
}

}  // namespace parvik
