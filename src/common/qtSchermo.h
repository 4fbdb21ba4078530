// What of the screen a window may take.
#pragma once

#include <QSize>
#include <QWidget>

namespace parvik {

/// `voluta`, or as much of it as leaves `finestra` with its frame inside the free part of its screen. For a
/// window that has not been shown: what its frame takes is what the style reckons with.
QSize EntroLoSchermo(const QWidget& finestra, QSize voluta);

}  // namespace parvik
