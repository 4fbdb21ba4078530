// A handle of the system that closes itself.
#pragma once

#include <windows.h>

#include <utility>

namespace parvik {

class Maniglia {
 public:
  Maniglia() = default;
  explicit Maniglia(HANDLE valore) : valore_(valore == INVALID_HANDLE_VALUE ? nullptr : valore) {}
  Maniglia(Maniglia&& altra) noexcept : valore_(std::exchange(altra.valore_, nullptr)) {}
  Maniglia& operator=(Maniglia&& altra) noexcept {
    std::swap(valore_, altra.valore_);
    return *this;
  }
  Maniglia(const Maniglia&) = delete;
  Maniglia& operator=(const Maniglia&) = delete;
  ~Maniglia() {
    if (valore_ != nullptr) ::CloseHandle(valore_);
  }

  explicit operator bool() const { return valore_ != nullptr; }
  HANDLE Valore() const { return valore_; }

  /// Closes now and tells whether that succeeded.
  bool Chiudi() { return ::CloseHandle(std::exchange(valore_, nullptr)) != FALSE; }

 private:
  HANDLE valore_ = nullptr;
};

}  // namespace parvik
