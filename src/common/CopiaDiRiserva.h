// The old content of a file while the file itself is written over.
#pragma once

#include <filesystem>
#include <memory>
#include <string_view>
#include <utility>

#include "common/OperazioniFile.h"
#include "common/ScritturaAccanto.h"

namespace parvik {

/// Beside the file or, where its folder takes no new file, in a folder of the user's own in the temporary
/// folder. A copy that exists is whole: it takes its name when its bytes are on the disk.
class CopiaDiRiserva {
 public:
  /// Makes the copy of `contenuto`, with the rights of `originale`. On failure there is none.
  static Esito<CopiaDiRiserva> Crea(const std::filesystem::path& originale, std::string_view contenuto);

  /// Takes the copy away. One that cannot be taken away now is by the next save.
  void Togli();

 private:
  struct Posto {
    std::filesystem::path Nome;  // the file's own, or the one that stands for it in the folder below
    std::filesystem::path Temporanea = {};  // empty for a copy beside the file
  };
  explicit CopiaDiRiserva(Posto posto) : posto_(std::move(posto)) {}
  static EsitoSistema<Posto> PostoTemporaneo(const std::filesystem::path& originale);
  EsitoSistema<void> Apri(const std::filesystem::path& originale);
  void TogliCartella() const;

  Posto posto_;
  std::unique_ptr<ScritturaAccanto> strada_;  // keeps the copy locked: nobody takes it for an abandoned one
};

/// What a killed program left of the kind beside `file` may be the only whole old content that there is: it
/// gets the name of a previous content (CopiaPrecedente.h), unless its bytes are those of the file. A failure
/// leaves it where it is; EBUSY when it is in use.
EsitoSistema<void> ConservaCopiaInterrotta(const std::filesystem::path& file);

}  // namespace parvik
