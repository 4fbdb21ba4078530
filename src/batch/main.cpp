#include <exception>
#include <new>

#include "batch/Messaggi.h"
#include "batch/RigaDiComando.h"
#include "sistema/Argomenti.h"
#include "sistema/Processo.h"

int main(int argc, char** argv) {
  using parvik::batch::Uscita;
  parvik::PreparaProcessoSenzaFinestra();
  try {
    return static_cast<int>(parvik::batch::Esegui(parvik::ArgomentiProcesso(argc, argv)));
  } catch (const std::bad_alloc&) {
    parvik::batch::Segnala(parvik::TestoErrore(parvik::NumeroErrore::MemoriaEsaurita));
  } catch (const std::exception& errore) {
    parvik::batch::Segnala(errore.what());
  }
  return static_cast<int>(Uscita::NonFatto);
}
