#include "app/barNotizia.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLayout>

#include "common/qtTinte.h"

namespace parvik {
namespace {

constexpr int Margine = 4;  // pixels, around what stands in it
constexpr const char* NomeDentro = "avvertenza";

/// What stands in the bar is an alert for assistive technologies.
QAccessibleInterface* Crea(const QString& /*classe*/, QObject* oggetto) {
  auto* dentro = qobject_cast<QWidget*>(oggetto);
  if (dentro == nullptr || dentro->objectName() != NomeDentro) return nullptr;
  return new QAccessibleWidget(dentro, QAccessible::AlertMessage);  // the toolkit owns it
}

}  // namespace

barNotizia::barNotizia(const char* nome, const QString& nomeAccessibile, QMainWindow& finestra)
    : QToolBar(nomeAccessibile, &finestra) {
  setObjectName(nome);
  setAccessibleName(nomeAccessibile);
  setMovable(false);
  setFloatable(false);
  setContextMenuPolicy(Qt::PreventContextMenu);
  toggleViewAction()->setVisible(false);  // it comes and goes by itself
  layout()->setContentsMargins(0, 0, 0, 0);
  QAccessible::installFactory(Crea);
  dentro_ = new QWidget;
  dentro_->setObjectName(NomeDentro);
  dentro_->setAutoFillBackground(true);
  dentro_->setBackgroundRole(QPalette::Window);  // not that of tool bars
  dentro_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  auto* riga = new QHBoxLayout(dentro_);
  riga->setContentsMargins(2 * Margine, Margine, Margine, Margine);
  lblNotizia_ = new lblNotizia(dentro_);
  riga->addWidget(lblNotizia_, 1);
  addWidget(dentro_);
  Colora();
  hide();
  finestra.addToolBarBreak(Qt::TopToolBarArea);
  finestra.addToolBar(Qt::TopToolBarArea, this);
  connect(qApp, &QApplication::focusChanged, this, &barNotizia::NotaFuoco);
}

QPushButton& barNotizia::Aggiungi(const char* nome, const QString& didascalia) {
  auto* pulsante = new QPushButton(didascalia);
  pulsante->setObjectName(nome);
  pulsante->setAutoDefault(true);  // Enter clicks it
  dentro_->layout()->addWidget(pulsante);
  return *pulsante;
}

void barNotizia::Mostra(const QString& prima, const QString& nome, const QString& dopo,
                        const QString& intero) {
  const QString detto = lblNotizia_->text();
  lblNotizia_->Scrivi(prima, nome, dopo, intero);
  setAccessibleDescription(lblNotizia_->text());
  dentro_->setAccessibleName(lblNotizia_->text());
  for (auto* pulsante : findChildren<QPushButton*>()) pulsante->setAccessibleDescription(lblNotizia_->text());
  const bool nuova = isHidden() || detto != lblNotizia_->text();
  show();
  if (!nuova) return;
  for (const QAccessible::Event quale : {QAccessible::ObjectShow, QAccessible::Alert}) {
    QAccessibleEvent avviso(dentro_, quale);
    QAccessible::updateAccessibility(&avviso);
  }
}

void barNotizia::Nascondi() {
  if (isHidden()) return;
  const bool aveva = Contiene(QApplication::focusWidget());
  const QPointer<QWidget> dove = daDove_;
  hide();
  if (!aveva) return;
  if (dove != nullptr && dove->isVisible()) {
    dove->setFocus();
  } else {
    parentWidget()->setFocus();
  }
}

void barNotizia::NotaFuoco(QWidget* prima, QWidget* ora) {
  if (Contiene(ora) && prima != nullptr && !Contiene(prima)) daDove_ = prima;
}

void barNotizia::changeEvent(QEvent* evento) {
  QToolBar::changeEvent(evento);
  if (evento->type() == QEvent::PaletteChange && dentro_ != nullptr) Colora();
}

/// Set off from the window, and legible, whatever the palette is.
void barNotizia::Colora() {
  const QRgb fondo = palette().color(QPalette::Window).rgb();
  const QRgb estremo = Estremo(fondo);
  QPalette colori;
  colori.setColor(QPalette::Window, FondoSu(fondo, palette().color(QPalette::Highlight).rgb(), estremo));
  colori.setColor(QPalette::WindowText, QColor::fromRgb(estremo));
  dentro_->setPalette(colori);
}

void barNotizia::keyPressEvent(QKeyEvent* evento) {
  if (evento->key() == Qt::Key_Escape) return emit Rinunciato();
  QToolBar::keyPressEvent(evento);
}

}  // namespace parvik
