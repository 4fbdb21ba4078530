// The templates that were last worked on, with their document types (docs/impostazioni.md).
#pragma once

#include <cstddef>
#include <filesystem>
#include <vector>

namespace parvik {

struct ModelloRecente {
  std::filesystem::path File;  // whole
  int Tipo = 0;                // the document type's number

  bool operator==(const ModelloRecente&) const = default;
};

class Recenti {
 public:
  static constexpr std::size_t Massimo = 10;

  /// The last one first.
  const std::vector<ModelloRecente>& Voci() const { return voci_; }

  /// To the front; a file stands there once, under the type that it was last opened with.
  void Aggiungi(const ModelloRecente& modello);
  /// The same at the end, where there is still room.
  void Accoda(const ModelloRecente& modello);
  /// Those that are not there any more. To be asked of a copy, on a thread that may hang: so may a share.
  std::vector<std::filesystem::path> Spariti() const;
  void Togli(const std::vector<std::filesystem::path>& file);

  bool operator==(const Recenti&) const = default;

 private:
  std::vector<ModelloRecente> voci_;
};

}  // namespace parvik
