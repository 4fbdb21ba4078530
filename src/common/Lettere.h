// Letters of Windows-1252, byte by byte: their small form, and what is left of them without their accent.
#pragma once

#include <string>
#include <string_view>

namespace parvik {

/// The small letter of a capital, accented ones included; any other byte as it is.
constexpr char LetteraPiccola(char c) {
  constexpr unsigned char Distanza = 'a' - 'A';
  const auto byte = static_cast<unsigned char>(c);
  const bool accentata = byte >= 0xC0 && byte <= 0xDE && byte != 0xD7;  // D7 is the multiplication sign
  const bool diAltraLingua = byte == 0x8A || byte == 0x8C || byte == 0x8E;
  if ((c >= 'A' && c <= 'Z') || accentata) return static_cast<char>(byte + Distanza);
  if (diAltraLingua) return static_cast<char>(byte + 0x10);
  return c == '\x9F' ? '\xFF' : c;
}

/// The small letter without its accent ("à" is "a", "Ç" is "c"); any other byte as it is.
constexpr char LetteraNuda(char c) {
  constexpr std::string_view DaE0 =
      "aaaaaa\xE6"
      "ceeeeiiii\xF0"
      "nooooo\xF7"
      "ouuuuy\xFE"
      "y";
  const char minuscola = LetteraPiccola(c);
  const auto byte = static_cast<unsigned char>(minuscola);
  if (byte >= 0xE0) return DaE0[byte - 0xE0];
  if (byte == 0x9A) return 's';
  return byte == 0x9E ? 'z' : minuscola;
}

/// As many bytes as `testo` has.
std::string InMinuscolo(std::string_view testo);
std::string InLettereNude(std::string_view testo);

/// A letter, whatever its case and accent, or a digit: what words are made of.
constexpr bool LetteraOCifra(char c) {
  constexpr std::string_view DaSole = "\x83\x8A\x8C\x8E\x9A\x9C\x9E\x9F";
  const auto byte = static_cast<unsigned char>(c);
  if (byte >= 0xC0) return byte != 0xD7 && byte != 0xF7;  // the signs of multiplication and division
  return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
         DaSole.find(c) != std::string_view::npos;
}

}  // namespace parvik
