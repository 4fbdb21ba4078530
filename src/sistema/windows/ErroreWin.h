// What a failed call of the system means.
#pragma once

#include <windows.h>

#include "common/EsitoScrittura.h"

namespace parvik {

/// The system's number of why a step failed.
template <class T>
using EsitoSistema = Esito<T, DWORD>;

/// The run-time error that it stands for. A file that somebody else keeps for himself is
/// AutorizzazioneNegata.
NumeroErrore DaErroreWin(DWORD numero);

/// Whether it says that somebody else is at the file.
bool InUso(DWORD numero);

/// What it means to whoever wanted to write: a file that is in use is told with a note.
ErroreScrittura ErroreDaWin(DWORD numero);

/// What a step that failed means to the user.
EsitoPasso PerUtente(const EsitoSistema<void>& passo);

}  // namespace parvik
