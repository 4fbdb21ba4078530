#include "common/NumeroLeniente.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace parvik {
namespace {

/// The number where it is written as nearly all are: a few digits from the first byte on, and no point behind
/// them. nullopt for any other text, which may hold a number all the same.
std::optional<std::uint32_t> CifreSole(std::string_view testo) {
  constexpr std::size_t MaxCifre = 6;  // below LunghezzaMassima
  std::uint32_t valore = 0;
  std::size_t i = 0;
  for (; i < testo.size() && Cifra(testo[i]); ++i) {
    if (i == MaxCifre) return std::nullopt;
    valore = valore * 10 + static_cast<std::uint32_t>(testo[i] - '0');
  }
  const bool punto = i < testo.size() && testo[i] == '.';
  if (i == 0 || punto) return std::nullopt;
  return valore;
}

struct Prefisso {
  bool Negativo = false;
  std::string_view Cifre;  // digits with at most one point; empty when no digit was found
  std::size_t Fine = 0;    // where the text goes on after the number
};

Prefisso TrovaPrefisso(std::string_view testo) {
  Prefisso trovato;
  std::size_t i = 0;
  while (i < testo.size() && testo[i] == ' ') ++i;
  if (i < testo.size() && (testo[i] == '-' || testo[i] == '+')) trovato.Negativo = testo[i++] == '-';
  const std::size_t inizio = i;
  bool punto = false;
  bool cifre = false;
  for (; i < testo.size(); ++i) {
    if (Cifra(testo[i])) {
      cifre = true;
    } else if (testo[i] == '.' && !punto) {
      punto = true;
    } else {
      break;
    }
  }
  if (cifre) {
    trovato.Cifre = testo.substr(inizio, i - inizio);
    trovato.Fine = i;
  }
  return trovato;
}

double ValoreLungo(std::string_view cifre) {
  double valore = 0;
  const auto [fine, errore] =
      std::from_chars(cifre.data(), cifre.data() + cifre.size(), valore, std::chars_format::fixed);
  if (errore != std::errc::result_out_of_range) return valore;
  // Out of range means too large, or too small: a value below one has nothing but zeros before the point.
  const std::size_t significativa = cifre.find_first_not_of('0');
  const bool sottoUno = significativa == std::string_view::npos || cifre[significativa] == '.';
  return sottoUno ? 0.0 : std::numeric_limits<double>::infinity();
}

double Valore(std::string_view cifre) {
  constexpr std::size_t CifreSicure = 15;  // exact in a double, and in 64 bits
  if (cifre.size() > CifreSicure) return ValoreLungo(cifre);
  std::int64_t intero = 0;
  for (const char c : cifre) {
    if (c == '.') return ValoreLungo(cifre);
    intero = intero * 10 + (c - '0');
  }
  return static_cast<double>(intero);
}

}  // namespace

double NumeroLeniente(std::string_view testo) {
  if (const auto cifre = CifreSole(testo)) return *cifre;
  const Prefisso prefisso = TrovaPrefisso(testo);
  const double valore = Valore(prefisso.Cifre);
  return prefisso.Negativo ? -valore : valore;
}

Esito<std::int16_t> InteroLeniente(std::string_view testo) {
  const double arrotondato = std::nearbyint(NumeroLeniente(testo));  // the default mode: half to even
  if (arrotondato < std::numeric_limits<std::int16_t>::min() ||
      arrotondato > std::numeric_limits<std::int16_t>::max()) {
    return NumeroErrore::Overflow;
  }
  return static_cast<std::int16_t>(arrotondato);
}

std::size_t LunghezzaLeniente(std::string_view testo) {
  if (const auto cifre = CifreSole(testo)) return *cifre;
  const double arrotondato = std::nearbyint(NumeroLeniente(testo));
  if (arrotondato <= 0) return 0;
  if (arrotondato >= static_cast<double>(LunghezzaMassima)) return LunghezzaMassima;
  return static_cast<std::size_t>(arrotondato);
}

bool HaNumero(std::string_view testo) {
  return !TrovaPrefisso(testo).Cifre.empty();
}

bool EUnNumero(std::string_view testo) {
  const Prefisso prefisso = TrovaPrefisso(testo);
  return !prefisso.Cifre.empty() && testo.find_first_not_of(' ', prefisso.Fine) == std::string_view::npos;
}

}  // namespace parvik
