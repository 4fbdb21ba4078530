#include "Ritratto.h"

#include <QHash>
#include <QPixmap>
#include <QTest>
#include <algorithm>
#include <utility>
#include <vector>

#include "Finestra.h"

namespace parvik::prova {
namespace {

constexpr qsizetype MassimiColori = 256;
constexpr int Gradino =
    17;  // of a channel: sixteen are left, so that the edges of letters leave room for rare colours
constexpr int Ridisegno = 400;  // milliseconds: the program's own delays are shorter

int Arrotondato(int canale) {
  return (canale + Gradino / 2) / Gradino * Gradino;
}

}  // namespace

QImage InPochiColori(const QImage& immagine) {
  QImage piena = immagine.convertToFormat(QImage::Format_RGB32);
  for (int y = 0; y < piena.height(); ++y) {
    for (int x = 0; x < piena.width(); ++x) {
      const QRgb c = piena.pixel(x, y);
      piena.setPixel(x, y, qRgb(Arrotondato(qRed(c)), Arrotondato(qGreen(c)), Arrotondato(qBlue(c))));
    }
  }
  QHash<QRgb, int> volte;
  for (int y = 0; y < piena.height(); ++y)
    for (int x = 0; x < piena.width(); ++x) ++volte[piena.pixel(x, y)];
  std::vector<std::pair<int, QRgb>> perVolte;
  for (auto uno = volte.cbegin(); uno != volte.cend(); ++uno) perVolte.emplace_back(uno.value(), uno.key());
  std::ranges::sort(perVolte, std::ranges::greater());
  QList<QRgb> colori;
  for (const auto& [quante, colore] : perVolte)
    if (colori.size() < MassimiColori) colori.append(colore);
  return piena.convertToFormat(QImage::Format_Indexed8, colori, Qt::ThresholdDither | Qt::AvoidDither);
}

void Ritrai(QWidget& widget, const QDir& cartella, const QString& nome) {
  QTest::qWait(Ridisegno);
  const QString file = cartella.filePath(nome + ".png");
  if (!InPochiColori(widget.grab().toImage()).save(file, "PNG", 0))
    qFatal("cannot write %s", qPrintable(file));
}

}  // namespace parvik::prova
