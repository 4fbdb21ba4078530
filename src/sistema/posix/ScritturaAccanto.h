// A new file beside the old one, which takes its name in one step.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>

#include "sistema/posix/FileProvvisorio.h"
#include "sistema/posix/OperazioniFile.h"
#include "sistema/posix/StradaScrittura.h"

namespace parvik {

class ScritturaAccanto final : public ScritturaSicura::Strada {
 public:
  struct Meta {
    std::filesystem::path Destinazione;  // whatever stands there is replaced: no links are followed
    /// Whose owner, rights and extended attributes the file gets. Empty: those of any new file.
    std::filesystem::path Originale = {};
  };

  /// Makes the provisional file. EBUSY when somebody else is at work on the destination.
  static EsitoSistema<std::unique_ptr<ScritturaAccanto>> Apri(Meta meta);

  EsitoPasso Scrivi(std::string_view byte) override;
  /// EBUSY when somebody else replaced or changed the destination since Apri.
  EsitoScrittura Conferma() override;

 private:
  using Aspetto = std::optional<struct stat>;  // of the destination; nullopt: nothing stands there
  static EsitoSistema<Aspetto> Guarda(const std::filesystem::path& destinazione);
  ScritturaAccanto(Meta meta, const Aspetto& prima) : meta_(std::move(meta)), prima_(prima) {}
  EsitoSistema<void> Crea();
  EsitoSistema<void> Sostituisci();

  Meta meta_;
  Aspetto prima_;
  std::unique_ptr<FileProvvisorio> file_;
  Diritti diritti_ = Diritti::Conservati;
};

}  // namespace parvik
