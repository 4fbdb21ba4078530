#include "common/qtSchermo.h"

#include <QScreen>
#include <QStyle>

namespace parvik {

QSize EntroLoSchermo(const QWidget& finestra, QSize voluta) {
  const QStyle& stile = *finestra.style();
  const int bordo = stile.pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
  const QSize cornice(2 * bordo, stile.pixelMetric(QStyle::PM_TitleBarHeight) + 2 * bordo);
  return voluta.boundedTo(finestra.screen()->availableSize() - cornice);
}

}  // namespace parvik
