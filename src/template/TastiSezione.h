// The key rules of the section editor: what a key does where codes stand (docs/key-rules.md). The editor asks
// here and obeys.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "template/Modifica.h"
#include "template/TestoSezione.h"

namespace parvik {

/// The keys that the rules know. Togli is whatever else takes a selection away: cutting it, dragging it off,
/// and each text that takes its place.
enum class TastoSezione { Backspace, Canc, F4, Spazio, Togli };

/// Where a key comes from.
enum class Pressione {
  Prima,      // a finger
  Ripetuta,   // the keyboard, while the key is held: opens no dialog, and takes no selection away
  Assistita,  // a program on somebody's behalf: opens no dialog
};

enum class AzioneTasto {
  Consueta,       // the key does what it does in any editor
  Nessuna,        // the key is discarded
  Allarga,        // only the selection changes
  ApriCodice,     // the selection changes to a whole code, and the code's dialog opens
  ApriVariabile,  // the dialog for a new variable opens
};

struct EsitoTasto {
  AzioneTasto Azione = AzioneTasto::Consueta;
  Selezione Nuova;  // for Allarga and ApriCodice

  bool operator==(const EsitoTasto&) const = default;
};

/// What `tasto` does where `selezione` is selected. Without a selection `Lunghezza` is 0, and `Inizio` is the
/// caret.
EsitoTasto PremiTasto(const TestoSezione& testo, Selezione selezione, TastoSezione tasto,
                      Pressione pressione = Pressione::Prima);

/// Whether a typed character is discarded: a full stop comes into a section only by pasting or in a code.
constexpr bool CarattereScartato(char32_t carattere) {
  return carattere == U'.';
}

// How the keys look a code up (docs/key-rules.md): by the delimiters nearest to the caret. It is the code
// that everybody else finds there, unless a « lies inside it: then the keys see the last one.

/// The code that the caret stands in: behind its opening delimiter, and before or in front of its closing
/// one.
std::optional<Selezione> CodiceIntorno(const TestoSezione& testo, std::size_t cursore);

/// The codes that the caret touches, in their order: the one that it stands in, or those right in front of it
/// and right behind it.
std::vector<Selezione> CodiciAlCursore(const TestoSezione& testo, std::size_t cursore);

/// The nearest place from `cursore` on that lies in no code: what comes by the mouse goes there.
std::size_t FuoriDaiCodici(const TestoSezione& testo, std::size_t cursore);

/// The code that covers the byte at `posto`, its delimiters included.
std::optional<Selezione> CodiceSotto(const TestoSezione& testo, std::size_t posto);

/// The selection with the whole of the codes that its two ends stand in.
Selezione ConCodiciInteri(const TestoSezione& testo, Selezione selezione);

}  // namespace parvik
