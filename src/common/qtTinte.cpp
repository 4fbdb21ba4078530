#include "common/qtTinte.h"

#include <algorithm>
#include <cmath>

namespace parvik {
namespace {

constexpr int Passi = 20;           // towards black or white
constexpr double ForzaFondo = 0.2;  // how much of the highlight colour is in the mark

double Lineare(int canale) {
  const double c = canale / 255.0;
  return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double Luminanza(QRgb colore) {
  return 0.2126 * Lineare(qRed(colore)) + 0.7152 * Lineare(qGreen(colore)) + 0.0722 * Lineare(qBlue(colore));
}

}  // namespace

double Contrasto(QRgb uno, QRgb altro) {
  const auto [scuro, chiaro] = std::minmax({Luminanza(uno), Luminanza(altro)});
  return (chiaro + 0.05) / (scuro + 0.05);
}

QRgb Misto(QRgb da, QRgb a, double parte) {
  const auto canale = [parte](int x, int y) { return static_cast<int>(std::lround(x + (y - x) * parte)); };
  return qRgb(canale(qRed(da), qRed(a)), canale(qGreen(da), qGreen(a)), canale(qBlue(da), qBlue(a)));
}

QRgb Estremo(QRgb base) {
  return Contrasto(Nero, base) >= Contrasto(Bianco, base) ? Nero : Bianco;
}

QRgb Leggibile(QRgb tinta, QRgb estremo, QRgb base, QRgb fondo) {
  QRgb colore = tinta;
  for (int passo = 1; passo <= Passi; ++passo) {
    if (std::min(Contrasto(colore, base), Contrasto(colore, fondo)) >= ContrastoMinimo) break;
    colore = Misto(tinta, estremo, static_cast<double>(passo) / Passi);
  }
  return colore;
}

QRgb FondoSu(QRgb base, QRgb evidenza, QRgb estremo) {
  const QRgb fondo = Misto(base, evidenza, ForzaFondo);
  if (Contrasto(estremo, fondo) >= ContrastoMinimo) return fondo;
  return Misto(base, estremo == Nero ? Bianco : Nero, ForzaFondo);
}

}  // namespace parvik
