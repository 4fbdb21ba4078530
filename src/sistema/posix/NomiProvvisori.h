// The names of the files that stand beside a file while it is saved (docs/saving.md).
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "sistema/posix/Scrivente.h"

namespace parvik {

enum class Provvisorio {
  Nuovo,   // what is to become the file's content, or the copy below
  Vecchio  // a copy of the file's old content, while the file is written over
};

/// ".NAME.WRITER.nuovo~" or ".NAME.WRITER.vecchio~", in the folder of `file`. Two writers never have the
/// same.
std::filesystem::path NomeProvvisorio(const std::filesystem::path& file, const Scrivente& chi,
                                      Provvisorio genere);

/// Reads those names back.
class NomiProvvisori {
 public:
  explicit NomiProvvisori(const std::filesystem::path& file);

  struct Letto {
    Provvisorio Genere = Provvisorio::Nuovo;
    std::optional<Scrivente> Chi;  // nullopt: a name without a writer, as earlier versions made them
  };
  /// nullopt when a name in the folder of the file is none of that file's.
  std::optional<Letto> Leggi(std::string_view nome) const;

 private:
  std::string inizio_;
  std::string nome_;
};

}  // namespace parvik
