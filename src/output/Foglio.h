// The sheet that a preview is looked at on: how many columns and lines a page of it holds.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "output/TestoAnteprima.h"

namespace parvik {

/// In the order in which they are offered.
enum class Carta { Nessuna, A4, A5, Modulo11, Modulo12, Personalizzata };
inline constexpr std::size_t NumCarte = 6;
inline constexpr std::array<std::string_view, NumCarte> NomiCarte = {
    "Nessuno", "A4", "A5", "Modulo 11 pollici", "Modulo 12 pollici", "Personalizzato"};

/// Lengths in tenths of a millimetre.
struct Foglio {
  Carta Quale = Carta::Nessuna;
  int Larghezza = 0;
  int Altezza = 0;
  int LineePerPollice = 6;
  int MargineSinistro = 0;
  int MargineDestro = 0;
  int MargineAlto = 0;
  int MargineBasso = 0;

  bool operator==(const Foglio&) const = default;
};

/// A sheet of that size, upright, with the margins that a printer needs. Of `Personalizzata` that of A4 to
/// begin with, and of `Nessuna` no size.
Foglio FoglioDi(Carta carta);

/// What one page holds; at least one of each.
struct PaginaFoglio {
  std::size_t Colonne = 1;
  std::size_t Righe = 1;

  bool operator==(const PaginaFoglio&) const = default;
};

/// `cella` is the width of a character on paper, in tenths of a millimetre. The sheet is not `Nessuna`.
PaginaFoglio PaginaDi(const Foglio& foglio, double cella);

/// How many pages so many lines take.
std::size_t Pagine(std::size_t righe, const PaginaFoglio& pagina);

/// How many lines of a preview are wider than a page.
std::size_t RigheOltre(const TestoAnteprima& testo, const PaginaFoglio& pagina);

}  // namespace parvik
