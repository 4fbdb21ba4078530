// The sample that the variable dialog shows of a field as it will be printed.
#pragma once

#include <string>
#include <string_view>

namespace parvik {

/// What the dialog's controls say of the field. `Riempimento` and `Decimali` are the texts of their boxes.
struct FormatoCampo {
  int Larghezza = 0;
  std::string_view Riempimento = {};
  bool ZeroVisibile = false;
  bool ConDecimali = false;  // the check; the text has its own say
  std::string_view Decimali = "0";
};

/// A zero with its decimals, as wide as the field, or else the fill; "" when the width is too small for it.
std::string ValoreCampo(const FormatoCampo& formato);

}  // namespace parvik
