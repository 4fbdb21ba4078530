// What must hold before a function is called, checked in every build. To call it otherwise is a bug of the
// program, never of its input: the program says so and ends, before the bug does harm to a template.
#pragma once

namespace parvik {

/// Ends the program with the status of a fatal error, after a line on standard error.
[[noreturn]] void PrecondizioneMancata(const char* attesa, const char* file, int riga, const char* funzione);

}  // namespace parvik

/// `attesa` says in English what was expected. A macro, for it says where it stands.
#define PARVIK_ESIGE(condizione, attesa)                                    \
  do {                                                                      \
    if (!(condizione)) [[unlikely]]                                         \
      ::parvik::PrecondizioneMancata(attesa, __FILE__, __LINE__, __func__); \
  } while (false)
