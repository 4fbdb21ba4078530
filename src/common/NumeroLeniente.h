// Lenient numbers: how a number is read from a catalogue, a marker or a code (docs/code-grammar.md,
// "Numbers").
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "common/Esito.h"

namespace parvik {

/// One of the ten; no locale has a say.
constexpr bool Cifra(char c) {
  return c >= '0' && c <= '9';
}

/// The value of the longest numeric prefix of `testo`: leading spaces (only spaces) are skipped, then a sign,
/// digits and at most one decimal point. No exponent, no other base. 0 when there is no digit; an infinity
/// when the digits say more than a double holds.
double NumeroLeniente(std::string_view testo);

/// The same, rounded half to even. Overflow outside -32768..32767.
Esito<std::int16_t> InteroLeniente(std::string_view testo);

/// The longest run of characters that a single number in a code may ask for. A larger number counts as this
/// one: without a bound a line of ten bytes could ask for more memory than any machine has.
inline constexpr std::size_t LunghezzaMassima = 1'000'000;

/// A length, width or count of characters in a code: rounded half to even, 0 when negative, at most
/// LunghezzaMassima.
std::size_t LunghezzaLeniente(std::string_view testo);

/// Whether there is a number at all: of a text without one, the readings above say 0.
bool HaNumero(std::string_view testo);

/// Whether the whole of `testo` is a number in the sense above, spaces around it allowed.
bool EUnNumero(std::string_view testo);

}  // namespace parvik
