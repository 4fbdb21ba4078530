// The old content of a file while the file itself is written over.
#pragma once

#include <filesystem>
#include <memory>
#include <string_view>
#include <utility>

#include "sistema/posix/FileProvvisorio.h"
#include "sistema/posix/OperazioniFile.h"

namespace parvik {

/// Beside the file or, where its folder takes no new file, in a folder of the user's own in the temporary
/// folder. A copy that exists is whole: it takes its name when its bytes are on the disk.
class CopiaDiRiserva {
 public:
  /// Makes the copy of `contenuto`, with the rights of `originale`. On failure there is none. EBUSY when
  /// somebody else is at work on the file.
  static EsitoSistema<CopiaDiRiserva> Crea(const std::filesystem::path& originale,
                                           std::string_view contenuto);

  /// Where it lies.
  std::filesystem::path Nome() const { return file_->NomeVecchio(); }
  /// Where the copy of an earlier, interrupted save was kept, if that is not beside the file; else "".
  const std::filesystem::path& CopiaTenuta() const { return file_->CopiaTenuta(); }

  /// Takes the copy away. One that cannot be taken away now is by the next save.
  void Togli();

 private:
  explicit CopiaDiRiserva(PostoProvvisorio posto) : posto_(std::move(posto)) {}
  static EsitoSistema<CopiaDiRiserva> CreaIn(PostoProvvisorio posto, std::string_view contenuto);
  static EsitoSistema<CopiaDiRiserva> CreaAltrove(const std::filesystem::path& originale,
                                                  std::string_view contenuto);
  EsitoSistema<void> Scrivi(std::string_view contenuto);

  PostoProvvisorio posto_;
  std::unique_ptr<FileProvvisorio> file_;  // keeps the copy locked: nobody takes it for an abandoned one
};

}  // namespace parvik
