#include "tokens/frmFlag.h"

#include <QSignalBlocker>
#include <algorithm>

#include "common/NumeroLeniente.h"
#include "common/qtCampi.h"
#include "common/qtTesto.h"
#include "tokens/CodiceFlag.h"
#include "ui_frmFlag.h"

namespace parvik {
namespace {

std::string CodiceDi(const Flag& flag) {
  return CostruisciFlag({.Numero = std::to_string(flag.Codice), .Interruttore = flag.Valore});
}

}  // namespace

frmFlag::frmFlag(std::vector<Flag> flag, QWidget* padre)
    : frmCodice(padre), ui_(std::make_unique<Ui::frmFlag>()), flag_(std::move(flag)) {
  ui_->setupUi(this);
  MostraCodici(*ui_->txtFlag);
  for (const Flag& voce : flag_) ui_->lstFlag->addItem(PerSchermo(voce.Descrizione));
  connect(ui_->lstFlag, &QListWidget::currentRowChanged, this, &frmFlag::CaricaVoce);
  connect(ui_->lstFlag, &QListWidget::itemClicked, this, &frmFlag::TogliAvviso);
  connect(ui_->chkSost, &QCheckBox::toggled, this, &frmFlag::CambiaInterruttore);
  connect(ui_->cmdOk, &QPushButton::clicked, this, &QDialog::accept);
  connect(ui_->cmdCanc, &QPushButton::clicked, this, &QDialog::reject);
  ui_->lstFlag->setCurrentRow(0);
}

frmFlag::~frmFlag() = default;

void frmFlag::Mostra(std::string_view contenuto) {
  if (flag_.empty()) return;
  const CodiceFlag codice = LeggiFlag(contenuto);
  const std::optional<std::size_t> trovata = VoceDi(codice.Numero);
  const std::size_t voce = trovata.value_or(0);
  flag_[voce].Valore = codice.Interruttore;
  ui_->lstFlag->setCurrentRow(static_cast<int>(voce));
  CaricaVoce();  // the entry may have been the selected one
  if (trovata) return;
  const QString numero = EUnNumero(codice.Numero) ? PerSchermo(codice.Numero) : "0";
  AvvisaManca(*ui_->lblAvviso, "Il flag " + numero,
              flag_[voce].Descrizione.empty() ? QString() : ui_->txtFlag->text());
}

/// Numbers are compared as numbers: one of any size is no other entry's.
std::optional<std::size_t> frmFlag::VoceDi(std::string_view numero) const {
  const auto voce = std::ranges::find(flag_, NumeroLeniente(numero), &Flag::Codice);
  if (voce == flag_.end()) return std::nullopt;
  return static_cast<std::size_t>(voce - flag_.begin());
}

std::vector<std::string> frmFlag::Codici() const {
  const auto voce = VoceSelezionata();
  if (result() != Accepted || !voce || flag_[*voce].Descrizione.empty()) return {};
  return {CodiceDi(flag_[*voce])};
}

std::optional<std::size_t> frmFlag::VoceSelezionata() const {
  const int riga = ui_->lstFlag->currentRow();
  if (riga < 0) return std::nullopt;
  return static_cast<std::size_t>(riga);
}

void frmFlag::CaricaVoce() {
  TogliAvviso();
  const auto voce = VoceSelezionata();
  if (!voce) return;
  const QSignalBlocker muto(ui_->chkSost);  // showing a switch does not choose one
  ui_->chkSost->setChecked(flag_[*voce].Valore != "N");
  MostraCodice(flag_[*voce]);
}

void frmFlag::CambiaInterruttore() {
  TogliAvviso();
  const auto voce = VoceSelezionata();
  if (!voce) return;
  flag_[*voce].Valore = ui_->chkSost->isChecked() ? "S" : "N";
  MostraCodice(flag_[*voce]);
}

void frmFlag::MostraCodice(const Flag& flag) {
  ImpostaComeSta(*ui_->txtFlag, PerSchermo(CodiceDi(flag)));
  ui_->txtFlag->setCursorPosition(0);
}

}  // namespace parvik
