#include "app/frmAbout.h"

#include <QLayout>
#include <algorithm>

#include "start/Versione.h"
#include "ui_frmAbout.h"

namespace parvik {

frmAbout::frmAbout(QWidget* padre)
    : frmModale(padre, Chiusura::ComeAnnulla), ui_(std::make_unique<Ui::frmAbout>()) {
  ui_->setupUi(this);
  ui_->picIcon->setPixmap(windowIcon().pixmap(64, 64));
  ui_->lblVersion->setText(QStringLiteral("Version %1").arg(VersioneVisibile));
  resize(width(), std::max(height(), layout()->totalHeightForWidth(width())));  // in a large font
  connect(ui_->cmdOK, &QPushButton::clicked, this, &QDialog::accept);
}

frmAbout::~frmAbout() = default;

}  // namespace parvik
