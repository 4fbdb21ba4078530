// A new file beside the old one, which takes its name in one step.
#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

#include "common/OperazioniFile.h"
#include "common/StradaScrittura.h"

namespace parvik {

/// The name of the provisional file of a destination: one fixed name, so that what a killed program left
/// behind is replaced by the next save.
std::filesystem::path NomeProvvisorio(const std::filesystem::path& destinazione);

class ScritturaAccanto final : public ScritturaSicura::Strada {
 public:
  struct Posto {
    std::filesystem::path Destinazione;  // whatever stands there is replaced: no links are followed
    std::filesystem::path Provvisorio;   // in the same folder
    /// Whose owner, rights and extended attributes the file gets. Empty: those of any new file.
    std::filesystem::path Originale = {};
  };

  /// Makes the provisional file. EBUSY when a program at work has one there.
  static EsitoSistema<std::unique_ptr<ScritturaAccanto>> Apri(Posto posto);

  ScritturaAccanto(Posto posto, Descrittore file, Descrittore lucchetto);
  ~ScritturaAccanto() override;

  Esito<void> Scrivi(std::string_view byte) override;
  Esito<void> Conferma() override;

 private:
  Posto posto_;
  Descrittore file_;
  Descrittore lucchetto_;  // keeps the lock when file_ is closed
  bool confermata_ = false;
};

}  // namespace parvik
