// System calls that a signal interrupts.
#pragma once

#include <cerrno>

namespace parvik {

/// Makes a system call again while a signal interrupts it, and gives its last result; `errno` is the call's.
/// A hundred times at most: whatever interrupts without end must not hang the program, so EINTR can come
/// out. Not for close: an interrupted one has closed.
template <class Chiamata>
auto Ripeti(Chiamata chiamata) -> decltype(chiamata()) {
  constexpr int MaxTentativi = 100;
  auto risultato = chiamata();
  for (int i = 1; i < MaxTentativi && risultato == -1 && errno == EINTR; ++i) risultato = chiamata();
  return risultato;
}

}  // namespace parvik
