// What the fuzz targets have in common.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

/// What libFuzzer calls with one input after the other.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t dimensione);

namespace parvik::fuzz {

/// A property that must hold of every input: ends the program, and so reports the input, when it does not.
inline void Esigi(bool vale, const char* proprieta) {
  if (vale) return;
  static_cast<void>(std::fprintf(stderr, "proprieta violata: %s\n", proprieta));
  std::abort();
}

/// An input cut into numbers and texts. A byte 0x1E separates the texts; the seeds have it in the same places
/// (fuzz/semi.sh).
class Ingresso {
 public:
  Ingresso(const std::uint8_t* dati, std::size_t dimensione)
      // The fuzzer's bytes are the characters of a text.
      : resto_(reinterpret_cast<const char*>(dati), dimensione) {}

  /// The next byte; 0 at the end.
  unsigned char Byte() {
    if (resto_.empty()) return 0;
    const auto byte = static_cast<unsigned char>(resto_.front());
    resto_.remove_prefix(1);
    return byte;
  }

  /// Up to the next separator or the end.
  std::string_view Testo() {
    const std::size_t fine = resto_.find('\x1E');
    const std::string_view testo = resto_.substr(0, fine);
    resto_ = fine == std::string_view::npos ? std::string_view() : resto_.substr(fine + 1);
    return testo;
  }

  std::string_view Resto() const { return resto_; }

 private:
  std::string_view resto_;
};

}  // namespace parvik::fuzz
