// The field catalogue CAMPI.TXT: which document types there are and what each section of each offers
// (docs/catalogue-file.md).
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/RigaCatalogo.h"
#include "catalogue/TipoDoc.h"
#include "common/Esito.h"
#include "common/Sezione.h"

namespace parvik {

/// Why the head of a catalogue could not be read: the error, and the 1-based line at which reading stopped.
struct ErroreCatalogo {
  NumeroErrore Numero;
  std::size_t Riga;
};

/// The records of one section, as far as they could be read.
template <class Voce>
struct Tabella {
  std::vector<Voce> Voci;
  /// ArgumentoNonValido: the catalogue is of another version. Any other: the loading stopped there.
  std::optional<NumeroErrore> Errore;
  /// The 1-based line of the file that the error is about; the one after the last where lines are missing.
  std::size_t RigaErrore = 0;
};

/// What is wrong with the records of a section.
struct ErroreSezione {
  Sezione Dove;
  NumeroErrore Numero;
  std::size_t Riga;

  bool operator==(const ErroreSezione&) const = default;
};

class Catalogo {
 public:
  /// Reads a whole catalogue. The head is parsed now; the body's lines are kept as they are and parsed when a
  /// section is asked for.
  static Esito<Catalogo, ErroreCatalogo> CaricaCampi(std::string contenuto);

  const std::array<TipoDoc, MaxTipiDoc>& TipiDoc() const { return tipiDoc_; }

  /// The document types that a list offers: slots 0 and on, up to the first empty one, at most 22.
  std::vector<const TipoDoc*> TipiElencati() const;

  /// The variables of a section: empty for a section without entries.
  Tabella<Variabile> LeggiVariabili(const TipoDoc& tipo, Sezione sezione) const;
  /// The flags of a section, without the page conditions: empty for a section without entries.
  Tabella<Flag> LeggiFlags(const TipoDoc& tipo, Sezione sezione) const;

  /// The table `Variabili`: the section's records, or one default record when it has none; then an empty
  /// slot.
  Tabella<Variabile> CaricaVariabili(const TipoDoc& tipo, Sezione sezione) const;
  /// The table `Flags`: the section's records, or one empty record when it has none; then the page
  /// conditions, then an empty slot. After an error the table ends with what was read.
  Tabella<Flag> CaricaFlag(const TipoDoc& tipo, Sezione sezione) const;

 private:
  Catalogo() = default;
  std::optional<ErroreCatalogo> LeggiTestata(class LettoreRighe& righe);
  void LeggiCorpo(class LettoreRighe& righe);
  std::optional<std::size_t> TrovaRiga(std::int16_t numero) const;
  std::size_t RigaNelFile(std::size_t rigaCorpo) const;
  template <class Voce>
  Tabella<Voce> CaricaTabella(Intervallo intervallo,
                              Esito<Voce, ErroreRiga> (*leggi)(std::string_view)) const;

  std::unique_ptr<const std::string> contenuto_;  // what righeCorpo_ looks at; its address never changes
  std::array<TipoDoc, MaxTipiDoc> tipiDoc_;
  std::vector<std::string_view> righeCorpo_;  // the hidden list: trimmed, without comments, in file order
};

/// The conditions on the page that every section offers after its own flags: 97, 98 and 99.
const std::array<Flag, 3>& CondPagina();

}  // namespace parvik
