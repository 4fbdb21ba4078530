#include "PocaMemoria.h"

#include <cstdlib>
#include <new>

namespace {

constexpr std::size_t SenzaLimite = static_cast<std::size_t>(-1);
thread_local std::size_t concesse = SenzaLimite;
thread_local bool negata = false;

void* Chiedi(std::size_t byte) {
  if (concesse == 0) {
    concesse = SenzaLimite;
    negata = true;
    throw std::bad_alloc();
  }
  if (concesse != SenzaLimite) --concesse;
  void* const dati = std::malloc(byte == 0 ? 1 : byte);
  if (dati == nullptr) throw std::bad_alloc();
  return dati;
}

}  // namespace

// The program's own, in the place of the library's.
void* operator new(std::size_t byte) {
  return Chiedi(byte);
}
void* operator new[](std::size_t byte) {
  return Chiedi(byte);
}
void operator delete(void* dati) noexcept {
  std::free(dati);
}
void operator delete[](void* dati) noexcept {
  std::free(dati);
}
void operator delete(void* dati, std::size_t /*byte*/) noexcept {
  std::free(dati);
}
void operator delete[](void* dati, std::size_t /*byte*/) noexcept {
  std::free(dati);
}

namespace parvik::prova {

PocaMemoria::PocaMemoria(std::size_t quante) {
  concesse = quante;
  negata = false;
}

PocaMemoria::~PocaMemoria() {
  concesse = SenzaLimite;
}

bool PocaMemoria::Negata() {
  return negata;
}

}  // namespace parvik::prova
