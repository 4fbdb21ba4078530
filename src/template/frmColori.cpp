#include "template/frmColori.h"

#include <QGuiApplication>
#include <QPalette>
#include <QSignalBlocker>
#include <QStringTokenizer>
#include <QTextDocument>
#include <algorithm>
#include <cmath>

#include "common/frmTesto.h"
#include "tokens/Pezzi.h"

namespace parvik {
namespace {

/// The least contrast of a code's colour with what it stands on: what small text needs to be legible.
constexpr double ContrastoMinimo = 4.5;
constexpr double ForzaFondo = 0.2;  // how much of the highlight colour is in the mark
constexpr int Passi = 20;           // from a colour to black or white

// By TipoCodice. Far apart in hue; light and dark sets give a kind the same hue.
using Tinte = std::array<QRgb, 7>;
constexpr Tinte TinteSuChiaro = {0xFFC0122F, 0xFF0B4FC4, 0xFF176B2C, 0xFF944200,
                                 0xFF7D1FA8, 0xFF00656F, 0xFF66610A};
constexpr Tinte TinteSuScuro = {0xFFFF8585, 0xFF8AB4F8, 0xFF7FD08F, 0xFFFBA35C,
                                0xFFD7A5FB, 0xFF5FD9E6, 0xFFDCCB4E};
constexpr QRgb Nero = 0xFF000000;
constexpr QRgb Bianco = 0xFFFFFFFF;

double Lineare(int canale) {
  const double c = canale / 255.0;
  return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double Luminanza(QRgb colore) {
  return 0.2126 * Lineare(qRed(colore)) + 0.7152 * Lineare(qGreen(colore)) + 0.0722 * Lineare(qBlue(colore));
}

double Contrasto(QRgb uno, QRgb altro) {
  const auto [scuro, chiaro] = std::minmax({Luminanza(uno), Luminanza(altro)});
  return (chiaro + 0.05) / (scuro + 0.05);
}

/// `da` with a part of `a` in it: 0 none, 1 nothing else.
QRgb Misto(QRgb da, QRgb a, double parte) {
  const auto canale = [parte](int x, int y) { return static_cast<int>(std::lround(x + (y - x) * parte)); };
  return qRgb(canale(qRed(da), qRed(a)), canale(qGreen(da), qGreen(a)), canale(qBlue(da), qBlue(a)));
}

/// Towards the highlight, as far as text in the colour `estremo` stays legible on it; if that is nowhere,
/// away from `estremo`.
QRgb FondoSu(QRgb base, QRgb evidenza, QRgb estremo) {
  const QRgb fondo = Misto(base, evidenza, ForzaFondo);
  if (Contrasto(estremo, fondo) >= ContrastoMinimo) return fondo;
  return Misto(base, estremo == Nero ? Bianco : Nero, ForzaFondo);
}

/// `tinta`, moved towards `estremo` until it can be read on both.
QRgb Leggibile(QRgb tinta, QRgb estremo, QRgb base, QRgb fondo) {
  QRgb colore = tinta;
  for (int passo = 1; passo <= Passi; ++passo) {
    if (std::min(Contrasto(colore, base), Contrasto(colore, fondo)) >= ContrastoMinimo) break;
    colore = Misto(tinta, estremo, static_cast<double>(passo) / Passi);
  }
  return colore;
}

/// One byte for each UTF-16 unit, so that a position is the same in both. `riga` holds no line end.
std::string UnByteOgniUnita(QStringView riga) {
  QString intera = riga.toString();
  std::ranges::replace_if(
      intera, [](QChar c) { return c.isSurrogate(); }, u'?');
  return DaSchermo(intera);
}

}  // namespace

frmColori::frmColori(QTextDocument* documento) : QSyntaxHighlighter(documento) {
  ImpostaTavolozza(QGuiApplication::palette());
}

void frmColori::ImpostaTavolozza(const QPalette& tavolozza) {
  const QRgb base = tavolozza.color(QPalette::Base).rgb();
  const bool chiaro = Contrasto(Nero, base) >= Contrasto(Bianco, base);
  const QRgb estremo = chiaro ? Nero : Bianco;
  const QRgb fondo = FondoSu(base, tavolozza.color(QPalette::Highlight).rgb(), estremo);
  const Tinte& tinte = chiaro ? TinteSuChiaro : TinteSuScuro;
  const auto prima = formati_;
  for (std::size_t i = 0; i < formati_.size(); ++i) {
    formati_[i].setForeground(QColor(Leggibile(tinte[i], estremo, base, fondo)));
  }
  fondo_ = fondo;
  if (formati_ == prima) return;
  // Colouring a whole text counts as an edit to the toolkit: whoever listens for changes would hear one.
  const QSignalBlocker muto(document());
  rehighlight();
}

QColor frmColori::Colore(TipoCodice tipo) const {
  return formati_[static_cast<std::size_t>(tipo)].foreground().color();
}

void frmColori::highlightBlock(const QString& riga) {
  // A block may hold more than one line of the text: Shift+Enter does not begin a new block.
  for (const QStringView sola : QStringView(riga).tokenize(QChar(QChar::LineSeparator))) {
    ColoraRiga(sola, static_cast<int>(sola.data() - riga.constData()));
  }
}

void frmColori::ColoraRiga(QStringView riga, int inizio) {
  const std::string byte = UnByteOgniUnita(riga);
  LettorePezzi lettore(byte);
  while (const auto pezzo = lettore.Prossimo()) {
    if (pezzo->Genere != GenerePezzo::Codice) continue;
    const std::string_view codice = pezzo->In(byte);
    setFormat(inizio + static_cast<int>(pezzo->Inizio), static_cast<int>(codice.size()),
              formati_[static_cast<std::size_t>(Riconosci(ContenutoDi(codice)))]);
  }
}

}  // namespace parvik
