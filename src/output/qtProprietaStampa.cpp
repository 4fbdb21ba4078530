#include "output/qtProprietaStampa.h"

#include <QChildEvent>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QPageSize>
#include <cmath>

namespace parvik {
namespace {

constexpr qreal Tolleranza = 3;  // points: papers are rounded to whole ones, and cut a little

/// The entry of that paper; -1 where the printer has none.
int VoceDi(const QComboBox& misure, const QSizeF& punti) {
  for (int i = 0; i < misure.count(); ++i) {
    const QSizeF sua = misure.itemData(i).value<QPageSize>().size(QPageSize::Point);
    if (std::abs(sua.width() - punti.width()) <= Tolleranza &&
        std::abs(sua.height() - punti.height()) <= Tolleranza)
      return i;
  }
  return -1;
}

void Scrivi(const QWidget& proprieta, const char* casella, double valore) {
  if (auto* numero = proprieta.findChild<QDoubleSpinBox*>(casella)) numero->setValue(valore);
}

}  // namespace

qtProprietaStampa::qtProprietaStampa(QDialog& dialogo, const QPageLayout& carta)
    : QObject(&dialogo), dialogo_(dialogo), carta_(carta) {
  dialogo.installEventFilter(this);
}

/// Dialogs without such boxes are those of other systems, which do begin with what the printer is set to.
bool qtProprietaStampa::DaPreparare() const {
  return !confermate_ && dialogo_.findChild<QWidget*>("properties") != nullptr;
}

bool qtProprietaStampa::eventFilter(QObject* oggetto, QEvent* evento) {
  if (oggetto == &dialogo_ && evento->type() == QEvent::ChildPolished) {
    auto* proprieta = qobject_cast<QDialog*>(static_cast<QChildEvent*>(evento)->child());
    if (proprieta != nullptr && proprieta->findChild<QComboBox*>("pageSizeCombo") != nullptr) {
      proprieta->installEventFilter(this);
      connect(proprieta, &QDialog::accepted, this, [this] { confermate_ = true; });
    }
  } else if (oggetto != &dialogo_ && evento->type() == QEvent::Show && !confermate_) {
    Riempi(*static_cast<QWidget*>(oggetto));
  }
  return QObject::eventFilter(oggetto, evento);
}

/// A paper that the printer does not have stays its default.
void qtProprietaStampa::Riempi(QWidget& proprieta) const {
  auto* misure = proprieta.findChild<QComboBox*>("pageSizeCombo");
  const int voce = VoceDi(*misure, carta_.pageSize().size(QPageSize::Point));
  if (voce >= 0) misure->setCurrentIndex(voce);
  const auto* unita = proprieta.findChild<QComboBox*>("unitCombo");
  if (unita == nullptr) return;
  const QMarginsF margini = carta_.margins(unita->currentData().value<QPageLayout::Unit>());
  Scrivi(proprieta, "leftMargin", margini.left());
  Scrivi(proprieta, "topMargin", margini.top());
  Scrivi(proprieta, "rightMargin", margini.right());
  Scrivi(proprieta, "bottomMargin", margini.bottom());
}

}  // namespace parvik
