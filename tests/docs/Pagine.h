// The examples in the developer documents, as docs/README.md says that they are written.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace parvik::prova {

/// One row of a table of examples: its cells as they are written (UTF-8, trimmed), the place for messages.
class RigaEsempio {
 public:
  RigaEsempio(std::vector<std::string> celle, std::string posto)
      : celle_(std::move(celle)), posto_(std::move(posto)) {}

  /// What a cell says as it stands: "" for a dash.
  std::string Testo(std::size_t colonna) const;
  /// The bytes that a code span in a cell stands for; "" for a dash.
  std::string Byte(std::size_t colonna) const;
  int Numero(std::size_t colonna) const;
  bool Si(std::size_t colonna) const;

  std::size_t Colonne() const { return celle_.size(); }
  /// "page.md:line".
  const std::string& Posto() const { return posto_; }

 private:
  std::vector<std::string> celle_;
  std::string posto_;
};

/// The rows of the table that follows the comment `<!-- examples: nome -->`. Fails the test when there is no
/// such table, when it is empty, or when a row has not `colonne` cells.
std::vector<RigaEsempio> TabellaEsempi(std::string_view pagina, std::string_view nome, std::size_t colonne);

/// The lines of the fenced block that follows the comment, without their ends. Fails the test when there is
/// none.
std::vector<std::string> BloccoEsempi(std::string_view pagina, std::string_view nome);

/// The same lines as a file of the host: Windows-1252, each line ended by CR LF.
std::string FileEsempio(std::string_view pagina, std::string_view nome);

/// The bytes that a text of the documents stands for: ¶ is CR LF, ␣ a space, \r \n \t \\ and \xNN one byte
/// each, everything else the Windows-1252 byte of its character.
std::string DaPagina(std::string_view utf8);

/// All pages, by file name.
std::vector<std::string> Pagine();
/// The names of the examples of a page.
std::vector<std::string> NomiEsempi(std::string_view pagina);
/// The lines of a page.
std::vector<std::string> RighePagina(std::string_view pagina);

}  // namespace parvik::prova
