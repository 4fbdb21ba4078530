#include "app/qtNotizie.h"

#include <QEvent>
#include <QMetaObject>
#include <utility>

#include "common/TestoMostrabile.h"
#include "common/qtTesto.h"

namespace parvik {

qtNotizie::qtNotizie(Editore& editore, QMainWindow& finestra, std::filesystem::path esecuzione)
    : QObject(&finestra),
      editore_(editore),
      finestra_(finestra),
      notizie_(editore.Modello(), std::move(esecuzione)),
      sguardo_([this] { QMetaObject::invokeMethod(this, &qtNotizie::Consegna, Qt::QueuedConnection); }) {
  finestra.installEventFilter(this);
}

void qtNotizie::Aggiorna() {
  notizie_.Aggiorna(editore_.TipoScelto());
  Mostra();
}

/// Whoever comes back to the window may have been elsewhere with the file.
bool qtNotizie::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::WindowActivate) Guarda();
  return QObject::eventFilter(oggetto, evento);
}

/// A look that hangs is not taken a second time; where the document comes from elsewhere now, it is left to
/// itself.
void qtNotizie::Guarda() {
  const std::optional<LavoroSguardo> lavoro = notizie_.DaGuardare();
  if (!lavoro || (sguardo_.AlLavoro() && guardata_ == lavoro->Origine)) return;
  guardata_ = lavoro->Origine;
  sguardo_.Comincia([lavoro = *lavoro] { return lavoro.Esegui(); });
}

void qtNotizie::Consegna() {
  if (const std::optional<SguardoFile> sguardo = sguardo_.Ritira()) notizie_.Consegna(*sguardo);
  Mostra();
}

void qtNotizie::CreaBarra() {
  barra_ = new barNotizia("barAvviso", "Avviso", finestra_);
  cmdRicarica_ = &barra_->Aggiungi("cmdRicarica", "Ricarica");
  const QPushButton& cmdIgnora = barra_->Aggiungi("cmdIgnora", "Ignora");
  connect(cmdRicarica_, &QPushButton::clicked, this,
          [this] { editore_.ApriDaFuori(std::filesystem::path(notizie_.File())); });
  connect(&cmdIgnora, &QPushButton::clicked, this, &qtNotizie::Ignora);
  connect(barra_, &barNotizia::Rinunciato, this, &qtNotizie::Ignora);
}

void qtNotizie::Ignora() {
  notizie_.Ignora();
  Mostra();
}

void qtNotizie::Mostra() {
  const Notizia quale = notizie_.Ora();
  if (quale == Notizia::Nessuna) {
    if (barra_ != nullptr) barra_->Nascondi();
    return;
  }
  if (barra_ == nullptr) CreaBarra();
  cmdRicarica_->setVisible(quale == Notizia::Cambiato);
  barra_->Mostra(QStringLiteral("\u00AB"), DaUtf8(Mostrabile(notizie_.File().filename().string())),
                 QStringLiteral("\u00BB ") + DaUtf8(Parole(quale)),
                 DaUtf8(Mostrabile(notizie_.File().string())));
}

}  // namespace parvik
