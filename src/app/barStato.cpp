#include "app/barStato.h"

#include <QEvent>
#include <algorithm>
#include <numeric>

#include "common/qtTesto.h"

namespace parvik {
namespace {

constexpr int Margine = 4;  // pixels, at both ends
constexpr int Spazio = 16;  // pixels, between two fields

/// A field as wide as this text, whatever it says: the others do not move while the caret does. Those without
/// share what is left.
struct Campo {
  const char* Nome;
  Qt::TextElideMode Taglio;
  const char* Modello;
};

constexpr std::array<Campo, 7> Campi = {{{"lblSezione", Qt::ElideRight, "Testata: riga 9999, col. 999"},
                                         {"lblColCarta", Qt::ElideRight, "Stampa: col. 9999"},
                                         {"lblCodice", Qt::ElideRight, nullptr},
                                         {"lblPercorso", Qt::ElideMiddle, nullptr},
                                         {"lblAggiornata", Qt::ElideRight, "Anteprima non aggiornata"},
                                         {"lblPagine", Qt::ElideRight, "99999 righe + fine"},
                                         {"lblProblemi", Qt::ElideRight, "99 errori, 99 avvisi"}}};

constexpr std::size_t Codice = 2;
constexpr std::size_t Percorso = 3;

}  // namespace

barStato::barStato(QWidget* padre) : QStatusBar(padre) {
  setObjectName("barStato");
  setAccessibleName("Barra di stato");
  setSizeGripEnabled(false);
  for (std::size_t i = 0; i < NumCampi; ++i) campi_[i] = new lblBarra(Campi[i].Nome, Campi[i].Taglio, this);
  Misura();
}

void barStato::Mostra(const TestiBarra& testi) {
  const std::array<const std::string*, NumCampi> ordine = {&testi.Sezione,  &testi.ColCarta,   &testi.Codice,
                                                           &testi.Percorso, &testi.Aggiornata, &testi.Pagine,
                                                           &testi.Problemi};
  bool daDisporre = false;
  for (std::size_t i = 0; i < NumCampi; ++i) {
    const int prima = campi_[i]->LarghezzaTesto();
    campi_[i]->Scrivi(DaUtf8(*ordine[i]));
    const int ora = campi_[i]->LarghezzaTesto();
    daDisporre |= Allarga(i) || (prima == 0) != (ora == 0) || (i == Percorso && prima != ora);
  }
  if (daDisporre) Disponi();
}

/// A field whose text is wider than any before it. It stays so.
bool barStato::Allarga(std::size_t i) {
  const int serve = campi_[i]->LarghezzaTesto();
  if (Campi[i].Modello == nullptr || serve <= larghezze_[i]) return false;
  larghezze_[i] = serve;
  return true;
}

void barStato::Misura() {
  const QFontMetrics misure = fontMetrics();
  for (std::size_t i = 0; i < NumCampi; ++i) {
    larghezze_[i] = misure.horizontalAdvance(Campi[i].Modello);
    Allarga(i);
  }
  setFixedHeight(misure.height() + 2 * Margine);
  Disponi();
}

/// Fields without a text take no room, and the path no more than it needs of what is left. Where there is
/// little, each field gets less: none is lost.
void barStato::Disponi() {
  std::array<int, NumCampi> larghezze = larghezze_;
  for (std::size_t i = 0; i < NumCampi; ++i)
    if (campi_[i]->text().isEmpty()) larghezze[i] = 0;
  const int tutta = std::max(width() - 2 * Margine - static_cast<int>(NumCampi - 1) * Spazio, 0);
  const int fissa = std::accumulate(larghezze.begin(), larghezze.end(), 0);
  const int libera = std::max(tutta - fissa, tutta / 4);
  const double scala = fissa > 0 ? std::min(1.0, static_cast<double>(tutta - libera) / fissa) : 1;
  for (int& larghezza : larghezze) larghezza = static_cast<int>(larghezza * scala);
  larghezze[Percorso] = std::min(campi_[Percorso]->LarghezzaTesto(), libera / 2);
  larghezze[Codice] = libera - larghezze[Percorso];
  int x = Margine;
  for (std::size_t i = 0; i < NumCampi; ++i) {
    const int larghezza = larghezze[i];
    campi_[i]->Poni({x, 0, larghezza, height()});
    x += larghezza + (larghezza > 0 ? Spazio : 0);
  }
}

void barStato::changeEvent(QEvent* evento) {
  QStatusBar::changeEvent(evento);
  if (evento->type() == QEvent::FontChange || evento->type() == QEvent::StyleChange) Misura();
}

void barStato::resizeEvent(QResizeEvent* evento) {
  QStatusBar::resizeEvent(evento);
  Disponi();
}

}  // namespace parvik
