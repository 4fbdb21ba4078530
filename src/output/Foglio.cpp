#include "output/Foglio.h"

#include <algorithm>
#include <charconv>

namespace parvik {
namespace {

constexpr int LatoMinimo = 200;
constexpr int LatoMassimo = 10'000;
constexpr int MassimeLinee = 24;

constexpr int MargineStampante = 50;   // what a printer cannot reach
constexpr int LarghezzaModulo = 2400;  // of a continuous form, with the strips at its sides
constexpr int StrisciaModulo = 127;    // one of them, with its holes

constexpr int DecimiPerMillimetro = 10;
constexpr double Arrotondamento = 0.01;  // of a line or column: a length is a rounded number

Foglio Singolo(Carta carta, int larghezza, int altezza) {
  return {.Quale = carta,
          .Larghezza = larghezza,
          .Altezza = altezza,
          .Margini = {MargineStampante, MargineStampante, MargineStampante, MargineStampante}};
}

/// No margins above and below: form follows form.
Foglio Modulo(Carta carta, int pollici) {
  return {.Quale = carta,
          .Larghezza = LarghezzaModulo,
          .Altezza = pollici * DecimiPerPollice,
          .Margini = {StrisciaModulo, StrisciaModulo, 0, 0}};
}

int AreaOrizzontale(const Foglio& foglio) {
  return foglio.Larghezza - foglio[LatoFoglio::Sinistro] - foglio[LatoFoglio::Destro];
}

int AreaVerticale(const Foglio& foglio) {
  return foglio.Altezza - foglio[LatoFoglio::Alto] - foglio[LatoFoglio::Basso];
}

bool ELato(int lunghezza) {
  return lunghezza >= LatoMinimo && lunghezza <= LatoMassimo;
}

std::size_t AlmenoUno(double quanti) {
  return quanti < 1 ? 1 : static_cast<std::size_t>(quanti + Arrotondamento);
}

std::optional<int> LeggiCifre(std::string_view cifre) {
  int numero = 0;
  const auto [fine, errore] = std::from_chars(cifre.data(), cifre.data() + cifre.size(), numero);
  const bool tutte = errore == std::errc() && fine == cifre.data() + cifre.size();
  return tutte && numero >= 0 && numero <= LatoMassimo ? std::optional(numero) : std::nullopt;
}

}  // namespace

Foglio FoglioDi(Carta carta) {
  switch (carta) {
    case Carta::Nessuna:
      return {};
    case Carta::A5:
      return Singolo(carta, 1480, 2100);
    case Carta::Modulo11:
      return Modulo(carta, 11);
    case Carta::Modulo12:
      return Modulo(carta, 12);
    case Carta::A4:
    case Carta::Personalizzata:
      break;
  }
  return Singolo(carta, 2100, 2970);
}

std::optional<std::string> DifettoDi(const Foglio& foglio) {
  if (foglio.Quale == Carta::Nessuna) return std::nullopt;
  const std::string tra = "tra " + InMillimetri(LatoMinimo) + " e " + InMillimetri(LatoMassimo) + " mm.";
  if (!ELato(foglio.Larghezza)) return "La larghezza dev'essere " + tra;
  if (!ELato(foglio.Altezza)) return "L'altezza dev'essere " + tra;
  if (foglio.LineePerPollice < 1 || foglio.LineePerPollice > MassimeLinee)
    return "Le linee per pollice devono essere tra 1 e " + std::to_string(MassimeLinee) + ".";
  if (std::ranges::min(foglio.Margini) < 0) return "I margini devono essere numeri.";
  if (AreaOrizzontale(foglio) <= 0 || AreaVerticale(foglio) * foglio.LineePerPollice < DecimiPerPollice)
    return "Tra i margini non resta spazio.";
  return std::nullopt;
}

std::optional<int> LeggiMillimetri(std::string_view testo) {
  const std::size_t virgola = testo.find_first_of(",.");
  const std::optional<int> interi = LeggiCifre(testo.substr(0, virgola));
  if (!interi) return std::nullopt;
  if (virgola == std::string_view::npos) return *interi * DecimiPerMillimetro;
  const std::string_view dietro = testo.substr(virgola + 1);
  const std::optional<int> decimi = LeggiCifre(dietro);
  if (!decimi || dietro.size() > 1) return std::nullopt;
  return *interi * DecimiPerMillimetro + *decimi;
}

std::string InMillimetri(int decimi) {
  const std::string interi = std::to_string(decimi / DecimiPerMillimetro);
  const int resto = decimi % DecimiPerMillimetro;
  return resto == 0 ? interi : interi + "," + std::to_string(resto);
}

PaginaFoglio PaginaDi(const Foglio& foglio, double cella) {
  const double righe = static_cast<double>(AreaVerticale(foglio)) * foglio.LineePerPollice / DecimiPerPollice;
  return {.Colonne = AlmenoUno(AreaOrizzontale(foglio) / cella), .Righe = AlmenoUno(righe)};
}

std::size_t Pagine(std::size_t righe, const PaginaFoglio& pagina) {
  return (righe + pagina.Righe - 1) / pagina.Righe;
}

}  // namespace parvik
