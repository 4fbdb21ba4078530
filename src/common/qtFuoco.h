// Where the keyboard's focus is, on what the style shows it by nothing.
#pragma once

#include <QAbstractScrollArea>

namespace parvik {

/// Frames it in the colour of selections while it has the focus.
void MostraFuoco(QAbstractScrollArea& vista);

}  // namespace parvik
