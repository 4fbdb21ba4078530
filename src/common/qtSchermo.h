// What of the screen a window may take.
#pragma once

#include <QPoint>
#include <QSize>
#include <QWidget>
#include <optional>

namespace parvik {

/// `voluta`, or as much of it as leaves `finestra` with its frame inside the free part of its screen. For a
/// window that has not been shown: what its frame takes is what the style reckons with.
QSize EntroLoSchermo(const QWidget& finestra, QSize voluta);

/// The place for a window's frame: `voluto`, or as near to it as leaves all of it in the free part of the
/// screen that `voluto` lies on. nullopt when it lies on none: who places windows may do it then.
std::optional<QPoint> PostoSuSchermo(const QWidget& finestra, QPoint voluto);

}  // namespace parvik
