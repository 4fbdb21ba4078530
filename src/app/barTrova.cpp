#include "app/barTrova.h"

#include <QAccessible>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QStyle>
#include <QToolButton>

#include "common/qtCampi.h"

namespace parvik {
namespace {

constexpr int CaratteriCasella = 24;

QLineEdit* CreaCasella(const char* nome, const char* detta) {
  auto* casella = new QLineEdit;
  casella->setObjectName(nome);
  casella->setAccessibleName(detta);
  casella->setMinimumWidth(casella->fontMetrics().averageCharWidth() * CaratteriCasella);
  UnaRiga(*casella);
  return casella;
}

QPushButton* CreaPulsante(const char* nome, const char* didascalia, const char* spiegazione) {
  auto* pulsante = new QPushButton(didascalia);
  pulsante->setObjectName(nome);
  pulsante->setToolTip(spiegazione);
  pulsante->setAutoDefault(false);
  return pulsante;
}

QLabel* CreaEtichetta(const char* didascalia, QWidget& di) {
  auto* etichetta = new QLabel(didascalia);
  etichetta->setBuddy(&di);
  return etichetta;
}

QBoxLayout* InRiga(QWidget& riga) {
  auto* disposti = new QHBoxLayout(&riga);
  disposti->setContentsMargins(0, 0, 0, 0);
  return disposti;
}

}  // namespace

barTrova::barTrova(QWidget* padre) : QToolBar("Trova", padre) {
  setObjectName("barTrova");
  setAccessibleName("Trova");
  setMovable(false);
  setFloatable(false);
  auto* dentro = new QWidget;
  auto* righe = new QVBoxLayout(dentro);
  righe->setContentsMargins(4, 2, 4, 2);
  righe->setSpacing(2);
  righe->addWidget(CreaRicerca());
  sostituzione_ = CreaSostituzione();
  righe->addWidget(sostituzione_);
  righe->addWidget(CreaOpzioni());
  addWidget(dentro);
  MostraSostituzione(false);
  AggiornaInvito();
}

QWidget* barTrova::CreaRicerca() {
  auto* riga = new QWidget;
  QBoxLayout* disposti = InRiga(*riga);
  txtCerca_ = CreaCasella("txtCerca", "Testo da trovare");
  txtCerca_->setClearButtonEnabled(true);
  cmdSucc_ = CreaPulsante("cmdSucc", "Successivo", "Trova successivo (F3)");
  cmdPrec_ = CreaPulsante("cmdPrec", "Precedente", "Trova precedente (Maiusc+F3)");
  cmbAmbito_ = new QComboBox;
  cmbAmbito_->setObjectName("cmbAmbito");
  cmbAmbito_->setAccessibleName("Ambito");
  cmbAmbito_->addItems({"Sezione attiva", "Tutte", "Anteprima"});
  lblEsito_ = new QLabel;
  lblEsito_->setObjectName("lblEsito");
  lblEsito_->setTextFormat(Qt::PlainText);
  lblEsito_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* chiudi = new QToolButton;
  chiudi->setObjectName("cmdChiudi");
  chiudi->setAccessibleName("Chiudi");
  chiudi->setToolTip("Chiudi (Esc)");
  chiudi->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
  chiudi->setAutoRaise(true);
  chiudi->setFocusPolicy(Qt::TabFocus);
  disposti->addWidget(CreaEtichetta("Trova", *txtCerca_));
  disposti->addWidget(txtCerca_);
  disposti->addWidget(cmdPrec_);
  disposti->addWidget(cmdSucc_);
  disposti->addWidget(CreaEtichetta("&Ambito", *cmbAmbito_));
  disposti->addWidget(cmbAmbito_);
  disposti->addWidget(lblEsito_, 1);
  disposti->addWidget(chiudi);
  connect(txtCerca_, &QLineEdit::textChanged, this, &barTrova::Cambiata);
  connect(cmbAmbito_, &QComboBox::currentIndexChanged, this, [this] {
    AggiornaInvito();
    emit Cambiata();
  });
  connect(cmdSucc_, &QPushButton::clicked, this, [this] { emit DaTrovare(1); });
  connect(cmdPrec_, &QPushButton::clicked, this, [this] { emit DaTrovare(-1); });
  connect(chiudi, &QToolButton::clicked, this, &barTrova::DaChiudere);
  return riga;
}

QCheckBox* barTrova::CreaOpzione(const char* nome, const char* didascalia) {
  auto* opzione = new QCheckBox(didascalia);
  opzione->setObjectName(nome);
  return opzione;
}

QWidget* barTrova::CreaOpzioni() {
  auto* riga = new QWidget;
  QBoxLayout* disposti = InRiga(*riga);
  chkMaiusc_ = CreaOpzione("chkMaiusc", "&Maiuscole/minuscole");
  chkParola_ = CreaOpzione("chkParola", "&Parola intera");
  chkTesto_ = CreaOpzione("chkTesto", "Solo t&esto");
  chkCodici_ = CreaOpzione("chkCodici", "Solo co&dici");
  chkRegex_ = CreaOpzione("chkRegex", "Espressione &regolare");
  chkCodici_->setToolTip(
      "Trova i codici per genere, numero o descrizione: «cliente», «V105», «105 larghezza 29»");
  for (QCheckBox* opzione : {chkMaiusc_, chkParola_, chkTesto_, chkCodici_, chkRegex_}) {
    disposti->addWidget(opzione);
    connect(opzione, &QCheckBox::toggled, this, [this] {
      AggiornaInvito();
      emit Cambiata();
    });
  }
  disposti->addStretch(1);
  Escludi(*chkTesto_, *chkCodici_);
  Escludi(*chkCodici_, *chkTesto_);
  return riga;
}

/// One of the two at most is on.
void barTrova::Escludi(QCheckBox& accesa, QCheckBox& altra) {
  connect(&accesa, &QCheckBox::toggled, &altra, [&altra](bool si) {
    if (si) altra.setChecked(false);
  });
}

QWidget* barTrova::CreaSostituzione() {
  auto* riga = new QWidget;
  QBoxLayout* disposti = InRiga(*riga);
  txtSost_ = CreaCasella("txtSost", "Sostituisci con");
  cmdSost_ =
      CreaPulsante("cmdSost", "&Sostituisci", "Sostituisce il risultato attuale e passa al successivo");
  cmdSostTutto_ =
      CreaPulsante("cmdSostTutto", "Sostituisci t&utto", "Sostituisce tutti i risultati, in un passo solo");
  disposti->addWidget(CreaEtichetta("Sostituisci con", *txtSost_));
  disposti->addWidget(txtSost_, 1);
  disposti->addWidget(cmdSost_);
  disposti->addWidget(cmdSostTutto_);
  connect(cmdSost_, &QPushButton::clicked, this, &barTrova::DaSostituire);
  connect(cmdSostTutto_, &QPushButton::clicked, this, &barTrova::TutteDaSostituire);
  return riga;
}

/// What can be written in the box depends on what is looked for.
void barTrova::AggiornaInvito() {
  const bool anteprima = AmbitoScelto() == Ambito::Anteprima;
  for (QCheckBox* opzione : {chkTesto_, chkCodici_})
    if (opzione != nullptr) opzione->setEnabled(!anteprima);
  if (chkCodici_ == nullptr || txtSost_ == nullptr) return;
  txtSost_->setEnabled(!anteprima);
  if (Opzioni().Dove == DoveCercare::SoloCodici) {
    txtSost_->setPlaceholderText("larghezza 32, a destra, riempimento ., decimali 2, numero 106");
  } else {
    txtSost_->setPlaceholderText(chkRegex_->isChecked() ? "\\0 quello che si è trovato, \\1 il primo gruppo"
                                                        : QString());
  }
}

void barTrova::Comincia(const QString& cercato) {
  if (!cercato.isEmpty()) txtCerca_->setText(cercato);
  txtCerca_->setFocus(Qt::ShortcutFocusReason);
  txtCerca_->selectAll();
}

void barTrova::MostraSostituzione(bool mostra) {
  sostituzione_->setVisible(mostra);
}

void barTrova::ImpostaAmbito(Ambito ambito) {
  cmbAmbito_->setCurrentIndex(static_cast<int>(ambito));
}

Ambito barTrova::AmbitoScelto() const {
  return static_cast<Ambito>(cmbAmbito_->currentIndex());
}

Criterio barTrova::Opzioni() const {
  Criterio criterio{.Testo = {},
                    .Dove = DoveCercare::Ovunque,
                    .Maiuscole = chkMaiusc_->isChecked(),
                    .Parola = chkParola_->isChecked(),
                    .Espressione = chkRegex_->isChecked()};
  if (AmbitoScelto() == Ambito::Anteprima) return criterio;
  if (chkTesto_->isChecked()) criterio.Dove = DoveCercare::SoloTesto;
  if (chkCodici_->isChecked()) criterio.Dove = DoveCercare::SoloCodici;
  return criterio;
}

void barTrova::MostraEsito(const QString& esito) {
  if (lblEsito_->text() == esito) return;
  lblEsito_->setText(esito);
  lblEsito_->setToolTip(esito);
  QAccessibleEvent detto(lblEsito_, QAccessible::Alert);
  QAccessible::updateAccessibility(&detto);
}

void barTrova::Abilita(bool trovabile, bool sostituibile) {
  for (QPushButton* pulsante : {cmdSucc_, cmdPrec_}) pulsante->setEnabled(trovabile);
  for (QPushButton* pulsante : {cmdSost_, cmdSostTutto_}) pulsante->setEnabled(sostituibile);
}

void barTrova::keyPressEvent(QKeyEvent* evento) {
  const bool invio = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
  if (evento->key() == Qt::Key_Escape) {
    emit DaChiudere();
  } else if (invio && txtCerca_->hasFocus()) {
    emit DaTrovare(evento->modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1);
  } else if (invio && txtSost_->hasFocus()) {
    emit DaSostituire();
  } else {
    QToolBar::keyPressEvent(evento);
  }
}

}  // namespace parvik
