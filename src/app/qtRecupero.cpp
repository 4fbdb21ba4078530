#include "app/qtRecupero.h"

#include <QDateTime>
#include <QMetaObject>
#include <algorithm>
#include <iterator>
#include <utility>

#include "catalogue/TrovaTipo.h"
#include "common/SeBastaMemoria.h"
#include "common/TestoMostrabile.h"
#include "common/qtTesto.h"

namespace parvik {
namespace {

/// The window is there first, with what it shows at the start.
constexpr auto PrimaDiCercare = std::chrono::milliseconds(200);

}  // namespace

qtRecupero::qtRecupero(Editore& editore, QMainWindow& finestra, Dati dati, Ripristino ripristina)
    : QObject(&finestra),
      editore_(editore),
      finestra_(finestra),
      ripristina_(std::move(ripristina)),
      stato_(std::move(dati.Stato)),
      recupero_(editore.Modello()),
      propria_(stato_),
      ricerca_([this] { QMetaObject::invokeMethod(this, &qtRecupero::Trovate, Qt::QueuedConnection); }),
      filo_([this](Scrittura scrittura) { Consegna(scrittura); }) {
  attesa_.setSingleShot(true);
  attesa_.setInterval(dati.Intervallo);
  connect(&attesa_, &QTimer::timeout, this, &qtRecupero::Scrivi);
}

qtRecupero::~qtRecupero() {
  Finisci();
}

void qtRecupero::Aggiorna() {
  if (finita_) return;
  if (Ricorda() && !cercate_) {
    cercate_ = true;
    QTimer::singleShot(PrimaDiCercare, this, &qtRecupero::Cerca);
  } else if (!Ricorda() && cercate_) {
    cercate_ = false;
    ricerca_.Lascia();
    trovate_.clear();
    Mostra();
  }
  Segui();
}

/// Not put off by what comes next: the time runs from the first change.
void qtRecupero::Segui() {
  if (finita_) return;
  if (!recupero_.Serve(Ricorda(), editore_.NumeroTipo())) {
    attesa_.stop();
    if (!filo_.AlLavoro()) Togli();
  } else if (recupero_.DaScrivere() && !attesa_.isActive() && !filo_.AlLavoro()) {
    attesa_.start();
  }
}

void qtRecupero::Scrivi() {
  attesa_.stop();
  const std::optional<int> tipo = editore_.NumeroTipo();
  if (finita_ || filo_.AlLavoro() || !recupero_.Serve(Ricorda(), tipo)) return;
  const auto scrivi = [this, istantanea = recupero_.Prendi(*tipo),
                       prese = prese_.size()](const std::stop_token& /*smetti*/) {
    const std::int64_t quando = QDateTime::currentSecsSinceEpoch();
    const auto riuscita = [&] { return propria_.Scrivi(istantanea.Copia(quando)); };
    return Scrittura{.Riuscita = SeBastaMemoria(riuscita, false), .Prese = prese};
  };
  filo_.Comincia(scrivi);
}

/// A copy that did not get to the disk is tried again after the same time.
void qtRecupero::Consegna(const Scrittura& scrittura) {
  if (scrittura.Riuscita) {
    TogliPrese(scrittura.Prese);
  } else {
    recupero_.Perduta();
  }
  Segui();
}

/// Nothing is left to lose.
void qtRecupero::Togli() {
  if (propria_.Scritta()) recupero_.Perduta();
  propria_.Togli();
  TogliPrese(prese_.size());
}

void qtRecupero::TogliPrese(std::size_t quante) {
  const auto fine = prese_.begin() + static_cast<std::ptrdiff_t>(quante);
  std::for_each(prese_.begin(), fine, [](CopiaTrovata& presa) { presa.Togli(); });
  prese_.erase(prese_.begin(), fine);
}

void qtRecupero::Finisci() {
  if (finita_) return;
  finita_ = true;
  attesa_.stop();
  filo_.Aspetta();
  Togli();
  trovate_.clear();
}

void qtRecupero::Cerca() {
  if (!finita_ && Ricorda()) ricerca_.Comincia([stato = stato_] { return CercaCopie(stato); });
}

/// Those of a type that the catalogue does not have are left for an installation that has it.
void qtRecupero::Trovate() {
  std::optional<std::vector<CopiaTrovata>> trovate = ricerca_.Ritira();
  if (!trovate || finita_) return;
  std::erase_if(*trovate, [this](const CopiaTrovata& trovata) {
    return !TipoPerNumero(editore_.Campi(), trovata.Copia.Tipo);
  });
  std::ranges::move(*trovate, std::back_inserter(trovate_));
  Mostra();
}

void qtRecupero::CreaBarra() {
  barra_ = new barNotizia("barRecupero", "Recupero", finestra_);
  const auto aggiungi = [this](const char* nome, const char* didascalia, void (qtRecupero::*azione)()) {
    connect(&barra_->Aggiungi(nome, didascalia), &QPushButton::clicked, this, azione);
  };
  aggiungi("cmdRipristina", "Ripristina", &qtRecupero::Ripristina);
  aggiungi("cmdScarta", "Scarta", &qtRecupero::Scarta);
  aggiungi("cmdDopo", "Decidi dopo", &qtRecupero::Rimanda);
  connect(barra_, &barNotizia::Rinunciato, this, &qtRecupero::Rimanda);
}

void qtRecupero::Mostra() {
  if (trovate_.empty()) {
    if (barra_ != nullptr) barra_->Nascondi();
    return;
  }
  if (barra_ == nullptr) CreaBarra();
  const CopiaRecupero& copia = trovate_.front().Copia;
  const std::size_t slot = TipoPerNumero(editore_.Campi(), copia.Tipo).value();
  const QString tipo = PerSchermo(editore_.Campi().TipiDoc()[slot].Descrizione).trimmed();
  const QString quando =
      QDateTime::fromSecsSinceEpoch(copia.Quando).toString(QStringLiteral("dd/MM/yyyy 'alle' HH:mm"));
  const QString dopo = QStringLiteral(" (%1), del %2").arg(tipo, quando);
  if (copia.NomeFile.empty()) {
    barra_->Mostra(QStringLiteral("Un modello senza nome non era stato salvato"), {}, dopo, {});
  } else {
    barra_->Mostra(QStringLiteral("Non era stato salvato: \u00AB"),
                   DaUtf8(Mostrabile(copia.NomeFile.filename().string())), u'\u00BB' + dopo,
                   DaUtf8(Mostrabile(copia.NomeFile.string())));
  }
}

/// Until one's own copy of it is on the disk the one that was left stays: the program may end at any moment.
void qtRecupero::Ripristina() {
  const CopiaRecupero copia = trovate_.front().Copia;
  if (!ripristina_(copia)) return;
  prese_.push_back(std::move(trovate_.front()));
  trovate_.erase(trovate_.begin());
  Scrivi();
  Mostra();
}

void qtRecupero::Scarta() {
  trovate_.front().Togli();
  trovate_.erase(trovate_.begin());
  Mostra();
}

void qtRecupero::Rimanda() {
  trovate_.erase(trovate_.begin());
  Mostra();
}

}  // namespace parvik
