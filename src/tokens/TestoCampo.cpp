#include "tokens/TestoCampo.h"

#include <algorithm>

#include "catalogue/Catalogo.h"
#include "common/Ritagli.h"
#include "tokens/Codice.h"
#include "tokens/CodiceCorsa.h"
#include "tokens/CodiceLingua.h"
#include "tokens/CodiceVariabile.h"

namespace parvik {
namespace {

constexpr char Puntini = '\x85';
constexpr std::size_t MinimoConPuntini = 4;  // below, a letter says more than the dots
constexpr std::int16_t ASinistra = 1;

/// What a field says, where in its room, and what stands in the rest.
struct Contenuto {
  std::string Detto;
  bool ADestra = false;
  char Riempimento = ' ';
};

/// On one line, without anything that is not drawn.
std::string Pulito(std::string_view ansi) {
  std::string pulito(ansi);
  std::ranges::replace_if(
      pulito, [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
  return std::string(Rifila(pulito));
}

Contenuto DiVariabile(std::string_view contenuto, std::span<const Variabile> variabili) {
  const VariabileLetta letta = LeggiVariabile(contenuto, variabili);
  const Variabile& formato = letta.Formato;
  std::string detto = letta.Voce ? Pulito(formato.Descrizione) : "";
  if (detto.empty()) detto = "Variabile " + std::to_string(formato.Intero1);
  return {.Detto = std::move(detto),
          .ADestra = formato.Intero3 != ASinistra,
          .Riempimento = formato.Testo1.empty() ? ' ' : formato.Testo1.front()};
}

/// The number alone where there is no room for the word.
Contenuto DiPagina(std::string_view contenuto, std::size_t celle) {
  const std::string numero(PaginaCorsa(contenuto));
  const std::string detto = "Pag. " + numero;
  return {.Detto = detto.size() <= celle ? detto : numero};
}

Contenuto Letto(std::string_view contenuto, std::size_t celle, std::span<const Variabile> variabili) {
  switch (Riconosci(contenuto)) {
    case TipoCodice::Variabile:
      return DiVariabile(contenuto, variabili);
    case TipoCodice::Costante:
      return {.Detto = std::string(CostanteCorsa(contenuto))};
    case TipoCodice::Lingua:
      return {.Detto = Pulito("Lingua " + LeggiLingua(contenuto).IndiceTabella)};
    case TipoCodice::Pagina:
      return DiPagina(contenuto, celle);
    default:
      return {.Detto = Pulito(contenuto)};
  }
}

std::string Accorciato(std::string detto, std::size_t celle) {
  if (detto.size() <= celle) return detto;
  detto.resize(celle);
  if (celle >= MinimoConPuntini) detto.back() = Puntini;
  return detto;
}

}  // namespace

std::string TestoCampo(std::string_view contenuto, const PostoCampo& posto,
                       std::span<const Variabile> variabili) {
  Contenuto letto = Letto(contenuto, posto.Celle, variabili);
  if (posto.Larghezza > posto.Celle)
    letto.Detto = "(" + std::to_string(posto.Larghezza) + " caratteri) " + letto.Detto;
  std::string testo = Accorciato(std::move(letto.Detto), posto.Celle);
  const std::size_t resto = posto.Celle - testo.size();
  testo.insert(letto.ADestra ? 0 : testo.size(), resto, letto.Riempimento);
  return testo;
}

}  // namespace parvik
