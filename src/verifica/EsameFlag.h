// What the flags of a section govern (docs/verifica.md).
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "template/Modifica.h"
#include "verifica/EsameCodice.h"
#include "verifica/Rilievo.h"

namespace parvik {

/// Told of the codes of a section in their order; adds to the findings what there is to say of the flags
/// among them. Of a flag that is incomplete or unknown there is nothing; an unknown one is none at all.
class EsameFlag {
 public:
  /// All must outlive this.
  EsameFlag(Sezione sezione, std::string_view testo, std::vector<Rilievo>& rilievi)
      : sezione_(sezione), testo_(testo), rilievi_(rilievi) {}

  void Flag(Selezione dove, const EsitoCodice& esito);
  /// Any other code; nullopt of one that is broken.
  void Codice(Selezione dove, std::optional<TipoCodice> tipo) {
    if (!inAttesa_.empty()) Governato(dove, tipo);
  }
  /// The section ends.
  void Fine();

 private:
  void Aggiungi(Regola regola, Selezione dove, std::string_view perche);
  void Governato(Selezione dove, std::optional<TipoCodice> tipo);
  void Governa(Selezione flag, Selezione codice, std::optional<TipoCodice> tipo);

  Sezione sezione_;
  std::string_view testo_;
  std::vector<Rilievo>& rilievi_;
  std::vector<Selezione> inAttesa_;   // flags that there may be something to say of, since the last code
  std::optional<Selezione> governa_;  // the last of all flags, if it is one of those
};

}  // namespace parvik
