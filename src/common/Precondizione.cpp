#include "common/Precondizione.h"

#include <array>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <exception>

namespace parvik {
namespace {

/// The end may come from anywhere, and so nobody can hand this over. Who finds no place goes without.
constexpr std::size_t MaxUltimi = 4;
std::array<std::atomic<void (*)()>, MaxUltimi> ultimi;
std::atomic<bool> finisce = false;

/// Nothing is cleaned up that may be in a state that should not be. What fails while it is ending ends there.
[[noreturn]] void FinisciSubito() {
  if (!finisce.exchange(true)) {
    for (auto ultimo = ultimi.rbegin(); ultimo != ultimi.rend(); ++ultimo) {
      if (void (*const fai)() = *ultimo) fai();
    }
    static_cast<void>(std::fflush(nullptr));
  }
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

void PrimaDiFinire(void (*fai)()) {
  for (auto& ultimo : ultimi) {
    void (*libero)() = nullptr;
    if (ultimo.compare_exchange_strong(libero, fai) || libero == fai) return;
  }
}

void PrecondizioneMancata(const char* attesa, const char* file, int riga, const char* funzione) {
  static_cast<void>(std::fprintf(stderr, "%s:%d: %s: expected: %s\n", file, riga, funzione, attesa));
  FinisciSubito();
}

void EccezioneSfuggita() {
  try {
    if (const std::exception_ptr sfuggita = std::current_exception()) std::rethrow_exception(sfuggita);
  } catch (const std::exception& errore) {
    static_cast<void>(std::fprintf(stderr, "uncaught exception: %s\n", errore.what()));
  } catch (...) {
    static_cast<void>(std::fputs("uncaught exception\n", stderr));
  }
  FinisciSubito();
}

}  // namespace parvik
