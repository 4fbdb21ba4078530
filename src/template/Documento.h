// The state of the template being edited, next to the texts of its sections.
#pragma once

#include <filesystem>

#include "template/ImmagineModello.h"

namespace parvik {

struct Documento {
  std::filesystem::path NomeFile;  // empty while none was opened or saved
  bool Modificato = false;         // since the last open, save or choice of a document type
  ImpostazioniCorpo Corpo;
};

}  // namespace parvik
