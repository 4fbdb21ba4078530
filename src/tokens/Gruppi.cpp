#include "tokens/Gruppi.h"

#include <algorithm>

#include "common/Delimitatori.h"
#include "common/NumeroLeniente.h"
#include "common/Ritagli.h"
#include "tokens/Codice.h"

namespace parvik {
namespace {

constexpr std::size_t NonTrovato = std::string_view::npos;
constexpr char Separatore = ';';
constexpr std::size_t ContornoCostante = 5;  // prefix and quotes of a constant

/// The part of a group from its byte `da` up to `a`, or what there is of it.
Gruppo Parte(const Gruppo& gruppo, std::size_t da, std::size_t a = NonTrovato) {
  const std::size_t inizio = std::min(da, gruppo.Testo.size());
  const std::size_t lunghezza = std::max(a, inizio) - inizio;
  return {.Inizio = gruppo.Inizio + inizio, .Testo = gruppo.Testo.substr(inizio, lunghezza)};
}

/// The character behind the place that a search found; none when it found nothing, and at the end.
std::optional<Gruppo> CarattereDopo(const Gruppo& gruppo, std::size_t trovato) {
  if (trovato == NonTrovato || trovato + 1 == gruppo.Testo.size()) return std::nullopt;
  return Parte(gruppo, trovato + 1, trovato + 2);
}

void DividiTesta(const Gruppo& testa, GruppiVariabile& gruppi) {
  const std::size_t virgola = testa.Testo.find(',', 1);
  gruppi.Numero = Parte(testa, 1, virgola);
  if (virgola != NonTrovato) gruppi.Righe = Parte(testa, virgola + 1);
}

/// "12R", "R12", or a bare number, which has no letter.
void DividiLarghezza(const Gruppo& larghezza, GruppiVariabile& gruppi) {
  const std::string_view testo = larghezza.Testo;
  gruppi.Larghezza = larghezza;
  if (testo.empty() || EUnNumero(testo)) return;
  const std::size_t ultimo = testo.size() - 1;
  const bool dietro = Cifra(testo.front());
  gruppi.Allineamento = dietro ? Parte(larghezza, ultimo) : Parte(larghezza, 0, 1);
  gruppi.Larghezza = dietro ? Parte(larghezza, 0, ultimo) : Parte(larghezza, 1);
}

/// What stands between the first two separators.
void DividiMisura(const Gruppo& misura, GruppiVariabile& gruppi) {
  const std::size_t apice = misura.Testo.find(DelimTesto);
  DividiLarghezza(Parte(misura, 0, apice), gruppi);
  gruppi.Riempimento = CarattereDopo(misura, apice);
}

GruppoNumerico DividiNumerico(const Gruppo& tutto) {
  const std::string_view testo = tutto.Testo;
  GruppoNumerico numerico;
  numerico.Tutto = tutto;
  numerico.Migliaia = testo.find('.') != NonTrovato;
  numerico.ZeroVisibile = Da(testo, numerico.Migliaia ? 1 : 0).starts_with('0');
  numerico.SegnoADestra = testo.find('-') != NonTrovato;
  numerico.Decimali = CarattereDopo(tutto, testo.find(','));
  return numerico;
}

/// A whole content, to be divided.
Gruppo Tutto(std::string_view contenuto) {
  return {.Inizio = 0, .Testo = contenuto};
}

}  // namespace

std::int16_t NumeroDi(const Gruppo& gruppo) {
  const Esito<std::int16_t> numero = InteroLeniente(gruppo.Testo);
  return numero ? *numero : std::int16_t{0};
}

std::int16_t QuantitaDi(const Gruppo& gruppo) {
  return std::max<std::int16_t>(0, NumeroDi(gruppo));
}

GruppiVariabile GruppiDiVariabile(std::string_view contenuto) {
  const Gruppo tutto = Tutto(contenuto);
  GruppiVariabile gruppi;
  const std::size_t p1 = std::min(contenuto.find(Separatore), contenuto.size());
  DividiTesta(Parte(tutto, 0, p1), gruppi);
  const std::size_t p2 = contenuto.find(Separatore, p1 + 1);
  DividiMisura(Parte(tutto, p1 + 1, p2), gruppi);
  if (p2 == NonTrovato) return gruppi;
  const std::size_t p3 = contenuto.find(Separatore, p2 + 1);
  gruppi.Numerico = DividiNumerico(Parte(tutto, p2 + 1, p3));
  if (p3 != NonTrovato) gruppi.Euro = Parte(tutto, contenuto.size() - 1);
  return gruppi;
}

GruppiCostante GruppiDiCostante(std::string_view contenuto) {
  const std::size_t lunghezza = SenzaUltimi(contenuto, ContornoCostante).size();
  const std::size_t apice = contenuto.find(DelimTesto);
  const std::size_t inizio = apice == NonTrovato ? 0 : apice + 1;
  return {.Testo = Parte(Tutto(contenuto), inizio, inizio + lunghezza)};
}

GruppiFlag GruppiDiFlag(std::string_view contenuto) {
  const Gruppo tutto = Tutto(contenuto);
  if (contenuto.size() < 2 || Cifra(contenuto.back())) return {.Numero = Parte(tutto, 1), .Interruttore = {}};
  const std::size_t ultimo = contenuto.size() - 1;
  return {.Numero = Parte(tutto, 1, ultimo), .Interruttore = Parte(tutto, ultimo)};
}

GruppiStile GruppiDiStile(std::string_view contenuto) {
  const std::size_t separatore = std::min(contenuto.find(Separatore), contenuto.size());
  return {.Parola = Parte(Tutto(contenuto), separatore + 1)};
}

GruppiLingua GruppiDiLingua(std::string_view contenuto) {
  const Gruppo tutto = Tutto(contenuto);
  const std::size_t separatore = contenuto.find(Separatore, 1);
  GruppiLingua gruppi{.Indice = Parte(tutto, 1, separatore), .Larghezza = {}};
  if (separatore != NonTrovato) gruppi.Larghezza = Parte(tutto, separatore + 1);
  return gruppi;
}

GruppiPagina GruppiDiPagina(std::string_view contenuto) {
  return {.Numero = Parte(Tutto(contenuto), 1)};
}

GruppiCodice Gruppi(std::string_view contenuto) {
  switch (Riconosci(contenuto)) {
    case TipoCodice::Variabile:
      return GruppiDiVariabile(contenuto);
    case TipoCodice::Costante:
      return GruppiDiCostante(contenuto);
    case TipoCodice::Flag:
      return GruppiDiFlag(contenuto);
    case TipoCodice::Stile:
      return GruppiDiStile(contenuto);
    case TipoCodice::Lingua:
      return GruppiDiLingua(contenuto);
    case TipoCodice::Pagina:
      return GruppiDiPagina(contenuto);
    case TipoCodice::Sconosciuto:
      break;
  }
  return std::monostate();
}

}  // namespace parvik
