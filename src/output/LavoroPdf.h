// What becomes a PDF document (docs/printing.md).
#pragma once

#include <string>

#include "output/Foglio.h"
#include "output/TestoAnteprima.h"
#include "template/TastiSezione.h"

namespace parvik {

struct LavoroPdf {
  const TestoAnteprima& Testo;
  Selezione Parte;     // in bytes
  std::string Titolo;  // UTF-8
  Foglio SuFoglio;     // `Carta::Nessuna` for a sheet as printers have one
};

}  // namespace parvik
