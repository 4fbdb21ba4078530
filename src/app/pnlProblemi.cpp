#include "app/pnlProblemi.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QVBoxLayout>
#include <algorithm>

#include "common/qtCampi.h"
#include "common/qtFuoco.h"
#include "common/qtTesto.h"

namespace parvik {
namespace {

constexpr int CifrePagina = 5;

std::optional<std::size_t> Numero(const QLineEdit& casella) {
  bool letto = false;
  const uint numero = casella.text().toUInt(&letto);
  return letto && numero > 0 ? std::optional<std::size_t>(numero) : std::nullopt;
}

}  // namespace

pnlProblemi::pnlProblemi(const Editore& editore, QWidget* padre)
    : QDockWidget("Problemi", padre),
      editore_(editore),
      elenco_(new qtElencoProblemi(editore, this)),
      lstProblemi_(new QTreeView),
      lblAvviso_(new QLabel) {
  setObjectName("pnlProblemi");
  setAccessibleName("Problemi");
  lblAvviso_->setObjectName("lblAvviso");
  lblAvviso_->setTextFormat(Qt::PlainText);
  lblAvviso_->setWordWrap(true);
  lblAvviso_->hide();
  lstProblemi_->setObjectName("lstProblemi");
  lstProblemi_->setAccessibleName("Problemi");
  lstProblemi_->setModel(elenco_);
  MostraFuoco(*lstProblemi_);
  lstProblemi_->setRootIsDecorated(false);
  lstProblemi_->setUniformRowHeights(true);
  lstProblemi_->setAllColumnsShowFocus(true);
  lstProblemi_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  lstProblemi_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  lstProblemi_->setTabKeyNavigation(false);
  lstProblemi_->header()->setStretchLastSection(false);
  lstProblemi_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  lstProblemi_->header()->setSectionResizeMode(qtElencoProblemi::Testo, QHeaderView::Stretch);
  auto* dentro = new QWidget;
  auto* colonna = new QVBoxLayout(dentro);
  colonna->setContentsMargins(4, 4, 4, 4);
  colonna->addWidget(lblAvviso_);
  colonna->addWidget(lstProblemi_);
  colonna->addWidget(CreaPiede());
  setWidget(dentro);
  connect(lstProblemi_, &QTreeView::activated, this,
          [this](const QModelIndex& dove) { emit Chiesto(static_cast<std::size_t>(dove.row())); });
  connect(lstProblemi_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &pnlProblemi::AggiornaPulsante);
  AggiornaPulsante();
}

QLineEdit* pnlProblemi::CreaNumero(const char* nome) {
  auto* casella = new QLineEdit;
  casella->setObjectName(nome);
  SoloCifre(*casella, CifrePagina);
  SelezionaTuttoAlFuoco(*casella);
  RendiLeggibile(*casella);
  casella->setMaximumWidth(casella->fontMetrics().horizontalAdvance(QString(CifrePagina + 3, u'0')));
  connect(casella, &QLineEdit::textChanged, this, &pnlProblemi::PaginaCambiata);
  return casella;
}

QWidget* pnlProblemi::CreaPiede() {
  auto* piede = new QWidget;
  auto* riga = new QHBoxLayout(piede);
  riga->setContentsMargins(0, 0, 0, 0);
  cmdCorreggi_ = new QPushButton("Correggi");
  cmdCorreggi_->setObjectName("cmdCorreggi");
  cmdCorreggi_->setToolTip("Corregge i problemi scelti che hanno una sola correzione");
  connect(cmdCorreggi_, &QPushButton::clicked, this, [this] {
    lstProblemi_->setFocus();  // the button cannot keep it, and a box would keep Ctrl+Z for itself
    emit DaCorreggere();
  });
  txtColonne_ = CreaNumero("txtColonne");
  txtRighePag_ = CreaNumero("txtRighePag");
  chkCornici_ = new QCheckBox("Cornici");
  chkCornici_->setObjectName("chkCornici");
  connect(chkCornici_, &QCheckBox::toggled, this, &pnlProblemi::PaginaCambiata);
  riga->addWidget(cmdCorreggi_);
  riga->addStretch(1);
  for (const auto& [didascalia, casella] :
       {std::pair("Larghezza", txtColonne_), std::pair("Righe", txtRighePag_)}) {
    auto* etichetta = new QLabel(didascalia);
    etichetta->setBuddy(casella);
    riga->addWidget(etichetta);
    riga->addWidget(casella);
  }
  riga->addWidget(chkCornici_);
  return piede;
}

/// The row that was chosen stays chosen where there still is one.
void pnlProblemi::Aggiorna() {
  const int prima = lstProblemi_->currentIndex().row();
  elenco_->Rinnova();
  if (prima >= 0 && elenco_->rowCount() > 0) {
    const QModelIndex ora = elenco_->index(std::min(prima, elenco_->rowCount() - 1), 0);
    lstProblemi_->selectionModel()->setCurrentIndex(ora, QItemSelectionModel::NoUpdate);
  }
  const QString detti = DaUtf8(editore_.DettiProblemi());
  setWindowTitle(detti.isEmpty() ? "Problemi" : "Problemi: " + detti);
  lblAvviso_->setText(DaUtf8(editore_.Trovati().Avviso()));
  lblAvviso_->setVisible(!lblAvviso_->text().isEmpty());
  AggiornaPulsante();
}

PaginaVerifica pnlProblemi::Pagina() const {
  PaginaVerifica pagina{
      .Larghezza = Numero(*txtColonne_), .Righe = Numero(*txtRighePag_), .Cornici = chkCornici_->isChecked()};
  if (foglio_) {
    pagina.Larghezza = foglio_->Colonne;
    pagina.Righe = foglio_->Righe;
  }
  return pagina;
}

/// Without a sheet the boxes are empty again, as they were at first.
void pnlProblemi::MostraFoglio(const std::optional<PaginaFoglio>& foglio) {
  if (foglio == foglio_) return;
  foglio_ = foglio;
  const auto mostra = [&](QLineEdit& casella, std::size_t quanti) {
    casella.setText(foglio ? QString::number(quanti) : QString());
    casella.setEnabled(!foglio);
  };
  mostra(*txtColonne_, foglio ? foglio->Colonne : 0);
  mostra(*txtRighePag_, foglio ? foglio->Righe : 0);
}

std::optional<std::size_t> pnlProblemi::Passa(int passo) {
  const int quanti = elenco_->rowCount();
  if (quanti == 0) return std::nullopt;
  const int ora = lstProblemi_->currentIndex().row();
  const int prossimo = ora < 0 ? (passo > 0 ? 0 : quanti - 1) : (ora + passo + quanti) % quanti;
  lstProblemi_->setCurrentIndex(elenco_->index(prossimo, 0));
  return static_cast<std::size_t>(prossimo);
}

std::vector<std::size_t> pnlProblemi::Scelti() const {
  std::vector<std::size_t> scelti;
  for (const QModelIndex& dove : lstProblemi_->selectionModel()->selectedRows())
    scelti.push_back(static_cast<std::size_t>(dove.row()));
  std::ranges::sort(scelti);
  return scelti;
}

void pnlProblemi::AggiornaPulsante() {
  const std::vector<Rilievo>& trovati = editore_.Trovati().Trovati();
  cmdCorreggi_->setEnabled(std::ranges::any_of(Scelti(), [&trovati](std::size_t quale) {
    return quale < trovati.size() && trovati[quale].Cosa == Rimedio::Pronto;
  }));
}

void pnlProblemi::closeEvent(QCloseEvent* evento) {
  QDockWidget::closeEvent(evento);
  emit Chiuso();
}

}  // namespace parvik
