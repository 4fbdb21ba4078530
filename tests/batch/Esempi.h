// What the batch tests work on: a small catalogue, and the templates of the example installation.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "supporto/Cartelle.h"
#include "supporto/ConNome.h"

namespace parvik::prova {

/// A host directory with one small catalogue: type 1 with three sections, type 2 with one, type 23 with one.
/// Flags of type 1: 1 and 2 in the Testata, 14 in the Corpo (twice); type 2 has 3 and 4.
class HostDiProva {
 public:
  HostDiProva();

  const std::filesystem::path& Percorso() const { return cartella_.Percorso(); }
  std::filesystem::path Catalogo() const { return cartella_ / "D_IMG" / "CAMPI.TXT"; }

  /// Puts a template into the host's folder. The bytes are those of the file.
  std::filesystem::path Modello(std::string_view nome, std::string_view byte) const;

  /// Arguments: --velkor, this host, and those given.
  std::vector<std::string> Argomenti(std::vector<std::string> altri) const;

 private:
  CartellaTemporanea cartella_;
};

struct ModelloEsempio {
  std::string Nome;
  int Tipo;
};

/// The templates of the example installation and their document types.
const std::vector<ModelloEsempio>& ModelliEsempio();
std::filesystem::path FileDi(const ModelloEsempio& modello);

/// Whether a file can have that name here. The bytes are those of UTF-8 where names are no bytes.
bool NomePossibile(const std::string& nome);

/// A name inside a JSON text: a backslash may separate.
std::string InJson(const std::string& nome);

/// A code as it stands in a file.
std::string NelFile(std::string_view contenuto);

}  // namespace parvik::prova
