#include "common/Impronta.h"

namespace parvik {

std::uint64_t Impronta(std::string_view testo) {
  constexpr std::uint64_t Base = 0xCBF29CE484222325U;
  constexpr std::uint64_t Primo = 0x100000001B3U;
  std::uint64_t impronta = Base;
  for (const char c : testo) impronta = (impronta ^ static_cast<unsigned char>(c)) * Primo;
  return impronta;
}

std::string Esadecimale(std::uint64_t numero, unsigned int cifre) {
  constexpr std::string_view Cifre = "0123456789abcdef";
  std::string testo;
  for (unsigned int bit = cifre * 4; bit > 0; bit -= 4) testo += Cifre[(numero >> (bit - 4)) & 15U];
  return testo;
}

}  // namespace parvik
