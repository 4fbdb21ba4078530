// The commands of parvik32-batch. Each prints its result, says on standard error what went wrong, and returns
// the exit status (docs/batch.md).
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "common/Sezione.h"
#include "verifica/Verifica.h"

namespace parvik::batch {

/// A promise to scripts.
enum class Uscita {
  Fatto = 0,
  ConRilievi = 1,  // done, and there is something to mend
  NonFatto = 2,    // something could not be done
};

/// What the commands that look for faults are told.
struct ComeVerificare {
  OpzioniVerifica Opzioni = {};
  bool Severo = false;  // warnings count
  bool Json = false;
  bool Sommario = false;
  bool ElencoRegole = false;
  bool Correggi = false;  // mend what has one right answer
  bool Prova = false;     // show the mends, and write nothing
};

struct Opzioni {
  std::filesystem::path Programma;              // as it was called
  std::optional<std::filesystem::path> Velkor;  // a host directory
  std::optional<std::filesystem::path> Campi;   // a catalogue
  int Tipo = 0;                                 // as the catalogue writes it: slot + 1
  bool TipoAuto = false;                        // instead: of each file, by its name
  std::optional<Sezione> SolaSezione;
  std::vector<int> Veri;                        // the print flags that are true
  std::optional<std::filesystem::path> Uscita;  // instead of standard output, or of the file itself
  bool NonUsati = false;                        // what no template uses
  std::vector<std::filesystem::path> File;      // of spiega, codes
  ComeVerificare Rilievi;
};

Uscita Tipi(const Opzioni& opzioni);
Uscita Campi(const Opzioni& opzioni);
Uscita Stampa(const Opzioni& opzioni);
Uscita Normalizza(const Opzioni& opzioni);
Uscita Verifica(const Opzioni& opzioni);
Uscita VerificaCatalogo(const Opzioni& opzioni);
Uscita Spiega(const Opzioni& opzioni);
Uscita Codici(const Opzioni& opzioni);

}  // namespace parvik::batch
