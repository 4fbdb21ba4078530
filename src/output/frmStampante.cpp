#include "output/frmStampante.h"

#include <QPrintDialog>
#include <QPrinterInfo>
#include <QProgressDialog>

namespace parvik {
namespace {

constexpr int Millesimi = 1000;

}  // namespace

std::shared_ptr<QPrinter> ChiediStampante(QWidget* padre) {
  // Without a printer the toolkit would print into a file.
  if (QPrinterInfo::availablePrinterNames().isEmpty()) return nullptr;
  auto stampante = std::make_shared<QPrinter>(QPrinter::HighResolution);
  QPrintDialog dialogo(stampante.get(), padre);
  dialogo.setOptions(QAbstractPrintDialog::PrintShowPageSize | QAbstractPrintDialog::PrintCollateCopies);
  if (dialogo.exec() != QDialog::Accepted) return nullptr;
  return stampante;
}

void StampaConAttesa(QPrinter& stampante, const TestoAnteprima& testo, const Selezione& parte,
                     QWidget* padre) {
  QProgressDialog scatola("Stampa in corso...", "Annulla", 0, Millesimi, padre);
  scatola.setWindowTitle("Ordavia");
  scatola.setWindowModality(Qt::ApplicationModal);
  scatola.setMinimumDuration(500);
  QObject::connect(&scatola, &QDialog::rejected, &scatola, &QProgressDialog::cancel);
  const double tutto = static_cast<double>(parte.Lunghezza) + 1;
  StampaSuCarta(stampante, testo, parte, [&](std::size_t fino) {
    scatola.setValue(static_cast<int>(Millesimi * (static_cast<double>(fino - parte.Inizio) / tutto)));
    return !scatola.wasCanceled();
  });
}

}  // namespace parvik
