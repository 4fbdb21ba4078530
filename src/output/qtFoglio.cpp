#include "output/qtFoglio.h"

#include <QMarginsF>
#include <QPageSize>
#include <QSizeF>

#include "output/ricCelle.h"

namespace parvik {
namespace {

constexpr double DecimiPerMillimetro = 10;

QPageSize Misura(const Foglio& foglio) {
  if (foglio.Quale == Carta::A4) return QPageSize(QPageSize::A4);
  if (foglio.Quale == Carta::A5) return QPageSize(QPageSize::A5);
  const QSizeF millimetri = QSizeF(foglio.Larghezza, foglio.Altezza) / DecimiPerMillimetro;
  const std::string_view nome = NomiCarte[static_cast<std::size_t>(foglio.Quale)];
  return QPageSize(millimetri, QPageSize::Millimeter,
                   QString::fromUtf8(nome.data(), static_cast<qsizetype>(nome.size())));
}

}  // namespace

QPageLayout CartaDi(const Foglio& foglio) {
  if (foglio.Quale == Carta::Nessuna) return {};
  const QMarginsF margini = QMarginsF(foglio[LatoFoglio::Sinistro], foglio[LatoFoglio::Alto],
                                      foglio[LatoFoglio::Destro], foglio[LatoFoglio::Basso]) /
                            DecimiPerMillimetro;
  return {Misura(foglio), QPageLayout::Portrait, margini, QPageLayout::Millimeter};
}

double PassoRigaDi(const Foglio& foglio) {
  return foglio.Quale == Carta::Nessuna ? 0 : double{TwipPerPollice} / foglio.LineePerPollice;
}

}  // namespace parvik
