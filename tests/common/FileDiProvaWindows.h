// What the tests of files need of Windows, under the names that they have elsewhere.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>

namespace parvik::prova {

inline constexpr bool ConDiritti = false;

inline unsigned int Modo(const std::filesystem::path& file) {
  return static_cast<unsigned int>(std::filesystem::status(file).permissions());
}

inline bool FaiPipe(const std::filesystem::path&) {
  return false;
}

inline bool Regala(const std::filesystem::path&) {
  return false;
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
    static_cast<void>(::_putenv_s(nome_.c_str(), valore == nullptr ? "" : valore));
  }

  std::string nome_;
  std::optional<std::string> prima_;
};

/// Another user's rights cannot be taken on here: who asks is told so, and skips what needs them.
class UtenteComune {
 public:
  bool Comune() const { return comune_; }

 private:
  bool comune_ = false;
};

/// There is no limit of the size of files that a process could give itself: who asks is told so.
class LimiteDimensione {
 public:
  explicit LimiteDimensione(std::uint64_t) {}
  static bool Possibile() { return false; }
};

}  // namespace parvik::prova
