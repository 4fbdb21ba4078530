#include "output/frmSettaFlag.h"

#include <QFocusEvent>
#include <QFontDatabase>
#include <QScrollBar>

#include "common/qtTesto.h"
#include "output/FlagPerStampe.h"
#include "ui_frmSettaFlag.h"

namespace parvik {
namespace {

// Where the columns of a row end, in characters.
constexpr int FineFlag = 5;
constexpr int FineDescrizione = 68;
constexpr int FineStato = 69;

/// The user went to a control, as opposed to: the window came to the front, or a menu closed.
bool EUnaScelta(Qt::FocusReason motivo) {
  return motivo != Qt::ActiveWindowFocusReason && motivo != Qt::PopupFocusReason &&
         motivo != Qt::MenuBarFocusReason;
}

}  // namespace

frmSettaFlag::frmSettaFlag(FlagPerStampe& flag, QWidget* padre)
    : QDialog(padre), ui_(std::make_unique<Ui::frmSettaFlag>()), flag_(flag) {
  ui_->setupUi(this);
  PreparaLista();
  connect(this, &QDialog::rejected, this, &frmSettaFlag::Nascosta);
  connect(ui_->optVEFA_0, &QRadioButton::clicked, this, [this] { SettaFlag(true); });
  connect(ui_->optVEFA_1, &QRadioButton::clicked, this, [this] { SettaFlag(false); });
  ui_->optVEFA_0->installEventFilter(this);
  ui_->optVEFA_1->installEventFilter(this);
  Ricarica();
}

frmSettaFlag::~frmSettaFlag() = default;

void frmSettaFlag::PreparaLista() {
  QFont carattere = ui_->lstFlag->font();
  carattere.setFamilies({"Courier New", QFontDatabase::systemFont(QFontDatabase::FixedFont).family()});
  carattere.setStyleHint(QFont::TypeWriter);
  carattere.setFixedPitch(true);
  ui_->lstFlag->setFont(carattere);
  AllineaIntestazioni();
}

void frmSettaFlag::Ricarica() {
  ui_->lstFlag->clear();
  for (const std::string& riga : flag_.Righe()) ui_->lstFlag->addItem(PerSchermo(riga));
  ui_->lstFlag->setCurrentRow(0, QItemSelectionModel::NoUpdate);
  ui_->optVEFA_0->setChecked(true);
}

void frmSettaFlag::SettaFlag(bool vero) {
  for (const QModelIndex& scelta : ui_->lstFlag->selectionModel()->selectedRows()) {
    const auto riga = static_cast<std::size_t>(scelta.row());
    if (riga >= flag_.Righe().size()) continue;  // the rows have become fewer since the list was filled
    flag_.SettaFlag(riga, vero);
    ui_->lstFlag->item(scelta.row())->setText(PerSchermo(flag_.Righe()[riga]));
  }
  emit Cambiati();
}

/// Each heading begins where its column begins and ends where the next one begins; the last one takes the
/// room that is left. The list is as wide as its rows, so that it never scrolls sideways under the headings.
void frmSettaFlag::AllineaIntestazioni() {
  const QListWidget& lista = *ui_->lstFlag;
  const int margine = lista.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &lista) + 1;
  const auto fine = [&](int colonna) {
    const int larghezza = lista.fontMetrics().horizontalAdvance(QString(colonna, u' '));
    return lista.frameWidth() + margine + larghezza;
  };
  const int barra = lista.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &lista);
  const int stato = qMax(fine(FineStato) - fine(FineDescrizione) + margine + barra + lista.frameWidth(),
                         ui_->cmdStato->minimumSizeHint().width());
  ui_->cmdFlag->setFixedWidth(fine(FineFlag));
  ui_->cmdDescrizione->setFixedWidth(fine(FineDescrizione) - fine(FineFlag));
  ui_->lstFlag->setMinimumWidth(fine(FineDescrizione) + stato);
}

void frmSettaFlag::showEvent(QShowEvent* evento) {
  ui_->lstFlag->setFocus();  // an option that had the focus would act when the window opens
  QDialog::showEvent(evento);
}

void frmSettaFlag::changeEvent(QEvent* evento) {
  QDialog::changeEvent(evento);
  if (evento->type() == QEvent::StyleChange || evento->type() == QEvent::FontChange) AllineaIntestazioni();
}

/// To give an option the focus is to click it.
bool frmSettaFlag::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::FocusIn && EUnaScelta(static_cast<QFocusEvent*>(evento)->reason())) {
    auto& opzione = static_cast<QRadioButton&>(*oggetto);
    opzione.setChecked(true);
    SettaFlag(&opzione == ui_->optVEFA_0);
  }
  return QDialog::eventFilter(oggetto, evento);
}

}  // namespace parvik
