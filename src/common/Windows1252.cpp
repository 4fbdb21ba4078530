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

}  // namespace

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
