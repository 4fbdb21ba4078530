#include "tokens/frmVar.h"

#include <QMessageBox>
#include <QScopedValueRollback>

#include "common/NumeroLeniente.h"
#include "common/Ritagli.h"
#include "common/qtCampi.h"
#include "common/qtTesto.h"
#include "tokens/CodiceVariabile.h"
#include "tokens/TrovaVoce.h"
#include "tokens/ValoreCampo.h"
#include "ui_frmVar.h"

namespace parvik {
namespace {

constexpr int CifreLunghezza = 3;
constexpr std::int16_t ASinistra = 1;
constexpr std::int16_t ADestra = 0;
const QString Nessuno = "0";  // no lines, no decimals

bool Numerica(const Variabile& variabile) {
  return variabile.Intero4 != 0;
}

/// What a number box says: 0 when it is empty.
std::int16_t Numero(const QString& testo) {
  const Esito<std::int16_t> numero = InteroLeniente(DaSchermo(testo));
  return numero ? *numero : std::int16_t{0};
}

void Abilita(std::initializer_list<QWidget*> controlli, bool abilitati) {
  for (QWidget* controllo : controlli) controllo->setEnabled(abilitati);
}

/// The box beside a check: without the check it says none.
void SeguiSpunta(QLineEdit& casella, bool spuntata) {
  if (!spuntata) casella.setText(Nessuno);
  casella.setEnabled(spuntata);
}

void MostraDallInizio(QLineEdit& casella, const std::string& codice) {
  ImpostaComeSta(casella, PerSchermo(codice));
  casella.setCursorPosition(0);
}

}  // namespace

frmVar::frmVar(std::vector<Variabile> variabili, ChiediFlag chiediFlag, QWidget* padre)
    : frmCodice(padre),
      ui_(std::make_unique<Ui::frmVar>()),
      variabili_(std::move(variabili)),
      chiediFlag_(std::move(chiediFlag)) {
  ui_->setupUi(this);
  PreparaCaselle();
  for (const Variabile& voce : variabili_) ui_->lstVar->addItem(PerSchermo(voce.Descrizione));
  Collega();
  ui_->lstVar->setCurrentRow(0);
}

frmVar::~frmVar() = default;

void frmVar::PreparaCaselle() {
  SoloCifre(*ui_->txtLungh, CifreLunghezza);
  SoloCifre(*ui_->txtMulti, 1);
  SoloCifre(*ui_->txtDecimali, 1, "*");
  TestoDiCodice(*ui_->txtCar, 1);
  UnaRiga(*ui_->txtTrova);
  Tasti().InvioIn(*ui_->txtTrova, *ui_->cmdTrova);
  for (QLineEdit* casella : {ui_->txtTrova, ui_->txtLungh, ui_->txtMulti, ui_->txtDecimali}) {
    SelezionaTuttoAlFuoco(*casella);
  }
  for (QLineEdit* casella : {ui_->txtVar, ui_->txtFlag, ui_->txtValCampo}) MostraCodici(*casella);
  ConPassoFisso(*ui_->txtCar);
}

void frmVar::Collega() {
  connect(ui_->lstVar, &QListWidget::currentRowChanged, this, &frmVar::CaricaVoce);
  connect(ui_->lstVar, &QListWidget::itemClicked, this, &frmVar::TogliAvviso);
  connect(ui_->lstVar, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
  connect(ui_->txtTrova, &QLineEdit::textChanged, this, &frmVar::Restringi);
  connect(ui_->cmdTrova, &QPushButton::clicked, this, &frmVar::Cerca);
  connect(ui_->cmdFlag, &QPushButton::clicked, this, &frmVar::ScegliFlag);
  CollegaFormato();
  connect(ui_->cmdOk, &QPushButton::clicked, this, &QDialog::accept);
  connect(ui_->cmdCanc, &QPushButton::clicked, this, &QDialog::reject);
}

void frmVar::CollegaFormato() {
  CollegaNumero(*ui_->txtLungh, &Variabile::Intero2);
  CollegaTesto(*ui_->txtCar, &Variabile::Testo1);
  connect(ui_->optAll_0, &QRadioButton::toggled, this, [this](bool aSinistra) {
    Scrivi([aSinistra](Variabile& variabile) { variabile.Intero3 = aSinistra ? ASinistra : ADestra; });
  });
  CollegaNumero(*ui_->txtMulti, &Variabile::Intero5);
  connect(ui_->chkMulti, &QCheckBox::toggled, this, [this](bool spuntata) {
    if (caricando_) return;
    TogliAvviso();
    SeguiSpunta(*ui_->txtMulti, spuntata);
  });
  CollegaTesto(*ui_->txtDecimali, &Variabile::Testo2);
  connect(ui_->chkDecimali, &QCheckBox::toggled, this, [this](bool spuntati) {
    if (caricando_) return;
    TogliAvviso();
    SeguiSpunta(*ui_->txtDecimali, spuntati);
    MostraCampione();
  });
  CollegaSpunta(*ui_->chkSegno, &Variabile::Intero6);
  CollegaSpunta(*ui_->chkZero, &Variabile::Intero7);
  CollegaSpunta(*ui_->chkSep, &Variabile::Intero8);
  connect(ui_->chkEuro, &QCheckBox::toggled, this, [this](bool acceso) {
    Scrivi([acceso](Variabile& variabile) { variabile.Testo3 = acceso ? "1" : "0"; });
  });
}

void frmVar::CollegaNumero(QLineEdit& casella, std::int16_t Variabile::*campo) {
  connect(&casella, &QLineEdit::textChanged, this, [this, campo](const QString& testo) {
    Scrivi([campo, &testo](Variabile& variabile) { variabile.*campo = Numero(testo); });
  });
}

void frmVar::CollegaTesto(QLineEdit& casella, std::string Variabile::*campo) {
  connect(&casella, &QLineEdit::textChanged, this, [this, campo](const QString& testo) {
    Scrivi([campo, &testo](Variabile& variabile) { variabile.*campo = DaSchermo(testo); });
  });
}

void frmVar::CollegaSpunta(QCheckBox& spunta, std::int16_t Variabile::*campo) {
  connect(&spunta, &QCheckBox::toggled, this, [this, campo](bool acceso) {
    Scrivi([campo, acceso](Variabile& variabile) { variabile.*campo = acceso ? 1 : 0; });
  });
}

void frmVar::Mostra(std::string_view contenuto) {
  if (variabili_.empty()) return;
  const VariabileLetta letta = LeggiVariabile(contenuto, variabili_);
  if (letta.Voce) variabili_[*letta.Voce] = letta.Formato;
  Seleziona(letta.Voce.value_or(0));
  if (letta.Voce) return;
  AvvisaManca(*ui_->lblAvviso, QStringLiteral("La variabile %1").arg(letta.Formato.Intero1),
              SenzaVariabili() ? QString() : ui_->txtVar->text());
}

bool frmVar::SenzaVariabili() const {
  return variabili_.empty() || variabili_.front().Descrizione.empty();
}

std::vector<std::string> frmVar::Codici() const {
  const auto voce = VoceSelezionata();
  if (result() != Accepted || !voce || SenzaVariabili()) return {};
  std::vector<std::string> codici;
  if (!Rifila(codiceFlag_).empty()) codici.push_back(codiceFlag_);
  codici.push_back(CostruisciVariabile(variabili_[*voce]));
  return codici;
}

std::optional<std::size_t> frmVar::VoceSelezionata() const {
  const int riga = ui_->lstVar->currentRow();
  if (riga < 0) return std::nullopt;
  return static_cast<std::size_t>(riga);
}

/// Selecting the selected entry loads it again.
void frmVar::Seleziona(std::size_t voce) {
  if (voce == VoceSelezionata()) {
    CaricaVoce();
  } else {
    ui_->lstVar->setCurrentRow(static_cast<int>(voce));
  }
}

void frmVar::CaricaVoce() {
  TogliAvviso();
  const auto voce = VoceSelezionata();
  if (!voce) return;
  Variabile& variabile = variabili_[*voce];
  {
    const QScopedValueRollback guardia(caricando_, true);
    CaricaControlli(variabile);
  }
  if (ui_->chkEuro->isChecked()) variabile.Testo3 = "1";
  MostraCodice(variabile);
  MostraCampione();
}

void frmVar::CaricaControlli(const Variabile& variabile) {
  ImpostaComeSta(*ui_->txtLungh, QString::number(variabile.Intero2));
  ImpostaComeSta(*ui_->txtCar, PerSchermo(variabile.Testo1));
  (variabile.Intero3 == ASinistra ? ui_->optAll_0 : ui_->optAll_1)->setChecked(true);
  (Numerica(variabile) ? ui_->optTipoVar_1 : ui_->optTipoVar_0)->setChecked(true);
  AbilitaFormato(variabile);
  ui_->chkMulti->setChecked(variabile.Intero5 != 0);
  ImpostaComeSta(*ui_->txtMulti, QString::number(variabile.Intero5));
  ui_->chkDecimali->setChecked(variabile.Testo2 != "0");
  ImpostaComeSta(*ui_->txtDecimali, PerSchermo(variabile.Testo2));
  ui_->chkZero->setChecked(variabile.Intero7 == 1);
  ui_->chkSegno->setChecked(variabile.Intero6 == 1);
  ui_->chkSep->setChecked(variabile.Intero8 == 1);
  ui_->chkEuro->setChecked(variabile.Testo3 != "0");
}

/// Lines are for strings, the numeric format is for numbers.
void frmVar::AbilitaFormato(const Variabile& variabile) {
  Abilita({ui_->chkMulti, ui_->txtMulti}, !Numerica(variabile));
  Abilita({ui_->chkDecimali, ui_->txtDecimali, ui_->chkSegno, ui_->chkSep, ui_->chkZero, ui_->chkEuro},
          Numerica(variabile));
}

void frmVar::Scrivi(const std::function<void(Variabile&)>& modifica) {
  const auto voce = VoceSelezionata();
  if (caricando_ || !voce) return;
  TogliAvviso();
  modifica(variabili_[*voce]);
  MostraCodice(variabili_[*voce]);
  MostraCampione();
}

void frmVar::MostraCodice(const Variabile& variabile) {
  MostraDallInizio(*ui_->txtVar, CostruisciVariabile(variabile));
}

void frmVar::MostraCampione() {
  if (caricando_) return;
  const std::string riempimento = DaSchermo(ui_->txtCar->text());
  const std::string decimali = DaSchermo(ui_->txtDecimali->text());
  const std::string campione = ValoreCampo({.Larghezza = Numero(ui_->txtLungh->text()),
                                            .Riempimento = riempimento,
                                            .ZeroVisibile = ui_->chkZero->isChecked(),
                                            .ConDecimali = ui_->chkDecimali->isChecked(),
                                            .Decimali = decimali});
  ImpostaComeSta(*ui_->txtValCampo, PerSchermo(campione));
}

/// Shows the entries that a search could come to. Nothing is chosen by it: the selected one stays so, shown
/// or not.
void frmVar::Restringi() {
  const QString testo = ui_->txtTrova->text();
  const std::string cercato = DaSchermo(testo);
  const bool possibile = SoloAnsi(testo) == testo;  // the catalogue can hold it
  for (std::size_t i = 0; i < variabili_.size(); ++i) {
    const Variabile& voce = variabili_[i];
    const bool mostrata = possibile && (cercato.empty() || SiTrova(voce.Descrizione, voce.Intero1, cercato));
    ui_->lstVar->setRowHidden(static_cast<int>(i), !mostrata);
  }
}

void frmVar::Cerca() {
  if (ui_->txtTrova->text().isEmpty()) return;
  if (const auto voce = VoceCercata()) {
    Seleziona(*voce);
    return;
  }
  QMessageBox(QMessageBox::NoIcon, windowTitle(), "Testo non trovato!", QMessageBox::Ok, this).exec();
  ui_->txtTrova->setFocus();
}

std::optional<std::size_t> frmVar::VoceCercata() const {
  const QString cercato = ui_->txtTrova->text();
  const auto selezionata = VoceSelezionata();
  if (!selezionata || SoloAnsi(cercato) != cercato) return std::nullopt;  // the catalogue cannot hold it
  std::vector<std::string_view> voci;
  std::vector<int> numeri;
  for (const Variabile& variabile : variabili_) {
    voci.push_back(variabile.Descrizione);
    numeri.push_back(variabile.Intero1);
  }
  const auto trovata = TrovaVoce(voci, *selezionata, DaSchermo(cercato));
  return trovata ? trovata : TrovaNumero(numeri, *selezionata, DaSchermo(cercato));
}

void frmVar::ScegliFlag() {
  const std::string codice = chiediFlag_(this);
  if (codice.empty()) return;
  codiceFlag_ = codice;
  MostraDallInizio(*ui_->txtFlag, codiceFlag_);
}

}  // namespace parvik
