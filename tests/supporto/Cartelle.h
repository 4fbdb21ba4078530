// Folders and files that tests read and write.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace parvik::prova {

/// The project's example installation, in the sources: read only.
std::filesystem::path Esempio();
/// The tests' own data files, in the sources: read only.
std::filesystem::path Dati();
/// The developer documents.
std::filesystem::path Docs();
/// The batch program that this build made.
std::filesystem::path Batch();
/// The print module that this build makes of the same sources; only the targets that depend on it find it.
std::filesystem::path ModuloStampa();

/// All bytes of a file; fails the test and gives "" when it cannot be read.
std::string Contenuto(const std::filesystem::path& file);

/// Writes a file for a test to find. Makes its folder.
void Crea(const std::filesystem::path& file, std::string_view byte);

/// Whether the library can make links here; tests that need some skip themselves where it cannot.
bool Collegamenti();

/// Whether a name in another case is another name.
bool DistingueCasi();

/// Whether names of files are bytes, and a backslash is one like others.
inline constexpr bool NomiDiByte = std::filesystem::path::preferred_separator == '/';

/// A folder of the test's own that goes away with the object.
class CartellaTemporanea {
 public:
  CartellaTemporanea();
  CartellaTemporanea(const CartellaTemporanea&) = delete;
  CartellaTemporanea& operator=(const CartellaTemporanea&) = delete;
  ~CartellaTemporanea();

  const std::filesystem::path& Percorso() const { return percorso_; }
  std::filesystem::path operator/(std::string_view nome) const { return percorso_ / nome; }

 private:
  std::filesystem::path percorso_;
};

}  // namespace parvik::prova
