// Writing over a file, for files that no new one can take the place of.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

#include "sistema/windows/OperazioniFile.h"
#include "sistema/windows/StradaScrittura.h"

namespace parvik {

/// The bytes are kept until Conferma, which lays the old content aside (CopiaDiRiserva.h), beside the file or
/// in the user's temporary folder, and writes over it. When that fails the old content is put back; only
/// where that fails too does the copy stay. ERROR_SHARING_VIOLATION while somebody else is at the file.
class ScritturaSulPosto final : public ScritturaSicura::Strada {
 public:
  /// `destinazione` must be a regular file, not a link.
  explicit ScritturaSulPosto(std::filesystem::path destinazione) : destinazione_(std::move(destinazione)) {}

  EsitoPasso Scrivi(std::string_view byte) override;
  EsitoScrittura Conferma() override;

 private:
  EsitoScrittura ConfermaIn(const std::filesystem::path& posto) const;
  EsitoScrittura Ricopri(const Maniglia& file, const std::filesystem::path& posto) const;

  std::filesystem::path destinazione_;
  std::string nuovo_;
};

}  // namespace parvik
