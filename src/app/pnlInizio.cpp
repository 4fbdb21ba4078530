#include "app/pnlInizio.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace parvik {
namespace {

constexpr int LarghezzaMassima = 560;  // pixels, of what stands in it
constexpr int RigheElenco = 10;

constexpr const char* Invito =
    "Per cominciare si sceglie il tipo di stampa; poi si apre un modello, o se ne scrive uno nuovo. "
    "Un modello si può anche trascinare qui.";

}  // namespace

pnlInizio::pnlInizio(QWidget* padre) : QWidget(padre) {
  setObjectName("pnlInizio");
  setAccessibleName("Inizio");
  auto* invito = new QLabel(Invito);
  invito->setObjectName("lblInizio");
  invito->setWordWrap(true);
  cmdTipo_ = new QPushButton("Scegli il tipo di stampa...");
  cmdTipo_->setObjectName("cmdTipo");
  cmdTipo_->setAutoDefault(true);  // Enter clicks it
  lstRecenti_ = new QListWidget;
  lstRecenti_->setObjectName("lstRecenti");
  lstRecenti_->setAccessibleName("Modelli recenti");
  lstRecenti_->setTextElideMode(Qt::ElideMiddle);
  lstRecenti_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lstRecenti_->hide();
  chkRicorda_ = new QCheckBox("Ricorda tra una sessione e l'altra");
  chkRicorda_->setObjectName("chkRicorda");
  auto* colonna = new QVBoxLayout;
  colonna->addStretch(1);
  colonna->addWidget(invito);
  colonna->addWidget(cmdTipo_, 0, Qt::AlignLeft);
  colonna->addWidget(lstRecenti_);
  colonna->addWidget(chkRicorda_);
  colonna->addStretch(2);
  auto* mezzo = new QWidget;
  mezzo->setMaximumWidth(LarghezzaMassima);
  mezzo->setLayout(colonna);
  auto* riga = new QHBoxLayout(this);
  riga->setSizeConstraint(QLayout::SetNoConstraint);
  riga->addWidget(mezzo);
  connect(cmdTipo_, &QPushButton::clicked, this, &pnlInizio::TipoDaScegliere);
  connect(chkRicorda_, &QCheckBox::clicked, this, &pnlInizio::RicordaCommutato);
  connect(lstRecenti_, &QListWidget::itemActivated, this,
          [this](QListWidgetItem* voce) { emit DaAprire(lstRecenti_->row(voce)); });
  padre->installEventFilter(this);
  setGeometry(padre->rect());
}

void pnlInizio::Elenca(const QStringList& modelli) {
  lstRecenti_->clear();
  for (const QString& modello : modelli) {
    auto* voce = new QListWidgetItem(modello, lstRecenti_);
    voce->setToolTip(modello);
  }
  if (!modelli.isEmpty()) {
    lstRecenti_->setCurrentRow(0);
    lstRecenti_->setMaximumHeight(lstRecenti_->sizeHintForRow(0) * RigheElenco +
                                  2 * lstRecenti_->frameWidth());
  }
  lstRecenti_->setVisible(!modelli.isEmpty());
}

void pnlInizio::Ricorda(bool acceso) {
  chkRicorda_->setChecked(acceso);
}

bool pnlInizio::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::Resize) setGeometry(parentWidget()->rect());
  return QWidget::eventFilter(oggetto, evento);
}

}  // namespace parvik
