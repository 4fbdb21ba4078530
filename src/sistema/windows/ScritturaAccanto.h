// A new file beside the old one, which takes its name.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>

#include "sistema/windows/OperazioniFile.h"
#include "sistema/windows/SegnoDiLavoro.h"
#include "sistema/windows/StradaScrittura.h"

namespace parvik {

class ScritturaAccanto final : public ScritturaSicura::Strada {
 public:
  struct Meta {
    std::filesystem::path Destinazione;  // whatever stands there is replaced: no links are followed
    /// Whose rights the file gets. Empty: those of any new file.
    std::filesystem::path Originale = {};
  };

  /// Makes the provisional file, which goes away with the program until Conferma. ERROR_SHARING_VIOLATION
  /// when somebody else is at work on the destination.
  static EsitoStrada Apri(Meta meta);

  EsitoPasso Scrivi(std::string_view byte) override;
  /// ERROR_SHARING_VIOLATION when somebody else replaced or changed the destination since Apri, or has it
  /// open.
  EsitoScrittura Conferma() override;

 private:
  using Aspetto = std::optional<IdentitaFile>;  // of the destination; nullopt: nothing stands there
  static EsitoSistema<Aspetto> Guarda(const std::filesystem::path& destinazione);
  ScritturaAccanto(Meta meta, const Aspetto& prima, SegnoDiLavoro segno)
      : meta_(std::move(meta)), prima_(prima), segno_(std::move(segno)) {}
  EsitoSistema<void> Crea();
  EsitoSistema<void> Completa();
  EsitoSistema<void> PrendiIlNome() const;
  EsitoSistema<void> Sostituisci() const;

  Meta meta_;
  Aspetto prima_;
  SegnoDiLavoro segno_;
  Maniglia file_;
};

}  // namespace parvik
