// The system's own errors, as the user knows them.
#pragma once

#include <system_error>

#include "common/ErroreRuntime.h"

namespace parvik {

/// The run-time error that a failed operation of the system, or of std::filesystem, stands for.
NumeroErrore DaErroreSistema(const std::error_code& errore);

}  // namespace parvik
