#include "common/Utf16.h"

#include <cstddef>

namespace parvik {
namespace {

constexpr char32_t PrimoAlto = 0xD800;
constexpr char32_t PrimoBasso = 0xDC00;
constexpr char32_t DopoBassi = 0xE000;
constexpr char32_t OltreUnita = 0x10000;  // takes two units
constexpr char32_t Massimo = 0x10FFFF;
constexpr char32_t Sostituto = 0xFFFD;

bool Alto(char32_t unita) {
  return unita >= PrimoAlto && unita < PrimoBasso;
}

bool Basso(char32_t unita) {
  return unita >= PrimoBasso && unita < DopoBassi;
}

void AggiungiUtf8(std::string& testo, char32_t valore) {
  const auto coda = [&](unsigned int spostamento) {
    testo += static_cast<char>(0x80U | ((valore >> spostamento) & 0x3FU));
  };
  if (valore < 0x80) {
    testo += static_cast<char>(valore);
  } else if (valore < 0x800) {
    testo += static_cast<char>(0xC0U | (valore >> 6U));
    coda(0);
  } else if (valore < OltreUnita) {
    testo += static_cast<char>(0xE0U | (valore >> 12U));
    coda(6);
    coda(0);
  } else {
    testo += static_cast<char>(0xF0U | (valore >> 18U));
    coda(12);
    coda(6);
    coda(0);
  }
}

void AggiungiUtf16(std::u16string& testo, char32_t valore) {
  if (valore < OltreUnita) {
    testo += static_cast<char16_t>(valore);
  } else {
    testo += static_cast<char16_t>(PrimoAlto + ((valore - OltreUnita) >> 10U));
    testo += static_cast<char16_t>(PrimoBasso + ((valore - OltreUnita) & 0x3FFU));
  }
}

/// Takes one character off the begin of `testo`, or one byte that belongs to none. Halves count as
/// characters.
char32_t TogliCarattere(std::string_view& testo) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(testo[i]); };
  const unsigned int primo = byte(0);
  const std::size_t quanti = primo >= 0xF0U ? 4 : primo >= 0xE0U ? 3 : primo >= 0xC0U ? 2 : 1;
  char32_t valore = quanti == 1 ? primo : primo & (0xFFU >> (quanti + 1));
  bool sano = (primo < 0x80U || primo >= 0xC2U) && primo <= 0xF4U && quanti <= testo.size();
  for (std::size_t i = 1; sano && i < quanti; ++i) {
    sano = (byte(i) & 0xC0U) == 0x80U;
    valore = (valore << 6U) | (byte(i) & 0x3FU);
  }
  const bool troppoLungo = (quanti == 3 && valore < 0x800) || (quanti == 4 && valore < OltreUnita);
  sano = sano && !troppoLungo && valore <= Massimo;
  testo.remove_prefix(sano ? quanti : 1);
  return sano ? valore : Sostituto;
}

}  // namespace

std::string Utf8DaUtf16(std::u16string_view utf16) {
  std::string testo;
  for (std::size_t i = 0; i < utf16.size(); ++i) {
    char32_t valore = utf16[i];
    if (Alto(valore) && i + 1 < utf16.size() && Basso(utf16[i + 1])) {
      valore = OltreUnita + ((valore - PrimoAlto) << 10U) + (utf16[i + 1] - PrimoBasso);
      ++i;
    }
    AggiungiUtf8(testo, valore);
  }
  return testo;
}

std::u16string Utf16DaUtf8(std::string_view utf8) {
  std::u16string testo;
  while (!utf8.empty()) AggiungiUtf16(testo, TogliCarattere(utf8));
  return testo;
}

}  // namespace parvik
