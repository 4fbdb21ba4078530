// What the tests of files need of a POSIX system.
#pragma once

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>

namespace parvik::prova {

/// Whether a file has permission bits, and keeps what is set.
inline constexpr bool ConDiritti = true;

/// The permission bits of a file (links are followed).
inline unsigned int Modo(const std::filesystem::path& file) {
  struct stat stato = {};
  if (::stat(file.c_str(), &stato) != 0) return 0;
  return stato.st_mode & 07777U;
}

/// Makes a pipe that has a name; false where no folder holds any.
inline bool FaiPipe(const std::filesystem::path& pipe) {
  return ::mkfifo(pipe.c_str(), 0600) == 0;
}

/// Makes a file another user's and group's; false for who may not.
inline bool Regala(const std::filesystem::path& file) {
  return ::chown(file.c_str(), 1234, 2345) == 0;
}

/// The inode number of a file, 0 when there is none.
inline unsigned long Inode(const std::filesystem::path& file) {
  struct stat stato = {};
  return ::stat(file.c_str(), &stato) == 0 ? stato.st_ino : 0;
}

/// While it lives, an environment variable has another value (nullptr: none).
class VariabileAmbiente {
 public:
  VariabileAmbiente(std::string nome, const char* valore) : nome_(std::move(nome)) {
    if (const char* prima = std::getenv(nome_.c_str())) prima_ = prima;
    Imposta(valore);
  }
  VariabileAmbiente(const VariabileAmbiente&) = delete;
  VariabileAmbiente& operator=(const VariabileAmbiente&) = delete;
  ~VariabileAmbiente() { Imposta(prima_ ? prima_->c_str() : nullptr); }

 private:
  void Imposta(const char* valore) const {
    if (valore == nullptr) {
      ::unsetenv(nome_.c_str());
    } else {
      ::setenv(nome_.c_str(), valore, 1);
    }
  }

  std::string nome_;
  std::optional<std::string> prima_;
};

/// The value of ASAN_OPTIONS with one more option. For the programs that a test starts: the test itself has
/// read its own.
inline std::string OpzioniAsan(const std::string& altra) {
  const char* prime = std::getenv("ASAN_OPTIONS");
  return prime == nullptr ? altra : prime + (":" + altra);
}

/// While it lives, the process has the rights of an ordinary user, even when root runs the tests.
class UtenteComune {
 public:
  UtenteComune() {
    if (::geteuid() != 0) return;
    cambiato_ = ::setegid(Nessuno) == 0 && ::seteuid(Nessuno) == 0;
    comune_ = cambiato_;
  }
  UtenteComune(const UtenteComune&) = delete;
  UtenteComune& operator=(const UtenteComune&) = delete;
  ~UtenteComune() {
    if (cambiato_ && (::seteuid(0) != 0 || ::setegid(0) != 0)) std::abort();
  }

  /// False where root cannot become anybody else.
  bool Comune() const { return comune_; }

 private:
  static constexpr unsigned int Nessuno = 65534;
  bool comune_ = true;
  bool cambiato_ = false;
};

/// While it lives, a write that would make a file longer than `byte` fails: a full disk that a test can have.
class LimiteDimensione {
 public:
  explicit LimiteDimensione(rlim_t byte) : segnale_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &prima_);
    const rlimit limite = {.rlim_cur = byte, .rlim_max = prima_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limite);
  }
  /// Whether there is such a thing here.
  static bool Possibile() { return true; }
  LimiteDimensione(const LimiteDimensione&) = delete;
  LimiteDimensione& operator=(const LimiteDimensione&) = delete;
  ~LimiteDimensione() {
    ::setrlimit(RLIMIT_FSIZE, &prima_);
    std::signal(SIGXFSZ, segnale_);
  }

 private:
  void (*segnale_)(int);
  rlimit prima_ = {};
};

}  // namespace parvik::prova
