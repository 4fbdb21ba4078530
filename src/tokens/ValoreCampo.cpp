#include "tokens/ValoreCampo.h"

#include <cstdint>

#include "common/NumeroLeniente.h"

namespace parvik {
namespace {

std::string Ripeti(int volte, char c) {
  return volte < 0 ? std::string() : std::string(static_cast<std::size_t>(volte), c);
}

/// `testo` at the right end of the field.
std::string ADestra(int larghezza, const std::string& testo) {
  const int spazi = larghezza - static_cast<int>(testo.size());
  return spazi < 0 ? std::string() : Ripeti(spazi, ' ') + testo;
}

std::string ZeroConDecimali(int larghezza, std::string_view decimali) {
  const Esito<std::int16_t> quanti = InteroLeniente(decimali);
  if (!quanti || *quanti < 0) return {};
  return ADestra(larghezza, "0," + Ripeti(*quanti, '0'));
}

}  // namespace

std::string ValoreCampo(const FormatoCampo& formato) {
  if (formato.ZeroVisibile && !formato.ConDecimali) return ADestra(formato.Larghezza, "0");
  if (formato.Decimali != "0" && EUnNumero(formato.Decimali)) {
    return ZeroConDecimali(formato.Larghezza, formato.Decimali);
  }
  if (formato.Riempimento.empty()) return {};
  return Ripeti(formato.Larghezza, formato.Riempimento.front());
}

}  // namespace parvik
