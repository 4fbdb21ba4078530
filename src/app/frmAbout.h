// The About box.
#pragma once

#include <memory>

#include "common/frmModale.h"

namespace Ui {
class frmAbout;
}

namespace parvik {

class frmAbout final : public frmModale {
  Q_OBJECT

 public:
  explicit frmAbout(QWidget* padre);
  ~frmAbout() override;

 private:
  std::unique_ptr<Ui::frmAbout> ui_;
};

}  // namespace parvik
