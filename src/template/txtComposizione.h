// What an input method composes in a section's editor.
#pragma once

#include "template/TestoSezione.h"

class QInputMethodEvent;
class QPlainTextEdit;

namespace parvik {

class txtSpecchio;

/// Whether something composed shows, not yet a part of the text.
bool Compone(const QPlainTextEdit& editor);

/// What is to go before an event is shown: the selection when something begins to be composed in its place,
/// or else what the input method itself replaces. The toolkit would take both away by itself. What is
/// finished at once is typed, over the selection: that stays here.
Selezione SostituitaDa(const QInputMethodEvent& evento, const QPlainTextEdit& editor,
                       const txtSpecchio& specchio);

}  // namespace parvik
