// Work that may take long, done aside while the windows stay alive.
#pragma once

#include <QWidget>
#include <functional>
#include <stop_token>

#include "common/Esito.h"

namespace parvik {

/// Runs `lavoro` on a thread of its own and returns when it has ended. Keys and clicks wait meanwhile. After
/// half a second a box in front of `padre` says that the program is working and offers "Annulla", which asks
/// `lavoro` to stop. Fails with MemoriaEsaurita when `lavoro` ran out of memory; it may throw nothing else.
Esito<void> AttendiLavoro(QWidget* padre, const std::function<void(std::stop_token)>& lavoro);

}  // namespace parvik
