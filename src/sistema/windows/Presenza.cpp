#include "sistema/Presenza.h"

#include <optional>
#include <utility>

#include "sistema/windows/OperazioniFile.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

constexpr int MaxTentativi = 100;
constexpr DWORD Pausa = 1;  // milliseconds

/// The bytes of the file that are locked; there need be none. Who comes or goes holds the door alone for a
/// moment; who is there has a share of the other.
enum class Punto : DWORD { Porta = 0, Dentro = 1 };

bool Blocca(const Maniglia& file, Punto punto, DWORD come) {
  OVERLAPPED dove = {};
  dove.Offset = static_cast<DWORD>(punto);
  return ::LockFileEx(file.Valore(), come, 0, 1, 0, &dove) != FALSE;
}

void Sblocca(const Maniglia& file, Punto punto) {
  OVERLAPPED dove = {};
  dove.Offset = static_cast<DWORD>(punto);
  ::UnlockFileEx(file.Valore(), 0, 1, 0, &dove);
}

constexpr DWORD Solo = LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY;
constexpr DWORD Insieme = LOCKFILE_FAIL_IMMEDIATELY;

/// Holds the door while it lives. Nobody keeps it for long.
class Porta {
 public:
  explicit Porta(const Maniglia& file)
      : file_(file), tenuta_(Blocca(file, Punto::Porta, LOCKFILE_EXCLUSIVE_LOCK)) {}
  Porta(const Porta&) = delete;
  Porta& operator=(const Porta&) = delete;
  ~Porta() {
    if (tenuta_) Sblocca(file_, Punto::Porta);
  }
  explicit operator bool() const { return tenuta_; }

 private:
  const Maniglia& file_;
  bool tenuta_;
};

}  // namespace

struct Presenza::Segno {
  Maniglia File;

  explicit Segno(Maniglia file) : File(std::move(file)) {}
  Segno(const Segno&) = delete;
  Segno& operator=(const Segno&) = delete;
  ~Segno() {
    const Porta porta(File);
    Sblocca(File, Punto::Dentro);
    if (porta && Blocca(File, Punto::Dentro, Solo)) static_cast<void>(TogliAllaChiusura(File, true));
  }

  /// nullopt: to be tried once more, for the last one who was there has just taken the file away.
  static std::optional<Altri> Prendi(const Maniglia& file) {
    const Porta porta(file);
    if (!porta) return Altri::Ignoti;
    const EsitoSistema<StatoFile> stato = Stato(file);
    if (!stato || stato->DaTogliere) return std::nullopt;
    const bool solo = Blocca(file, Punto::Dentro, Solo);
    if (solo) Sblocca(file, Punto::Dentro);
    if (!Blocca(file, Punto::Dentro, Insieme)) return Altri::Ignoti;
    return solo ? Altri::Nessuno : Altri::Presenti;
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

/// A folder in the user's own is the user's alone.
Presenza::Presenza(const fs::path& file) {
  if (::CreateDirectoryW(file.parent_path().c_str(), nullptr) == FALSE &&
      ::GetLastError() != ERROR_ALREADY_EXISTS)
    return;
  for (int i = 0; i < MaxTentativi; ++i) {
    EsitoSistema<Maniglia> aperto = ApriFile(file, GENERIC_READ | GENERIC_WRITE | DELETE, Tutti, OPEN_ALWAYS);
    // One that is just going away can be opened by nobody.
    if (!aperto && aperto.Errore() != ERROR_ACCESS_DENIED) return;
    const std::optional<Altri> trovati = aperto ? Segno::Prendi(*aperto) : std::nullopt;
    if (!trovati) {
      ::Sleep(Pausa);
      continue;
    }
    if (*trovati == Altri::Ignoti) return;
    trovati_ = *trovati;
    segno_ = std::make_unique<Segno>(std::move(*aperto));
    return;
  }
}

}  // namespace parvik
