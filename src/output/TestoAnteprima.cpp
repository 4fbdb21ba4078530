#include "output/TestoAnteprima.h"

#include <algorithm>
#include <utility>

#include "common/Delimitatori.h"

namespace parvik {
namespace {

constexpr std::size_t RighePerTappa = 32;
constexpr std::size_t BytePerTappa = 4096;
constexpr std::size_t TrattiPerConteggio = 64;
constexpr std::size_t Sottolineati = 4;  // the weight of the flag in a look's number
constexpr std::size_t PerCorpo = 8;

std::size_t FineDi(const Tratto& tratto) {
  return tratto.Inizio + tratto.Lunghezza;
}

}  // namespace

std::size_t IndiceDi(const Aspetto& aspetto) {
  return (aspetto.Grassetto ? 1U : 0U) + (aspetto.Italico ? 2U : 0U) +
         (aspetto.Sottolineato ? Sottolineati : 0U) + static_cast<std::size_t>(aspetto.Corpo) * PerCorpo;
}

Aspetto AspettoDiIndice(std::size_t indice) {
  return {.Grassetto = (indice & 1U) != 0,
          .Italico = (indice & 2U) != 0,
          .Sottolineato = (indice & Sottolineati) != 0,
          .Corpo = static_cast<CorpoCarattere>(indice / PerCorpo)};
}

TestoAnteprima::TestoAnteprima(Anteprima anteprima) : anteprima_(std::move(anteprima)) {
  IndicizzaRighe();
  IndicizzaTratti();
}

/// A place every so many lines, or at the first line start after so many bytes: the line behind a long one is
/// always such a place, so that no search ever walks through a long line.
void TestoAnteprima::IndicizzaRighe() {
  const std::string_view testo = Testo();
  tappe_.push_back({});
  std::size_t inizio = 0;
  for (std::size_t fine = testo.find(FineRiga); fine != std::string_view::npos;
       fine = testo.find(FineRiga, inizio)) {
    inizio = fine + FineRiga.size();
    const Tappa tappa{.Riga = numRighe_++, .Byte = inizio};
    if (tappa.Riga - tappe_.back().Riga >= RighePerTappa || inizio - tappe_.back().Byte >= BytePerTappa) {
      tappe_.push_back(tappa);
    }
  }
}

void TestoAnteprima::IndicizzaTratti() {
  PerAspetto<std::size_t> conteggio = {};
  std::size_t coperti = 0;
  conteggi_.reserve(Tratti().size() / TrattiPerConteggio + 1);
  for (std::size_t i = 0; i < Tratti().size(); ++i) {
    const Tratto& tratto = Tratti()[i];
    conteggio[IndiceDi({})] += tratto.Inizio - coperti;
    if (i % TrattiPerConteggio == 0) conteggi_.push_back(conteggio);
    conteggio[IndiceDi(tratto.Come)] += tratto.Lunghezza;
    coperti = FineDi(tratto);
  }
}

TestoAnteprima::EstremiRiga TestoAnteprima::Estremi(std::size_t riga) const {
  const auto dopo = std::ranges::upper_bound(tappe_, riga, {}, &Tappa::Riga);
  const Tappa& tappa = *std::prev(dopo);
  std::size_t inizio = tappa.Byte;
  for (std::size_t r = tappa.Riga; r < riga; ++r) inizio = Testo().find(FineRiga, inizio) + FineRiga.size();
  if (riga + 1 == numRighe_) return {.Inizio = inizio, .Termine = Testo().size()};
  const bool tappaDietro = dopo != tappe_.end() && dopo->Riga == riga + 1;
  return {.Inizio = inizio,
          .Termine = tappaDietro ? dopo->Byte - FineRiga.size() : Testo().find(FineRiga, inizio)};
}

std::string_view TestoAnteprima::Riga(std::size_t riga) const {
  const EstremiRiga estremi = Estremi(riga);
  return Testo().substr(estremi.Inizio, estremi.Termine - estremi.Inizio);
}

std::size_t TestoAnteprima::RigaDi(std::size_t byte) const {
  const auto dopo = std::ranges::upper_bound(tappe_, byte, {}, &Tappa::Byte);
  const std::size_t finoA = dopo == tappe_.end() ? numRighe_ : dopo->Riga;
  const std::string_view davanti = Testo().substr(0, byte);
  auto [riga, inizio] = *std::prev(dopo);
  while (riga + 1 < finoA) {
    const std::size_t fine = davanti.find(FineRiga, inizio);
    if (fine == std::string_view::npos) break;
    inizio = fine + FineRiga.size();
    ++riga;
  }
  return riga;
}

/// The number of the first run that ends behind `byte`.
std::size_t TestoAnteprima::TrattoCheFinisceDopo(std::size_t byte) const {
  const auto tratto = std::ranges::upper_bound(Tratti(), byte, {}, FineDi);
  return static_cast<std::size_t>(tratto - Tratti().begin());
}

std::span<const Tratto> TestoAnteprima::TrattiIn(std::size_t da, std::size_t a) const {
  const std::size_t primo = TrattoCheFinisceDopo(da);
  const auto fine = std::ranges::lower_bound(Tratti(), a, {}, &Tratto::Inizio);
  const auto ultimo = static_cast<std::size_t>(fine - Tratti().begin());
  if (da >= a || ultimo <= primo) return {};
  return std::span(Tratti()).subspan(primo, ultimo - primo);
}

Aspetto TestoAnteprima::AspettoDi(std::size_t byte) const {
  if (Testo().empty()) return {};
  byte = std::min(byte, Testo().size() - 1);
  const auto tratti = TrattiIn(byte, byte + 1);
  return tratti.empty() ? Aspetto() : tratti.front().Come;
}

PerAspetto<std::size_t> TestoAnteprima::Conta(std::size_t byte) const {
  byte = std::min(byte, Testo().size());
  PerAspetto<std::size_t> conteggio = {};
  std::size_t coperti = 0;
  std::size_t i = TrattoCheFinisceDopo(byte);  // the runs in front of it count whole
  if (!conteggi_.empty()) {
    i = std::min(i, Tratti().size() - 1) / TrattiPerConteggio * TrattiPerConteggio;
    conteggio = conteggi_[i / TrattiPerConteggio];
    coperti = Tratti()[i].Inizio;
  }
  if (coperti > byte) {  // it stands in the gap in front of the run that was counted to
    conteggio[IndiceDi({})] -= coperti - byte;
    return conteggio;
  }
  for (; i < Tratti().size() && Tratti()[i].Inizio < byte; ++i) {
    const Tratto& tratto = Tratti()[i];
    conteggio[IndiceDi({})] += tratto.Inizio - coperti;
    coperti = std::min(FineDi(tratto), byte);
    conteggio[IndiceDi(tratto.Come)] += coperti - tratto.Inizio;
  }
  conteggio[IndiceDi({})] += byte - coperti;
  return conteggio;
}

template <class Visita>
void TestoAnteprima::PerOgniLarghezza(const PerAspetto<double>& larghezze, Visita visita) const {
  auto tratto = Tratti().begin();
  std::size_t inizio = 0;
  for (std::size_t riga = 0; riga < numRighe_; ++riga) {
    const std::size_t termine = std::min(Testo().find(FineRiga, inizio), Testo().size());
    double larghezza = 0;
    for (std::size_t p = inizio; p < termine;) {
      while (tratto != Tratti().end() && FineDi(*tratto) <= p) ++tratto;
      const bool scoperto = tratto == Tratti().end() || tratto->Inizio > p;
      std::size_t a = termine;
      if (tratto != Tratti().end()) a = std::min(a, scoperto ? tratto->Inizio : FineDi(*tratto));
      larghezza += larghezze[IndiceDi(scoperto ? Aspetto() : tratto->Come)] * static_cast<double>(a - p);
      p = a;
    }
    visita(larghezza);
    inizio = termine + FineRiga.size();
  }
}

double TestoAnteprima::LarghezzaMassima(const PerAspetto<double>& larghezze) const {
  double massima = 0;
  PerOgniLarghezza(larghezze, [&](double larghezza) { massima = std::max(massima, larghezza); });
  return massima;
}

std::size_t TestoAnteprima::RighePiuLarghe(const PerAspetto<double>& larghezze, double limite) const {
  std::size_t quante = 0;
  PerOgniLarghezza(larghezze, [&](double larghezza) { quante += larghezza > limite ? 1U : 0U; });
  return quante;
}

}  // namespace parvik
