#include "output/frmFoglio.h"

#include <QFontMetrics>
#include <optional>
#include <string>

#include "common/ParoleComuni.h"
#include "common/qtCampi.h"
#include "common/qtTesto.h"
#include "ui_frmFoglio.h"

namespace parvik {
namespace {

constexpr int CifreLinee = 2;
constexpr int CifreLunghezza = 6;
constexpr const char* TestoPiuLungo = "L'altezza dev'essere tra 20 e 1000 mm. ";

constexpr int Illeggibile = -1;

int Lunghezza(const QLineEdit& casella) {
  return LeggiMillimetri(DaSchermo(casella.text())).value_or(Illeggibile);
}

std::optional<int> Linee(const QLineEdit& casella) {
  bool letto = false;
  const int linee = casella.text().toInt(&letto);
  return letto ? std::optional(linee) : std::nullopt;
}

void Scrivi(QLineEdit& casella, const std::string& testo) {
  casella.setText(QString::fromStdString(testo));
}

}  // namespace

frmFoglio::frmFoglio(const Foglio& attuale, double cella, QWidget* padre)
    : frmModale(padre, Chiusura::ComeAnnulla),
      ui_(std::make_unique<Ui::frmFoglio>()),
      cella_(cella),
      linee_(attuale.LineePerPollice) {
  ui_->setupUi(this);
  margini_ = {ui_->txtMargine_0, ui_->txtMargine_1, ui_->txtMargine_2, ui_->txtMargine_3};
  for (const std::string_view carta : NomiCarte) ui_->cmbCarta->addItem(DaUtf8(carta));
  PreparaCaselle();
  ui_->lblPagina->setMinimumWidth(ui_->lblPagina->fontMetrics().horizontalAdvance(TestoPiuLungo));
  ui_->cmbCarta->setCurrentIndex(static_cast<int>(attuale.Quale));
  Mostra(attuale);
  connect(ui_->cmbCarta, &QComboBox::currentIndexChanged, this,
          [this](int posto) { CambiaCarta(static_cast<Carta>(posto)); });
  connect(ui_->cmdOk, &QPushButton::clicked, this, &QDialog::accept);
  connect(ui_->cmdCanc, &QPushButton::clicked, this, &QDialog::reject);
}

frmFoglio::~frmFoglio() = default;

void frmFoglio::PreparaCaselle() {
  for (QLineEdit* casella : findChildren<QLineEdit*>()) {
    const bool linee = casella == ui_->txtLinee;
    SoloCifre(*casella, linee ? CifreLinee : CifreLunghezza, linee ? "" : ",.");
    SelezionaTuttoAlFuoco(*casella);
    RendiLeggibile(*casella);
    connect(casella, &QLineEdit::textChanged, this, &frmFoglio::Aggiorna);
  }
}

/// A size of one's own begins with what is there, and the lines stay: they are the printer's.
void frmFoglio::CambiaCarta(Carta carta) {
  Foglio foglio = FoglioDi(carta);
  if (carta == Carta::Personalizzata && !ui_->txtLargh->text().isEmpty()) {
    foglio.Larghezza = Lunghezza(*ui_->txtLargh);
    foglio.Altezza = Lunghezza(*ui_->txtAlt);
    for (std::size_t i = 0; i < NumMargini; ++i) foglio.Margini[i] = Lunghezza(*margini_[i]);
  }
  linee_ = Linee(*ui_->txtLinee).value_or(linee_);
  if (carta != Carta::Nessuna) foglio.LineePerPollice = linee_;
  Mostra(foglio);
}

void frmFoglio::Mostra(const Foglio& foglio) {
  const bool nessuno = foglio.Quale == Carta::Nessuna;
  const auto testo = [nessuno](int decimi) { return nessuno ? std::string() : InMillimetri(decimi); };
  Scrivi(*ui_->txtLargh, testo(foglio.Larghezza));
  Scrivi(*ui_->txtAlt, testo(foglio.Altezza));
  Scrivi(*ui_->txtLinee, nessuno ? std::string() : std::to_string(foglio.LineePerPollice));
  for (std::size_t i = 0; i < NumMargini; ++i) Scrivi(*margini_[i], testo(foglio.Margini[i]));
  for (QLineEdit* casella : findChildren<QLineEdit*>()) casella->setEnabled(!nessuno);
  for (QLineEdit* lato : {ui_->txtLargh, ui_->txtAlt})
    lato->setEnabled(foglio.Quale == Carta::Personalizzata);
  Aggiorna();
}

/// As it is written, with its faults. A paper's own size is that, whatever an assistive technology writes.
Foglio frmFoglio::Scelto() const {
  const auto carta = static_cast<Carta>(ui_->cmbCarta->currentIndex());
  Foglio foglio = FoglioDi(carta);
  if (carta == Carta::Nessuna) return foglio;
  if (carta == Carta::Personalizzata) {
    foglio.Larghezza = Lunghezza(*ui_->txtLargh);
    foglio.Altezza = Lunghezza(*ui_->txtAlt);
  }
  foglio.LineePerPollice = Linee(*ui_->txtLinee).value_or(Illeggibile);
  for (std::size_t i = 0; i < NumMargini; ++i) foglio.Margini[i] = Lunghezza(*margini_[i]);
  return foglio;
}

/// What a page holds, or why it cannot be.
void frmFoglio::Aggiorna() {
  const Foglio foglio = Scelto();
  const std::optional<std::string> difetto = DifettoDi(foglio);
  ui_->cmdOk->setEnabled(!difetto);
  if (difetto) {
    ui_->lblPagina->setText(DaUtf8(*difetto));
  } else if (foglio.Quale == Carta::Nessuna) {
    ui_->lblPagina->setText("L'anteprima non ha pagine.");
  } else {
    const PaginaFoglio pagina = PaginaDi(foglio, cella_);
    ui_->lblPagina->setText(DaUtf8("Pagina: " + Quanti(pagina.Colonne, "colonna", "colonne") + ", " +
                                   Quanti(pagina.Righe, "riga", "righe")));
  }
}

}  // namespace parvik
