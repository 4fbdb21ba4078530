// What the preview pane shows beside its text: the marks of what stands at the caret of a section, and the
// sheet. And a new text that takes the place of the one that it was made from.
#include <QRegion>
#include <QScrollBar>
#include <utility>

#include "output/ricAccessibile.h"
#include "output/ricAnte.h"
#include "output/ricTrascinamento.h"

namespace parvik {

void ricAnte::Rinnova(std::shared_ptr<const TestoAnteprima> testo, const Ricollocazione& dove) {
  trascinamento_->Finisci();
  luoghi_.Imposta({});
  const SelezioneAnteprima prima = scelta_;
  const auto riga = static_cast<std::size_t>(verticalScrollBar()->value());
  scelta_.Rinnova(std::move(testo), dove);
  MisuraLarghezza();
  if (riga > 0) MettiInAlto(dove(prima.Testo(), Contenuto(), prima.Testo().InizioRiga(riga)));
  ricAccessibile::AnnunciaDifferenza(*this, prima.Testo());
  if (scelta_.Estremi() != prima.Estremi()) ricAccessibile::AnnunciaCursore(*this, prima.Selezionato());
  emit Mostrata();
}

void ricAnte::MostraFoglio(const Foglio& foglio) {
  if (foglio_.Imposta(foglio, Contenuto())) viewport()->update();
}

bool ricAnte::MostraSegni(SegniAnteprima segni) {
  if (segni == luoghi_.Segni()) return false;
  AggiornaSegni();
  luoghi_.Imposta(std::move(segni));
  AggiornaSegni();
  return true;
}

void ricAnte::MostraTrovati(LettoreTrovati trovati) {
  trovati_ = std::move(trovati);
  viewport()->update();
}

void ricAnte::AggiornaSegni() {
  for (const QRectF& fondo : luoghi_.Rettangoli(Veduta())) viewport()->update(fondo.toAlignedRect());
}

void ricAnte::RivelaSegni() {
  const std::optional<Selezione> segno = luoghi_.DaRivelare(Veduta());
  if (!segno) return;
  Rivela(segno->Fine());
  Rivela(segno->Inizio);
}

}  // namespace parvik
