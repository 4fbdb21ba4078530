// A run over one section, followed part by part without writing anything.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "output/TrovaVar.h"
#include "template/Modifica.h"
#include "tokens/Pezzi.h"

namespace parvik {

/// A part of a section that comes out as one.
struct VoceStampa {
  enum class Genere : std::uint8_t {
    Testo,   // literal text, whole line ends and all: its bytes come out as they are
    CrSolo,  // a line end without its LF: comes out whole
    Codice,  // with its delimiters
  };
  Genere Cosa = Genere::Testo;
  Selezione Origine;      // bytes of the section; none is empty
  Selezione Uscita;       // bytes that come of it; of a code maybe none
  bool Nascosto = false;  // a code that a false flag keeps from being shown
};

/// The parts in their order, up to the end of the section or a delimiter that opens and is never closed.
class LettoreVoci {
 public:
  /// From byte `da` of the section on, which lies outside its codes; `uscita` bytes came of what is in front.
  /// The text must stay as it is.
  LettoreVoci(std::string_view testo, std::size_t da, std::size_t uscita, const TrovaVar& trovaVar)
      : testo_(testo), base_(da), uscita_(uscita), lettore_(testo.substr(da)), trovaVar_(trovaVar) {}

  std::optional<VoceStampa> Prossima();

 private:
  VoceStampa Voce(VoceStampa::Genere cosa, std::size_t a, std::size_t usciti);
  VoceStampa Letterale(std::size_t fine);

  std::string_view testo_;
  std::size_t base_;  // where the reader's text begins
  std::size_t qui_ = base_;
  std::size_t uscita_;
  bool letto_ = false;  // the reader stands at a stretch, which goes on at qui_
  LettoreCorsa lettore_;
  TrovaVar trovaVar_;
};

}  // namespace parvik
