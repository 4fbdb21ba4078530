// Words in a section, as the keys that move by words and the double click take them. A code is one word, and
// so is each of a row of letters and digits, of blanks, and of other characters.
#pragma once

#include <cstddef>

#include "template/TestoSezione.h"

namespace parvik {

/// Where the caret goes by a word: behind the word that it stands in or in front of, and the blanks behind
/// that; from the end of a line to the start of the next.
std::size_t ParolaSeguente(const TestoSezione& testo, std::size_t cursore);

/// The way back: in front of the nearest word; from the start of a line to the end of the one before.
std::size_t ParolaPrecedente(const TestoSezione& testo, std::size_t cursore);

/// The word of the character at `posto`. At the end of a line the one in front of it, but a code: then
/// nothing, at `posto`.
Selezione ParolaSotto(const TestoSezione& testo, std::size_t posto);

}  // namespace parvik
