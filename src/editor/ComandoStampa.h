// The print command, as decisions: what is asked, in which order, what is rendered where (docs/printing.md).
#pragma once

#include <filesystem>

#include "catalogue/TipoDoc.h"
#include "common/Interlocutore.h"
#include "editor/Resa.h"
#include "editor/Vista.h"
#include "start/Installazione.h"
#include "template/Documento.h"

namespace parvik {

/// The preview as the print command needs it.
class InterruttoreAnteprima {
 public:
  InterruttoreAnteprima() = default;
  InterruttoreAnteprima(const InterruttoreAnteprima&) = delete;
  InterruttoreAnteprima& operator=(const InterruttoreAnteprima&) = delete;
  virtual ~InterruttoreAnteprima() = default;

  virtual bool AnteprimaAccesa() const = 0;
  /// Renders, also when it is on already. False when the run was given up, or ran out of memory.
  virtual bool AccendiAnteprima() = 0;
};

/// The collaborators must outlive the command. `tipo` is always the current document type.
class ComandoStampa {
 public:
  ComandoStampa(const Documento& documento, const Installazione& installazione, Resa& resa,
                InterruttoreAnteprima& anteprima, VistaStampa& vista, Interlocutore& interlocutore)
      : documento_(documento),
        installazione_(installazione),
        resa_(resa),
        anteprima_(anteprima),
        vista_(vista),
        interlocutore_(interlocutore) {}

  /// Asks for the destination, and renders or prints to it. There must be something to print.
  void Esegui(const TipoDoc& tipo);

 private:
  void SuCarta();
  void SuFile(const TipoDoc& tipo);
  RichiestaFile RichiestaTesto() const;

  const Documento& documento_;
  const Installazione& installazione_;
  Resa& resa_;
  InterruttoreAnteprima& anteprima_;
  VistaStampa& vista_;
  Interlocutore& interlocutore_;
  std::filesystem::path scelto_;  // what the last save dialog gave
};

}  // namespace parvik
