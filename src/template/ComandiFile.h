// The commands of the File menu that read and write templates, as decisions: what is asked, in which order,
// what is written, what becomes of the modified state (docs/file-commands.md).
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "catalogue/TipoDoc.h"
#include "common/EsitoScrittura.h"
#include "common/Interlocutore.h"
#include "template/Documento.h"

namespace parvik {

/// What the file commands change in the program around the template.
class Contorno {
 public:
  Contorno() = default;
  Contorno(const Contorno&) = delete;
  Contorno& operator=(const Contorno&) = delete;
  virtual ~Contorno() = default;

  virtual void ImpostaTitolo(std::string titolo) = 0;  // UTF-8
  /// Turns the preview off when it is on.
  virtual void SpegniAnteprima() = 0;
  /// Sets every print flag to false.
  virtual void AzzeraFlagStampe() = 0;
  /// Back to the state without a document type; the print flags are discarded.
  virtual void TornaSenzaTipo() = 0;
};

/// The caption once a file was read. UTF-8.
std::string TitoloCon(const std::filesystem::path& file);

/// Bytes of a template that Open reads; no window holds more at its ease: laid out, a text takes up to 65
/// times its size.
inline constexpr std::uintmax_t MassimoModello = 128U << 20U;

/// The collaborators must outlive the commands. `tipo` is always the current document type.
class ComandiFile {
 public:
  ComandiFile(Documento& documento, Interlocutore& interlocutore, Contorno& contorno,
              std::filesystem::path dirImg);

  /// New: asks whether to save a modified template, and goes on whatever the answer is. Texts and file name
  /// stay, but the document no longer comes from that file, and nothing can be undone.
  void Nuovo(const TipoDoc& tipo);

  /// Open: nothing can be undone after it. Every failure is silent; the file name is then the chosen one
  /// already. Only a file of more than MassimoModello is refused with a message (MemoriaEsaurita), and
  /// nothing but the answered question has happened.
  void Apri(const TipoDoc& tipo);

  /// What a person named outside the command: on the command line, or dropped on the window. As Open with
  /// that name chosen, but a failure draws a message with the file's name. A file that does not exist draws
  /// it before anything else happens.
  void ApriDaFuori(const TipoDoc& tipo, const std::filesystem::path& nome);

  /// The file that `nome` means, with its extension where it has none; nullopt after that message.
  std::optional<std::filesystem::path> TrovaDaFuori(const std::filesystem::path& nome);

  /// Save; without a file name it is Save As, and with nothing in the sections nothing at all. A named file
  /// that could not be written draws a message, and the template stays modified; one that was, and about
  /// which there is something to say (TestoAvviso), draws a warning. A file whose bytes are not those that
  /// this document was last read from or written to is kept as "NAME~" before it is replaced; where that
  /// fails it is not replaced.
  void Salva(const TipoDoc& tipo);

  /// Save As: writes, takes the name and reads the file back: one step to undo, where that changes a text. A
  /// file that it replaces is kept as Save keeps it. Every failure is silent, but a warning is not.
  void SalvaConNome(const TipoDoc& tipo);

  /// Whether the window may close: asks when the template is modified. False when the question was cancelled,
  /// or when saving was chosen and nothing was saved, and, without a word, while this very question is on
  /// show. It may be asked in the middle of any other command that waits for an answer.
  bool PuoChiudere(const TipoDoc& tipo);

  /// The question of Open: whether the template at hand may be given up.
  bool PuoProseguire(const TipoDoc& tipo);

  /// Whether there is anything to save or print: not every section is a single empty line.
  bool VerificaStampa(const TipoDoc& tipo) const;

 private:
  Risposta ChiediSeSalvare();
  bool Prosegui(Risposta risposta, const TipoDoc& tipo);
  Esito<void> ApriScelto(const TipoDoc& tipo);
  void SegnalaConNome(NumeroErrore errore, const std::filesystem::path& file);
  EsitoPasso ConservaAltrui(const std::filesystem::path& percorso, std::string_view nuovi);
  EsitoScrittura Sostituisci(const std::filesystem::path& percorso, std::string_view nuovi);
  EsitoScrittura Scrivi(const std::filesystem::path& percorso, const TipoDoc& tipo);
  EsitoScrittura ScriviTesti(const std::filesystem::path& percorso, const TipoDoc& tipo);
  EsitoScrittura ScriviERileggi(const std::filesystem::path& percorso, const TipoDoc& tipo);
  /// Reads the document's file. `imposta` puts a section's text where it belongs.
  using Imposta = void (Documento::*)(Sezione, std::string_view);
  Esito<void> Leggi(const TipoDoc& tipo, Imposta imposta);
  Esito<void> LeggiTesti(const TipoDoc& tipo, Imposta imposta);

  Documento& documento_;
  Interlocutore& interlocutore_;
  Contorno& contorno_;
  std::filesystem::path dirImg_;
  bool chiedeDiChiudere_ = false;  // the closing question is on show
};

}  // namespace parvik
