// Which page of the manual (docs/manuale) is about what, and what the guide knows without it: the first
// steps, the parts of the window, and all keys.
#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

#include "app/qtMenu.h"

namespace parvik {

inline constexpr const char* PaginaIndice = "indice";
/// The page that the list of keys is put into.
inline constexpr const char* PaginaTasti = "tasti";

/// The one about what has the focus: its way in the manual, without an ending. In the panel of problems it is
/// that of the chosen problem's rule, in a dialog that dialog's.
QString PaginaPer(const QWidget* fuoco);

/// All keys as a table: those of the menus' entries, then those that no menu shows.
QString TabellaTasti(const qtMenu& menu);

/// Each key by itself, as pages write it: "Ctrl+Maiusc+S".
QStringList NomiTasti(const qtMenu& menu);

/// What is shown where there is no manual, as rich text.
QString TestoSenzaManuale(const qtMenu& menu);

/// The anchor in that text of what a page of the manual is about.
QString AncoraDi(const QString& pagina);

}  // namespace parvik
