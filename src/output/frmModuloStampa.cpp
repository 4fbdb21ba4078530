// The print module: the toolkit's printers. A library of its own, of which nothing else is linked anywhere.
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include "output/frmStampante.h"

namespace parvik {
namespace {

class StampanteDiSistema final : public Stampante {
 public:
  void Intitola(const QString& nomeLavoro) override { stampante_.setDocName(nomeLavoro); }
  QPrinter& Foglio() override { return stampante_; }
  void Ritira() override { stampante_.abort(); }

 private:
  QPrinter stampante_{QPrinter::HighResolution};
};

}  // namespace

class frmModuloStampa final : public QObject, public ModuloStampa {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID PARVIK_IID_MODULO_STAMPA)
  Q_INTERFACES(parvik::ModuloStampa)

 public:
  std::unique_ptr<Stampante> ChiediStampante(QWidget* padre) override {
    // Without a printer the toolkit would print into a file.
    if (QPrinterInfo::availablePrinterNames().isEmpty()) return nullptr;
    auto stampante = std::make_unique<StampanteDiSistema>();
    QPrintDialog dialogo(&stampante->Foglio(), padre);
    dialogo.setOptions(QAbstractPrintDialog::PrintShowPageSize | QAbstractPrintDialog::PrintCollateCopies);
    if (dialogo.exec() != QDialog::Accepted) return nullptr;
    return stampante;
  }
};

}  // namespace parvik

#include "frmModuloStampa.moc"
