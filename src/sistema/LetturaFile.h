// Reading files whole.
#pragma once

#include <filesystem>
#include <functional>
#include <span>
#include <string>

#include "common/ByteFile.h"
#include "common/Esito.h"

namespace parvik {

/// All bytes of a regular file (links are followed). A folder, a pipe or a device gives AccessoPercorsoFile
/// at once: none of them can make the program wait.
Esito<std::string> LeggiFile(const std::filesystem::path& percorso);

/// The same for whoever works on the bytes while they are being read, and finds them still near: `letto` is
/// called after each piece with all that was read so far, and may change it. The memory may be another one
/// from call to call.
Esito<ByteFile> LeggiFile(const std::filesystem::path& percorso,
                          const std::function<void(std::span<char> finora)>& letto);

/// Whether a file may be read; the error is why not.
Esito<void> ProvaLettura(const std::filesystem::path& percorso);

}  // namespace parvik
