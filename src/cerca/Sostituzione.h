// Puts something else in the place of what was found (docs/ricerca.md).
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "cerca/CambioCodice.h"
#include "cerca/Criterio.h"
#include "cerca/Espressione.h"
#include "cerca/SensoCodice.h"
#include "common/Esito.h"
#include "template/Modifica.h"

namespace parvik {

/// What is done with what was found.
class Sostituto {
 public:
  /// `scritto` is Windows-1252: a text, in which \0 to \9 are an expression's match and its groups; of a
  /// search for codes what is to be other in them, or nothing: then they go. The error says why it cannot be
  /// used, UTF-8.
  static Esito<Sostituto, std::string> Leggi(const Criterio& criterio, std::string_view scritto);

  const std::vector<CambioCodice>& Cambi() const { return cambi_; }
  bool DiCodici() const { return diCodici_; }
  /// The text that comes in the place of a match; of `riga` the expression has found the groups.
  std::string Testo(std::string_view riga, const std::vector<Selezione>& gruppi) const;
  bool ConGruppi() const { return conGruppi_; }
  const std::string& Scritto() const { return scritto_; }

 private:
  Sostituto() = default;

  std::string scritto_;
  std::vector<CambioCodice> cambi_;
  bool diCodici_ = false;
  bool conGruppi_ = false;
};

struct Sostituzioni {
  std::vector<Modifica> Fatte;  // in their order, apart; each in the text before any of them
  std::size_t Tagliate = 0;     // not made: they would cut a code
  std::size_t Inadatte = 0;     // not made: codes that cannot be changed so
};

/// Changes that put `sostituto` in the place of `trovate`, places that Cercatore has found in `testo`.
/// `espressione` is the criterion's, nullptr for none. Linear.
Sostituzioni Sostituisci(std::string_view testo, const std::vector<Selezione>& trovate,
                         const Sostituto& sostituto, Espressione* espressione, const VociDiSezione& voci);

/// The same changes as one, from the first to the last; there must be one.
Modifica InUna(std::string_view testo, const std::vector<Modifica>& modifiche);

}  // namespace parvik
