// A picture of a window, small enough for a page.
#pragma once

#include <QDir>
#include <QImage>
#include <QString>
#include <QWidget>

namespace parvik::prova {

/// With at most 256 colours, each pixel the one of them that is nearest: no dots, whatever the fonts' edges
/// are.
QImage InPochiColori(const QImage& immagine);

/// Waits until nothing is left to draw, and writes the widget as `cartella`/`nome`.png.
void Ritrai(QWidget& widget, const QDir& cartella, const QString& nome);

}  // namespace parvik::prova
