#include "tokens/frmLingua.h"

#include "common/qtCampi.h"
#include "common/qtTesto.h"
#include "ui_frmLingua.h"

namespace parvik {
namespace {

constexpr int CifreNumero = 3;
const CodiceLingua Predefinita = {.IndiceTabella = "1"};

}  // namespace

frmLingua::frmLingua(QWidget* padre) : frmCodice(padre), ui_(std::make_unique<Ui::frmLingua>()) {
  ui_->setupUi(this);
  for (QLineEdit* campo : {ui_->txtIndice, ui_->txtLungh}) {
    SoloCifre(*campo, CifreNumero);
    SelezionaTuttoAlFuoco(*campo);
    connect(campo, &QLineEdit::textChanged, this, &frmLingua::RicostruisciCodice);
  }
  MostraCodici(*ui_->txtLingua);
  Carica(Predefinita);
  connect(ui_->cmdOk, &QPushButton::clicked, this, &QDialog::accept);
  connect(ui_->cmdCanc, &QPushButton::clicked, this, &QDialog::reject);
}

frmLingua::~frmLingua() = default;

void frmLingua::Mostra(std::string_view contenuto) {
  Carica(LeggiLingua(contenuto));
}

void frmLingua::Carica(const CodiceLingua& lingua) {
  ImpostaComeSta(*ui_->txtIndice, PerSchermo(lingua.IndiceTabella));
  ImpostaComeSta(*ui_->txtLungh, PerSchermo(lingua.Lunghezza));
}

std::vector<std::string> frmLingua::Codici() const {
  if (result() != Accepted) return {};
  return {DaSchermo(ui_->txtLingua->text())};
}

void frmLingua::RicostruisciCodice() {
  const CodiceLingua lingua = {.IndiceTabella = DaSchermo(ui_->txtIndice->text()),
                               .Lunghezza = DaSchermo(ui_->txtLungh->text())};
  ImpostaComeSta(*ui_->txtLingua, PerSchermo(CostruisciLingua(lingua)));
}

}  // namespace parvik
