// Runs the batch program as a user does.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "supporto/Cartelle.h"

namespace parvik::prova {

/// What a run leaves behind.
struct Esecuzione {
  int Stato = 0;       // the exit status; below zero the signal that ended it
  std::string Uscita;  // all bytes of standard output
  std::string Errori;  // all bytes of standard error

  bool operator==(const Esecuzione&) const = default;
};

void PrintTo(const Esecuzione& esecuzione, std::ostream* uscita);

/// Where standard output goes.
enum class UscitaStandard { Raccolta, Chiusa, DiscoPieno, NessunoLegge };

struct Avvio {
  std::filesystem::path Programma = Batch();
  UscitaStandard Uscita = UscitaStandard::Raccolta;
  bool ErroriChiusi = false;                      // standard error is none
  std::size_t Memoria = 0;                        // bytes of address space at most; 0 is no limit
  std::optional<std::size_t> LunghezzaFile = {};  // bytes that a file that is written can have at most
  std::filesystem::path Casa = {};  // what HOME and XDG_CONFIG_HOME name; "" is a place that does not exist
  std::filesystem::path Cartella = {};  // the working directory; "" is the test's own
};

/// Whether a run can be given a limit of memory: a program under the address sanitizer cannot. Why not is
/// what a test says that skips itself.
bool MemoriaLimitabile();
std::string_view PercheSenzaLimite();

/// Whether UscitaStandard::DiscoPieno is to be had.
bool DispositivoPieno();

/// Runs the program to its end. A run that does not end within half a minute is killed, and fails the test.
Esecuzione Esegui(const std::vector<std::string>& argomenti, const Avvio& avvio = {});

/// The same on the example installation of the sources.
Esecuzione EseguiEsempio(std::vector<std::string> argomenti, const Avvio& avvio = {});

/// A line of standard error.
std::string Detto(std::string_view testo);
/// The same about a file.
std::string Detto(const std::filesystem::path& file, std::string_view testo);

}  // namespace parvik::prova
