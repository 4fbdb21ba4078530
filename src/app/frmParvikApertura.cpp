// How the main window comes to a document type and a template: from the menu, the command line, a dropped
// file.
#include "app/frmParvik.h"
#include "app/qtApertura.h"
#include "catalogue/frmScelta.h"
#include "common/qtTesto.h"

namespace parvik {

void frmParvik::CreaApertura() {
  auto* apertura = new qtApertura(this);
  apertura->Osserva(*this);
  for (const Sezione sezione : TutteLeSezioni) apertura->Osserva(*area_->Editor(sezione).viewport());
  connect(apertura, &qtApertura::Depositato, this,
          [this](const QString& file) { ApriDaFuori(file.toStdString()); });
}

void frmParvik::CreaInizio() {
  inizio_ = new qtInizio(editore_, ricordi_, *area_, this);
  connect(inizio_, &qtInizio::TipoDaScegliere, this, [this] { Esegui(Comando::TipoStampa); });
  connect(inizio_, &qtInizio::DaAprire, this,
          [this](std::size_t tipo, const std::filesystem::path& file) { Comincia(tipo, file); });
}

bool frmParvik::ScegliTipo(std::size_t proposta) {
  QStringList descrizioni;
  for (const TipoDoc* tipo : editore_.Campi().TipiElencati()) descrizioni += PerSchermo(tipo->Descrizione);
  frmScelta scelta(descrizioni, this);
  scelta.Proponi(proposta);
  scelta.exec();
  const auto voce = scelta.Scelta();
  if (voce) ApplicaTipo(*voce);
  return voce.has_value();
}

void frmParvik::ApplicaTipo(std::size_t slot) {
  editore_.ScegliTipo(slot);
  AttivaSezione(Sezione::Testata);
  area_->Editor(Sezione::Testata).setFocus();
}

void frmParvik::ApriDaFuori(const std::filesystem::path& file) {
  if (!editore_.TipoScelto()) {
    const std::optional<std::size_t> proposta = editore_.TipoDaProporre(file);
    if (!proposta || !ScegliTipo(*proposta)) return;
  }
  editore_.ApriDaFuori(file);
}

void frmParvik::Comincia(std::optional<std::size_t> tipo, const std::optional<std::filesystem::path>& file) {
  if (file && !editore_.TipoDaProporre(*file)) return;
  if (tipo) ApplicaTipo(*tipo);
  if (file) ApriDaFuori(*file);
}

void frmParvik::CreaNotizie(const DatiAvvio& dati) {
  notizie_ = std::make_unique<qtNotizie>(editore_, *this, dati.CartellaEsecuzione);
  recupero_ = std::make_unique<qtRecupero>(
      editore_, *this, qtRecupero::Dati{.Stato = dati.CartellaStato, .Intervallo = dati.IntervalloRecupero},
      [this](const CopiaRecupero& copia) { return Ripristina(copia); });
}

bool frmParvik::Ripristina(const CopiaRecupero& copia) {
  if (!editore_.Ripristina(copia)) return false;
  AttivaSezione(Sezione::Testata);
  area_->Editor(Sezione::Testata).setFocus();
  return true;
}

}  // namespace parvik
