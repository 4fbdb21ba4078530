// Writing a file so that at every moment the disk holds the old one whole or the new one whole
// (docs/saving.md).
#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

#include "common/EsitoScrittura.h"

namespace parvik {

/// A file on its way to the disk. Nothing of `destinazione` changes before Conferma; an object that goes away
/// unconfirmed leaves neither a changed file nor a new one behind.
///
/// Links are followed: the file they lead to is replaced, the link stays. A regular file keeps its owner,
/// attributes and rights where the system allows. A file with several names, or in a folder that takes no new
/// file, is written in place, after a copy of the old content was laid aside. A device or a pipe is written
/// to directly. AutorizzazioneNegata, with a note that says why, while somebody else is writing the same
/// file.
class ScritturaSicura {
 public:
  /// Fails when the destination could not be written at all: a folder, a missing folder, no permission.
  static Esito<ScritturaSicura, ErroreScrittura> Apri(const std::filesystem::path& destinazione);

  ScritturaSicura(ScritturaSicura&& altra) noexcept;
  ScritturaSicura& operator=(ScritturaSicura&& altra) noexcept;
  ~ScritturaSicura();

  /// Adds bytes. After a failure the object can only go away.
  EsitoPasso Scrivi(std::string_view byte);

  /// Makes what was written the content of the destination, on the disk. On failure the old content is whole:
  /// in the destination or, where it was written in place and could not be put back, in the copy that stays
  /// and that the error's note names.
  /// Only where nothing but the folder could not be brought to the disk has the new content its place
  /// already.
  EsitoScrittura Conferma();

  /// How the bytes reach the destination.
  class Strada;

 private:
  explicit ScritturaSicura(std::unique_ptr<Strada> strada);
  std::unique_ptr<Strada> strada_;
};

/// The whole of it in one call.
EsitoScrittura ScriviFile(const std::filesystem::path& destinazione, std::string_view byte);

/// The same for a file that nobody else writes to, beside which another one lies: it gets the owner and the
/// rights of `modello`, whatever stood in its place.
EsitoScrittura ScriviFileCome(const std::filesystem::path& modello, const std::filesystem::path& destinazione,
                              std::string_view byte);

}  // namespace parvik
