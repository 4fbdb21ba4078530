#include "supporto/DifferenzeViste.h"

#include <algorithm>

#include "common/NumeroLeniente.h"
#include "tokens/Codice.h"

namespace parvik::prova {
namespace {

constexpr std::size_t Nessuno = std::string_view::npos;
constexpr std::size_t Massimo16Bit = 32767;

/// A variable's content, cut by eye.
struct Variabile {
  explicit Variabile(std::string_view contenuto) {
    const std::size_t p1 = contenuto.find(';');
    Separato = p1 != Nessuno;
    Opzioni = Separato ? contenuto.substr(p1 + 1) : contenuto;
    Gruppo = Separato ? Opzioni.substr(0, Opzioni.find(';')) : std::string_view();
    SecondoSeparatore = Separato && Opzioni.find(';') != Nessuno;
    Larghezza = Gruppo.substr(0, Gruppo.find('"'));
    ConFormato = SecondoSeparatore && !Opzioni.ends_with('#');
  }
  bool Separato;
  std::string_view Opzioni;  // behind the first separator, or all of it
  std::string_view Gruppo;   // up to the second separator
  bool SecondoSeparatore;
  std::string_view Larghezza;  // up to the quote
  bool ConFormato;             // to the run
};

/// The width does not begin with its number.
bool AltroDavanti(const Variabile& v) {
  return !v.Larghezza.empty() && !Cifra(v.Larghezza.front()) && !EUnNumero(v.Larghezza);
}

bool OltreSediciBit(const Variabile& v) {
  return LunghezzaLeniente(v.Larghezza) > Massimo16Bit;
}

/// With no format behind it the run takes three characters off the end for a fill in quotes; there are not
/// three, from the first quote on.
bool ApiceSpaiato(const Variabile& v) {
  const std::size_t apice = v.Opzioni.find('"');
  return v.Separato && !v.ConFormato && apice != Nessuno && v.Opzioni.size() - apice < 3;
}

bool ApiceFuori(const Variabile& v) {
  const std::size_t apice = v.Opzioni.find('"');
  return apice != Nessuno && (!v.Separato || apice > v.Gruppo.size());
}

bool ApiceDavantiAlSeparatore(const Variabile& v) {
  return v.SecondoSeparatore && v.Gruppo.find('"') == v.Gruppo.size() - 1 && v.Gruppo.ends_with('"');
}

using Nomi = std::vector<std::string>;

void Aggiungi(Nomi& nomi, bool vale, const char* nome) {
  if (vale) nomi.emplace_back(nome);
}

constexpr const char* NomeDavanti = "something in front of the width";
constexpr const char* NomeOltre = "a width beyond 16 bits";
constexpr const char* NomeSpaiato = "a fill without its quotes, and no format";
constexpr const char* NomeFuori = "a quote outside of the width's group";
constexpr const char* NomeSeparatore = "a separator for fill";
constexpr const char* NomeCostante = "a constant that is not in quotes";
constexpr const char* NomeStile = "a style that does not begin with its marker";

}  // namespace

Nomi DifferenzeDiLarghezza(std::string_view contenuto) {
  const Variabile v(contenuto);
  Nomi nomi;
  Aggiungi(nomi, AltroDavanti(v), NomeDavanti);
  Aggiungi(nomi, OltreSediciBit(v), NomeOltre);
  Aggiungi(nomi, ApiceSpaiato(v), NomeSpaiato);
  return nomi;
}

Nomi DifferenzeDiRiempimento(std::string_view contenuto) {
  const Variabile v(contenuto);
  Nomi nomi;
  Aggiungi(nomi, ApiceFuori(v), NomeFuori);
  Aggiungi(nomi, ApiceDavantiAlSeparatore(v), NomeSeparatore);
  return nomi;
}

Nomi DifferenzeDiTesto(std::string_view contenuto) {
  Nomi nomi;
  Aggiungi(nomi, contenuto.find('"') != 3, NomeCostante);
  return nomi;
}

Nomi DifferenzeDiStile(std::string_view contenuto) {
  Nomi nomi;
  Aggiungi(nomi, !contenuto.starts_with("S;") || contenuto.size() < 4, NomeStile);
  return nomi;
}

Nomi Differenze(std::string_view contenuto) {
  switch (Riconosci(contenuto)) {
    case TipoCodice::Variabile: {
      Nomi nomi = DifferenzeDiLarghezza(contenuto);
      std::ranges::copy(DifferenzeDiRiempimento(contenuto), std::back_inserter(nomi));
      return nomi;
    }
    case TipoCodice::Costante:
      return DifferenzeDiTesto(contenuto);
    case TipoCodice::Stile:
      return DifferenzeDiStile(contenuto);
    default:
      return {};
  }
}

Nomi NomiDifferenze() {
  return {NomeDavanti, NomeOltre, NomeSpaiato, NomeFuori, NomeSeparatore, NomeCostante, NomeStile};
}

}  // namespace parvik::prova
