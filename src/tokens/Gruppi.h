// What a code says, group by group: the one grammar of the contents (docs/code-grammar.md). The readers of
// the kinds, and with them dialogs and tooltips, stand on it. The run reads by simpler rules of its own:
// tokens/CodiceCorsa.h.
//
// Each kind's function takes any content, whatever its first letter, and never fails: what is missing has its
// group empty, or none. All groups look at the content.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <variant>

namespace parvik {

/// A part of a content that says one thing.
struct Gruppo {
  std::size_t Inizio = 0;  // 0-based byte of the content
  std::string_view Testo;

  std::size_t Fine() const { return Inizio + Testo.size(); }
  bool operator==(const Gruppo&) const = default;
};

/// The number that a group says; 0 when it says none, or one beyond 16 bits.
std::int16_t NumeroDi(const Gruppo& gruppo);
/// The same of a width or of a line count: a negative one is none.
std::int16_t QuantitaDi(const Gruppo& gruppo);

/// How numbers are written: the group behind the second separator.
struct GruppoNumerico {
  Gruppo Tutto;
  bool Migliaia = false;
  bool ZeroVisibile = false;
  bool SegnoADestra = false;
  std::optional<Gruppo> Decimali;  // one character, any
};

struct GruppiVariabile {
  Gruppo Numero;
  std::optional<Gruppo> Righe;
  Gruppo Larghezza;                        // without its letter
  std::optional<Gruppo> Allineamento;      // the letter, behind the width or in front of it
  std::optional<Gruppo> Riempimento;       // one character
  std::optional<GruppoNumerico> Numerico;  // whatever the type is: that is the catalogue's word
  std::optional<Gruppo> Euro;              // one character
};

struct GruppiCostante {
  Gruppo Testo;  // cut out by length: it may hold quotes
};

struct GruppiFlag {
  Gruppo Numero;
  std::optional<Gruppo> Interruttore;  // one character, no digit
};

struct GruppiStile {
  Gruppo Parola;
};

struct GruppiLingua {
  Gruppo Indice;
  std::optional<Gruppo> Larghezza;
};

struct GruppiPagina {
  Gruppo Numero;
};

GruppiVariabile GruppiDiVariabile(std::string_view contenuto);
GruppiCostante GruppiDiCostante(std::string_view contenuto);
GruppiFlag GruppiDiFlag(std::string_view contenuto);
GruppiStile GruppiDiStile(std::string_view contenuto);
GruppiLingua GruppiDiLingua(std::string_view contenuto);
GruppiPagina GruppiDiPagina(std::string_view contenuto);

/// The groups of a code of unknown kind are none.
using GruppiCodice = std::variant<std::monostate, GruppiVariabile, GruppiCostante, GruppiFlag, GruppiStile,
                                  GruppiLingua, GruppiPagina>;

/// The groups of a content of the kind that Riconosci tells.
GruppiCodice Gruppi(std::string_view contenuto);

}  // namespace parvik
