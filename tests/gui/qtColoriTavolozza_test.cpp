// The colours of the codes on any palette.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <map>
#include <ostream>
#include <vector>

#include "Tavolozze.h"
#include "supporto/ConNome.h"
#include "template/qtColori.h"
#include "template/txtTCP.h"

namespace parvik {
namespace {

using prova::Scura;
using prova::Tavolozza;
using prova::Tipi;

// The contrast of two colours as the accessibility guidelines for the web define it, and the distance of two
// colours to the eye.

std::array<double, 3> Lineari(const QColor& colore) {
  std::array<double, 3> canali = {colore.red() / 255.0, colore.green() / 255.0, colore.blue() / 255.0};
  for (double& c : canali) c = c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  return canali;
}

double Luminanza(const QColor& colore) {
  const auto [r, g, b] = Lineari(colore);
  return 0.2126 * r + 0.7152 * g + 0.0722 * b;
}

double Contrasto(const QColor& uno, const QColor& altro) {
  const double a = Luminanza(uno) + 0.05;
  const double b = Luminanza(altro) + 0.05;
  return a > b ? a / b : b / a;
}

std::array<double, 3> Lab(const QColor& colore) {
  const auto [r, g, b] = Lineari(colore);
  const auto f = [](double t) { return t > 0.008856 ? std::cbrt(t) : 7.787 * t + 16.0 / 116; };
  const double x = f((0.4124 * r + 0.3576 * g + 0.1805 * b) / 0.95047);
  const double y = f(0.2126 * r + 0.7152 * g + 0.0722 * b);
  const double z = f((0.0193 * r + 0.1192 * g + 0.9505 * b) / 1.08883);
  return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

double Distanza(const QColor& uno, const QColor& altro) {
  const auto a = Lab(uno);
  const auto b = Lab(altro);
  return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

struct Tinta {
  const char* Nome;
  QPalette Tavolozza;
};
using prova::PrintTo;

std::string NomeDi(const testing::TestParamInfo<Tinta>& info) {
  return info.param.Nome;
}

class OgniTavolozza : public testing::TestWithParam<Tinta> {
 protected:
  OgniTavolozza() { colori_.ImpostaTavolozza(GetParam().Tavolozza); }

  QColor Base() const { return GetParam().Tavolozza.color(QPalette::Base); }

  Documento modello_;
  txtTCP editor_{modello_, Sezione::Testata, nullptr};
  qtColori& colori_ = *editor_.document()->findChild<qtColori*>();
};

class TavolozzaUsuale : public OgniTavolozza {};

TEST_P(OgniTavolozza, EveryKindCanBeReadOnTheBase) {
  for (const auto& [nome, tipo] : Tipi) EXPECT_GE(Contrasto(colori_.Colore(tipo), Base()), 4.5) << nome;
}

TEST_P(OgniTavolozza, EveryKindCanBeReadOnTheMarkOfTheActiveCode) {
  for (const auto& [nome, tipo] : Tipi) {
    EXPECT_GE(Contrasto(colori_.Colore(tipo), colori_.FondoCodiceAttivo()), 4.5) << nome;
  }
}

TEST_P(TavolozzaUsuale, NoTwoKindsAndNoKindAndPlainTextLookAlike) {
  std::map<std::string, QColor> colori = {{"testo", GetParam().Tavolozza.color(QPalette::Text)}};
  for (const auto& [nome, tipo] : Tipi) colori[nome] = colori_.Colore(tipo);
  for (auto uno = colori.begin(); uno != colori.end(); ++uno) {
    for (auto altro = std::next(uno); altro != colori.end(); ++altro) {
      EXPECT_GE(Distanza(uno->second, altro->second), 20) << uno->first << " and " << altro->first;
    }
  }
}

TEST_P(TavolozzaUsuale, TheMarkOfTheActiveCodeIsSeenOnTheBase) {
  EXPECT_GE(Distanza(colori_.FondoCodiceAttivo(), Base()), 8);
}

const std::vector<Tinta> Usuali = {
    {"the_default", QPalette()},
    {"light", Tavolozza(Qt::white, Qt::black, QColor(0x30, 0x8C, 0xC6))},
    {"paper", Tavolozza(QColor(0xFD, 0xF6, 0xE3), QColor(0x20, 0x20, 0x20), QColor(0x26, 0x8B, 0xD2))},
    {"dark", Scura()},
    {"slate", Tavolozza(QColor(0x31, 0x36, 0x3B), QColor(0xEF, 0xF0, 0xF1), QColor(0x3D, 0xAE, 0xE9))},
    {"black", Tavolozza(Qt::black, Qt::white, QColor(0x1A, 0xEB, 0xFF))}};
const std::vector<Tinta> Insolite = {
    {"grey", Tavolozza(QColor(0x77, 0x77, 0x77), Qt::white, Qt::blue)},
    {"grey_light", Tavolozza(QColor(0xA0, 0xA0, 0xA0), Qt::black, Qt::black)},
    {"blue", Tavolozza(Qt::darkBlue, Qt::yellow, Qt::white)},
    {"red", Tavolozza(Qt::red, Qt::black, Qt::blue)}};

INSTANTIATE_TEST_SUITE_P(Usuali, OgniTavolozza, testing::ValuesIn(Usuali), NomeDi);
INSTANTIATE_TEST_SUITE_P(Insolite, OgniTavolozza, testing::ValuesIn(Insolite), NomeDi);
INSTANTIATE_TEST_SUITE_P(Usuali, TavolozzaUsuale, testing::ValuesIn(Usuali), NomeDi);

}  // namespace
}  // namespace parvik
