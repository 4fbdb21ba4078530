// The sheet that a preview is looked at on, and that printing begins with: its size, its margins, and how
// many columns and lines a page of it holds (docs/foglio.md).
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace parvik {

/// In the order in which they are offered.
enum class Carta { Nessuna, A4, A5, Modulo11, Modulo12, Personalizzata };
inline constexpr std::array<std::string_view, 6> NomiCarte = {
    "Nessuno", "A4", "A5", "Modulo 11 pollici", "Modulo 12 pollici", "Personalizzato"};

enum class LatoFoglio { Sinistro, Destro, Alto, Basso };
inline constexpr std::size_t NumMargini = 4;

inline constexpr int DecimiPerPollice = 254;

/// Lengths in tenths of a millimetre.
struct Foglio {
  Carta Quale = Carta::Nessuna;
  int Larghezza = 0;
  int Altezza = 0;
  int LineePerPollice = 6;
  std::array<int, NumMargini> Margini = {};

  int operator[](LatoFoglio quale) const { return Margini[static_cast<std::size_t>(quale)]; }

  bool operator==(const Foglio&) const = default;
};

/// A sheet of that size, upright, with the margins that such paper needs. Of `Personalizzata` that of A4 to
/// begin with, and of `Nessuna` no size.
Foglio FoglioDi(Carta carta);

/// What is wrong with a sheet, for its user: a length out of bounds, or margins that leave no room between
/// them. UTF-8; nullopt when it can be used, and `Nessuna` always can.
std::optional<std::string> DifettoDi(const Foglio& foglio);

/// A length as it is written: millimetres, a comma (a point is as good), one digit behind it where there is
/// something to say. nullopt for anything else, and for what is longer than a number of the program's.
std::optional<int> LeggiMillimetri(std::string_view testo);
std::string InMillimetri(int decimi);

/// What one page holds; at least one of each.
struct PaginaFoglio {
  std::size_t Colonne = 1;
  std::size_t Righe = 1;

  bool operator==(const PaginaFoglio&) const = default;
};

/// `cella` is the width of a character on paper, in tenths of a millimetre. The sheet must be one, without
/// anything wrong.
PaginaFoglio PaginaDi(const Foglio& foglio, double cella);

/// How many pages so many lines take.
std::size_t Pagine(std::size_t righe, const PaginaFoglio& pagina);

}  // namespace parvik
