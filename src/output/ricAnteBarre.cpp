// The scroll bars of the preview pane, and the measures that they follow.
#include <QScrollBar>
#include <QStyle>
#include <algorithm>
#include <cmath>
#include <limits>

#include "editor/Ingrandimento.h"
#include "output/MettiStili.h"
#include "output/ricAnte.h"

namespace parvik {
namespace {

constexpr int MassimaBarra = std::numeric_limits<int>::max() / 2;

int InBarra(double valore) {
  return static_cast<int>(std::min(std::ceil(valore), double{MassimaBarra}));
}

}  // namespace

void ricAnte::Rivela(std::size_t byte) {
  const std::size_t riga = Contenuto().RigaDi(byte);
  if (riga < static_cast<std::size_t>(verticalScrollBar()->value())) {
    verticalScrollBar()->setValue(InBarra(static_cast<double>(riga)));
  } else if (riga > Veduta().UltimaRigaIntera()) {
    const std::size_t prima = VedutaAnteprima::PrimaRigaPer(Contenuto(), *celle_, riga, viewport()->height());
    verticalScrollBar()->setValue(InBarra(static_cast<double>(prima)));
  }
  const QRect rettangolo = RettangoloDi(byte);
  const int oltreDestra = rettangolo.right() + VedutaAnteprima::Margine - viewport()->width();
  const int oltreSinistra = rettangolo.left() - VedutaAnteprima::Margine;
  const int passo =
      oltreSinistra < 0 ? oltreSinistra : std::clamp(oltreDestra, 0, std::max(0, oltreSinistra));
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() + passo);
}

/// The line of that place is the first one that shows, if there are enough behind it.
void ricAnte::MettiInAlto(std::size_t byte) {
  verticalScrollBar()->setValue(InBarra(static_cast<double>(Contenuto().RigaDi(byte))));
}

/// On by so many lines and pixels, back where they are negative.
void ricAnte::Scorri(int righe, int pixel) {
  verticalScrollBar()->setValue(verticalScrollBar()->value() + righe);
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() + pixel);
}

void ricAnte::MostraRighello(bool mostra) {
  if (!mostra && righello_ == nullptr) return;
  if (righello_ == nullptr) {
    righello_ = new righello("righelloAnte", "Righello Anteprima", *this, [this] {
      return GrigliaColonne{
          .Origine = static_cast<qreal>(VedutaAnteprima::Margine - horizontalScrollBar()->value()),
          .Cella = celle_->Avanzamento({}),
          .Cursore = Veduta().RettangoloDi(Cursore()).left()};
    });
  }
  righello_->setVisible(mostra);
  setViewportMargins(0, mostra ? righello_->Altezza() : 0, 0, 0);
}

/// The device or the font has changed.
void ricAnte::Rimisura() {
  rapporto_ = viewport()->devicePixelRatioF();
  risoluzione_ = viewport()->logicalDpiY();
  celle_ = Celle::SuSchermo(font(), *viewport(), scala_);
  MisuraLarghezza();
}

void ricAnte::MisuraLarghezza() {
  const auto conteggio = Contenuto().Conta(Contenuto().Testo().size());
  PerAspetto<double> larghezze = {};
  for (std::size_t i = 0; i < NumAspetti; ++i) {
    if (conteggio[i] > 0) larghezze[i] = celle_->Avanzamento(AspettoDiIndice(i));
  }
  larghezza_ = InBarra(Contenuto().LarghezzaMassima(larghezze));
  foglio_.Misura(Contenuto());
  AggiornaBarre();
  viewport()->update();
}

void ricAnte::AggiornaBarre() {
  if (Contenuto().Testo().empty()) {  // the hidden pane of a program that has just started looks no font up
    verticalScrollBar()->setRange(0, 0);
    horizontalScrollBar()->setRange(0, 0);
    return;
  }
  const QSize finestra = viewport()->size();
  const std::size_t ultima = Contenuto().NumRighe() - 1;
  const std::size_t prima = VedutaAnteprima::PrimaRigaPer(Contenuto(), *celle_, ultima, finestra.height());
  verticalScrollBar()->setRange(0, InBarra(static_cast<double>(prima)));
  verticalScrollBar()->setPageStep(std::max(1, static_cast<int>(finestra.height() / celle_->Altezza({}))));
  verticalScrollBar()->setSingleStep(1);
  const int spessore = style()->pixelMetric(QStyle::PM_TextCursorWidth, nullptr, this);
  const int intera = larghezza_ + 2 * VedutaAnteprima::Margine + spessore;
  horizontalScrollBar()->setRange(0, std::max(0, intera - finestra.width()));
  horizontalScrollBar()->setPageStep(finestra.width());
  horizontalScrollBar()->setSingleStep(InBarra(celle_->Avanzamento({})));
}

void ricAnte::Ingrandisci(int passi) {
  const double normale = Punti(CorpoCarattere::Normale);
  scala_ = PuntiIngranditi(normale, passi) / normale;
  Rimisura();
}

void ricAnte::RimisuraSeDiverso() {
  if (viewport()->devicePixelRatioF() != rapporto_ || viewport()->logicalDpiY() != risoluzione_) Rimisura();
}

}  // namespace parvik
