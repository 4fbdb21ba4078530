// The editor's command line (docs/opening.md).
#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "common/Esito.h"

namespace parvik {

enum class Richiesta { Editore, Aiuto, Versione };

struct Argomenti {
  Richiesta Cosa = Richiesta::Editore;
  std::optional<std::filesystem::path> Velkor =
      {};  // the host directory, in place of the one that is looked for
  std::optional<std::filesystem::path> Esempio = {};  // where the example installation is to be copied to
  std::optional<int> Tipo = {};                       // the type's number as the catalogue writes it
  std::optional<std::filesystem::path> File = {};     // the template to open

  bool operator==(const Argomenti&) const = default;
};

/// Reads the arguments that follow the program's name. A request for help or version counts whatever stands
/// beside it. The toolkit's own options (-platform, -style, -session ..., each with its value) are passed
/// over. The error is one line that says what is wrong, UTF-8, without the program's name.
Esito<Argomenti, std::string> LeggiArgomenti(std::span<const char* const> argomenti);

/// What --help shows. UTF-8.
extern const std::string_view AiutoEditore;

}  // namespace parvik
