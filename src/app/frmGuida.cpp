#include "app/frmGuida.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "common/qtFuoco.h"
#include "common/qtSchermo.h"

namespace parvik {
namespace {

const QSize DimensioneIniziale(640, 560);

}  // namespace

frmGuida::frmGuida(const qtMenu& menu, QWidget* padre) : QDialog(padre), txtGuida_(new QTextBrowser) {
  setObjectName("frmGuida");
  setWindowTitle("Guida");
  txtGuida_->setObjectName("txtGuida");
  txtGuida_->setAccessibleName("Guida");
  txtGuida_->setHtml(TestoGuida(menu));
  MostraFuoco(*txtGuida_);
  auto* pulsanti = new QDialogButtonBox;
  auto* chiudi = pulsanti->addButton("&Chiudi", QDialogButtonBox::RejectRole);
  chiudi->setObjectName("cmdChiudi");
  chiudi->setAutoDefault(false);  // a default button does not show that it has the focus
  connect(pulsanti, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* colonna = new QVBoxLayout(this);
  colonna->addWidget(txtGuida_);
  colonna->addWidget(pulsanti);
  resize(EntroLoSchermo(*this, DimensioneIniziale));
}

void frmGuida::Apri(PaginaGuida pagina) {
  show();
  raise();
  activateWindow();
  txtGuida_->setFocus();
  txtGuida_->scrollToAnchor(AncoraDi(pagina));
}

}  // namespace parvik
