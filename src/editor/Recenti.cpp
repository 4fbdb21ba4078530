#include "editor/Recenti.h"

#include <algorithm>

namespace parvik {

void Recenti::Aggiungi(const ModelloRecente& modello) {
  std::erase_if(voci_, [&](const ModelloRecente& voce) { return voce.File == modello.File; });
  voci_.insert(voci_.begin(), modello);
  if (voci_.size() > Massimo) voci_.pop_back();
}

void Recenti::Accoda(const ModelloRecente& modello) {
  const auto stesso = [&](const ModelloRecente& voce) { return voce.File == modello.File; };
  if (voci_.size() < Massimo && std::ranges::none_of(voci_, stesso)) voci_.push_back(modello);
}

void Recenti::TogliSpariti(const std::function<bool(const std::filesystem::path&)>& esiste) {
  std::erase_if(voci_, [&](const ModelloRecente& voce) { return !esiste(voce.File); });
}

}  // namespace parvik
