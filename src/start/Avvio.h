// The start-up sequence, up to the moment at which there is something to show in a window.
#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "catalogue/Catalogo.h"
#include "common/Interlocutore.h"
#include "start/Installazione.h"

namespace parvik {

/// Reads and parses a catalogue. The error is the message that the user sees: what happened, and on a second
/// line the catalogue's path and the line at which reading stopped. UTF-8.
Esito<Catalogo, std::string> LeggiCatalogo(const std::filesystem::path& fileCampi);

/// What the user reads when a section's lines do not split as this program expects them to. UTF-8.
inline constexpr const char* MessaggioVersioneDiversa =
    "Questa versione di Parvik a 32 bit è disallineata con quella del file CAMPI.TXT.\r\n"
    "Impossibile continuare!";

/// All that the editor is built from.
struct DatiAvvio {
  std::filesystem::path DirProgramma;  // without a trailing separator
  Installazione Dove;
  Catalogo Campi;
  /// Where configuration files lie, and what the program keeps by itself, as in Ambiente.
  std::filesystem::path CartellaUtente = {};
  std::vector<std::filesystem::path> CartelleConfigurazione = {};
  std::filesystem::path CartellaStato = {};
  std::filesystem::path CartellaEsecuzione = {};
  /// How much typing may be lost at most when the program ends suddenly.
  std::chrono::milliseconds IntervalloRecupero = std::chrono::seconds(10);
};

/// Finds the installation and loads the head of its catalogue. nullopt after the user was told why not: the
/// program then ends.
std::optional<DatiAvvio> Avvia(const Ambiente& ambiente, Interlocutore& interlocutore);

}  // namespace parvik
