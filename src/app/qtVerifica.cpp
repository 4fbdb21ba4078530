#include "app/qtVerifica.h"

#include <QKeySequence>
#include <QShortcut>
#include <utility>

#include "common/qtTesto.h"

namespace parvik {
namespace {

constexpr int Pausa = 300;           // milliseconds in which nothing changes
constexpr int ParteDelPannello = 4;  // of the window's height, at first

}  // namespace

qtVerifica::qtVerifica(Editore& editore, qtArea& area, QMainWindow& finestra)
    : QObject(&finestra),
      editore_(editore),
      area_(area),
      finestra_(finestra),
      filo_([this](LavoroVerifica::Fatto fatto) {
        editore_.Consegna(std::move(fatto));
        Segui();
      }) {
  attesa_.setSingleShot(true);
  attesa_.setInterval(Pausa);
  connect(&attesa_, &QTimer::timeout, this, &qtVerifica::Rinnova);
  auto* precedente = new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F8), &finestra);
  connect(precedente, &QShortcut::activated, this, [this] {
    if (editore_.ProblemiVisibili()) Passa(-1);
  });
}

void qtVerifica::CreaPannello() {
  pannello_ = new pnlProblemi(editore_, &finestra_);
  nuovo_ = !finestra_.restoreDockWidget(pannello_);
  if (nuovo_) finestra_.addDockWidget(Qt::BottomDockWidgetArea, pannello_);
  connect(pannello_, &pnlProblemi::Chiesto, this,
          [this](std::size_t quale) { editore_.RaggiungiProblema(quale); });
  connect(pannello_, &pnlProblemi::PaginaCambiata, this, &qtVerifica::CambiataPagina);
  connect(pannello_, &pnlProblemi::DaCorreggere, this, [this] {
    editore_.CorreggiProblemi(pannello_->Scelti());
    Rinnova();
  });
  connect(pannello_, &pnlProblemi::Chiuso, this, [this] {
    if (editore_.ProblemiVisibili()) editore_.Commuta(Preferenza::Problemi);
  });
}

void qtVerifica::Aggiorna() {
  const bool visibile = editore_.ProblemiVisibili();
  if (visibile && pannello_ == nullptr) CreaPannello();
  if (pannello_ == nullptr) return;
  if (visibile != visibile_) {
    visibile_ = visibile;
    MostraOnde(visibile);
    pannello_->setVisible(visibile);
    if (visibile && std::exchange(nuovo_, false))
      finestra_.resizeDocks({pannello_}, {finestra_.height() / ParteDelPannello}, Qt::Vertical);
  }
  const std::optional<MisuraFoglio>& foglio = area_.Pannello().SulFoglio();
  pannello_->MostraFoglio(foglio ? std::optional(foglio->Pagina) : std::nullopt);
  CambiataPagina();
}

/// The first look is not waited for.
void qtVerifica::CambiataPagina() {
  editore_.ImpostaPaginaVerifica(pannello_->Pagina());
  if (visibile_ && !editore_.Trovati().Verificato()) return Rinnova();
  Segui();
}

void qtVerifica::Segui() {
  if (visibile_ && editore_.VerificaDaRifare()) attesa_.start();
}

/// Never two at once: the end of the one under way asks again.
void qtVerifica::Rinnova() {
  attesa_.stop();
  if (filo_.AlLavoro() || !editore_.VerificaDaRifare()) return;
  const std::optional<LavoroVerifica> lavoro = editore_.RinnovaVerifica();
  if (lavoro)
    filo_.Comincia([lavoro = *lavoro](const std::stop_token& /*smetti*/) { return lavoro.Esegui(); });
}

void qtVerifica::Mostra() {
  if (pannello_ == nullptr) return;
  pannello_->Aggiorna();
  for (const Sezione sezione : TutteLeSezioni) area_.Editor(sezione).RidisegnaOnde();
}

void qtVerifica::MostraOnde(bool accese) {
  for (const Sezione sezione : TutteLeSezioni) {
    const auto onde = [this, sezione](const Selezione& parte) {
      std::vector<OndaTesto> trovate;
      for (const SegnoProblema& segno : editore_.Trovati().In(sezione, parte)) {
        const Rilievo& rilievo = editore_.Trovati().Trovati()[segno.Quale];
        trovate.push_back({.Parte = segno.Posto,
                           .Errore = rilievo.Grado() == Livello::Errore,
                           .Detto = DaUtf8(rilievo.Testo)});
      }
      return trovate;
    };
    area_.Editor(sezione).MostraOnde(accese ? LettoreOnde(onde) : LettoreOnde());
  }
}

void qtVerifica::Verifica() {
  if (editore_.ProblemiVisibili()) return Passa(1);
  editore_.Commuta(Preferenza::Problemi);
}

/// In what is told now, were it old or not: it is looked for first where that is quick.
void qtVerifica::Passa(int passo) {
  Rinnova();
  if (const auto quale = pannello_->Passa(passo)) editore_.RaggiungiProblema(*quale);
}

}  // namespace parvik
