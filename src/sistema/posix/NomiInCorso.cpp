#include "sistema/posix/NomiInCorso.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <climits>
#include <mutex>
#include <string>

#include "common/Precondizione.h"

namespace parvik {
namespace {

/// A name in memory that never goes away, so that a signal handler finds it whole at any moment.
struct Casella {
  bool Preso = false;
  std::atomic<bool> Pronto = false;  // the name below is whole
  std::array<char, PATH_MAX> Nome = {};
};

/// The program's one piece of state without an owner: a signal, which has none either, must find it. As
/// many as are ever at work at once, and some; who finds no place goes without.
constexpr std::size_t MaxNomi = 8;
std::array<Casella, MaxNomi> caselle;
std::mutex caselle_mutex;  // between threads; a handler reads only what is Pronto

}  // namespace

NomeInCorso::NomeInCorso(const std::filesystem::path& file) {
  PrimaDiFinire(TogliNomiInCorso);
  const std::lock_guard solo(caselle_mutex);
  const std::string& nome = file.native();
  const auto libero = std::ranges::find(caselle, false, &Casella::Preso);
  if (libero == caselle.end() || nome.size() >= libero->Nome.size()) return;
  libero->Preso = true;
  *std::ranges::copy(nome, libero->Nome.begin()).out = '\0';
  libero->Pronto = true;
  casella_ = static_cast<std::size_t>(libero - caselle.begin());
}

NomeInCorso::~NomeInCorso() {
  if (casella_ == Nessuno) return;
  const std::lock_guard solo(caselle_mutex);
  caselle[casella_].Pronto = false;
  caselle[casella_].Preso = false;
}

bool InCorso(std::string_view parte) {
  const std::lock_guard solo(caselle_mutex);
  return std::ranges::any_of(caselle, [parte](const Casella& casella) {
    return casella.Pronto && std::string_view(casella.Nome.data()).find(parte) != std::string_view::npos;
  });
}

void TogliNomiInCorso() {
  for (const Casella& casella : caselle) {
    if (casella.Pronto) ::unlink(casella.Nome.data());
  }
}

}  // namespace parvik
