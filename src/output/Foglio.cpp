#include "output/Foglio.h"

#include <algorithm>

namespace parvik {
namespace {

constexpr int DecimiPerPollice = 254;
constexpr int MargineStampante = 50;
constexpr int LarghezzaModulo = 2400;  // continuous forms, their strips of holes included

Foglio Verticale(Carta carta, int larghezza, int altezza) {
  return {.Quale = carta,
          .Larghezza = larghezza,
          .Altezza = altezza,
          .MargineSinistro = MargineStampante,
          .MargineDestro = MargineStampante,
          .MargineAlto = MargineStampante,
          .MargineBasso = MargineStampante};
}

/// A form has no margins above and below: page follows page.
Foglio Modulo(Carta carta, int pollici) {
  Foglio foglio = Verticale(carta, LarghezzaModulo, pollici * DecimiPerPollice);
  foglio.MargineAlto = foglio.MargineBasso = 0;
  return foglio;
}

std::size_t AlmenoUno(double quanti) {
  return quanti < 1 ? 1 : static_cast<std::size_t>(quanti);
}

}  // namespace

Foglio FoglioDi(Carta carta) {
  switch (carta) {
    case Carta::Nessuna:
      return {};
    case Carta::A5:
      return Verticale(carta, 1480, 2100);
    case Carta::Modulo11:
      return Modulo(carta, 11);
    case Carta::Modulo12:
      return Modulo(carta, 12);
    case Carta::A4:
    case Carta::Personalizzata:
      break;
  }
  return Verticale(carta, 2100, 2970);
}

PaginaFoglio PaginaDi(const Foglio& foglio, double cella) {
  constexpr double Arrotondamento = 1e-6;  // a whole number of lines is one
  const int larghezza = foglio.Larghezza - foglio.MargineSinistro - foglio.MargineDestro;
  const int altezza = foglio.Altezza - foglio.MargineAlto - foglio.MargineBasso;
  const double righe = static_cast<double>(altezza) * foglio.LineePerPollice / DecimiPerPollice;
  return {.Colonne = AlmenoUno(larghezza / cella + Arrotondamento),
          .Righe = AlmenoUno(righe + Arrotondamento)};
}

std::size_t Pagine(std::size_t righe, const PaginaFoglio& pagina) {
  return (righe + pagina.Righe - 1) / pagina.Righe;
}

std::size_t RigheOltre(const TestoAnteprima& testo, const PaginaFoglio& pagina) {
  std::size_t oltre = 0;
  std::string_view resto = testo.Testo();
  while (!resto.empty()) {
    const std::size_t fine = std::min(resto.find("\r\n"), resto.size());
    if (fine > pagina.Colonne) ++oltre;
    resto.remove_prefix(std::min(fine + 2, resto.size()));
  }
  return oltre;
}

}  // namespace parvik
