// The key rules of the section editor: what a key does where codes stand (docs/key-rules.md). The editor asks
// here and obeys.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "tokens/Codice.h"

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

/// 0-based bytes. Without a selection `Lunghezza` is 0, and `Inizio` is the caret.
struct Selezione {
  std::size_t Inizio = 0;
  std::size_t Lunghezza = 0;

  std::size_t Fine() const { return Inizio + Lunghezza; }
  bool operator==(const Selezione&) const = default;
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

/// What `tasto` does in `testo`. Line ends need no particular form. The caller may give any part of a section
/// that reaches over a delimiter in front of the last character before the selection, and over a closing
/// delimiter behind the selection: nothing further away matters.
EsitoTasto PremiTasto(std::string_view testo, Selezione selezione, TastoSezione tasto,
                      Pressione pressione = Pressione::Prima);

/// Whether a typed character is discarded: a full stop comes into a section only by pasting or in a code.
constexpr bool CarattereScartato(char32_t carattere) {
  return carattere == U'.';
}

/// The code that the caret stands in: behind its opening delimiter, and before or in front of its closing
/// one.
std::optional<PosizioneCodice> CodiceIntorno(std::string_view testo, std::size_t cursore);

/// The codes that the caret touches, in their order: the one that it stands in, or those right in front of it
/// and right behind it.
std::vector<PosizioneCodice> CodiciAlCursore(std::string_view testo, std::size_t cursore);

/// The nearest place from `cursore` on that lies in no code: what comes by the mouse goes there.
std::size_t FuoriDaiCodici(std::string_view testo, std::size_t cursore);

/// The code that covers the character at byte `posizione`, its delimiters included.
std::optional<PosizioneCodice> CodiceSotto(std::string_view testo, std::size_t posizione);

}  // namespace parvik
