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
struct Posto {
  bool Preso = false;
  std::atomic<bool> Pronto = false;  // the name below is whole
  std::array<char, PATH_MAX> Nome = {};
};

/// The program's one piece of state without an owner: a signal, which has none either, must find it. As
/// many as are ever at work at once, and some; who finds no place goes without.
constexpr std::size_t MaxNomi = 8;
std::array<Posto, MaxNomi> posti;
std::mutex posti_mutex;  // between threads; a handler reads only what is Pronto

}  // namespace

NomeInCorso::NomeInCorso(const std::filesystem::path& file) {
  PrimaDiFinire(TogliNomiInCorso);
  const std::lock_guard solo(posti_mutex);
  const std::string& nome = file.native();
  const auto libero = std::ranges::find(posti, false, &Posto::Preso);
  if (libero == posti.end() || nome.size() >= libero->Nome.size()) return;
  libero->Preso = true;
  *std::ranges::copy(nome, libero->Nome.begin()).out = '\0';
  libero->Pronto = true;
  posto_ = static_cast<std::size_t>(libero - posti.begin());
}

NomeInCorso::~NomeInCorso() {
  if (posto_ == Nessuno) return;
  const std::lock_guard solo(posti_mutex);
  posti[posto_].Pronto = false;
  posti[posto_].Preso = false;
}

bool InCorso(std::string_view parte) {
  const std::lock_guard solo(posti_mutex);
  return std::ranges::any_of(posti, [parte](const Posto& posto) {
    return posto.Pronto && std::string_view(posto.Nome.data()).find(parte) != std::string_view::npos;
  });
}

void TogliNomiInCorso() {
  for (const Posto& posto : posti) {
    if (posto.Pronto) ::unlink(posto.Nome.data());
  }
}

}  // namespace parvik
