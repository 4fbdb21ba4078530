// A new file beside the one that is to be saved, under a name that no other writer has.
#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

#include "sistema/posix/NomiInCorso.h"
#include "sistema/posix/NomiProvvisori.h"
#include "sistema/posix/OperazioniFile.h"
#include "sistema/posix/Rivali.h"

namespace parvik {

/// While it lives, whoever else begins to save the file finds it in use. What is not given another name by
/// then goes away with the object.
class FileProvvisorio {
 public:
  /// Clears away what killed programs left. EBUSY when somebody else is at work on the file.
  static EsitoSistema<std::unique_ptr<FileProvvisorio>> Crea(const PostoProvvisorio& posto, mode_t modo);

  FileProvvisorio(const FileProvvisorio&) = delete;
  FileProvvisorio& operator=(const FileProvvisorio&) = delete;
  ~FileProvvisorio();

  const Descrittore& File() const { return file_; }
  /// Under which an old content is to be kept while this object lives.
  std::filesystem::path NomeVecchio() const;
  /// Where an interrupted copy went to, if that is not beside the file; else "".
  const std::filesystem::path& CopiaTenuta() const { return copiaTenuta_; }

  /// Brings the bytes to the disk and closes the file.
  EsitoSistema<void> Chiudi();
  /// Gives the file its name, whatever stood there. EBUSY when the file is no longer this writer's own.
  EsitoSistema<void> Rinomina(const std::filesystem::path& nome);
  /// Brings the name to the disk.
  EsitoSistema<void> SincronizzaNome();
  /// Looks once more who else is at work: EBUSY when somebody came before, or writes over the file.
  EsitoSistema<void> AffrontaRivali();

 private:
  FileProvvisorio(PostoProvvisorio posto, const Scrivente& chi);
  EsitoSistema<void> Apri(mode_t modo);

  PostoProvvisorio posto_;
  Scrivente chi_;
  std::filesystem::path nome_;
  NomeInCorso inCorso_;  // from before the file is made: a signal finds it at any moment
  Descrittore file_;
  Descrittore lucchetto_;  // keeps the lock when file_ is closed
  Descrittore cartella_;   // empty where the folder cannot be read
  struct stat stato_ = {};
  bool daTogliere_ = false;  // under its provisional name
  std::filesystem::path copiaTenuta_;
};

}  // namespace parvik
