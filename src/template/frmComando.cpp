#include "template/frmComando.h"

#include "common/NumeroLeniente.h"
#include "common/qtCampi.h"
#include "common/qtTesto.h"
#include "ui_frmComando.h"

namespace parvik {
namespace {

constexpr int CifreRighe = 2;

}  // namespace

frmComando::frmComando(const ImpostazioniCorpo& attuali, std::int16_t linee, QWidget* padre)
    : frmModale(padre), ui_(std::make_unique<Ui::frmComando>()), attuali_(attuali), linee_(linee) {
  ui_->setupUi(this);
  SoloCifre(*ui_->txtRighe, CifreRighe);
  SelezionaTuttoAlFuoco(*ui_->txtRighe);
  CaricaStringaCorpo();
  connect(ui_->cmdOk, &QPushButton::clicked, this, &QDialog::accept);
  connect(ui_->cmdCanc, &QPushButton::clicked, this, &QDialog::reject);
}

frmComando::~frmComando() = default;

void frmComando::CaricaStringaCorpo() {
  ImpostaComeSta(*ui_->txtRighe, QString::number(attuali_.RigheCorpo));
  SoloLettura(*ui_->txtLinee);
  RendiLeggibile(*ui_->txtLinee);
  ImpostaComeSta(*ui_->txtLinee, QString::number(linee_));
  ui_->chkSbarra->setChecked(!attuali_.FlagSbarra.empty());
  ui_->chkAccorpa->setChecked(!attuali_.FlagAccorpa.empty());
}

ImpostazioniCorpo frmComando::Scelte() const {
  ImpostazioniCorpo scelte = {.RigheCorpo = attuali_.RigheCorpo,
                              .LineeCorpo = linee_,
                              .FlagSbarra = ui_->chkSbarra->isChecked() ? "C" : "",
                              .FlagAccorpa = ui_->chkAccorpa->isChecked() ? "S" : ""};
  const std::string righe = DaSchermo(ui_->txtRighe->text());
  if (!EUnNumero(righe)) return scelte;  // an emptied box says nothing
  if (const auto numero = InteroLeniente(righe)) scelte.RigheCorpo = *numero;
  return scelte;
}

}  // namespace parvik
