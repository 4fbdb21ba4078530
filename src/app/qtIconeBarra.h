// The pictures of the tool bar's buttons: the desktop's, or drawn ones where it has none.
#pragma once

#include <QIcon>

#include "editor/Menu.h"

namespace parvik {

/// Null for a command that has no picture. What is drawn follows palette and screen.
QIcon IconaDi(Comando comando);

}  // namespace parvik
