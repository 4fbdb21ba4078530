#include "common/qtSchermo.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <algorithm>

namespace parvik {

namespace {

/// What the frame adds to the window.
QSize Cornice(const QWidget& finestra) {
  const QStyle& stile = *finestra.style();
  const int bordo = stile.pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
  return {2 * bordo, stile.pixelMetric(QStyle::PM_TitleBarHeight) + 2 * bordo};
}

}  // namespace

QSize EntroLoSchermo(const QWidget& finestra, QSize voluta) {
  return voluta.boundedTo(finestra.screen()->availableSize() - Cornice(finestra));
}

std::optional<QPoint> PostoSuSchermo(const QWidget& finestra, QPoint voluto) {
  const QScreen* schermo = QGuiApplication::screenAt(voluto);
  if (schermo == nullptr) return std::nullopt;
  const QRect libero = schermo->availableGeometry();
  const QSize intera = finestra.size() + Cornice(finestra);
  const auto entro = [](int valore, int da, int a) { return std::max(da, std::min(valore, a)); };
  return QPoint(entro(voluto.x(), libero.left(), libero.right() + 1 - intera.width()),
                entro(voluto.y(), libero.top(), libero.bottom() + 1 - intera.height()));
}

}  // namespace parvik
