// One code to the text that it contributes to the output (docs/rendering.md).
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

#include "output/FlagPerStampe.h"

namespace parvik {

/// Where a run's output goes. The numbers are those that the program has always used.
enum class TipoStampa { Ausiliario = 0, File = 1, Anteprima = 2 };

/// The text of one code, described rather than spelled out: fill, text, zeros, fill.
struct Campione {
  std::size_t RiempiPrima = 0;
  std::string_view Testo;  // looks at the code
  std::size_t Zeri = 0;
  std::size_t RiempiDopo = 0;
  char Riempimento = ' ';

  std::size_t Lunghezza() const { return RiempiPrima + Testo.size() + Zeri + RiempiDopo; }
  void AggiungiA(std::string& riga) const;
};

/// Sample of a language code: "$" as often as the code's width says, 10 times without one.
Campione ScriviLingua(std::string_view codice);

/// Sample of a variable code.
Campione ScriviVariabile(std::string_view codice);

/// The codes of one run. Codes come without their delimiters and must stay where they are for the whole run.
class TrovaVar {
 public:
  TrovaVar(TipoStampa destinazione, const FlagPerStampe& flag);

  /// The text of the next code. A code of unknown kind repeats the text of the code before it.
  const Campione& operator()(std::string_view codice);

 private:
  Campione Calcola(std::string_view codice, char genere);
  void ImpostaFlag(std::string_view codice);

  TipoStampa destinazione_;
  std::unordered_map<double, bool> stati_;  // the first row of each number
  bool statoFlag_ = true;                   // false: the next code, whatever it is, is not shown
  Campione risultato_;
};

}  // namespace parvik
