// The result of what can fail: a value, or the reason why there is none.
#pragma once

#include <optional>
#include <type_traits>
#include <utility>
#include <variant>

#include "common/ErroreRuntime.h"
#include "common/Precondizione.h"

namespace parvik {

/// Holds either a T or an E, which is the failure's own type: the number of a run-time error where a user may
/// be told no more than that. Whoever asks for the one that is not there has not looked, which is a bug of
/// the caller in every build: a precondition that was not met.
template <class T, class E = NumeroErrore>
class [[nodiscard]] Esito {
  static_assert(!std::is_same_v<T, E>, "a value and an error of one type cannot be told apart");

 public:
  Esito(T valore)
      : contenuto_(std::in_place_index<0>, std::move(valore)) {}  // NOLINT(google-explicit-constructor)
  Esito(E errore)
      : contenuto_(std::in_place_index<1>, std::move(errore)) {}  // NOLINT(google-explicit-constructor)

  explicit operator bool() const { return contenuto_.index() == 0; }
  T& operator*() { return *Valore(contenuto_); }
  const T& operator*() const { return *Valore(contenuto_); }
  T* operator->() { return Valore(contenuto_); }
  const T* operator->() const { return Valore(contenuto_); }
  const E& Errore() const {
    const E* const errore = std::get_if<1>(&contenuto_);
    PARVIK_ESIGE(errore != nullptr, "a result that is an error");
    return *errore;
  }

 private:
  template <class Contenuto>
  static auto* Valore(Contenuto& contenuto) {
    auto* const valore = std::get_if<0>(&contenuto);
    PARVIK_ESIGE(valore != nullptr, "a result that is a value");
    return valore;
  }

  std::variant<T, E> contenuto_;
};

/// The result of what yields nothing but success.
template <class E>
class [[nodiscard]] Esito<void, E> {
 public:
  Esito() = default;
  Esito(E errore) : errore_(std::move(errore)) {}  // NOLINT(google-explicit-constructor)

  explicit operator bool() const { return !errore_.has_value(); }
  const E& Errore() const {
    PARVIK_ESIGE(errore_.has_value(), "a result that is an error");
    return *errore_;
  }

 private:
  std::optional<E> errore_;
};

}  // namespace parvik
