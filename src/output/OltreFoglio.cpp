#include "output/OltreFoglio.h"

#include <algorithm>

namespace parvik {
namespace {

// Whole numbers: nothing is rounded.
constexpr std::size_t QuintiPerColonna = 5;
constexpr std::size_t QuintiCompressi = 4;

std::size_t Quinti(const Aspetto& aspetto) {
  return aspetto.Corpo == CorpoCarattere::Compresso ? QuintiCompressi : QuintiPerColonna;
}

}  // namespace

std::size_t ColonneDentro(const TestoAnteprima& testo, std::size_t riga, const PaginaFoglio& pagina) {
  const std::size_t inizio = testo.InizioRiga(riga);
  const std::size_t termine = testo.TermineRiga(riga);
  std::size_t posto = inizio;
  std::size_t resto = pagina.Colonne * QuintiPerColonna;
  // Whether all up to there found room.
  const auto fino = [&](std::size_t fine, const Aspetto& aspetto) {
    if (fine <= posto) return true;
    const std::size_t dentro = std::min(fine - posto, resto / Quinti(aspetto));
    posto += dentro;
    resto -= dentro * Quinti(aspetto);
    return posto == fine;
  };
  for (const Tratto& tratto : testo.TrattiIn(inizio, termine)) {
    const std::size_t fine = std::min(tratto.Inizio + tratto.Lunghezza, termine);
    if (!fino(tratto.Inizio, Aspetto()) || !fino(fine, tratto.Come)) return posto - inizio;
  }
  fino(termine, Aspetto());
  return posto - inizio;
}

std::size_t RigheOltre(const TestoAnteprima& testo, const PaginaFoglio& pagina) {
  PerAspetto<double> quinti = {};
  for (std::size_t i = 0; i < NumAspetti; ++i) quinti[i] = static_cast<double>(Quinti(AspettoDiIndice(i)));
  return testo.RighePiuLarghe(quinti, static_cast<double>(pagina.Colonne * QuintiPerColonna));
}

}  // namespace parvik
