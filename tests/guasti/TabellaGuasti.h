// What becomes of a save at every fault: the tables of docs/affidabilita.md.
#pragma once

#include <string>
#include <vector>

#include "guasti/SalvataggioGuasto.h"

namespace parvik::prova {

/// Rows of cells: number and name of the call, then for each of ENOSPC, EIO, EDQUOT, EACCES, EROFS and EINTR
/// what comes of it once and for ever ("once / ever" where they differ), then for SIGKILL. A cell is "new",
/// "old" or "old*" (in the copy: Disco), and the number of the error that was reported, or "(rights)" when it
/// was said that the file's are fewer than before.
/// Fails the test where nothing whole is left, where the message or the exit status does not fit, and where
/// a call was not hit.
std::vector<std::vector<std::string>> TabellaGuasti(Via via);

}  // namespace parvik::prova
