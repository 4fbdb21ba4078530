// A template file made ready where it lies, while it is being read (docs/template-file.md).
#pragma once

#include <cstddef>
#include <optional>
#include <span>

#include "template/Formato.h"
#include "template/Marcatore.h"

namespace parvik {

/// Gives the codes of a file's bytes the editor's delimiters, but for the marker's line, and finds out what
/// else there is to know of them.
class PreparaImmagine {
 public:
  explicit PreparaImmagine(Formato formato) : formato_(formato) {}

  /// `finora` are all bytes so far: those of the call before, as that left them, and more. Takes time for
  /// those that are new. An unfinished line waits for its end.
  void Prosegui(std::span<char> finora);
  /// The last bytes were there.
  void Concludi(std::span<char> tutti);

  Formato Per() const { return formato_; }
  /// nullopt in the one-section layout too.
  const std::optional<Marcatore>& Trovato() const { return marcatore_; }
  /// A CR ends a line alone: not every line was gone over, and CopiaRighe's AggiungiDaFile has to do it.
  bool CrSoli() const { return crSoli_; }

 private:
  void Prepara(std::span<char> righe);
  void Rendi(std::span<char> righe);

  Formato formato_;
  std::size_t visti_ = 0;   // bytes in which line ends were looked for
  std::size_t pronti_ = 0;  // whole lines
  std::optional<Marcatore> marcatore_;
  bool crSoli_ = false;
};

}  // namespace parvik
