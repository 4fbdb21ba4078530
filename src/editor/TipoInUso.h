// The chosen document type, and what the catalogue offers to it: to dialogs, tooltips, print flags. What of
// the catalogue cannot be read is told here.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/Catalogo.h"
#include "cerca/SensoCodice.h"
#include "common/Interlocutore.h"
#include "output/FlagPerStampe.h"
#include "tokens/TestoCampo.h"

namespace parvik {

/// The entries of a section, whether or not the catalogue has something wrong in them.
struct TabelleSezione {
  std::vector<Variabile> Variabili;
  std::vector<parvik::Flag> Flag;

  VociDiSezione Voci() const { return {.Variabili = Variabili, .Flag = Flag}; }
};

class TipoInUso {
 public:
  /// All must outlive this; `tipo` is one of the catalogue's.
  TipoInUso(const Catalogo& catalogo, const TipoDoc& tipo, Interlocutore& interlocutore)
      : catalogo_(catalogo), tipo_(tipo), interlocutore_(interlocutore) {}

  const TipoDoc& Tipo() const { return tipo_; }

  /// What a section offers to a dialog. Errors in the catalogue have been shown.
  std::vector<Variabile> VariabiliDaOffrire(Sezione sezione);
  std::vector<parvik::Flag> FlagDaOffrire(Sezione sezione);

  /// The print flags, all false. Errors in the catalogue have been shown.
  void CaricaFlagStampe(FlagPerStampe& flag);

  /// What a code of that section is, for a tooltip. UTF-8. What the catalogue has wrong is told by the
  /// dialogs, not by a tooltip.
  std::string Descrivi(Sezione sezione, std::string_view contenuto);
  /// What stands in the field of a code of that section.
  std::string TestoCampo(Sezione sezione, std::string_view contenuto, const PostoCampo& posto);
  /// The code with another width; nullopt where it cannot be given one.
  std::optional<std::string> ConLarghezza(Sezione sezione, std::string_view contenuto,
                                          std::int16_t larghezza);
  /// The same as a phrase.
  std::string DescriviInFrase(Sezione sezione, std::string_view contenuto);

  /// What all of these read.
  const std::shared_ptr<const TabelleSezione>& Tabelle(Sezione sezione);

 private:
  void Segnala(NumeroErrore errore);

  const Catalogo& catalogo_;
  const TipoDoc& tipo_;
  Interlocutore& interlocutore_;
  std::array<std::shared_ptr<const TabelleSezione>, MaxSezioni> tabelle_;  // loaded when first asked for
};

}  // namespace parvik
