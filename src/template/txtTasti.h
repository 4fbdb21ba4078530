// Which key means what in a section's editor.
#pragma once

#include <cstddef>
#include <optional>

#include "template/TastiSezione.h"
#include "template/TestoSezione.h"

class QKeyEvent;

namespace parvik {

/// A step of the caret by a word.
struct PassoDiParola {
  std::size_t (*Destinazione)(const TestoSezione& testo, std::size_t cursore);
  bool Seleziona = false;

  /// Where the caret is after it.
  Cursore Da(const TestoSezione& testo, Cursore cursore) const;
};

/// The key that the rules know, with Shift, Ctrl or Alt or without.
std::optional<TastoSezione> TastoDi(const QKeyEvent& evento);
std::optional<PassoDiParola> PassoDi(const QKeyEvent& evento);
Pressione PressioneDi(const QKeyEvent& evento);

/// Keys that only make another key of the next one.
bool EUnModificatore(const QKeyEvent& evento);
bool FinisceRiga(const QKeyEvent& evento);
/// Whether a key types its text. Ctrl and Alt together may be a third level of the keyboard.
bool ScriveTesto(const QKeyEvent& evento);
bool CancellaFinoAFineRiga(const QKeyEvent& evento);
/// The keys that are left to the toolkit: they move, select and copy, and paste, which asks the rules later.
bool EDelToolkit(const QKeyEvent& evento);
/// The keys that are left to the window: the document undoes.
bool EDellaFinestra(const QKeyEvent& evento);

}  // namespace parvik
