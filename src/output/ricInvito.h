// What an empty preview pane says: how it is filled. It is drawn, and no text of the pane's.
#pragma once

#include <QPainter>
#include <QPalette>
#include <QRect>
#include <QString>

namespace parvik {

QString TestoInvito();

/// In the middle of the pane, greyed.
void DisegnaInvito(QPainter& pittore, const QRect& pannello, const QPalette& tavolozza);

}  // namespace parvik
