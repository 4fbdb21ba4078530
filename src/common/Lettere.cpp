#include "common/Lettere.h"

#include <algorithm>

namespace parvik {

std::string InMinuscolo(std::string_view testo) {
  std::string minuscolo(testo);
  std::ranges::transform(minuscolo, minuscolo.begin(), LetteraPiccola);
  return minuscolo;
}

std::string InLettereNude(std::string_view testo) {
  std::string nudo(testo);
  std::ranges::transform(nudo, nudo.begin(), LetteraNuda);
  return nudo;
}

}  // namespace parvik
