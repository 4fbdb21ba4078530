// A look at the template's file: whether it is still what the document came from (docs/notizie.md).
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "sistema/IdentitaFile.h"

namespace parvik {

enum class FileTrovato {
  Suo,      // it holds what the document came from
  Altro,    // something else
  Sparito,  // it is not there
  Ignoto,   // that could not be found out
};

/// What was found.
struct SguardoFile {
  FileTrovato Trovato = FileTrovato::Ignoto;
  /// What the file was compared with.
  std::shared_ptr<const std::string> Origine;
  /// nullopt when it could not be looked at.
  std::optional<IdentitaFile> Identita = {};
  std::uint64_t Contenuto = 0;  // a digest of it, when it is another one
};

/// What is to be looked at. A value: the work is done on a thread of its own, which may hang.
struct LavoroSguardo {
  std::filesystem::path File;
  std::shared_ptr<const std::string> Origine;
  /// The look before: a file that was not touched since is not read again.
  std::optional<SguardoFile> Prima = {};

  SguardoFile Esegui() const;
};

}  // namespace parvik
