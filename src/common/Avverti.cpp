#include "common/Avverti.h"

#include <utility>

namespace parvik {

void Avverti(const Scritto& scritto, Interlocutore& interlocutore) {
  std::string testo = TestoAvviso(scritto);
  if (testo.empty()) return;
  interlocutore.Chiedi({.Testo = std::move(testo), .Simbolo = Icona::Esclamazione});
}

}  // namespace parvik
