// The result of what can fail: a value, or the reason why there is none.
#pragma once

#include <optional>
#include <utility>
#include <variant>

#include "common/ErroreRuntime.h"

namespace parvik {

/// Holds either a T or an E. Asking for the one that is not there is a bug of the caller.
template <class T, class E = NumeroErrore>
class [[nodiscard]] Esito {
 public:
  Esito(T valore)
      : contenuto_(std::in_place_index<0>, std::move(valore)) {}  // NOLINT(google-explicit-constructor)
  Esito(E errore)
      : contenuto_(std::in_place_index<1>, std::move(errore)) {}  // NOLINT(google-explicit-constructor)

  explicit operator bool() const { return contenuto_.index() == 0; }
  T& operator*() { return std::get<0>(contenuto_); }
  const T& operator*() const { return std::get<0>(contenuto_); }
  T* operator->() { return &std::get<0>(contenuto_); }
  const T* operator->() const { return &std::get<0>(contenuto_); }
  const E& Errore() const { return std::get<1>(contenuto_); }

 private:
  std::variant<T, E> contenuto_;
};

/// The result of what yields nothing but success.
template <class E>
class [[nodiscard]] Esito<void, E> {
 public:
  Esito() = default;
  Esito(E errore) : errore_(std::move(errore)) {}  // NOLINT(google-explicit-constructor)

  explicit operator bool() const { return !errore_.has_value(); }
  const E& Errore() const { return *errore_; }

 private:
  std::optional<E> errore_;
};

}  // namespace parvik
