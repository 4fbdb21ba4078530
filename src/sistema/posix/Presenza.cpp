#include "sistema/Presenza.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <optional>
#include <utility>

#include "sistema/posix/CartellaPropria.h"
#include "sistema/posix/OperazioniFile.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

constexpr mode_t Modo = 0600;
constexpr int MaxTentativi = 100;

/// Whether the name still leads to the file: the last one who was there may have taken it away meanwhile.
bool HaAncoraNome(const Descrittore& file, const fs::path& nome) {
  const EsitoSistema<struct stat> aperto = Stato(file);
  const EsitoSistema<struct stat> trovato = StatoSenzaSeguire(nome);
  return aperto && trovato && StessoFile(*aperto, *trovato);
}

}  // namespace

/// Who finds nobody else has the file for itself for a moment; then all who are there share its lock.
struct Presenza::Segno {
  Descrittore File;
  fs::path Nome;

  Segno(Descrittore file, fs::path nome) : File(std::move(file)), Nome(std::move(nome)) {}
  Segno(const Segno&) = delete;
  Segno& operator=(const Segno&) = delete;
  ~Segno() {
    if (Blocca(File, Blocco::Esclusivo) == Lucchetto::Preso && HaAncoraNome(File, Nome))
      static_cast<void>(Togli(Nome));
  }

  /// nullopt: to be tried once more.
  static std::optional<Altri> Prendi(const Descrittore& file, const fs::path& nome) {
    const Lucchetto solo = Blocca(file, Blocco::Esclusivo);
    if (solo == Lucchetto::Mancante) return Altri::Ignoti;
    const Lucchetto insieme = Blocca(file, Blocco::Condiviso);
    if (insieme == Lucchetto::Mancante) return Altri::Ignoti;
    if (insieme == Lucchetto::Altrui || !HaAncoraNome(file, nome)) return std::nullopt;
    return solo == Lucchetto::Preso ? Altri::Nessuno : Altri::Presenti;
  }
};

Presenza::Presenza() = default;
Presenza::Presenza(Presenza&& altra) noexcept
    : segno_(std::move(altra.segno_)), trovati_(std::exchange(altra.trovati_, Altri::Ignoti)) {}
Presenza& Presenza::operator=(Presenza&& altra) noexcept {
  segno_ = std::move(altra.segno_);
  trovati_ = std::exchange(altra.trovati_, Altri::Ignoti);
  return *this;
}
Presenza::~Presenza() = default;

Presenza::Presenza(const fs::path& file) {
  if (!PreparaCartellaPropria(file.parent_path())) return;
  for (int i = 0; i < MaxTentativi; ++i) {
    Descrittore aperto = ApriFile(file, O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK, Modo);
    if (!aperto) return;
    const std::optional<Altri> trovati = Segno::Prendi(aperto, file);
    if (!trovati) continue;
    if (*trovati == Altri::Ignoti) {  // no locks: it means nothing to anybody
      static_cast<void>(Togli(file));
      return;
    }
    trovati_ = *trovati;
    segno_ = std::make_unique<Segno>(std::move(aperto), file);
    return;
  }
}

}  // namespace parvik
