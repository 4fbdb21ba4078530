#include "common/ErroreRuntime.h"

namespace parvik {

std::string_view Descrizione(NumeroErrore errore) {
  switch (errore) {
    case NumeroErrore::ArgomentoNonValido:
      return "Chiamata di routine o argomento non validi";
    case NumeroErrore::Overflow:
      return "Overflow";
    case NumeroErrore::MemoriaEsaurita:
      return "Memoria esaurita";
    case NumeroErrore::IndiceFuoriIntervallo:
      return "Indice non incluso nell'intervallo";
    case NumeroErrore::TipoNonCorrispondente:
      return "Tipo non corrispondente";
    case NumeroErrore::FileNonTrovato:
      return "Impossibile trovare il file";
    case NumeroErrore::ErroreDiPeriferica:
      return "Errore di periferica I/O";
    case NumeroErrore::DiscoPieno:
      return "Disco pieno";
    case NumeroErrore::InputOltreFine:
      return "Input oltre la fine del file";
    case NumeroErrore::AutorizzazioneNegata:
      return "Autorizzazione negata";
    case NumeroErrore::AccessoPercorsoFile:
      return "Errore di accesso al percorso/file";
    case NumeroErrore::PercorsoNonTrovato:
      return "Impossibile trovare il percorso";
  }
  return "";
}

std::string TestoErrore(NumeroErrore errore) {
  std::string testo = "Si è verificato l'errore: " + std::to_string(static_cast<int>(errore)) + " ";
  return testo.append(Descrizione(errore));
}

}  // namespace parvik
