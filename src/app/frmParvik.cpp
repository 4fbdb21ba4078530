#include "app/frmParvik.h"

#include <QApplication>
#include <QCloseEvent>
#include <utility>

#include "common/qtAttesa.h"
#include "common/qtSchermo.h"
#include "common/qtTastiInCoda.h"
#include "common/qtTastiRipetuti.h"
#include "common/qtTesto.h"
#include "output/frmDestStampa.h"
#include "output/qtFoglio.h"
#include "output/qtPdf.h"
#include "output/qtStampa.h"
#include "start/CartelleProgramma.h"

namespace parvik {
namespace {

const QSize DimensioneIniziale(1100, 700);

/// The pane's selection, or all of it.
Selezione DaStampare(const SelezioneAnteprima& pannello) {
  const Selezione scelta = pannello.Selezionato();
  if (scelta.Lunghezza > 0) return scelta;
  return {.Inizio = 0, .Lunghezza = pannello.Testo().Testo().size()};
}

}  // namespace

frmParvik::frmParvik(DatiAvvio dati, Interlocutore& interlocutore)
    : dirProgramma_(std::move(dati.DirProgramma)),
      editore_(std::move(dati.Dove), std::move(dati.Campi), *this, interlocutore),
      maschere_(editore_, *this),
      finestrelle_(editore_, *this),
      ricordi_(editore_, *this, qtRicordo(dati.CartellaUtente, dati.CartelleConfigurazione)) {
  setObjectName("frmParvik");
  setContextMenuPolicy(Qt::NoContextMenu);  // bars and panels are shown and hidden by the menus
  new qtTastiInCoda(this);
  new qtTastiRipetuti(this);
  CreaArea();
  CreaMenu();
  guida_ = new qtGuida(dirProgramma_, *menu_, *this);
  anteAuto_ = std::make_unique<qtAnteAuto>(editore_, area_->Pannello());
  barraStato_ = new qtBarraStato(editore_, *area_, *this);
  verifica_ = std::make_unique<qtVerifica>(editore_, *area_, *this);
  trova_ = std::make_unique<qtTrova>(editore_, *area_, *this);
  inserimenti_ = std::make_unique<qtInserimenti>(editore_, maschere_, *area_, *this);
  CreaNotizie(dati);
  resize(EntroLoSchermo(*this, DimensioneIniziale));
  ricordi_.Riprendi();
  CreaIngrandimento();
  Aggiorna();
}

/// The sections go before the document that they show; hidden first, they pass the focus to nobody.
frmParvik::~frmParvik() {
  recupero_.reset();
  notizie_.reset();
  anteAuto_.reset();
  verifica_.reset();
  trova_.reset();
  inserimenti_.reset();
  hide();
  delete barraStato_;
  delete area_;
}

void frmParvik::CreaArea() {
  area_ = new qtArea(editore_.Modello(), this);
  setCentralWidget(area_);
  misure_.emplace(editore_, *area_);
  righelli_.emplace(editore_, *area_);
  for (const Sezione sezione : TutteLeSezioni) {
    area_->Editor(sezione).ImpostaDescrizione([this, sezione](std::string_view contenuto) {
      return editore_.InUso(sezione) ? DaUtf8(editore_.Descrivi(sezione, contenuto)) : QString();
    });
    CollegaSezione(sezione);
  }
  connect(&area_->Pannello(), &ricAnte::RicercaChiesta, this, [this] { Esegui(Comando::Trova); });
  CreaApertura();
  CreaInizio();
}

void frmParvik::CreaIngrandimento() {
  auto* ingrandimento = new qtIngrandimento(*area_, *this);
  ingrandimento->Imposta(ricordi_.Ingrandimento());
  connect(ingrandimento, &qtIngrandimento::Cambiato, this,
          [this](int passi) { ricordi_.NotaIngrandimento(passi); });
}

/// What a section tells counts only while it is in use.
void frmParvik::CollegaSezione(Sezione sezione) {
  const auto collega = [this, sezione](auto segnale, auto comando) {
    connect(&area_->Editor(sezione), segnale, this, [this, sezione, comando](const auto&... dati) {
      if (editore_.InUso(sezione)) comando(dati...);
    });
  };
  collega(&txtTCP::cursorPositionChanged, [this] { SeguiAnteprima(); });
  collega(&txtTCP::TastoPremuto, [this] { editore_.SegnaModificato(); });
  collega(&txtTCP::DaAnnullare, [this] { EseguiPasso(&Editore::Annulla); });
  collega(&txtTCP::DaRipetere, [this] { EseguiPasso(&Editore::Ripeti); });
  collega(&txtTCP::Attivata, [this](Sezione attiva) { AttivaSezione(attiva); });
  collega(&txtTCP::CodiceDaAprire, [this, sezione](const std::string& contenuto) {
    AttivaSezione(sezione);
    maschere_.ApriMaschera(contenuto);
  });
  collega(&txtTCP::FlagDaInserire, [this, sezione] {
    AttivaSezione(sezione);
    maschere_.ApriForm(TipoCodice::Flag);
  });
  collega(&txtTCP::VariabileDaInserire, [this] { maschere_.ApriForm(TipoCodice::Variabile); });
}

void frmParvik::AttivaSezione(Sezione sezione) {
  editore_.AttivaSezione(sezione);
  area_->Attiva(sezione);
  if (inserimenti_) inserimenti_->Rinnova();
  SeguiAnteprima();
  if (trova_) trova_->Segui();
}

void frmParvik::Aggiorna() {
  // "[*]" is the toolkit's own mark for modified windows; doubled, it stands for itself.
  setWindowTitle(DaUtf8(editore_.Titolo()).replace("[*]", "[*][*]"));
  if (!editore_.TipoScelto()) setFocus();  // keys have nowhere else to go
  menu_->Aggiorna(editore_.PerMenu());
  MostraStrumenti(editore_, *menu_, *this, strumenti_);
  barraStato_->Aggiorna();
  area_->Mostra(editore_.PerArea());
  area_->Pannello().MostraFoglio(editore_.FoglioInUso());
  misure_->Aggiorna();
  righelli_->Aggiorna();
  finestrelle_.Aggiorna();
  verifica_->Aggiorna();
  trova_->Aggiorna();
  inserimenti_->Aggiorna();
  SeguiAnteprima();
  ricordi_.Aggiorna();
  inizio_->Aggiorna();
  notizie_->Aggiorna();
  recupero_->Aggiorna();
}

/// The sections' own beginning comes before there is a menu.
void frmParvik::CambiatoTesto() {
  if (menu_ != nullptr) menu_->Aggiorna(editore_.PerMenu());
  SeguiAnteprima();
  if (verifica_) verifica_->Segui();
  if (trova_) trova_->Segui();
  if (inserimenti_) inserimenti_->Segui();
  if (recupero_) recupero_->Segui();
  if (barraStato_ != nullptr) barraStato_->Accoda();
}

/// There is nothing to follow before the window is complete, and when it goes.
void frmParvik::SeguiAnteprima() {
  if (anteAuto_) anteAuto_->Segui();
}

/// The marks of the preview before have gone with it; new ones are there before it is drawn.
void frmParvik::CambiataAnteprima() {
  if (anteAuto_) anteAuto_->Segna();
  SeguiAnteprima();
  if (barraStato_ != nullptr) barraStato_->Accoda();
}

void frmParvik::RinnovaAnteprima(std::shared_ptr<const TestoAnteprima> anteprima,
                                 const Ricollocazione& dove) {
  area_->Pannello().Rinnova(std::move(anteprima), dove);
}

void frmParvik::CambiataMisura() {
  if (misure_) misure_->Rimisura();
  SeguiAnteprima();
  if (barraStato_ != nullptr) barraStato_->Accoda();
  if (verifica_) verifica_->Segui();
  if (recupero_) recupero_->Segui();
}

void frmParvik::MostraAnteprima(Anteprima anteprima) {
  area_->Pannello().Mostra(std::move(anteprima));
}

void frmParvik::CompletaAnteprima(Anteprima anteprima) {
  area_->Pannello().Completa(std::move(anteprima));
}

Esito<void> frmParvik::Attendi(const std::function<void(std::stop_token)>& lavoro) {
  inAttesa_ = true;
  anteAuto_->Sospendi();
  Esito<void> atteso = AttendiLavoro(this, lavoro);
  anteAuto_->Riprendi();
  inAttesa_ = false;
  return atteso;
}

std::optional<Destinazione> frmParvik::ScegliDestinazione() {
  frmDestStampa dialogo(this);
  dialogo.exec();
  return dialogo.Scelta();
}

Esito<Vista::Tipografo, std::string> frmParvik::ScegliStampante() {
  const Esito<ModuloStampa*, std::string> modulo = CaricaModuloStampa(DirModuli(dirProgramma_));
  if (!modulo) return modulo.Errore();
  const Foglio foglio = editore_.FoglioInUso();
  const std::shared_ptr<Stampante> stampante = (*modulo)->ChiediStampante(this, CartaDi(foglio));
  if (!stampante) return Tipografo();
  return Tipografo([this, stampante, passo = PassoRigaDi(foglio)](const std::string& nomeLavoro) {
    if (!isVisible()) return;  // the program is ending
    stampante->Intitola(DaUtf8(nomeLavoro));
    const SelezioneAnteprima scelta = area_->Pannello().Scelta();  // the pane may go on to another text
    StampaConAttesa(*stampante, {.Testo = scelta.Testo(), .Parte = DaStampare(scelta), .PassoRiga = passo},
                    {.Padre = this, .Nome = "frmStampa", .Testo = "Stampa in corso..."});
  });
}

bool frmParvik::ComponiPdf(const LavoroPdf& lavoro, const std::function<bool(std::string_view)>& scrivi) {
  return isVisible() && PdfConAttesa(lavoro, scrivi, this);  // else the program is ending
}

Cursore frmParvik::CursoreIn(Sezione sezione) const {
  return area_->Editor(sezione).CursoreAttuale();
}

void frmParvik::ImpostaCursore(Sezione sezione, Cursore cursore) {
  area_->Editor(sezione).Poni(cursore);
}

void frmParvik::Raggiungi(const CursoreSezione& cursore) {
  area_->Raggiungi(cursore);
  AttivaSezione(cursore.Dove);
}

void frmParvik::Rivela(const CursoreSezione& cursore) {
  area_->Rivela(cursore);
  AttivaSezione(cursore.Dove);
}

SelezioneAnteprima frmParvik::InAnteprima() const {
  return area_->Pannello().Scelta();
}

void frmParvik::SelezionaInAnteprima(const Selezione& parte) {
  area_->Pannello().Seleziona(parte.Inizio, parte.Fine());
}

void frmParvik::CambiataRicerca() {
  if (menu_ != nullptr) menu_->Aggiorna(editore_.PerMenu());
  if (trova_) trova_->Mostra();
}

void frmParvik::CambiatiProblemi() {
  if (verifica_) verifica_->Mostra();
  if (barraStato_ != nullptr) barraStato_->Accoda();
}

void frmParvik::RicaricaFlagStampe() {
  finestrelle_.RicaricaFlag();
}

void frmParvik::closeEvent(QCloseEvent* evento) {
  evento->setAccepted(!inAttesa_ && editore_.PuoChiudere());
  if (!evento->isAccepted()) return;
  ricordi_.Salva();
  recupero_->Finisci();
}

}  // namespace parvik
