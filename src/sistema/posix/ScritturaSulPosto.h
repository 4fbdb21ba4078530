// Writing over a file, for files that no new one can take the place of.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

#include "sistema/posix/Descrittore.h"
#include "sistema/posix/StradaScrittura.h"

namespace parvik {

/// The bytes are kept until Conferma, which lays the old content aside (CopiaDiRiserva.h) and writes over it.
/// When that fails the old content is put back; only where that fails too does the copy stay. EBUSY while
/// somebody else has the file locked, or when it was replaced meanwhile. Signals that end the program wait.
class ScritturaSulPosto final : public ScritturaSicura::Strada {
 public:
  /// `destinazione` must be a regular file, not a link.
  explicit ScritturaSulPosto(std::filesystem::path destinazione) : destinazione_(std::move(destinazione)) {}

  EsitoPasso Scrivi(std::string_view byte) override;
  EsitoScrittura Conferma() override;

 private:
  EsitoScrittura Sostituisci(const Descrittore& bloccato);

  std::filesystem::path destinazione_;
  std::string nuovo_;
};

}  // namespace parvik
