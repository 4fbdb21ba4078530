// The destination that is a text file: the rendered lines, each ended by CR LF, without style markers and
// without an end marker (docs/printing.md).
#pragma once

#include <filesystem>
#include <optional>
#include <stop_token>
#include <string_view>

#include "common/EsitoScrittura.h"
#include "output/GeneraStampa.h"
#include "sistema/ScritturaSicura.h"

namespace parvik {

/// The lines of one or more runs on their way into a file. The file is replaced by Conferma, as a whole; an
/// object that goes away unconfirmed leaves it as it was.
class RigheSuFile final : public UscitaRighe {
 public:
  /// `smetti` ends the run under way.
  explicit RigheSuFile(ScritturaSicura file, std::stop_token smetti = {});

  bool Righe(std::string_view righe) override;
  bool Continua() override { return !smetti_.stop_requested(); }

  /// Makes the lines the file's content, unless writing them has failed already.
  EsitoScrittura Conferma();

 private:
  ScritturaSicura file_;
  std::stop_token smetti_;
  EsitoPasso scritto_;
};

/// One run into one file. What there is to say when it stands there whole; on a failure, and when `smetti`
/// was asked for, nothing, and the old file is as it was.
std::optional<Scritto> StampaSuFile(const std::filesystem::path& file, const DatiStampa& dati,
                                    const std::stop_token& smetti);

}  // namespace parvik
