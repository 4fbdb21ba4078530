// A file descriptor that closes itself.
#pragma once

#include <unistd.h>

#include <cerrno>
#include <utility>

namespace parvik {

class Descrittore {
 public:
  Descrittore() = default;
  explicit Descrittore(int numero) : numero_(numero) {}
  Descrittore(Descrittore&& altro) noexcept : numero_(std::exchange(altro.numero_, -1)) {}
  Descrittore& operator=(Descrittore&& altro) noexcept {
    std::swap(numero_, altro.numero_);
    return *this;
  }
  Descrittore(const Descrittore&) = delete;
  Descrittore& operator=(const Descrittore&) = delete;
  ~Descrittore() {
    if (numero_ >= 0) ::close(numero_);
  }

  explicit operator bool() const { return numero_ >= 0; }
  int Numero() const { return numero_; }

  /// Closes now and tells whether that succeeded: a deferred write error shows itself here, with errno. One
  /// that a signal interrupted has closed; what was written before it is for fsync to answer for.
  bool Chiudi() { return ::close(std::exchange(numero_, -1)) == 0 || errno == EINTR; }

 private:
  int numero_ = -1;
};

}  // namespace parvik
