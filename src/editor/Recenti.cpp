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

std::vector<std::filesystem::path> Recenti::Spariti() const {
  std::vector<std::filesystem::path> spariti;
  for (const ModelloRecente& voce : voci_) {
    std::error_code errore;
    if (!std::filesystem::is_regular_file(voce.File, errore)) spariti.push_back(voce.File);
  }
  return spariti;
}

void Recenti::Togli(const std::vector<std::filesystem::path>& file) {
  std::erase_if(voci_, [&](const ModelloRecente& voce) { return std::ranges::count(file, voce.File) > 0; });
}

}  // namespace parvik
