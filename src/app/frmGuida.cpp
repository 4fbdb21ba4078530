#include "app/frmGuida.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/qtPagineGuida.h"
#include "common/qtCampi.h"
#include "common/qtFuoco.h"
#include "common/qtSchermo.h"

namespace parvik {
namespace {

const QSize DimensioneIniziale(900, 680);

/// Enter in the box looks for the text: no button is the default one.
QPushButton* CreaPulsante(const char* nome, const char* didascalia) {
  auto* pulsante = new QPushButton(didascalia);
  pulsante->setObjectName(nome);
  pulsante->setAutoDefault(false);
  return pulsante;
}

}  // namespace

frmGuida::frmGuida(const QDir& manuale, const qtMenu& menu, QWidget* padre)
    : QDialog(padre), txtGuida_(new txtGuida(manuale, menu)) {
  setObjectName("frmGuida");
  setWindowTitle("Guida");
  MostraFuoco(*txtGuida_);
  auto* chiudi = CreaPulsante("cmdChiudi", "&Chiudi");
  connect(chiudi, &QPushButton::clicked, this, &QDialog::reject);
  auto* colonna = new QVBoxLayout(this);
  colonna->addLayout(CreaComandi());
  colonna->addWidget(txtGuida_);
  colonna->addWidget(chiudi, 0, Qt::AlignRight);
  resize(EntroLoSchermo(*this, DimensioneIniziale));
}

QBoxLayout* frmGuida::CreaComandi() {
  auto* indice = CreaPulsante("cmdIndice", "&Indice");
  auto* indietro = CreaPulsante("cmdIndietro", "Indie&tro");
  auto* avanti = CreaPulsante("cmdAvanti", "&Avanti");
  auto* cerca = new QLineEdit;
  cerca->setObjectName("txtCercaGuida");
  UnaRiga(*cerca);
  auto* etichetta = new QLabel("C&erca nella pagina");
  etichetta->setBuddy(cerca);
  auto* riga = new QHBoxLayout;
  for (QPushButton* pulsante : {indice, indietro, avanti}) riga->addWidget(pulsante);
  riga->addStretch(1);
  riga->addWidget(etichetta);
  riga->addWidget(cerca);
  indietro->setEnabled(false);
  avanti->setEnabled(false);
  connect(indice, &QPushButton::clicked, this, [this] { txtGuida_->Apri(PaginaIndice); });
  connect(indietro, &QPushButton::clicked, txtGuida_, &QTextBrowser::backward);
  connect(avanti, &QPushButton::clicked, txtGuida_, &QTextBrowser::forward);
  connect(txtGuida_, &QTextBrowser::backwardAvailable, indietro, &QPushButton::setEnabled);
  connect(txtGuida_, &QTextBrowser::forwardAvailable, avanti, &QPushButton::setEnabled);
  connect(cerca, &QLineEdit::returnPressed, this, [this, cerca] { txtGuida_->Cerca(cerca->text()); });
  return riga;
}

void frmGuida::Apri(const QString& pagina) {
  show();
  raise();
  activateWindow();
  txtGuida_->setFocus();
  txtGuida_->Apri(pagina);
}

/// Back and forward hold wherever the focus is, and Enter clicks the button that has it.
void frmGuida::keyPressEvent(QKeyEvent* evento) {
  const bool alt = evento->modifiers() == Qt::AltModifier;
  if (alt && evento->key() == Qt::Key_Left) return txtGuida_->backward();
  if (alt && evento->key() == Qt::Key_Right) return txtGuida_->forward();
  if (evento->key() != Qt::Key_Return && evento->key() != Qt::Key_Enter)
    return QDialog::keyPressEvent(evento);
  if (auto* pulsante = qobject_cast<QPushButton*>(focusWidget())) pulsante->click();
}

}  // namespace parvik
