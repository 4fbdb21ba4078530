#include "output/MovimentiAnteprima.h"

#include <algorithm>
#include <string_view>

#include "common/Delimitatori.h"

namespace parvik {
namespace {

enum class Classe { Spazio, Segno, Parola };

Classe ClasseDi(char c) {
  constexpr std::string_view Spazi = " \t\xA0";
  constexpr std::string_view Segni = ".,?!@#$:;-<>[](){}=/+%&^*'\"`~|\\";
  if (Spazi.find(c) != std::string_view::npos) return Classe::Spazio;
  return Segni.find(c) != std::string_view::npos ? Classe::Segno : Classe::Parola;
}

/// A line and a place in it.
struct NellaRiga {
  std::string_view Testo;
  std::size_t Inizio = 0;  // the line's first byte
  std::size_t Colonna = 0;

  NellaRiga(const TestoAnteprima& testo, std::size_t byte) {
    const std::size_t riga = testo.RigaDi(byte);
    Inizio = testo.InizioRiga(riga);
    Testo = testo.Testo().substr(Inizio, testo.TermineRiga(riga) - Inizio);
    Colonna = byte - Inizio;
  }

  void SaltaAvanti(Classe classe) {
    while (Colonna < Testo.size() && ClasseDi(Testo[Colonna]) == classe) ++Colonna;
  }
  void SaltaIndietro(Classe classe) {
    while (Colonna > 0 && ClasseDi(Testo[Colonna - 1]) == classe) --Colonna;
  }
  std::size_t Byte() const { return Inizio + Colonna; }
};

}  // namespace

std::size_t Aggancia(const TestoAnteprima& testo, std::size_t byte) {
  byte = std::min(byte, testo.Testo().size());
  const bool nelMezzo = byte > 0 && testo.Testo().substr(byte - 1).starts_with(FineRiga);
  return nelMezzo ? byte - 1 : byte;
}

std::size_t CarattereDopo(const TestoAnteprima& testo, std::size_t byte) {
  const bool fineRiga = testo.Testo().substr(byte).starts_with(FineRiga);
  return std::min(byte + (fineRiga ? FineRiga.size() : 1), testo.Testo().size());
}

std::size_t CarattereDavanti(const TestoAnteprima& testo, std::size_t byte) {
  return byte == 0 ? 0 : Aggancia(testo, byte - 1);
}

std::size_t ParolaDopo(const TestoAnteprima& testo, std::size_t byte) {
  NellaRiga posto(testo, byte);
  if (posto.Colonna == posto.Testo.size()) return CarattereDopo(testo, byte);
  const Classe classe = ClasseDi(posto.Testo[posto.Colonna]);
  if (classe != Classe::Spazio) posto.SaltaAvanti(classe);
  posto.SaltaAvanti(Classe::Spazio);
  return posto.Byte();
}

std::size_t ParolaDavanti(const TestoAnteprima& testo, std::size_t byte) {
  NellaRiga posto(testo, byte);
  if (posto.Colonna == 0) return CarattereDavanti(testo, byte);
  posto.SaltaIndietro(Classe::Spazio);
  if (posto.Colonna > 0) posto.SaltaIndietro(ClasseDi(posto.Testo[posto.Colonna - 1]));
  return posto.Byte();
}

Selezione ParolaA(const TestoAnteprima& testo, std::size_t byte) {
  NellaRiga inizio(testo, byte);
  if (inizio.Testo.empty()) return {.Inizio = byte, .Lunghezza = 0};
  inizio.Colonna = std::min(inizio.Colonna, inizio.Testo.size() - 1);
  NellaRiga fine = inizio;
  const Classe classe = ClasseDi(inizio.Testo[inizio.Colonna]);
  inizio.SaltaIndietro(classe);
  fine.SaltaAvanti(classe);
  return {.Inizio = inizio.Byte(), .Lunghezza = fine.Byte() - inizio.Byte()};
}

Selezione RigaA(const TestoAnteprima& testo, std::size_t byte) {
  const std::size_t riga = testo.RigaDi(byte);
  const std::size_t inizio = testo.InizioRiga(riga);
  return {.Inizio = inizio, .Lunghezza = CarattereDopo(testo, testo.TermineRiga(riga)) - inizio};
}

std::size_t CarattereDi(const TestoAnteprima& testo, std::size_t byte) {
  return byte - testo.RigaDi(byte);
}

std::size_t ByteDi(const TestoAnteprima& testo, std::size_t carattere) {
  std::size_t riga = 0;  // its start is not behind the character
  std::size_t oltre = testo.NumRighe();
  while (oltre - riga > 1) {
    const std::size_t mezzo = riga + (oltre - riga) / 2;
    (testo.InizioRiga(mezzo) - mezzo <= carattere ? riga : oltre) = mezzo;
  }
  return std::min(carattere + riga, testo.Testo().size());
}

}  // namespace parvik
