// Who else is, or was, at work on a file: told by the names beside it.
#pragma once

#include <ctime>
#include <filesystem>
#include <string>

#include "sistema/posix/OperazioniFile.h"
#include "sistema/posix/Scrivente.h"

namespace parvik {

/// Which file is to be saved, and where the names of its provisional files lie.
struct PostoProvvisorio {
  std::filesystem::path File;
  std::filesystem::path Nome;  // File itself, or a name in another folder that stands for it
};

/// What killed programs left beside a file is taken away; an interrupted copy of the old content may be the
/// only whole content that there is, and becomes the previous content (CopiaPrecedente.h) unless its bytes
/// are those of the file.
class Rivali {
 public:
  /// `io` has a provisional file in the folder already, made at `adesso` by the folder's own clock: whoever
  /// began later finds it. `cartella` is open for reading.
  Rivali(const PostoProvvisorio& posto, const Scrivente& io, const Descrittore& cartella, timespec adesso);

  /// EBUSY when somebody came before `io`, or has begun to write over the file. What is abandoned and cannot
  /// be taken away stays, but an interrupted copy that cannot be kept is a failure.
  EsitoSistema<void> Affronta();

  /// Where an interrupted copy went to, if that is not beside the file; else "".
  const std::filesystem::path& CopiaTenuta() const { return copiaTenuta_; }

 private:
  struct Altro;
  enum class Stato { AlLavoro, Abbandonato, Sparito };
  Stato Guarda(const Altro& altro) const;
  Stato GuardaSenzaLucchetto(const Altro& altro) const;
  Stato GuardaEta(const Altro& altro) const;
  bool MiPrecede(const Altro& altro) const;
  EsitoSistema<void> Sgombera(const Altro& altro);

  const PostoProvvisorio& posto_;
  Scrivente io_;
  const Descrittore& cartella_;
  timespec adesso_;
  std::filesystem::path copiaTenuta_;
};

}  // namespace parvik
