// What is selected in a preview: the caret, the place that the selection began at, and how they move.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>

#include "output/Ricollocazione.h"
#include "output/TestoAnteprima.h"
#include "template/Modifica.h"

namespace parvik {

/// Where the caret is taken.
enum class Movimento {
  CarattereDopo,
  CarattereDavanti,
  ParolaDopo,
  ParolaDavanti,
  InizioRiga,
  TermineRiga,
  InizioTesto,
  FineTesto,
  RigaSopra,
  RigaSotto,
  PaginaSopra,
  PaginaSotto,
};

/// Whether the anchor goes along with the caret or stays.
enum class ModoMovimento { Muove, Seleziona };

/// What movements from line to line ask of who draws them. Lines and columns count from 0; an x is measured
/// from the line's start, in any unit.
struct MisureRighe {
  std::size_t PerPagina = 1;  // how many lines a page moves by; never 0
  /// The left edge of a column.
  std::function<double(std::size_t riga, std::size_t colonna)> XDi;
  /// The column of the line whose left edge is nearest.
  std::function<std::size_t(std::size_t riga, double x)> ColonnaVicina;
};

/// A preview and two places in it, at which its caret can stand (output/MovimentiAnteprima.h). Copies share
/// the text, and keep it.
class SelezioneAnteprima {
 public:
  /// Where something starts, both from 1. Lines are those of the text; nothing wraps.
  struct Coordinate {
    std::size_t Riga = 1;
    std::size_t Colonna = 1;
    bool operator==(const Coordinate&) const = default;
  };

  /// Nothing is selected, and the caret is at the start.
  explicit SelezioneAnteprima(Anteprima anteprima = {});

  const TestoAnteprima& Testo() const { return *testo_; }
  Cursore Estremi() const { return estremi_; }
  /// What is between anchor and caret, in bytes; the caret's place alone when that is nothing.
  Selezione Selezionato() const { return estremi_.Selezionato(); }
  /// Its bytes. Valid as long as a copy of this has the text.
  std::string_view TestoSelezionato() const;
  /// Of the selection's start.
  Coordinate RigaColonna() const;

  /// Takes the text's place by a longer one that begins with it. Both places stay.
  void Completa(Anteprima anteprima);

  /// Takes the text's place by what a later run has made. Both places go with their text.
  void Rinnova(std::shared_ptr<const TestoAnteprima> testo, const Ricollocazione& dove);

  /// From `ancora` to `cursore`. Places that the caret cannot stand at are moved to one.
  void Seleziona(std::size_t ancora, std::size_t cursore);
  /// The caret is at the text's end then.
  void SelezionaTutto();
  /// Both pieces and what lies between them, the caret on the side of `al`.
  void SelezionaFra(const Selezione& dal, const Selezione& al);
  /// A character on or back, without selecting, leaves a selection at that edge of it. From line to line the
  /// caret keeps to the x where the first of a row of such movements started, and at the first and last line
  /// stays on it. `misure` are asked by these alone.
  void Muovi(Movimento dove, ModoMovimento modo, const MisureRighe& misure);

 private:
  std::optional<std::size_t> RigaMeta(Movimento dove, std::size_t perPagina) const;
  std::size_t NellaRiga(std::size_t riga, const MisureRighe& misure);
  std::size_t LungoIlTesto(Movimento dove, ModoMovimento modo) const;

  std::shared_ptr<const TestoAnteprima> testo_;
  Cursore estremi_;
  std::optional<double> xVoluta_;  // where movements from line to line started
};

}  // namespace parvik
