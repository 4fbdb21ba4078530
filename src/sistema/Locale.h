// The languages that the process speaks.
#pragma once

namespace parvik {

/// The user's own, but Italian dates, numbers and sizes. Before there is a second thread, and before the
/// toolkit's application is made: its file dialogs follow the environment alone.
void PreparaLocale();

}  // namespace parvik
