// Who is saving a file.
#pragma once

#include <filesystem>

#include "sistema/windows/OperazioniFile.h"

namespace parvik {

/// While it lives nobody else has one for the same file. It is a file beside it that can be opened once, and
/// the system takes it away when its program ends, however that comes about.
class SegnoDiLavoro {
 public:
  /// `posto`: the file, or a name in another folder that stands for it. ERROR_SHARING_VIOLATION while
  /// somebody else has the sign.
  static EsitoSistema<SegnoDiLavoro> Prendi(const std::filesystem::path& posto);

 private:
  explicit SegnoDiLavoro(Maniglia file) : file_(std::move(file)) {}

  Maniglia file_;
};

/// What the holder of the sign may write to: the file's new content, and its old one.
std::filesystem::path NomeNuovo(const std::filesystem::path& posto);
std::filesystem::path NomeVecchio(const std::filesystem::path& posto);

}  // namespace parvik
