// What a template uses, and how often: fields, styles, texts (docs/pannello-campi.md).
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <tuple>

#include "common/Sezione.h"
#include "template/Documento.h"

namespace parvik {

/// In the order in which they are offered.
enum class GruppoVoci { Variabili, Flag, Stili, Lingua, Costanti, Pagina };
inline constexpr std::size_t NumGruppiVoci = static_cast<std::size_t>(GruppoVoci::Pagina) + 1;

/// What two codes must have in common to be two of the same.
struct ChiaveVoce {
  GruppoVoci Gruppo = GruppoVoci::Variabili;
  int Numero = 0;          // of a style its place among the styles, 0 of a constant
  std::string Testo = {};  // of a constant; Windows-1252

  bool operator==(const ChiaveVoce&) const = default;
  bool operator<(const ChiaveVoce& altra) const {
    return std::tie(Gruppo, Numero, Testo) < std::tie(altra.Gruppo, altra.Numero, altra.Testo);
  }
};

/// How often, section by section.
using UsiVoce = std::array<std::size_t, MaxSezioni>;

struct VoceUsata {
  UsiVoce Volte = {};
  std::string Primo;  // the content of the first one

  bool operator==(const VoceUsata&) const = default;
};
using UsiModello = std::map<ChiaveVoce, VoceUsata>;

/// Codes that are broken or incomplete are none.
UsiModello ContaUsi(const std::array<std::string_view, MaxSezioni>& testi);

/// A count, to be made on any thread.
class LavoroUsi {
 public:
  using Numero = std::uint64_t;

  /// Of the sections that are in use.
  LavoroUsi(Numero numero, const Documento& documento, bool treSezioni);

  struct Fatto {
    LavoroUsi::Numero Numero = 0;
    std::optional<UsiModello> Usi;  // nullopt where memory was exhausted
  };
  Fatto Esegui() const;

  /// In bytes.
  std::size_t Dimensione() const;

 private:
  Numero numero_;
  std::array<TestoSezione, MaxSezioni> testi_;
};

}  // namespace parvik
