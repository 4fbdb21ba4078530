// What a failed system call's errno means.
#pragma once

#include "common/EsitoScrittura.h"

namespace parvik {

/// The errno of a step that failed.
template <class T>
using EsitoSistema = Esito<T, int>;

/// The run-time error that it stands for.
/// ENOENT gives FileNonTrovato; a writer that was making a new file knows better (PercorsoNonTrovato).
NumeroErrore DaErrno(int numero);

/// What it means to whoever wanted to write. EBUSY says that the file is in use.
ErroreScrittura ErroreDaErrno(int numero);

/// What a step that failed means to the user.
EsitoPasso PerUtente(const EsitoSistema<void>& passo);

}  // namespace parvik
