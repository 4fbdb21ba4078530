// What was done to a document's texts, in steps that can be undone and redone (docs/document.md).
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/Sezione.h"
#include "template/Modifica.h"

namespace parvik {

/// Why a text changes: what belongs to the same step as what came before, and what the step is called.
enum class GenereModifica {
  Battuta,     // a typed character: goes on with those right in front of it
  Cancellata,  // a character taken away by a key: goes on with its neighbours
  // Steps of their own.
  Intera,  // without a name
  ACapo,
  Codice,
  Incollata,
  Eliminata,
  Spostata,
  Larghezza,
  Sostituita,
  Corretta,
};

/// What a person is told of it, UTF-8: "inserimento codice"; "" where there is nothing to tell.
std::string_view NomeModifica(GenereModifica genere);

/// A change of one of the texts.
struct ModificaSezione {
  Sezione Dove = Sezione::Testata;
  Modifica Quale;
};

/// A change, and what it took away.
struct Variazione {
  Sezione Dove = Sezione::Testata;
  std::size_t Posto = 0;
  std::string Tolti;
  std::string Messi;

  ModificaSezione Avanti() const { return {Dove, {.Dove = Posto, .Tolti = Tolti.size(), .Messi = Messi}}; }
  ModificaSezione Indietro() const { return {Dove, {.Dove = Posto, .Tolti = Messi.size(), .Messi = Tolti}}; }
};

/// Changes that are undone at once.
struct Passo {
  std::vector<Variazione> Variazioni;
  GenereModifica Genere = GenereModifica::Intera;
  Cursore Prima;  // in the section of the first change, before it

  /// What does it again, and what takes it back, in the order in which it must be done.
  std::vector<ModificaSezione> Avanti() const;
  std::vector<ModificaSezione> Indietro() const;
};

class RegistroModifiche {
 public:
  /// Notes a change that is made now, where `prima` was the caret. What had been undone cannot be redone any
  /// more. Without memory for it nothing changes here.
  void Annota(Variazione variazione, GenereModifica genere, Cursore prima);

  /// What follows is one step, up to the matching Chiudi(). Pairs may lie in each other.
  void Apri();
  void Chiudi();
  /// What follows does not go on with what was typed so far.
  void Interrompi() { interrotto_ = true; }

  bool PuoAnnullare() const { return fatti_ > 0; }
  bool PuoRipetere() const { return fatti_ < passi_.size(); }
  /// What the next one is to either side, also while it is being made; Intera where there is none.
  GenereModifica GenereDaAnnullare() const {
    return PuoAnnullare() ? passi_[fatti_ - 1].Genere : GenereModifica::Intera;
  }
  GenereModifica GenereDaRipetere() const {
    return PuoRipetere() ? passi_[fatti_].Genere : GenereModifica::Intera;
  }
  /// The step to be undone or redone now; there must be one. Valid until the next change.
  const Passo& DaAnnullare() const;
  const Passo& DaRipetere() const;
  /// It has been.
  void Annulla();
  void Ripeti();

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
