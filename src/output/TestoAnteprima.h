// The text of a preview and where its lines are: what a pane or a printer looks at piece by piece.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "output/GeneraStampa.h"

namespace parvik {

/// How many looks there can be, and each one's number.
inline constexpr std::size_t NumAspetti = 24;
std::size_t IndiceDi(const Aspetto& aspetto);
Aspetto AspettoDiIndice(std::size_t indice);

/// One value for each look, by its number.
template <class Valore>
using PerAspetto = std::array<Valore, NumAspetti>;

/// Owns a preview. Bytes and lines count from 0. A line ends at CR LF and nowhere else: a lone CR or LF is a
/// character of its line. A text that ends with a line end has an empty line behind it, and an empty text
/// has one line. Looking a place up costs a binary search and a look at a few thousand bytes at most, however
/// long lines are; the index takes a small part of the text's size.
class TestoAnteprima {
 public:
  TestoAnteprima() : TestoAnteprima(Anteprima()) {}
  /// Linear in the text. Characters that no run covers have the pane's own look.
  explicit TestoAnteprima(Anteprima anteprima);

  std::string_view Testo() const { return anteprima_.Testo; }
  const std::vector<Tratto>& Tratti() const { return anteprima_.Tratti; }

  std::size_t NumRighe() const { return numRighe_; }

  /// The line's first byte, and the byte behind its last character (its CR, or the text's end).
  std::size_t InizioRiga(std::size_t riga) const { return Estremi(riga).Inizio; }
  std::size_t TermineRiga(std::size_t riga) const { return Estremi(riga).Termine; }
  /// Without its line end. Valid as long as this text is neither changed nor moved.
  std::string_view Riga(std::size_t riga) const;
  /// The line that `byte` lies in; its CR and LF are part of a line. Past the end of the text: the last one.
  std::size_t RigaDi(std::size_t byte) const;

  /// The runs that share a byte with [da, a).
  std::span<const Tratto> TrattiIn(std::size_t da, std::size_t a) const;
  /// At and past the end of the text: the look of its last byte, or the pane's own when there is none.
  Aspetto AspettoDi(std::size_t byte) const;
  /// How many of the bytes before `byte` have each look. Widths are sums over it, however many runs there
  /// are.
  PerAspetto<std::size_t> Conta(std::size_t byte) const;

  /// The width of the widest line, a character of each look being as wide as `larghezze` says. Linear in
  /// lines and runs.
  double LarghezzaMassima(const PerAspetto<double>& larghezze) const;
  /// How many lines are wider than that. Linear in lines and runs.
  std::size_t RighePiuLarghe(const PerAspetto<double>& larghezze, double limite) const;

 private:
  struct Tappa {  // a place that searches start from
    std::size_t Riga = 0;
    std::size_t Byte = 0;
  };

  struct EstremiRiga {  // a line, without its end
    std::size_t Inizio = 0;
    std::size_t Termine = 0;
  };

  void IndicizzaRighe();
  void IndicizzaTratti();
  EstremiRiga Estremi(std::size_t riga) const;
  std::size_t TrattoCheFinisceDopo(std::size_t byte) const;
  template <class Visita>
  void PerOgniLarghezza(const PerAspetto<double>& larghezze, Visita visita) const;

  Anteprima anteprima_;
  std::vector<Tappa> tappe_;
  std::vector<PerAspetto<std::size_t>> conteggi_;  // in front of every so many runs
  std::size_t numRighe_ = 1;
};

}  // namespace parvik
