// What must hold before a function is called, checked in every build. To call it otherwise is a bug of the
// program, never of its input: the program says so and ends, before the bug does harm to a template.
#pragma once

namespace parvik {

/// Ends the program with the status of a fatal error, after a line on standard error. What it was about to
/// save is not saved: the files stay as they are, and the provisional ones beside them go.
[[noreturn]] void PrecondizioneMancata(const char* attesa, const char* file, int riga, const char* funzione);

/// The same for an exception that nobody caught, which is a bug as well. To be given to std::set_terminate.
[[noreturn]] void EccezioneSfuggita();

/// Has something done before such an end, what was registered last first. Registered twice it counts once;
/// there is room for a few. It must not ask for what may be in a state that should not be: memory, locks.
void PrimaDiFinire(void (*fai)());

}  // namespace parvik

/// `attesa` says in English what was expected. A macro, for it says where it stands.
#define PARVIK_ESIGE(condizione, attesa)                                    \
  do {                                                                      \
    if (!(condizione)) [[unlikely]]                                         \
      ::parvik::PrecondizioneMancata(attesa, __FILE__, __LINE__, __func__); \
  } while (false)
