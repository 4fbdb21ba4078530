#include "output/qtPdf.h"

#include <QIODevice>
#include <QPdfWriter>

#include "common/qtTesto.h"
#include "output/qtFoglio.h"
#include "output/qtStampa.h"
#include "output/ricCelle.h"

namespace parvik {
namespace {

/// Where the document's bytes go: on to whoever takes them, as long as they are wanted.
class UscitaPdf final : public QIODevice {
 public:
  explicit UscitaPdf(const std::function<bool(std::string_view)>& scrivi) : scrivi_(scrivi) {
    open(QIODevice::WriteOnly | QIODevice::Unbuffered);
  }

  bool isSequential() const override { return true; }
  bool Chiusa() const { return chiusa_; }
  void Chiudi() { chiusa_ = true; }

 protected:
  qint64 readData(char* /*dati*/, qint64 /*massimo*/) override { return -1; }
  qint64 writeData(const char* dati, qint64 quanti) override {
    if (!chiusa_) chiusa_ = !scrivi_(std::string_view(dati, static_cast<std::size_t>(quanti)));
    return quanti;
  }

 private:
  const std::function<bool(std::string_view)>& scrivi_;
  bool chiusa_ = false;
};

class StampantePdf final : public Stampante {
 public:
  StampantePdf(UscitaPdf& uscita, const QPageLayout& carta) : uscita_(uscita), foglio_(&uscita) {
    foglio_.setCreator("Ordavia");
    foglio_.setPageLayout(carta);
  }

  void Intitola(const QString& nomeLavoro) override { foglio_.setTitle(nomeLavoro); }
  QPdfWriter& Foglio() override { return foglio_; }
  void Ritira() override { uscita_.Chiudi(); }

 private:
  UscitaPdf& uscita_;
  QPdfWriter foglio_;
};

QPageLayout CartaPerPdf(const Foglio& foglio) {
  return CartaDi(foglio.Quale == Carta::Nessuna ? FoglioDi(Carta::A4) : foglio);
}

/// Pages end where the pane shows it, whatever the toolkit rounds.
LavoroCarta SuCarta(const LavoroPdf& lavoro) {
  LavoroCarta carta{.Testo = lavoro.Testo, .Parte = lavoro.Parte};
  if (lavoro.SuFoglio.Quale == Carta::Nessuna) return carta;
  carta.PassoRiga = PassoRigaDi(lavoro.SuFoglio);
  carta.RighePagina = PaginaDi(lavoro.SuFoglio, CellaSuCarta()).Righe;
  return carta;
}

}  // namespace

bool PdfConAttesa(const LavoroPdf& lavoro, const std::function<bool(std::string_view)>& scrivi,
                  QWidget* padre) {
  UscitaPdf uscita(scrivi);
  StampantePdf stampante(uscita, CartaPerPdf(lavoro.SuFoglio));
  stampante.Intitola(DaUtf8(lavoro.Titolo));
  const auto serve = [&] {
    return !uscita.Chiusa() && padre->isVisible();
  };  // not when the program is ending
  const bool intero = StampaConAttesa(
      stampante, SuCarta(lavoro),
      {.Padre = padre, .Nome = "frmEsportaPdf", .Testo = "Esportazione in corso...", .Serve = serve});
  return intero && !uscita.Chiusa();
}

}  // namespace parvik
