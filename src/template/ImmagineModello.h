// Template image files (*.img), byte by byte (docs/template-file.md).
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "common/ByteFile.h"
#include "common/Esito.h"
#include "common/Sezione.h"
#include "template/Formato.h"
#include "template/Marcatore.h"
#include "template/PreparaImmagine.h"

namespace parvik {

/// What the choice of a three-section document type sets.
ImpostazioniCorpo ImpostazioniPredefinite();

/// How the reading of a file went.
struct EsitoImmagine {
  ImpostazioniCorpo Corpo;
  /// The run-time error that ended the reading; what was read until then is there.
  std::optional<NumeroErrore> Errore;
  /// The marker promises more Corpo lines than the file has. What there is was read.
  bool CorpoIncompleto = false;
  /// Lines of the file were left unread.
  bool TestoNonLetto = false;
};

struct ImmagineLetta : EsitoImmagine {
  TestiSezioni Testi;  // in the one-section layout only the Testata is meaningful
};

/// Reads a file's bytes. `attuali` are the settings before: those that the file does not set stay. An error
/// only when memory is exhausted: whatever else ends the reading leaves what was read.
Esito<ImmagineLetta> LeggiImmagine(std::string_view byte, Formato formato, const ImpostazioniCorpo& attuali);

struct ImmagineDivisa : EsitoImmagine {
  /// The lines of each section as the file has them.
  std::array<std::string_view, MaxSezioni> Righe;
};

/// A template file read to be looked at: its sections stay where they are in its bytes, unless line ends have
/// to be added to them.
class ImmagineInPosto {
 public:
  /// Of bytes that `prepara` was shown, or a beginning of them. An error only when memory is exhausted.
  static parvik::Esito<std::unique_ptr<const ImmagineInPosto>> Apri(ByteFile byte,
                                                                    const PreparaImmagine& prepara,
                                                                    const ImpostazioniCorpo& attuali);
  ImmagineInPosto(const ImmagineInPosto&) = delete;
  ImmagineInPosto& operator=(const ImmagineInPosto&) = delete;
  ~ImmagineInPosto() = default;

  const EsitoImmagine& Esito() const { return divisa_; }
  /// The same texts as LeggiImmagine's, valid as long as this object.
  const std::array<std::string_view, MaxSezioni>& Testi() const { return divisa_.Righe; }
  /// The line of the marker, nullopt in the one-section layout too. Its places are those of the bytes below.
  const std::optional<Marcatore>& RigaDelMarcatore() const { return marcatore_; }
  /// The file's bytes: codes may have the editor's delimiters, but the marker's line is as it was.
  std::string_view Byte() const { return {byte_.data(), byte_.size()}; }

 private:
  ImmagineInPosto(ByteFile byte, PreparaImmagine prepara, const ImpostazioniCorpo& attuali);

  ByteFile byte_;
  std::optional<Marcatore> marcatore_;
  TestiSezioni completati_;
  ImmagineDivisa divisa_;
};

/// Builds a file's bytes. In the three-section layout LineeCorpo is recounted, and a Corpo whose last line
/// lacks its CR LF is completed, in `testi` itself. On an error nothing was changed: Overflow when the Corpo
/// has more than 32767 lines, or too little memory.
Esito<std::string> ScriviImmagine(TestiSezioni& testi, ImpostazioniCorpo& corpo, Formato formato);

}  // namespace parvik
