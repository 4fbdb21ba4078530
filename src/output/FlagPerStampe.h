// The print flags: for each flag of the document type, whether it counts as true in the output
// (docs/rendering.md).
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "catalogue/Catalogo.h"

namespace parvik {

/// Rows of a fixed layout of 69 bytes: "F", the number cut to two characters, two spaces, the description cut
/// or padded to 60, three spaces, and the state, "V" or "F". The row's number is what can be read back from
/// it: of a number of three digits, the first two.
class FlagPerStampe {
 public:
  /// The rows of the type's sections and of the page conditions, all false. A section whose lines could not
  /// all be read has the rows that were read before the error. The errors, in the order of the sections, as
  /// the catalogue gives them; after one that tells another version nothing more is loaded.
  std::vector<ErroreSezione> Carica(const Catalogo& catalogo, const TipoDoc& tipo);

  void Svuota();

  /// Windows-1252 bytes.
  const std::vector<std::string>& Righe() const { return righe_; }

  void SettaFlag(std::size_t riga, bool vero);
  void AzzeraTutti();

  /// Sets every row of that number; false when no row has it.
  bool SettaNumero(double numero, bool vero);

  /// What a reader of the row at 0-based `riga` finds.
  double Numero(std::size_t riga) const;
  bool Vero(std::size_t riga) const;

  /// Another number whenever a row may have become another one.
  std::uint64_t Cambiamenti() const { return cambiamenti_; }

 private:
  void Aggiungi(const Flag& flag);

  std::vector<std::string> righe_;
  std::uint64_t cambiamenti_ = 0;
};

}  // namespace parvik
