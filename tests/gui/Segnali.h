// The signals that end a session, and a template on which commands take long.
#pragma once

#include <array>
#include <csignal>
#include <ostream>
#include <string>

#include "Scena.h"
#include "template/ImmagineModello.h"

namespace parvik::prova {

struct Segnale {
  const char* Nome;
  int Numero;
};

inline void PrintTo(const Segnale& segnale, std::ostream* uscita) {
  *uscita << segnale.Nome;
}

inline constexpr std::array<Segnale, 3> Segnali = {
    {{"SIGTERM", SIGTERM}, {"SIGHUP", SIGHUP}, {"SIGINT", SIGINT}}};

/// A body of one line of that length, 32,767 times.
inline void ApriCorpoRipetuto(Scena& scena, std::size_t lunghezza) {
  TestiSezioni testi = {"\r\n", std::string(lunghezza, 'x') + "\r\n", "\r\n"};
  ImpostazioniCorpo corpo = ImpostazioniPredefinite();
  corpo.RigheCorpo = 32767;
  Crea(scena.Editor().Modello("ENORME.IMG"), *ScriviImmagine(testi, corpo, Formato::TreSezioni));
  scena.Apri("ENORME.IMG");
}

/// Gigabytes of work.
inline void ApriCorpoEnorme(Scena& scena) {
  ApriCorpoRipetuto(scena, 60'000);
}

/// Rendered at once, but hundreds of pages.
inline void ApriTantePagine(Scena& scena) {
  ApriCorpoRipetuto(scena, 90);
}

}  // namespace parvik::prova
