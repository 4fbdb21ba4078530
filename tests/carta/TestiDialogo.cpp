#include "TestiDialogo.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTabWidget>

namespace parvik::prova {
namespace {

/// But boxes of a line edit and the like, whose text is a value.
QStringList TestiPropri(const QWidget& controllo) {
  QStringList testi = {controllo.toolTip(), controllo.whatsThis(), controllo.accessibleName(),
                       controllo.accessibleDescription()};
  if (const auto* etichetta = qobject_cast<const QLabel*>(&controllo)) testi += etichetta->text();
  if (const auto* pulsante = qobject_cast<const QAbstractButton*>(&controllo)) testi += pulsante->text();
  if (const auto* gruppo = qobject_cast<const QGroupBox*>(&controllo)) testi += gruppo->title();
  if (const auto* campo = qobject_cast<const QLineEdit*>(&controllo)) testi += campo->placeholderText();
  if (const auto* numero = qobject_cast<const QSpinBox*>(&controllo)) testi += numero->specialValueText();
  if (const auto* numero = qobject_cast<const QDoubleSpinBox*>(&controllo)) testi += numero->suffix();
  if (const auto* elenco = qobject_cast<const QComboBox*>(&controllo)) {
    for (int i = 0; i < elenco->count(); ++i) testi += elenco->itemText(i);
  }
  if (const auto* schede = qobject_cast<const QTabBar*>(&controllo)) {
    for (int i = 0; i < schede->count(); ++i) testi += {schede->tabText(i), schede->tabToolTip(i)};
  }
  return testi;
}

void Raccogli(QWidget& dialogo, QSet<QString>& testi) {
  for (QWidget* controllo : dialogo.findChildren<QWidget*>()) {
    if (!controllo->isVisibleTo(&dialogo)) continue;
    for (QString testo : TestiPropri(*controllo)) testi += testo.remove('&');
  }
}

}  // namespace

QSet<QString> TestiDi(QWidget& dialogo) {
  QSet<QString> testi = {dialogo.windowTitle()};
  Raccogli(dialogo, testi);
  for (QTabWidget* schede : dialogo.findChildren<QTabWidget*>()) {
    for (int i = 0; i < schede->count(); ++i) {
      schede->setCurrentIndex(i);
      Raccogli(dialogo, testi);
    }
  }
  testi.remove(QString());
  return testi;
}

}  // namespace parvik::prova
