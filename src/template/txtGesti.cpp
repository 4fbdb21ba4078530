#include "template/txtGesti.h"

#include <QApplication>
#include <algorithm>

namespace parvik {

bool txtGesti::Trattiene(QPoint punto, ComandiSezione& comandi) {
  if (trattenuta_) return true;
  if (!presa_ || (punto - *presa_).manhattanLength() < QApplication::startDragDistance()) return false;
  presa_.reset();
  if (comandi.LasciaTogliere(comandi.Selezionato(), Pressione::Prima)) return false;
  trattenuta_ = comandi.Selezionato();
  return true;
}

Cursore txtGesti::FinoA(Selezione parola) const {
  if (parola.Inizio < parola_->Inizio) return {.Ancora = parola_->Fine(), .Posto = parola.Inizio};
  return {.Ancora = parola_->Inizio, .Posto = std::max(parola_->Fine(), parola.Fine())};
}

}  // namespace parvik
