// The pages of the guide: what to begin with, the parts of the window, and all keys.
#pragma once

#include <QString>
#include <QWidget>

#include "app/qtMenu.h"

namespace parvik {

enum class PaginaGuida { PrimiPassi, Sezioni, Anteprima, Trova, Campi, Problemi, Tasti };

/// The one about what has the focus.
PaginaGuida PaginaPer(const QWidget* fuoco);

/// The anchor of a page in the guide's text.
QString AncoraDi(PaginaGuida pagina);

/// All pages, as rich text. The keys are those of the menus' entries.
QString TestoGuida(const qtMenu& menu);

}  // namespace parvik
