// The lines of the sections as they print: how many cells each code takes, and in which look (docs/campi.md).
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "common/Sezione.h"
#include "output/CodiciIndietro.h"
#include "output/FlagPerStampe.h"
#include "output/MettiStili.h"
#include "output/StiliSezione.h"
#include "output/TrovaVar.h"
#include "template/Documento.h"
#include "tokens/Codice.h"

namespace parvik {

/// A field of more cells than that is drawn cut.
inline constexpr std::size_t MassimeCelle = 999;

/// A part of a line: literal text, a cell for each byte, or a code of the line.
struct PezzoMisurato {
  Selezione Parte;  // bytes of the line; none is empty
  /// nullopt of literal text. A code that is not closed, or that runs over a line end, is literal text.
  std::optional<TipoCodice> Codice;
  std::size_t Larghezza = 0;  // characters that it prints
  bool Mostrato = true;       // of a flag: whether the code behind it is

  std::size_t Celle() const { return Larghezza < MassimeCelle ? Larghezza : MassimeCelle; }
  bool operator==(const PezzoMisurato&) const = default;
};

/// What a line leaves to the lines behind it: equal bytes behind equal ones are measured alike.
struct LascitoRiga {
  bool MostraProssimo = true;
  std::size_t Ultima = 0;  // the width that a code of unknown kind repeats

  bool operator==(const LascitoRiga&) const = default;
};

struct RigaMisurata {
  std::vector<PezzoMisurato> Pezzi;
  LascitoRiga Lascito;

  bool operator==(const RigaMisurata&) const = default;
};

/// Measures the codes of a document as a run to a text file would print them now, in the first repetition of
/// the body; what it would not print (a body that is repeated zero times, a last line without its end) as if
/// it did. A line costs what is in it, and what has to be looked back for.
class CampiAMisura final : private AscoltatoreDocumento {
 public:
  /// Both must outlive this. Who shows the document listens to it later than this.
  CampiAMisura(Documento& documento, const FlagPerStampe& flag);

  /// The print flags are other ones, or what they say is. `tuttiVeri`: they count as true.
  void AggiornaFlag(bool tuttiVeri);

  /// What a section begins with.
  LascitoRiga Ingresso(Sezione sezione) const;
  /// A line, from 0. Asked line by line it costs least.
  RigaMisurata Riga(Sezione sezione, std::size_t riga) const;
  /// The characters that the line prints in front of that place; of a place inside a code those in front of
  /// the code.
  std::size_t Colonna(Sezione sezione, std::size_t byte) const;
  /// The look at that place of a section, outside its codes: bold, italic and underlined, no size.
  Aspetto AspettoA(Sezione sezione, std::size_t byte) const;

 private:
  /// What the run keeps behind the last line that was asked for, where no code is open.
  struct Segnalibro {
    Sezione Dove = Sezione::Testata;
    std::size_t Riga = 0;  // the next one
    int Ripetizioni = 0;
    Memoria Ricordo;
  };

  void Modificata(const CambiamentoTesto& cambiamento) override;
  void Sostituita(Sezione sezione) override;

  int Ripetizioni() const;
  Memoria RicordoA(Sezione sezione, std::size_t byte) const;
  bool Segnata(Sezione sezione, std::size_t riga) const;
  const StiliSezione& Stili(Sezione sezione) const;

  Documento& documento_;
  const FlagPerStampe& flag_;
  StatiFlag stati_;
  mutable std::optional<Segnalibro> segnalibro_;
  mutable std::array<std::optional<StiliSezione>, MaxSezioni> stili_;  // made when they are first asked for
  Documento::Ascolto ascolto_;
};

}  // namespace parvik
