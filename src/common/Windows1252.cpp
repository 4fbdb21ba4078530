#include "common/Windows1252.h"

#include <algorithm>

namespace parvik {
namespace {

// 0x80 to 0x9F; every other byte is the Unicode value of the same number.
constexpr std::array<char16_t, 32> SecondaMeta = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr std::array<char16_t, 256> CostruisciTabella() {
  std::array<char16_t, 256> tabella = {};
  for (std::size_t i = 0; i < tabella.size(); ++i) {
    const bool nellaSeconda = i >= 0x80 && i < 0x80 + SecondaMeta.size();
    tabella[i] = nellaSeconda ? SecondaMeta[i - 0x80] : static_cast<char16_t>(i);
  }
  return tabella;
}

void Aggiungi(std::string& utf8, char16_t valore) {
  const auto byte = [&utf8](unsigned int b) {
    utf8.push_back(static_cast<char>(static_cast<unsigned char>(b)));
  };
  const unsigned int v = valore;
  if (v < 0x80U) {
    byte(v);
  } else if (v < 0x800U) {
    byte(0xC0U | (v >> 6U));
    byte(0x80U | (v & 0x3FU));
  } else {
    byte(0xE0U | (v >> 12U));
    byte(0x80U | ((v >> 6U) & 0x3FU));
    byte(0x80U | (v & 0x3FU));
  }
}

}  // namespace

constexpr std::array<char16_t, 256> UnicodeDiAnsi = CostruisciTabella();

namespace {

char AnsiDa(char16_t unita) {
  if (unita < UnicodeDiAnsi.size() && UnicodeDiAnsi[unita] == unita) return static_cast<char>(unita);
  const auto trovata = std::ranges::find(SecondaMeta, unita);
  return trovata == SecondaMeta.end() ? '?' : static_cast<char>(0x80 + (trovata - SecondaMeta.begin()));
}

/// A character at the beginning of a text, and how many bytes it takes: one where it is none, or below 0x80.
struct Carattere {
  std::size_t Byte = 1;
  char16_t Valore = 0;
};

Carattere CarattereUtf8(std::string_view testo) {
  const unsigned int primo = static_cast<unsigned char>(testo.front());
  const std::size_t byte = primo < 0xC2U ? 1 : primo < 0xE0U ? 2 : primo < 0xF0U ? 3 : primo < 0xF5U ? 4 : 1;
  if (byte == 1 || testo.size() < byte) return {};
  unsigned int valore = primo & (0x7FU >> byte);
  for (std::size_t i = 1; i < byte; ++i) {
    const unsigned int seguente = static_cast<unsigned char>(testo[i]);
    if ((seguente & 0xC0U) != 0x80U) return {};
    valore = (valore << 6U) | (seguente & 0x3FU);
  }
  return {.Byte = byte, .Valore = static_cast<char16_t>(std::min(valore, 0xFFFDU))};  // beyond is "?" too
}

}  // namespace

std::string AnsiDaUtf8(std::string_view utf8) {
  std::string ansi;
  for (std::size_t i = 0; i < utf8.size();) {
    const Carattere carattere = CarattereUtf8(utf8.substr(i));
    ansi.push_back(carattere.Byte == 1 ? utf8[i] : AnsiDa(carattere.Valore));
    i += carattere.Byte;
  }
  return ansi;
}

std::string AnsiDaUtf16(std::string_view byte) {
  std::string ansi;
  ansi.reserve(byte.size() / 2);
  for (std::size_t i = 0; i + 1 < byte.size(); i += 2) {
    const unsigned int basso = static_cast<unsigned char>(byte[i]);
    const unsigned int alto = static_cast<unsigned char>(byte[i + 1]);
    ansi.push_back(AnsiDa(static_cast<char16_t>(basso | (alto << 8U))));
  }
  return ansi;
}

std::string Utf8DaAnsi(std::string_view byte) {
  std::string utf8;
  utf8.reserve(byte.size());
  for (const char c : byte) Aggiungi(utf8, UnicodeDiAnsi[static_cast<unsigned char>(c)]);
  return utf8;
}

std::string Utf8SenzaControlli(std::string_view byte) {
  std::string utf8;
  utf8.reserve(byte.size());
  for (const char c : byte) {
    const char16_t valore = UnicodeDiAnsi[static_cast<unsigned char>(c)];
    const bool controllo = valore < 0x20 || (valore >= 0x7F && valore < 0xA0);
    Aggiungi(utf8, controllo ? u' ' : valore);
  }
  return utf8;
}

}  // namespace parvik
