// The print module: the toolkit's printers. A library of its own, of which nothing else is linked anywhere.
#include <QChildEvent>
#include <QCoreApplication>
#include <QGroupBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>

#include "output/qtProprietaStampa.h"
#include "output/qtStampante.h"
#include "output/qtTestiStampa.h"

namespace parvik {
namespace {

class StampanteDiSistema final : public Stampante {
 public:
  /// Margins that the printer cannot reach are its least ones.
  void Prepara(const QPageLayout& carta) {
    stampante_.setPageSize(carta.pageSize());
    QPageLayout sua = stampante_.pageLayout();
    sua.setUnits(QPageLayout::Point);
    const QMarginsF minimi = sua.minimumMargins();
    const auto almeno = [](qreal margine, qreal minimo) { return std::max(margine, minimo); };
    const QMarginsF margini = carta.margins(QPageLayout::Point);
    stampante_.setPageMargins(
        QMarginsF(almeno(margini.left(), minimi.left()), almeno(margini.top(), minimi.top()),
                  almeno(margini.right(), minimi.right()), almeno(margini.bottom(), minimi.bottom())),
        QPageLayout::Point);
  }

  void Intitola(const QString& nomeLavoro) override { stampante_.setDocName(nomeLavoro); }
  QPrinter& Foglio() override { return stampante_; }
  void Ritira() override { stampante_.abort(); }

 private:
  QPrinter stampante_{QPrinter::HighResolution};
};

/// The toolkit's dialog without a choice of pages, which its options do not take out where a print server
/// could make it, and without words of the print server's.
class DialogoStampa final : public QPrintDialog {
 public:
  DialogoStampa(QPrinter& stampante, QWidget* padre) : QPrintDialog(&stampante, padre) {
    setOptions(PrintShowPageSize | PrintCollateCopies);
  }

  void setVisible(bool visibile) override {
    QPrintDialog::setVisible(visibile);  // which shows it
    if (auto* pagine = findChild<QWidget*>("gbPrintRange")) pagine->hide();
  }

 protected:
  /// The printer's properties are about to be shown. What a driver puts in no group stands in one named so.
  void childEvent(QChildEvent* evento) override {
    QPrintDialog::childEvent(evento);
    if (!evento->polished()) return;
    for (QGroupBox* gruppo : evento->child()->findChildren<QGroupBox*>()) {
      if (gruppo->title() == "General") gruppo->setTitle("Generale");
    }
  }
};

}  // namespace

class qtModuloStampa final : public QObject, public ModuloStampa {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID PARVIK_IID_MODULO_STAMPA)
  Q_INTERFACES(parvik::ModuloStampa)

 public:
  /// Without a word to the windows that are open: their language stays, and buttons whose texts were set
  /// would get the toolkit's back.
  qtModuloStampa() {
    QCoreApplication::instance()->installEventFilter(this);
    QCoreApplication::installTranslator(&testi_);
    QCoreApplication::instance()->removeEventFilter(this);
  }

  std::unique_ptr<Stampante> ChiediStampante(QWidget* padre, const QPageLayout& carta) override {
    // Without a printer the toolkit would print into a file.
    if (QPrinterInfo::availablePrinterNames().isEmpty()) return nullptr;
    auto stampante = std::make_unique<StampanteDiSistema>();
    if (carta.isValid()) stampante->Prepara(carta);
    DialogoStampa dialogo(stampante->Foglio(), padre);
    const qtProprietaStampa* proprieta = carta.isValid() ? new qtProprietaStampa(dialogo, carta) : nullptr;
    if (dialogo.exec() != QDialog::Accepted) return nullptr;
    if (proprieta != nullptr && proprieta->DaPreparare()) stampante->Prepara(carta);
    return stampante;
  }

 protected:
  bool eventFilter(QObject* /*oggetto*/, QEvent* evento) override {
    return evento->type() == QEvent::LanguageChange;
  }

 private:
  qtTestiStampa testi_;
};

}  // namespace parvik

#include "qtModuloStampa.moc"
