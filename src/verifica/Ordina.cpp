#include "verifica/Ordina.h"

#include <algorithm>
#include <tuple>

#include "common/Delimitatori.h"

namespace parvik {
namespace {

/// Finds lines of a text, from its beginning to its end.
class Righe {
 public:
  Righe(std::string_view testo, std::size_t prima)
      : testo_(testo), riga_(prima), fine_(testo.find(FineRiga)) {}

  /// `byte` is never smaller than it was before.
  void Posto(std::size_t byte, Rilievo& rilievo) {
    while (fine_ < byte) {
      ++riga_;
      inizio_ = fine_ + FineRiga.size();
      fine_ = testo_.find(FineRiga, inizio_);
    }
    rilievo.Riga = riga_;
    rilievo.Colonna = byte - inizio_ + 1;
  }

 private:
  std::string_view testo_;
  std::size_t riga_;
  std::size_t inizio_ = 0;
  std::size_t fine_;  // of the line; npos when nothing ends it
};

}  // namespace

void MettiPosti(const std::array<std::string_view, MaxSezioni>& testi, const PrimeRighe& prime,
                std::vector<Rilievo>& rilievi) {
  const auto posto = [](const Rilievo& r) { return std::tuple(r.Dove, r.Inizio, r.Quale); };
  // Those without a section come first.
  if (!std::ranges::is_sorted(rilievi, {}, posto)) std::ranges::stable_sort(rilievi, {}, posto);
  std::array<Righe, MaxSezioni> righe = {Righe(testi[0], prime[0]), Righe(testi[1], prime[1]),
                                         Righe(testi[2], prime[2])};
  for (Rilievo& rilievo : rilievi)
    if (rilievo.Dove) righe[Indice(*rilievo.Dove)].Posto(rilievo.Inizio, rilievo);
}

}  // namespace parvik
