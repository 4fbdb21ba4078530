// The clipboards that a selection of the preview pane goes to.
#pragma once

#include <QClipboard>

#include "output/SelezioneAnteprima.h"

namespace parvik {

/// Puts the selected text there, with line feeds for line ends. Without a selection, or without that
/// clipboard, nothing happens. Nothing is converted before somebody pastes; the clipboard keeps the text.
void MettiNegliAppunti(const SelezioneAnteprima& scelta, QClipboard::Mode quali);

}  // namespace parvik
