// A number made of all bytes of a text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace parvik {

/// FNV-1a: short, and the same in every version of the program.
std::uint64_t Impronta(std::string_view testo);

/// The lowest `cifre` hexadecimal digits of a number, in lower case, with leading zeros.
std::string Esadecimale(std::uint64_t numero, unsigned int cifre);

}  // namespace parvik
