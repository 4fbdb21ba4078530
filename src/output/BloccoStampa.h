// What a run has written and not handed out yet.
#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>

#include "output/TrovaVar.h"

namespace parvik {

/// A text in a room of fixed size: whoever adds to it keeps count, nothing is checked here. Adding copies in
/// steps of 16 bytes where it can, since most of what a run writes is shorter; there is room for a step more.
class BloccoStampa {
 public:
  /// Of at most `spazio` bytes.
  explicit BloccoStampa(std::size_t spazio)
      : byte_(std::make_unique_for_overwrite<char[]>(spazio + Passo)), fine_(byte_.get()) {}

  std::size_t Dimensione() const { return static_cast<std::size_t>(fine_ - byte_.get()); }
  /// Valid until the next change.
  std::string_view Testo() const { return {byte_.get(), Dimensione()}; }
  /// Keeps the first bytes. `quanti` is at most the size.
  void Tronca(std::size_t quanti) { fine_ = byte_.get() + quanti; }

  /// The bytes [da, a) of a text.
  void Aggiungi(std::string_view testo, std::size_t da, std::size_t a) {
    const std::size_t quanti = a - da;
    if (quanti <= Passo && testo.size() - da >= Passo) {
      std::memcpy(fine_, testo.data() + da, Passo);
    } else {
      std::memcpy(fine_, testo.data() + da, quanti);
    }
    fine_ += quanti;
  }
  void Aggiungi(std::string_view testo) {
    if (!testo.empty()) fine_ = Copia(testo, fine_);
  }
  void Aggiungi(std::size_t volte, char carattere) { fine_ = Riempi(volte, carattere, fine_); }
  void Aggiungi(const Campione& campione) {
    char* fine = Riempi(campione.RiempiPrima, campione.Riempimento, fine_);
    if (!campione.Testo.empty()) {  // else there is nothing behind it
      fine = Copia(campione.Testo, fine);
      fine = Riempi(campione.Zeri, '0', fine);
      fine = Riempi(campione.RiempiDopo, campione.Riempimento, fine);
    }
    fine_ = fine;
  }

 private:
  static constexpr std::size_t Passo = 32;

  // Both give the end of what they wrote.
  static char* Copia(std::string_view testo, char* dove) { return std::ranges::copy(testo, dove).out; }
  static char* Riempi(std::size_t volte, char carattere, char* dove) {
    for (std::size_t fatti = 0; fatti < volte; fatti += Passo) std::memset(dove + fatti, carattere, Passo);
    return dove + volte;
  }

  std::unique_ptr<char[]> byte_;
  char* fine_;
};

}  // namespace parvik
