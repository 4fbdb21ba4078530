#include "tokens/CodiceCorsa.h"

#include "common/Delimitatori.h"
#include "common/NumeroLeniente.h"

namespace parvik {
namespace {

constexpr std::size_t NonTrovato = std::string_view::npos;
constexpr std::size_t LunghezzaLinguaPredefinita = 10;

/// The character after the first quote of a code's options; `predefinito` when there is none.
char Riempimento(std::string_view opzioni, char predefinito) {
  const std::size_t apice = opzioni.find(DelimTesto);
  return apice == NonTrovato || apice + 1 == opzioni.size() ? predefinito : opzioni[apice + 1];
}

bool Allineata(std::string_view opzioni) {
  return opzioni.find('R') != NonTrovato || opzioni.find('L') == NonTrovato;
}

/// The width where it is all that the options say, as those of most variables do: a few digits, and L or R.
/// nullopt for any others, which may have a width all the same.
std::optional<std::size_t> SolaLarghezza(std::string_view opzioni) {
  constexpr std::size_t MaxCifre = 5;
  if (opzioni.ends_with('L') || opzioni.ends_with('R')) opzioni.remove_suffix(1);
  if (opzioni.empty() || opzioni.size() > MaxCifre) return std::nullopt;
  std::size_t larghezza = 0;
  for (const char c : opzioni) {
    if (!Cifra(c)) return std::nullopt;
    larghezza = larghezza * 10 + static_cast<std::size_t>(c - '0');
  }
  return larghezza;
}

CampoCorsa Campo(std::size_t larghezza) {
  CampoCorsa campo;
  campo.Larghezza = larghezza;
  return campo;
}

/// Whether a third separator follows the second one, at `p2`. It nearly always stands where the euro group
/// begins.
bool HaEuro(std::string_view opzioni, std::size_t p2) {
  return (opzioni.size() > p2 + 2 && opzioni[opzioni.size() - 2] == ';') ||
         opzioni.find(';', p2 + 1) != NonTrovato;
}

/// A variable with a format behind its second separator, which stands at `p2` of the options.
CampoCorsa VariabileConFormato(std::string_view opzioni, std::size_t p2) {
  CampoCorsa campo = Campo(LunghezzaLeniente(opzioni.substr(0, p2)));
  if (HaEuro(opzioni, p2)) opzioni.remove_suffix(2);
  const std::string_view formato = Da(opzioni, p2 + 1);
  campo.Riempimento = Riempimento(opzioni, ' ');
  campo.Zero = formato.find('0') != NonTrovato;
  if (!campo.Zero) return campo;
  campo.ADestra = Allineata(opzioni);
  const std::size_t virgola = formato.find(',');
  if (virgola != NonTrovato) campo.Decimali = LunghezzaLeniente(formato.substr(virgola + 1));
  return campo;
}

CampoCorsa VariabileSenzaFormato(std::string_view opzioni) {
  const bool conApice = opzioni.find(DelimTesto) != NonTrovato;
  CampoCorsa campo =
      Campo(LunghezzaLeniente(conApice ? SenzaUltimi(opzioni, 3) : opzioni));  // quote, fill, quote
  campo.Riempimento = Riempimento(opzioni, campo.Riempimento);
  return campo;
}

}  // namespace

CampoCorsa VariabileCorsa(std::string_view contenuto) {
  const std::size_t p1 = contenuto.find(';');
  if (p1 == NonTrovato) return VariabileSenzaFormato(contenuto);
  const std::string_view opzioni = contenuto.substr(p1 + 1);
  if (const auto larghezza = SolaLarghezza(opzioni)) return Campo(*larghezza);
  const std::size_t p2 = opzioni.find(';');
  if (p2 == NonTrovato || opzioni.ends_with('#')) return VariabileSenzaFormato(opzioni);
  return VariabileConFormato(opzioni, p2);
}

CampoCorsa LinguaCorsa(std::string_view contenuto) {
  const std::size_t separatore = contenuto.find(';');
  if (separatore == NonTrovato) return Campo(LunghezzaLinguaPredefinita);
  return Campo(LunghezzaLeniente(contenuto.substr(separatore + 1)));
}

double FlagCorsa(std::string_view contenuto) {
  if (contenuto.ends_with('S') || contenuto.ends_with('N')) contenuto.remove_suffix(1);
  return NumeroLeniente(Da(contenuto, 1));
}

}  // namespace parvik
