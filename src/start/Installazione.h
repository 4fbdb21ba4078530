// Where the host is installed (docs/installation-lookup.md).
#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "common/Interlocutore.h"

namespace parvik {

/// What the lookup depends on.
struct Ambiente {
  std::filesystem::path DirProgramma;  // without a trailing separator
  /// Where a configuration file that is named without a folder is looked for, in this order.
  std::vector<std::filesystem::path> CartelleConfigurazione;
  std::filesystem::path DirVelkor = {};  // "" when it is to be looked for
  /// The user's own among those folders; "" for a user who has none.
  std::filesystem::path CartellaUtente = {};
  /// The user's own for what is kept from one run to the next, and for what counts while programs run; "" for
  /// none.
  std::filesystem::path CartellaStato = {};
  std::filesystem::path CartellaEsecuzione = {};
};

/// The running process: `chiamato` as in DirProgramma(); the folders as in CartelleConfigurazione().
Ambiente AmbienteDelProcesso(const std::filesystem::path& chiamato);

struct Installazione {
  std::filesystem::path DirVelkor;  // ends with a separator
  std::filesystem::path DirImg;     // the folder of the catalogue and of the templates
  std::filesystem::path FileCampi;  // the catalogue in use

  /// An installation whose host directory is known. The names inside it are found in any case of their
  /// letters.
  static Installazione In(const std::filesystem::path& dirVelkor);

  /// The print-to-file folder.
  std::filesystem::path DirStm() const;
};

/// The host directory: the one that was named; else the parent of the program's folder when VELKOR.INI lies
/// there, else what a VELKOR.INI among the configuration folders says; empty when none says anything.
std::filesystem::path TrovaDirVelkor(const Ambiente& ambiente);

/// The whole lookup, the catalogue included. nullopt after the user was told why not, or gave it up.
std::optional<Installazione> VerificaCampiTXT(const Ambiente& ambiente, Interlocutore& interlocutore);

}  // namespace parvik
