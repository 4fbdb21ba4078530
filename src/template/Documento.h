// The state of the template being edited, next to the texts of its sections.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "template/ImmagineModello.h"

namespace parvik {

/// What a file held when this document was last read from it or written to it.
struct Provenienza {
  std::filesystem::path File;
  std::string Byte;  // all of them: no digest could mistake another file for this one
};

struct Documento {
  std::filesystem::path NomeFile;  // empty while none was opened or saved
  bool Modificato = false;         // since the last open, save or choice of a document type
  ImpostazioniCorpo Corpo;
  /// nullopt while the document comes from no file: a new one, or one that could not be read whole.
  std::optional<Provenienza> Origine;
};

}  // namespace parvik
