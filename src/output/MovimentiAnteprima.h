// Where the caret of a preview can stand and where it moves to; what is a word.
#pragma once

#include <cstddef>

#include "output/TestoAnteprima.h"
#include "template/TastiSezione.h"

namespace parvik {

/// The places of the caret are bytes from 0 up to the text's size, without those between a CR and its LF.
/// All but Aggancia take such a place. Only the line of the place is looked at, and of it only what is
/// passed.

/// The place nearest to any `byte`: not past the end, and in front of a line end rather than in it.
std::size_t Aggancia(const TestoAnteprima& testo, std::size_t byte);

/// One character on; a line end is one. The ends of the text stay where they are.
std::size_t CarattereDopo(const TestoAnteprima& testo, std::size_t byte);
std::size_t CarattereDavanti(const TestoAnteprima& testo, std::size_t byte);

/// To the start of the next word, or back to the start of this or the one in front. A run of punctuation is a
/// word too. Stops at each line's start and end.
std::size_t ParolaDopo(const TestoAnteprima& testo, std::size_t byte);
std::size_t ParolaDavanti(const TestoAnteprima& testo, std::size_t byte);

/// The word, or the run of spaces or punctuation, whose character begins at `byte`; at a line's end the one
/// in front. Empty on an empty line.
Selezione ParolaA(const TestoAnteprima& testo, std::size_t byte);

/// The line of `byte`, with its line end.
Selezione RigaA(const TestoAnteprima& testo, std::size_t byte);

/// Places counted in characters from the text's start, a line end being one.
std::size_t CarattereDi(const TestoAnteprima& testo, std::size_t byte);
/// Past the end: the text's size.
std::size_t ByteDi(const TestoAnteprima& testo, std::size_t carattere);

}  // namespace parvik
