// The About box.
#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class frmAbout;
}

namespace parvik {

class frmAbout final : public QDialog {
  Q_OBJECT

 public:
  explicit frmAbout(QWidget* padre);
  ~frmAbout() override;

 private:
  std::unique_ptr<Ui::frmAbout> ui_;
};

}  // namespace parvik
