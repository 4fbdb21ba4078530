// What the user is told of the template's file without having asked: which notice, and when
// (docs/notizie.md).
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "editor/SguardoFile.h"
#include "sistema/Presenza.h"
#include "template/Documento.h"

namespace parvik {

enum class Notizia {
  Nessuna,
  GiaAperto,  // another window has it open
  Cambiato,   // another program wrote the file
  Sparito,    // it is not there any more
};

/// What follows the file's name in the notice. UTF-8; "" for none.
std::string Parole(Notizia notizia);

class NotizieFile {
 public:
  /// `documento` must outlive this. `esecuzione` is the user's folder for what counts while programs run, ""
  /// for none: there the windows find each other.
  NotizieFile(const Documento& documento, std::filesystem::path esecuzione)
      : documento_(documento), esecuzione_(std::move(esecuzione)) {}

  /// The document may have been read, saved or given up; `inUso` while there is a document type.
  void Aggiorna(bool inUso);

  /// The look that is to be taken; nullopt when there is nothing to look at.
  std::optional<LavoroSguardo> DaGuardare() const;
  /// What it found. A look at what the document no longer comes from counts for nothing.
  void Consegna(const SguardoFile& sguardo);

  /// The one to show, and the file that it is about.
  Notizia Ora() const { return ora_; }
  const std::filesystem::path& File() const { return file_; }

  /// It was seen, and is not told again.
  void Ignora() { ora_ = Notizia::Nessuna; }

 private:
  /// What was told of the file last: of each only once.
  struct Detto {
    Notizia Quale = Notizia::Nessuna;
    std::uint64_t Contenuto = 0;

    bool operator==(const Detto&) const = default;
  };
  void Di(const Detto& detto);
  void SegnaAperto();

  const Documento& documento_;
  std::filesystem::path esecuzione_;
  std::filesystem::path file_;
  std::shared_ptr<const std::string> origine_;  // none: there is nothing to look at
  std::optional<SguardoFile> ultimo_;
  Detto detto_;
  Notizia ora_ = Notizia::Nessuna;
  Presenza aperto_;  // tells other windows that the file is open here
};

}  // namespace parvik
