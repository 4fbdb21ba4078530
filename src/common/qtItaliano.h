// The program speaks Italian whatever the system does.
#pragma once

class QApplication;

namespace parvik {

/// The toolkit's own texts (standard buttons, file dialogs) in Italian, for as long as the application lives.
/// False when the translation is not installed.
bool ParlaItaliano(QApplication& programma);

}  // namespace parvik
