// The style pass on any text.
#include "Aspetti.h"
#include "supporto/RiferimentoStili.h"

namespace parvik::fuzz {
namespace {

/// The literal pass takes time in the square of the text.
constexpr std::size_t MassimoPerRiferimento = 256;

void Prova(const std::string& testo) {
  std::string reso = testo;
  const std::vector<Tratto> tratti = MettiStili(reso);
  EsigiTrattiInteri(reso, tratti);
  Esigi(reso.size() <= testo.size(), "markers go, nothing comes");
  if (testo.size() > MassimoPerRiferimento) return;
  const prova::TestoConAspetti riferimento = prova::StiliDiRiferimento(testo);
  Esigi(reso == riferimento.Testo, "the text is the one that the rules give word for word");
  EsigiAspetti(tratti, riferimento.Aspetti);
}

}  // namespace
}  // namespace parvik::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t dimensione) {
  parvik::fuzz::Prova(std::string(parvik::fuzz::Ingresso(dati, dimensione).Resto()));
  return 0;
}
