// The part of a section's text that the rules look at, taken out of the toolkit's document.
#pragma once

#include <string>

#include "template/TastiSezione.h"

class QTextBlock;
class QTextDocument;

namespace parvik {

/// One byte a character of the document, the ends of lines included.
struct Veduta {
  std::string Testo;
  int Base = 0;  // the document's position of the first byte

  std::size_t DaDocumento(int posizione) const { return static_cast<std::size_t>(posizione - Base); }
  Selezione DaDocumento(int inizio, int fine) const {
    return {.Inizio = DaDocumento(inizio), .Lunghezza = static_cast<std::size_t>(fine - inizio)};
  }
  int InDocumento(std::size_t posizione) const { return Base + static_cast<int>(posizione); }
  Selezione InDocumento(Selezione selezione) const {
    return {.Inizio = selezione.Inizio + static_cast<std::size_t>(Base), .Lunghezza = selezione.Lunghezza};
  }
};

/// A line with its delimiters as their bytes and a filler for everything else, its end too.
std::string Segni(const QTextBlock& riga);

/// The delimiters of the text around the selection, everything else being a filler: in whole lines, from the
/// nearest delimiter in front of the selection, or the start, to the nearest closing delimiter behind it, or
/// the end. As far as any code at the selection can reach.
Veduta VedutaIntorno(const QTextDocument& documento, int inizio, int fine);

/// The text around the line of `posizione`, as far as any code on that line can reach.
Veduta VedutaDiRiga(const QTextDocument& documento, int posizione);

}  // namespace parvik
