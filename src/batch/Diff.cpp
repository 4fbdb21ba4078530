#include "batch/Diff.h"

#include <algorithm>
#include <vector>

#include "common/LettoreRighe.h"
#include "common/TestoMostrabile.h"
#include "common/TestoPercorso.h"
#include "common/Windows1252.h"

namespace parvik::batch {
namespace {

constexpr std::size_t Contesto = 3;

std::vector<std::string_view> Righe(std::string_view testo) {
  std::vector<std::string_view> tutte;
  LettoreRighe righe(testo);
  while (const auto riga = righe.Prossima()) tutte.push_back(*riga);
  return tutte;
}

/// Lines of both texts, from 0; `A` is behind the last one.
struct Brano {
  std::size_t Da = 0;
  std::size_t A = 0;
};

class Diff {
 public:
  Diff(std::string_view prima, std::string_view dopo) : prima_(Righe(prima)), dopo_(Righe(dopo)) {}

  std::string Testo() const {
    std::string testo;
    for (const Brano& brano : Brani()) {
      const std::string dove = std::to_string(brano.Da + 1) + "," + std::to_string(brano.A - brano.Da);
      testo.append("@@ -").append(dove).append(" +").append(dove).append(" @@\n");
      for (std::size_t riga = brano.Da; riga < brano.A;) riga = Gruppo(riga, brano.A, testo);
    }
    return testo;
  }

 private:
  bool Diversa(std::size_t riga) const { return prima_[riga] != dopo_[riga]; }

  /// What differs with the lines around it; one where these meet.
  std::vector<Brano> Brani() const {
    std::vector<Brano> brani;
    const std::size_t righe = std::min(prima_.size(), dopo_.size());
    for (std::size_t riga = 0; riga < righe; ++riga) {
      if (!Diversa(riga)) continue;
      const Brano brano{riga - std::min(riga, Contesto), std::min(riga + 1 + Contesto, righe)};
      if (!brani.empty() && brano.Da <= brani.back().A) {
        brani.back().A = brano.A;
      } else {
        brani.push_back(brano);
      }
    }
    return brani;
  }

  /// One line that is the same, or all that differ from here on: the old ones, then the new ones.
  std::size_t Gruppo(std::size_t riga, std::size_t fine, std::string& testo) const {
    if (!Diversa(riga)) {
      Aggiungi(' ', prima_[riga], testo);
      return riga + 1;
    }
    std::size_t dopo = riga;
    while (dopo < fine && Diversa(dopo)) ++dopo;
    for (std::size_t i = riga; i < dopo; ++i) Aggiungi('-', prima_[i], testo);
    for (std::size_t i = riga; i < dopo; ++i) Aggiungi('+', dopo_[i], testo);
    return dopo;
  }

  static void Aggiungi(char segno, std::string_view riga, std::string& testo) {
    testo += segno;
    testo += Utf8SenzaControlli(riga) + "\n";
  }

  std::vector<std::string_view> prima_;
  std::vector<std::string_view> dopo_;
};

}  // namespace

std::string DiffUnificato(const std::filesystem::path& file, std::string_view prima, std::string_view dopo) {
  const std::string nome = Mostrabile(TestoPercorso(file));
  const std::string brani = Diff(prima, dopo).Testo();
  return brani.empty() ? brani : "--- " + nome + "\n+++ " + nome + "\n" + brani;
}

}  // namespace parvik::batch
