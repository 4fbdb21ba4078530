#include "tokens/FiltraVoci.h"

#include <algorithm>

#include "common/Lettere.h"
#include "common/NumeroLeniente.h"
#include "common/Ritagli.h"

namespace parvik {
namespace {

/// Whether `parola` stands in `testo` where a word of it begins.
bool IniziaUnaParola(std::string_view testo, std::string_view parola) {
  for (std::size_t posto = testo.find(parola); posto != std::string_view::npos;
       posto = testo.find(parola, posto + 1)) {
    if (posto == 0 || !LetteraOCifra(testo[posto - 1])) return true;
  }
  return false;
}

/// How a word answers to the number alone: digits anywhere in it, behind the letter from its beginning.
std::optional<Merito> DelNumero(std::string_view parola, const VoceCercabile& voce) {
  if (!voce.Numero) return std::nullopt;
  const bool conLettera = parola.size() > 1 && parola.front() == voce.Lettera;
  const std::string_view cifre = conLettera ? parola.substr(1) : parola;
  if (!std::ranges::all_of(cifre, Cifra)) return std::nullopt;
  const std::string numero = std::to_string(*voce.Numero);
  if (numero == cifre) return Merito::NumeroEsatto;
  const std::size_t posto = numero.find(cifre);
  if (posto == std::string::npos || (conLettera && posto > 0)) return std::nullopt;
  return Merito::Altrove;
}

std::optional<Merito> DellaParola(std::string_view parola, const VoceCercabile& voce) {
  const std::optional<Merito> numero = DelNumero(parola, voce);
  if (numero == Merito::NumeroEsatto) return numero;
  if (IniziaUnaParola(voce.Descrizione, parola)) return Merito::InizioParola;
  return voce.Descrizione.find(parola) != std::string_view::npos ? Merito::Altrove : numero;
}

}  // namespace

FiltroVoci::FiltroVoci(std::string_view cercato) {
  for (const std::string_view parola : ParoleDi(cercato)) parole_.push_back(InLettereNude(parola));
  for (const std::string& parola : parole_) insieme_ += (insieme_.empty() ? "" : " ") + parola;
}

std::optional<Merito> FiltroVoci::Di(const VoceCercabile& voce) const {
  bool esatto = false;
  auto peggiore = Merito::InizioParola;
  for (const std::string& parola : parole_) {
    const std::optional<Merito> merito = DellaParola(parola, voce);
    if (!merito) return std::nullopt;
    esatto = esatto || merito == Merito::NumeroEsatto;
    peggiore = std::max(peggiore, *merito);
  }
  if (esatto) return Merito::NumeroEsatto;
  return voce.Descrizione.starts_with(insieme_) ? Merito::InizioDescrizione : peggiore;
}

}  // namespace parvik
