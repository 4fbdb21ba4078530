// One code to the text that it contributes to the output (docs/rendering.md).
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "output/FlagPerStampe.h"
#include "tokens/CodiceCorsa.h"

namespace parvik {

/// Where a run's output goes. The numbers are those that the program has always used.
enum class TipoStampa { Ausiliario = 0, File = 1, Anteprima = 2 };

/// The text of one code, described rather than spelled out: fill, text, zeros, fill. Only a text has zeros
/// and fill behind it.
struct Campione {
  std::size_t RiempiPrima = 0;
  std::string_view Testo;  // looks at the code
  std::size_t Zeri = 0;
  std::size_t RiempiDopo = 0;
  char Riempimento = ' ';

  std::size_t Lunghezza() const { return RiempiPrima + Testo.size() + Zeri + RiempiDopo; }
  bool operator==(const Campione&) const = default;
};

/// Spelled out.
std::string TestoDi(const Campione& campione);

/// Whether the zero that a field shows, with its decimals, is longer than the field: "#" comes out instead.
bool NonCiSta(const CampoCorsa& campo);

/// What a run keeps from code to code.
struct Memoria {
  bool MostraProssimo = true;  // false: the next code, whatever it is, is not shown
  Campione Ultimo;             // the text of the code before

  bool operator==(const Memoria&) const = default;
};

/// Which of the print flags are true: of rows with the same number, what the first one says.
class StatiFlag {
 public:
  explicit StatiFlag(const FlagPerStampe& flag);
  /// As if every row said true.
  static StatiFlag TuttiVeri(const FlagPerStampe& flag);
  /// nullopt when no row has the number.
  std::optional<bool> operator()(double numero) const;

 private:
  // Two characters tell a row's number.
  static constexpr int Minimo = -9;
  static constexpr int Massimo = 99;
  std::array<std::optional<bool>, Massimo - Minimo + 1> stati_;
};

/// The codes of one run. Codes come without their delimiters and must stay where they are for the whole run.
class TrovaVar {
 public:
  /// `memoria` is what a run keeps where this one begins.
  TrovaVar(TipoStampa destinazione, const FlagPerStampe& flag, const Memoria& memoria = {})
      : TrovaVar(destinazione, StatiFlag(flag), memoria) {}
  TrovaVar(TipoStampa destinazione, const StatiFlag& stati, const Memoria& memoria = {});

  /// The text of the next code. A code of unknown kind repeats the text of the code before it.
  const Campione& operator()(std::string_view codice);

  /// Two runs over a text that begin with equal memories write the same, and end with equal ones.
  const Memoria& Ricordo() const { return memoria_; }

 private:
  void ImpostaFlag(std::string_view codice);

  TipoStampa destinazione_;
  StatiFlag stati_;
  Memoria memoria_;
};

}  // namespace parvik
