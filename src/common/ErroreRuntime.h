// Run-time errors: the numbers and the Italian descriptions that the user may see.
#pragma once

#include <string>
#include <string_view>

namespace parvik {

enum class NumeroErrore {
  ArgomentoNonValido = 5,
  Overflow = 6,
  MemoriaEsaurita = 7,
  IndiceFuoriIntervallo = 9,
  TipoNonCorrispondente = 13,
  FileNonTrovato = 53,
  ErroreDiPeriferica = 57,
  DiscoPieno = 61,
  InputOltreFine = 62,
  AutorizzazioneNegata = 70,
  AccessoPercorsoFile = 75,
  PercorsoNonTrovato = 76,
};

/// UTF-8, without the number.
std::string_view Descrizione(NumeroErrore errore);

/// The sentence of every error message: "Si è verificato l'errore: ", number, space, description. UTF-8.
std::string TestoErrore(NumeroErrore errore);

}  // namespace parvik
