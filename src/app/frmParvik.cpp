#include "app/frmParvik.h"

#include <QApplication>
#include <QCloseEvent>
#include <cmath>
#include <utility>

#include "app/frmAbout.h"
#include "app/qtDivisore.h"
#include "common/qtAttesa.h"
#include "common/qtSchermo.h"
#include "common/qtTastiInCoda.h"
#include "common/qtTastiRipetuti.h"
#include "common/qtTesto.h"
#include "output/frmDestStampa.h"
#include "output/qtStampa.h"
#include "output/ricAccessibile.h"
#include "start/CartelleProgramma.h"
#include "template/txtAccessibile.h"

namespace parvik {
namespace {

constexpr int SinistraEtichette = 4;  // pixels
const QSize DimensioneIniziale(1100, 700);

int InTwip(int pixel) {
  return pixel * TwipPerPixel;
}

/// Both edges are rounded, not the width: neighbours stay neighbours.
QRect InPixel(const Rettangolo& twip) {
  const auto pixel = [](int valore) { return static_cast<int>(std::lround(valore / double{TwipPerPixel})); };
  const QPoint inizio(pixel(twip.Sinistra), pixel(twip.Alto));
  const QPoint fine(pixel(twip.Sinistra + twip.Larghezza), pixel(twip.Alto + twip.Altezza));
  return {inizio, QSize(fine.x() - inizio.x(), fine.y() - inizio.y())};
}

void Colloca(QWidget& controllo, const std::optional<Rettangolo>& posto) {
  controllo.setVisible(posto.has_value());
  if (posto) controllo.setGeometry(InPixel(*posto));
}

/// The pane's selection, or all of it.
Selezione DaStampare(const ricAnte& pannello) {
  const Selezione scelta = pannello.Selezionato();
  if (scelta.Lunghezza > 0) return scelta;
  return {.Inizio = 0, .Lunghezza = pannello.Contenuto().Testo().size()};
}

}  // namespace

frmParvik::frmParvik(DatiAvvio dati, Interlocutore& interlocutore)
    : dirProgramma_(std::move(dati.DirProgramma)),
      editore_(std::move(dati.Dove), std::move(dati.Campi), *this, interlocutore),
      maschere_(editore_, *this) {
  setObjectName("frmParvik");
  new qtTastiInCoda(this);
  new qtTastiRipetuti(this);
  CreaControlli();
  CreaMenu();
  CreaPassi();
  resize(EntroLoSchermo(*this, DimensioneIniziale));
  Aggiorna();
}

void frmParvik::CreaControlli() {
  txtAccessibile::Registra();
  ricAccessibile::Registra();
  area_ = new QWidget(this);
  area_->installEventFilter(this);
  setCentralWidget(area_);
  for (const Sezione sezione : TutteLeSezioni) {
    etichette_[Indice(sezione)] = new lblTCP(sezione, area_);
    CreaSezione(sezione);
  }
  anteprima_ = new ricAnte(area_);
  lblRighe_ = new lblRighe(*anteprima_, area_);
  lblRighe_->stackUnder(anteprima_);  // it is read first
  CreaDivisore();
  CreaApertura();
}

void frmParvik::CreaDivisore() {
  auto* divisore = new qtDivisore(anteprima_, this);
  for (txtTCP* sezione : sezioni_) divisore->Osserva(sezione);
  for (lblTCP* etichetta : etichette_) divisore->Osserva(etichetta);
  connect(divisore, &qtDivisore::Spostato, this, &frmParvik::SpostaDivisore);
}

void frmParvik::CreaSezione(Sezione sezione) {
  auto* editor = new txtTCP(editore_.Modello(), sezione, area_);
  editor->ImpostaDescrizione(
      [this, sezione](std::string_view contenuto) { return DaUtf8(editore_.Descrivi(sezione, contenuto)); });
  sezioni_[Indice(sezione)] = editor;
  CollegaSezione(sezione);
}

/// What a section tells counts only while it is in use.
void frmParvik::CollegaSezione(Sezione sezione) {
  const auto collega = [this, sezione](auto segnale, auto comando) {
    connect(sezioni_[Indice(sezione)], segnale, this, [this, sezione, comando](const auto&... dati) {
      if (editore_.InUso(sezione)) comando(dati...);
    });
  };
  collega(&txtTCP::TastoPremuto, [this] { editore_.SegnaModificato(); });
  collega(&txtTCP::DaAnnullare, [this] { EseguiPasso(&Editore::Annulla); });
  collega(&txtTCP::DaRipetere, [this] { EseguiPasso(&Editore::Ripeti); });
  collega(&txtTCP::Attivata, [this](Sezione attiva) { AttivaSezione(attiva); });
  collega(&txtTCP::CodiceDaAprire, [this, sezione](const std::string& contenuto) {
    AttivaSezione(sezione);
    maschere_.ApriMaschera(contenuto);
  });
  collega(&txtTCP::VariabileDaInserire, [this] { maschere_.ApriForm(TipoCodice::Variabile); });
}

void frmParvik::MisuraEtichette() {
  if (etichetteMisurate_) return;
  etichetteMisurate_ = true;
  for (lblTCP* etichetta : etichette_) etichetta->Misura();
}

void frmParvik::MostraInformazioni() {
  frmAbout(this).exec();
}

void frmParvik::Aggiorna() {
  // "[*]" is the toolkit's own mark for modified windows; doubled, it stands for itself.
  setWindowTitle(DaUtf8(editore_.Titolo()).replace("[*]", "[*][*]"));
  if (!editore_.TipoScelto()) setFocus();  // keys have nowhere else to go
  menu_->Aggiorna(editore_.PerMenu());
  ResizeControls();
  MostraFlagStampe();
  MostraTotali();
}

void frmParvik::MostraTotali() {
  const auto& totali = editore_.Totali();
  if (totali.has_value() == (totali_ != nullptr)) return;
  totali_ = totali ? std::make_unique<frmTotRighe>(totali->Righe, totali->Pagina, this) : nullptr;
  if (totali_) totali_->show();
}

void frmParvik::MostraFlagStampe() {
  const bool visibile = editore_.SettaFlagSpuntata();
  if (settaFlag_ == nullptr && !visibile) return;
  if (settaFlag_ == nullptr) {
    settaFlag_ = new frmSettaFlag(editore_.Flag(), this);
    connect(settaFlag_, &frmSettaFlag::Nascosta, this, [this] {
      if (editore_.SettaFlagSpuntata()) editore_.CommutaSettaFlag();
    });
  }
  settaFlag_->setVisible(visibile);
}

void frmParvik::RicaricaFlagStampe() {
  if (settaFlag_ != nullptr) settaFlag_->Ricarica();
}

void frmParvik::AttivaSezione(Sezione sezione) {
  editore_.AttivaSezione(sezione);
  ColoraLabel(sezione);
}

Finestra frmParvik::Misure() const {
  return {.Larghezza = InTwip(area_->width()),
          .Altezza = InTwip(area_->height()),
          .SinistraSezioni = InTwip(2 * SinistraEtichette + etichette_[0]->width()),
          .SinistraEtichette = InTwip(SinistraEtichette),
          .TreSezioni = editore_.TreSezioni(),
          .Anteprima = editore_.AnteVisibile(),
          .Divisore = divisore_};
}

void frmParvik::SpostaDivisore(int x) {
  const std::optional<int> ammesso = DivisoreAmmesso(Misure(), InTwip(x));
  if (!ammesso) return;
  divisore_ = ammesso;
  ResizeControls();
}

void frmParvik::ResizeControls() {
  if (!editore_.AnteVisibile()) divisore_.reset();
  Disposizione disposizione;
  if (editore_.TipoScelto()) {
    MisuraEtichette();
    disposizione = Disponi(Misure());
  }
  for (std::size_t i = 0; i < MaxSezioni; ++i) {
    Colloca(*sezioni_[i], disposizione.Sezioni[i]);
    sezioni_[i]->ImpostaUso(editore_.InUso(TutteLeSezioni[i]));
    const auto& etichetta = disposizione.Etichette[i];
    etichette_[i]->setVisible(etichetta.has_value());
    if (etichetta) etichette_[i]->move(InPixel(*etichetta).topLeft());
  }
  Colloca(*lblRighe_, disposizione.StatoAnteprima);
  Colloca(*anteprima_, disposizione.Anteprima);
}

void frmParvik::ColoraLabel(Sezione attiva) {
  for (const Sezione sezione : TutteLeSezioni) etichette_[Indice(sezione)]->Attiva(sezione == attiva);
}

void frmParvik::MostraAnteprima(Anteprima anteprima) {
  anteprima_->Mostra(std::move(anteprima));
}

void frmParvik::CompletaAnteprima(Anteprima anteprima) {
  anteprima_->Completa(std::move(anteprima));
}

Esito<void> frmParvik::Attendi(const std::function<void(std::stop_token)>& lavoro) {
  inAttesa_ = true;
  Esito<void> atteso = AttendiLavoro(this, lavoro);
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
  const std::shared_ptr<Stampante> stampante = (*modulo)->ChiediStampante(this);
  if (!stampante) return Tipografo();
  return Tipografo([this, stampante](const std::string& nomeLavoro) {
    if (!isVisible()) return;  // the program is ending
    stampante->Intitola(DaUtf8(nomeLavoro));
    StampaConAttesa(*stampante, anteprima_->Contenuto(), DaStampare(*anteprima_), this);
  });
}

Cursore frmParvik::CursoreIn(Sezione sezione) const {
  return sezioni_[Indice(sezione)]->CursoreAttuale();
}

void frmParvik::ImpostaCursore(Sezione sezione, Cursore cursore) {
  sezioni_[Indice(sezione)]->Poni(cursore);
}

void frmParvik::Raggiungi(const CursoreSezione& cursore) {
  txtTCP& sezione = *sezioni_[Indice(cursore.Dove)];
  sezione.Poni(cursore.Dentro);
  sezione.setFocus(Qt::OtherFocusReason);
  sezione.ensureCursorVisible();
  AttivaSezione(cursore.Dove);
}

void frmParvik::closeEvent(QCloseEvent* evento) {
  evento->setAccepted(!inAttesa_ && editore_.PuoChiudere());
}

bool frmParvik::eventFilter(QObject* oggetto, QEvent* evento) {
  if (oggetto == area_ && evento->type() == QEvent::Resize) {
    divisore_.reset();
    ResizeControls();
  }
  return QMainWindow::eventFilter(oggetto, evento);
}

}  // namespace parvik
