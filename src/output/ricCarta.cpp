#include "output/ricCarta.h"

#include <QPainter>
#include <algorithm>
#include <vector>

#include "output/ricCelle.h"

namespace parvik {
namespace {

constexpr double ScalaMinima = 0.5;  // of text that is still read
constexpr double Tolleranza = 0.01;  // of a line: a page's height is a rounded number

/// Lengths are twips, made smaller where the text is too wide for the page.
class Impaginatore {
 public:
  Impaginatore(QPagedPaintDevice& foglio, QPainter& pittore, const LavoroCarta& lavoro)
      : foglio_(foglio),
        pittore_(pittore),
        testo_(lavoro.Testo),
        passo_(lavoro.PassoRiga),
        celle_(Celle::SuCarta(CarattereAnteprima())),
        pagina_(QSizeF(foglio.width(), foglio.height()) / UnitaPerTwip()) {
    const double scala = Scala();
    pittore_.scale(scala * UnitaPerTwip(), scala * UnitaPerTwip());
    pagina_ /= scala;
    passo_ /= scala;
    if (lavoro.RighePagina > 0) pagina_.setHeight(static_cast<double>(lavoro.RighePagina) * passo_);
  }

  /// Prints the columns [da, a) of a line. Whether a page was finished before it.
  bool Stampa(std::size_t riga, std::size_t da, std::size_t a) {
    const AltezzeRiga altezze = AltezzeDi(testo_, riga, celle_);
    const std::vector<std::size_t> fini = Spezza(riga, da, a);
    const qreal altezza = passo_ > 0 ? passo_ : altezze.Altezza();
    const bool nuova = !CiSta(static_cast<qreal>(fini.size()) * altezza) && y_ > 0;
    if (nuova) NuovaPagina();
    for (const std::size_t fine : fini) {
      if (!CiSta(altezza) && y_ > 0) NuovaPagina();  // one line, longer than a whole page
      const qreal x = XDi(testo_, riga, da, celle_);
      DisegnaRiga(pittore_, {-x, y_ + altezze.Ascesa}, testo_, riga, da, fine, celle_);
      y_ += altezza;
      da = fine;
    }
    return nuova;
  }

 private:
  double UnitaPerTwip() const {
    return foglio_.logicalDpiY() / double{TwipPerPollice};
  }  // dots of the printer

  /// What makes the widest line fit, or nothing when it would be too small to be read.
  double Scala() const {
    PerAspetto<double> larghezze = {};
    for (std::size_t i = 0; i < NumAspetti; ++i) larghezze[i] = celle_.Avanzamento(AspettoDiIndice(i));
    const double larghezza = testo_.LarghezzaMassima(larghezze);
    if (larghezza <= pagina_.width()) return 1;
    const double scala = pagina_.width() / larghezza;
    return scala < ScalaMinima ? 1 : scala;
  }

  /// Where each row of a line ends: as many columns as the page is wide.
  std::vector<std::size_t> Spezza(std::size_t riga, std::size_t da, std::size_t a) const {
    std::vector<std::size_t> fini;
    do {
      const qreal destra = XDi(testo_, riga, da, celle_) + pagina_.width();
      da = std::min(a, std::max(da + 1, ColonnaA(testo_, riga, destra, celle_)));
      fini.push_back(da);
    } while (da < a);
    return fini;
  }

  /// Lines at a distance of their own fill a page to its edge, whose place is rounded.
  bool CiSta(qreal altezza) const { return y_ + altezza <= pagina_.height() + passo_ * Tolleranza; }

  void NuovaPagina() {
    foglio_.newPage();
    y_ = 0;
  }

  QPagedPaintDevice& foglio_;
  QPainter& pittore_;
  const TestoAnteprima& testo_;
  double passo_;  // 0: each line as high as its characters
  Celle celle_;
  QSizeF pagina_;
  qreal y_ = 0;
};

}  // namespace

bool StampaSuCarta(Stampante& stampante, const LavoroCarta& lavoro,
                   const std::function<bool(std::size_t)>& avanza) {
  const TestoAnteprima& testo = lavoro.Testo;
  const Selezione& parte = lavoro.Parte;
  QPainter pittore;
  if (!pittore.begin(&stampante.Foglio())) return false;
  pittore.setPen(Qt::black);
  Impaginatore pagine(stampante.Foglio(), pittore, lavoro);
  const std::size_t ultima = testo.RigaDi(parte.Fine());
  for (std::size_t riga = testo.RigaDi(parte.Inizio); riga <= ultima; ++riga) {
    const std::size_t inizio = testo.InizioRiga(riga);
    const std::size_t da = std::max(parte.Inizio, inizio) - inizio;
    if (parte.Fine() == inizio && parte.Lunghezza > 0) break;  // the part ends with a line end
    const std::size_t a = std::max(std::min(parte.Fine(), testo.TermineRiga(riga)) - inizio, da);
    if (pagine.Stampa(riga, da, a) && !avanza(inizio + da)) {
      stampante.Ritira();
      return false;
    }
  }
  return pittore.end();
}

}  // namespace parvik
