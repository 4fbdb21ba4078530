#include "tokens/TrovaVoce.h"

#include <string>

#include "common/Lettere.h"
#include "tokens/FiltraVoci.h"

namespace parvik {
namespace {

bool Contiene(std::string_view testo, std::string_view minuscolo) {
  return InMinuscolo(testo).find(minuscolo) != std::string::npos;
}

VoceCercabile SoloNumero(int numero) {
  return {.Descrizione = {}, .Numero = numero, .Lettera = 'v'};
}

}  // namespace

std::optional<std::size_t> TrovaVoce(std::span<const std::string_view> voci, std::size_t selezionata,
                                     std::string_view cercato) {
  const std::string minuscolo = InMinuscolo(cercato);
  for (std::size_t passo = 1; passo <= voci.size(); ++passo) {
    const std::size_t voce = (selezionata + passo) % voci.size();
    if (Contiene(voci[voce], minuscolo)) return voce;
  }
  return std::nullopt;
}

std::optional<std::size_t> TrovaNumero(std::span<const int> numeri, std::size_t selezionata,
                                       std::string_view cercato) {
  const FiltroVoci filtro(cercato);
  if (filtro.Vuoto()) return std::nullopt;
  std::optional<std::size_t> trovata;
  for (std::size_t passo = 1; passo <= numeri.size(); ++passo) {
    const std::size_t voce = (selezionata + passo) % numeri.size();
    const std::optional<Merito> merito = filtro.Di(SoloNumero(numeri[voce]));
    if (merito == Merito::NumeroEsatto) return voce;
    if (merito && !trovata) trovata = voce;
  }
  return trovata;
}

bool SiTrova(std::string_view descrizione, int numero, std::string_view cercato) {
  const FiltroVoci filtro(cercato);
  return Contiene(descrizione, InMinuscolo(cercato)) ||
         (!filtro.Vuoto() && filtro.Di(SoloNumero(numero)).has_value());
}

}  // namespace parvik
