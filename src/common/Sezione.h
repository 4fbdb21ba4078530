// The sections of a template.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace parvik {

enum class Sezione { Testata = 0, Corpo = 1, Piede = 2 };

inline constexpr std::size_t MaxSezioni = 3;
inline constexpr std::array<Sezione, MaxSezioni> TutteLeSezioni = {Sezione::Testata, Sezione::Corpo,
                                                                   Sezione::Piede};
/// As the batch program writes and reads them.
inline constexpr std::array<std::string_view, MaxSezioni> NomiSezioni = {"testata", "corpo", "piede"};

constexpr std::size_t Indice(Sezione sezione) {
  return static_cast<std::size_t>(sezione);
}

/// The texts of the sections, Windows-1252 bytes, lines separated by CR LF.
using TestiSezioni = std::array<std::string, MaxSezioni>;

/// `NumSezioni` of a document type: exactly 3 lays a template out in three sections, any other value in one.
constexpr bool HaTreSezioni(std::int16_t numSezioni) {
  return numSezioni == 3;
}

/// Whether the section is one of such a template's.
constexpr bool HaSezione(std::int16_t numSezioni, Sezione sezione) {
  return sezione == Sezione::Testata || HaTreSezioni(numSezioni);
}

}  // namespace parvik
