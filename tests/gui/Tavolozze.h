// Palettes, and the kinds of code that are coloured on them.
#pragma once

#include <QColor>
#include <QPalette>
#include <map>
#include <string>

#include "tokens/Codice.h"

namespace parvik::prova {

inline const std::map<std::string, TipoCodice> Tipi = {{"sconosciuto", TipoCodice::Sconosciuto},
                                                       {"variabile", TipoCodice::Variabile},
                                                       {"costante", TipoCodice::Costante},
                                                       {"flag", TipoCodice::Flag},
                                                       {"stile", TipoCodice::Stile},
                                                       {"lingua", TipoCodice::Lingua},
                                                       {"pagina", TipoCodice::Pagina}};

inline QPalette Tavolozza(const QColor& base, const QColor& testo, const QColor& evidenza) {
  QPalette tavolozza;
  tavolozza.setColor(QPalette::Base, base);
  tavolozza.setColor(QPalette::Text, testo);
  tavolozza.setColor(QPalette::Highlight, evidenza);
  return tavolozza;
}

inline QPalette Scura() {
  return Tavolozza(QColor(0x1E, 0x1E, 0x1E), QColor(0xF0, 0xF0, 0xF0), QColor(0x2A, 0x82, 0xDA));
}

}  // namespace parvik::prova
