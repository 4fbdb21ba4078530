// The output run: the sections of a template turned into lines in which every code is replaced by a sample of
// what it prints (docs/rendering.md). One run serves every destination.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

#include "common/Esito.h"
#include "common/Sezione.h"
#include "output/FlagPerStampe.h"
#include "output/MettiStili.h"
#include "output/TrovaVar.h"

namespace parvik {

class TracciaStampa;

/// What a run reads. Texts and flags must stay as they are until the run ends.
struct DatiStampa {
  std::array<std::string_view, MaxSezioni> Testi;  // Windows-1252, lines separated by CR LF
  std::int16_t NumSezioni = 0;
  std::int16_t RigheCorpo = 0;
  std::int16_t LineeCorpo = 0;
  const FlagPerStampe& Flag;
  /// False: a template's beginning, cut behind a line. Its lines are the template's first ones.
  bool Interi = true;
};

/// How often the body is rendered; never below 0.
int RipetizioniCorpo(std::int16_t righeCorpo, std::int16_t lineeCorpo);

/// Where the lines of a run go.
class UscitaRighe {
 public:
  UscitaRighe() = default;
  UscitaRighe(const UscitaRighe&) = delete;
  UscitaRighe& operator=(const UscitaRighe&) = delete;
  virtual ~UscitaRighe() = default;

  /// Takes whole lines, each ended by CR LF; of a line longer than PassoStampa, one piece after the other.
  /// Everything that is begun is ended. False ends the run there.
  virtual bool Righe(std::string_view righe) = 0;

  /// Asked at the latest when the run has gone over PassoStampa bytes since it last called anything here,
  /// within a line too. False ends the run there.
  virtual bool Continua() { return true; }
};

/// In bytes: those that a run writes, and those of the sections that it reads without writing anything.
inline constexpr std::size_t PassoStampa = 64UL * 1024UL;

/// Why a run did not come to its end: it was asked to, by its output or by whoever waits for it, or there was
/// too little memory.
enum class Interruzione { Chiesta, MemoriaEsaurita };

/// One run. Takes time proportional to what it reads and produces, and memory for a few steps, whatever it
/// produces. Too little memory may be what `uscita` met.
Esito<void, Interruzione> GeneraStampa(const DatiStampa& dati, TipoStampa destinazione, UscitaRighe& uscita);

/// The same, traced: `traccia`, which is empty before, is whole when the run came to its end.
Esito<void, Interruzione> GeneraStampa(const DatiStampa& dati, TipoStampa destinazione, UscitaRighe& uscita,
                                       TracciaStampa& traccia);

/// What the preview pane shows.
struct Anteprima {
  std::string Testo;           // Windows-1252, the end marker last; "" when nothing was rendered
  std::vector<Tratto> Tratti;  // the formatting, in the order of the text, without overlaps
};

inline constexpr std::string_view FineAnteprima = "--- Fine file ---";

/// A run for the preview: its lines, the end marker, and the style markers turned into formatting. Ends when
/// `smetti` is asked for.
Esito<Anteprima, Interruzione> GeneraAnteprima(const DatiStampa& dati, const std::stop_token& smetti);
/// The same, traced, the style pass included.
Esito<Anteprima, Interruzione> GeneraAnteprima(const DatiStampa& dati, const std::stop_token& smetti,
                                               TracciaStampa& traccia);
/// The same where nobody asks and there is memory. Only tests and measurements call it.
Anteprima GeneraAnteprima(const DatiStampa& dati);

struct InizioAnteprima {
  Anteprima Testo;      // without the end marker, unless Intera
  bool Intera = false;  // it is the preview, and not a part of it
};

/// The beginning of the preview, to be shown while the whole is made: as many whole lines as `massimo` bytes
/// of rendered text hold, style markers counted; fewer, or none, when the run goes on and on without ending a
/// line. It looks as it does in the whole preview, but for a style marker that only what follows completes.
/// Costs little more than rendering `massimo` bytes. Of a template's beginning it is never the whole preview.
/// An error only when memory is exhausted.
Esito<InizioAnteprima> GeneraInizioAnteprima(const DatiStampa& dati, std::size_t massimo);
/// The same, traced: `traccia`, which is empty before, is whole when the preview is.
Esito<InizioAnteprima> GeneraInizioAnteprima(const DatiStampa& dati, std::size_t massimo,
                                             TracciaStampa& traccia);

}  // namespace parvik
