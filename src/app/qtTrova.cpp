#include "app/qtTrova.h"

#include <QApplication>
#include <utility>

#include "app/qtEspressione.h"
#include "common/qtTesto.h"

namespace parvik {
namespace {

constexpr int Pausa = 100;                  // milliseconds in which nothing changes
constexpr std::size_t SceltaMassima = 200;  // characters of a selection that are looked for

}  // namespace

qtTrova::qtTrova(Editore& editore, qtArea& area, QMainWindow& finestra)
    : QObject(&finestra),
      editore_(editore),
      area_(area),
      finestra_(finestra),
      filo_([this](LavoroRicerca::Fatto fatto) {
        editore_.Ricerche().Consegna(std::move(fatto));
        Segui();
      }) {
  attesa_.setSingleShot(true);
  attesa_.setInterval(Pausa);
  connect(&attesa_, &QTimer::timeout, this, &qtTrova::Rinnova);
  connect(&area_.Pannello(), &ricAnte::Mostrata, this, [this] {
    editore_.Ricerche().CambiatoPannello();
    Segui();
  });
}

void qtTrova::CreaBarra() {
  barra_ = new barTrova(&finestra_);
  finestra_.addToolBar(Qt::BottomToolBarArea, barra_);
  connect(barra_, &barTrova::Cambiata, this, &qtTrova::Cambiata);
  connect(barra_, &barTrova::DaTrovare, this, &qtTrova::Passa);
  connect(barra_, &barTrova::DaChiudere, this, &qtTrova::Chiudi);
  connect(barra_, &barTrova::DaSostituire, this, &qtTrova::SostituisciUna);
  connect(barra_, &barTrova::TutteDaSostituire, this, &qtTrova::SostituisciTutte);
}

void qtTrova::Aggiorna() {
  if (visibile_ && !editore_.TipoScelto()) Chiudi();
  Segui();
}

void qtTrova::MettiInMostra() {
  if (barra_ == nullptr) CreaBarra();
  if (visibile_) return;
  visibile_ = true;
  barra_->show();
  MostraSegni(true);
}

/// What is selected is what one wants to find, and the pane is where one who is there wants to find it.
void qtTrova::Apri(bool perSostituire) {
  const bool dallaBarra = barra_ != nullptr && barra_->isAncestorOf(QApplication::focusWidget());
  const bool nelPannello = area_.Pannello().hasFocus() && !perSostituire;
  const QString cercato = dallaBarra ? QString() : DaCercare();
  MettiInMostra();
  barra_->MostraSostituzione(perSostituire);
  if (nelPannello) {
    barra_->ImpostaAmbito(Ambito::Anteprima);
  } else if (!dallaBarra && barra_->AmbitoScelto() == Ambito::Anteprima) {
    barra_->ImpostaAmbito(Ambito::SezioneAttiva);
  }
  barra_->Comincia(barra_->Opzioni().Espressione ? QString() : cercato);
  Cambiata();
}

/// The selection, where it is a part of a line; "" otherwise.
QString qtTrova::DaCercare() const {
  std::string scelto;
  if (area_.Pannello().hasFocus()) {
    scelto = area_.Pannello().Scelta().TestoSelezionato();
  } else {
    const CursoreSezione qui = editore_.CursoreAttivo();
    const Selezione parte = qui.Dentro.Selezionato();
    if (parte.Lunghezza <= SceltaMassima) scelto = editore_.Modello().Testo(qui.Dove).Byte(parte);
  }
  if (scelto.size() > SceltaMassima || scelto.find_first_of("\r\n") != std::string::npos) return {};
  return PerSchermo(scelto);
}

void qtTrova::Chiudi() {
  visibile_ = false;
  attesa_.stop();
  nota_.clear();
  if (editore_.TipoScelto() && barra_->isAncestorOf(QApplication::focusWidget())) RendiFuoco();
  barra_->hide();
  MostraSegni(false);
  editore_.Ricerche().Dimentica();  // nobody pays for what nobody sees
}

/// Before the bar goes, which would leave the focus to whoever comes next.
void qtTrova::RendiFuoco() {
  if (barra_->AmbitoScelto() == Ambito::Anteprima && editore_.AnteVisibile()) {
    area_.Pannello().setFocus(Qt::OtherFocusReason);
  } else {
    area_.Editor(editore_.CursoreAttivo().Dove).setFocus(Qt::OtherFocusReason);
  }
}

/// What no template can hold is found nowhere.
void qtTrova::Cambiata() {
  nota_.clear();
  RichiestaRicerca richiesta{.Cosa = barra_->Opzioni(), .Dove = barra_->AmbitoScelto()};
  const QString cercato = barra_->Cercato();
  if (richiesta.Cosa.Espressione) {
    richiesta.Cosa.Testo = cercato.toStdString();
  } else if (SoloAnsi(cercato) == cercato) {
    richiesta.Cosa.Testo = DaSchermo(cercato);
  } else {
    nota_ = "Nessun risultato";
  }
  editore_.Ricerche().Cerca(std::move(richiesta), &qtEspressione::Compila);
  Rinnova();
}

void qtTrova::Segui() {
  if (!visibile_ || !editore_.Ricerche().DaRifare()) return;
  nota_.clear();
  attesa_.start();
}

/// Never two at once: the end of the one under way asks again.
void qtTrova::Rinnova() {
  attesa_.stop();
  if (!visibile_ || filo_.AlLavoro() || !editore_.Ricerche().DaRifare()) return;
  const std::optional<LavoroRicerca> lavoro = editore_.Ricerche().Rinnova();
  if (lavoro)
    filo_.Comincia([lavoro = *lavoro](const std::stop_token& /*smetti*/) { return lavoro.Esegui(); });
}

/// What was found is what there is now: a search that is under way, or yet to be made, is waited for. It
/// takes a second at most.
void qtTrova::Assicura() {
  filo_.Aspetta();
  Rinnova();
  filo_.Aspetta();
}

void qtTrova::Passa(int passo) {
  MettiInMostra();
  Assicura();
  const bool dallaBarra = barra_->isAncestorOf(QApplication::focusWidget());
  const std::string detto = editore_.Ricerche().Trova(passo > 0 ? Verso::Avanti : Verso::Indietro,
                                                      dallaBarra ? Fuoco::Resta : Fuoco::Segue);
  if (editore_.Ricerche().Trovate().InCorso()) nota_ = DaUtf8(detto);
  Mostra();
}

/// What was written to be put in the place, Windows-1252; nullopt, and told, where no template can hold it.
std::optional<std::string> qtTrova::DaMettere() {
  QString scritto = barra_->Sostituto();
  if (barra_->Opzioni().Dove == DoveCercare::SoloCodici) scritto.replace(u'\u2192', "->");  // of a change
  if (SoloAnsi(scritto) == scritto) {
    Assicura();
    area_.FinisciComposizione();
    return DaSchermo(scritto);
  }
  nota_ = "La sostituzione ha caratteri che nessun modello può contenere";
  Mostra();
  return std::nullopt;
}

/// And goes on to the next, even from one that could not be replaced; without a current one it only goes
/// there.
void qtTrova::SostituisciUna() {
  const std::optional<std::string> scritto = DaMettere();
  if (!scritto) return;
  const QString detto = DaUtf8(editore_.Ricerche().SostituisciAttuale(*scritto));
  Passa(1);
  if (detto.isEmpty()) return;
  nota_ = detto;
  Mostra();
}

void qtTrova::SostituisciTutte() {
  const std::optional<std::string> scritto = DaMettere();
  if (!scritto) return;
  nota_ = DaUtf8(editore_.Ricerche().SostituisciTutte(*scritto));
  Mostra();
}

void qtTrova::Mostra() {
  if (barra_ == nullptr || !visibile_) return;
  const Ricerca& trovate = editore_.Ricerche().Trovate();
  barra_->MostraEsito(nota_.isEmpty() ? DaUtf8(editore_.Ricerche().Detto()) : nota_);
  barra_->Abilita(trovate.InCorso(), trovate.InCorso() && barra_->AmbitoScelto() != Ambito::Anteprima);
  for (const Sezione sezione : TutteLeSezioni) area_.Editor(sezione).viewport()->update();
  area_.Pannello().viewport()->update();
}

void qtTrova::MostraSegni(bool accesi) {
  const auto lettore = [this, accesi](LuogoRicerca luogo) -> LettoreTrovati {
    if (!accesi) return {};
    return [this, luogo](const Selezione& parte) {
      const Ricerca& ricerca = editore_.Ricerche().Trovate();
      std::vector<PostoSegnato> segnati;
      for (const Selezione& posto : ricerca.In(luogo, parte)) {
        const bool attuale = ricerca.Attuale() == PostoTrovato{.Dove = luogo, .Posto = posto};
        segnati.push_back({.Parte = posto, .Attuale = attuale});
      }
      return segnati;
    };
  };
  for (const Sezione sezione : TutteLeSezioni) area_.Editor(sezione).MostraTrovati(lettore(LuogoDi(sezione)));
  area_.Pannello().MostraTrovati(lettore(LuogoRicerca::Anteprima));
}

}  // namespace parvik
