// How a variable format record shows itself in a failed test.
#pragma once

#include <ostream>

#include "catalogue/TipoDoc.h"

namespace parvik {

inline void PrintTo(const Variabile& v, std::ostream* uscita) {
  *uscita << "{" << v.Descrizione << " n." << v.Intero1 << " larga " << v.Intero2 << " riemp. \"" << v.Testo1
          << "\" sinistra " << v.Intero3 << " tipo " << v.Intero4 << " linee " << v.Intero5 << " segno "
          << v.Intero6 << " zero " << v.Intero7 << " migliaia " << v.Intero8 << " decimali \"" << v.Testo2
          << "\" euro \"" << v.Testo3 << "\"}";
}

}  // namespace parvik
