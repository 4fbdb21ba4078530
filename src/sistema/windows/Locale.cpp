#include "sistema/Locale.h"

namespace parvik {

/// The system's dialogs speak the user's language by themselves, and no text of the C library is shown.
void PreparaLocale() {}

}  // namespace parvik
