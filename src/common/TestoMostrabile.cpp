#include "common/TestoMostrabile.h"

#include <cstddef>

namespace parvik {
namespace {

struct Carattere {
  char32_t Valore = 0;
  std::size_t Byte = 0;  // 0: no character begins here
};

/// The character at the begin of `testo`, which is not empty. Only its shortest form counts.
Carattere PrimoCarattere(std::string_view testo) {
  const auto byte = [testo](std::size_t i) { return static_cast<unsigned char>(testo[i]); };
  const unsigned int primo = byte(0);
  if (primo < 0x80U) return {.Valore = primo, .Byte = 1};
  const std::size_t quanti = primo >= 0xF0U ? 4 : primo >= 0xE0U ? 3 : 2;
  if (primo < 0xC2U || primo > 0xF4U || testo.size() < quanti) return {};
  char32_t valore = primo & (0xFFU >> (quanti + 1));
  for (std::size_t i = 1; i < quanti; ++i) {
    if ((byte(i) & 0xC0U) != 0x80U) return {};
    valore = (valore << 6U) | (byte(i) & 0x3FU);
  }
  const bool troppoLungo = (quanti == 3 && valore < 0x800U) || (quanti == 4 && valore < 0x10000U);
  const bool surrogato = valore >= 0xD800U && valore <= 0xDFFFU;
  if (troppoLungo || surrogato || valore > 0x10FFFFU) return {};
  return {.Valore = valore, .Byte = quanti};
}

bool SiMostra(char32_t valore) {
  const bool controllo = valore < 0x20U || (valore >= 0x7FU && valore <= 0x9FU);
  const bool fineRiga = valore == 0x2028U || valore == 0x2029U;
  return !controllo && !fineRiga;
}

void AggiungiByte(std::string& testo, unsigned char byte) {
  constexpr std::string_view Cifre = "0123456789ABCDEF";
  testo += "\\x";
  testo += Cifre[byte >> 4U];
  testo += Cifre[byte & 0xFU];
}

}  // namespace

std::string Mostrabile(std::string_view byte) {
  std::string testo;
  while (!byte.empty()) {
    const Carattere carattere = PrimoCarattere(byte);
    const std::string_view preso = byte.substr(0, carattere.Byte == 0 ? 1 : carattere.Byte);
    if (carattere.Byte > 0 && SiMostra(carattere.Valore)) {
      testo += preso;
    } else {
      for (const char c : preso) AggiungiByte(testo, static_cast<unsigned char>(c));
    }
    byte.remove_prefix(preso.size());
  }
  return testo;
}

}  // namespace parvik
