// Looking for one byte that is seldom far away.
#pragma once

#include <bit>
#include <cstddef>
#include <cstring>
#include <string_view>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace parvik {

/// The place of the first `cercato` at or after `da`; the text's size when there is none. `da` is at most the
/// text's size. Looks at what comes next itself, where the processor compares many bytes at once: the
/// library's search costs more than that before its first byte.
inline std::size_t TrovaByte(std::string_view testo, char cercato, std::size_t da) {
#ifdef __SSE2__
  constexpr std::size_t Passo = sizeof(__m128i);
  constexpr std::size_t Vicini = 2 * Passo;
  if (testo.size() - da >= Vicini) [[likely]] {
    const __m128i modello = _mm_set1_epi8(cercato);
    for (const std::size_t vicini = da + Vicini; da != vicini; da += Passo) {
      const __m128i byte = _mm_loadu_si128(reinterpret_cast<const __m128i*>(testo.data() + da));
      const auto uguali = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(byte, modello)));
      if (uguali != 0) return da + static_cast<std::size_t>(std::countr_zero(uguali));
    }
  }
#endif
  if (da == testo.size()) return da;  // there may be no memory behind an empty text
  const void* const trovato =
      std::memchr(testo.data() + da, static_cast<unsigned char>(cercato), testo.size() - da);
  return trovato == nullptr ? testo.size()
                            : static_cast<std::size_t>(static_cast<const char*>(trovato) - testo.data());
}

}  // namespace parvik
