// What was done to a document's texts, in steps that can be undone and redone (docs/document.md).
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "common/Sezione.h"
#include "template/Modifica.h"

namespace parvik {

/// Why a text changes: what belongs to the same step as what came before.
enum class GenereModifica {
  Battuta,     // a typed character: goes on with those right in front of it
  Cancellata,  // a character taken away by a key: goes on with its neighbours
  Intera,      // a step of its own: a paste, a line end, a code
};

/// A change, and what it took away.
struct Variazione {
  Sezione Dove = Sezione::Testata;
  std::size_t Posto = 0;
  std::string Tolti;
  std::string Messi;

  Modifica Avanti() const { return {.Dove = Posto, .Tolti = Tolti.size(), .Messi = Messi}; }
  Modifica Indietro() const { return {.Dove = Posto, .Tolti = Messi.size(), .Messi = Tolti}; }
};

/// Changes that are undone at once.
struct Passo {
  std::vector<Variazione> Variazioni;
  GenereModifica Genere = GenereModifica::Intera;
  Cursore Prima;  // in the section of the first change, before it
};

class RegistroModifiche {
 public:
  /// Notes a change that was made, where `prima` was the caret. What had been undone cannot be redone any
  /// more.
  void Annota(Variazione variazione, GenereModifica genere, Cursore prima);

  /// What follows is one step, up to the matching Chiudi(). Pairs may lie in each other.
  void Apri();
  void Chiudi();
  /// What follows does not go on with what was typed so far.
  void Interrompi() { interrotto_ = true; }

  bool PuoAnnullare() const { return fatti_ > 0; }
  bool PuoRipetere() const { return fatti_ < passi_.size(); }
  /// The step to be undone or redone now; there must be one. Valid until the next call.
  const Passo& Annulla();
  const Passo& Ripeti();

  void Dimentica();

 private:
  bool Prosegue(const Variazione& variazione, GenereModifica genere) const;

  std::vector<Passo> passi_;
  std::size_t fatti_ = 0;  // those before this one are done, the others undone
  int aperti_ = 0;         // pairs that wait for their Chiudi()
  bool iniziato_ = false;  // the step between them has its first change
  bool interrotto_ = true;
};

}  // namespace parvik
