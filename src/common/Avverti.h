// What the user should know of a file that was written all the same.
#pragma once

#include "common/EsitoScrittura.h"
#include "common/Interlocutore.h"

namespace parvik {

/// Shows what there is to say (TestoAvviso); mostly nothing.
void Avverti(const Scritto& scritto, Interlocutore& interlocutore);

}  // namespace parvik
