// How findings are told on standard output.
#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "batch/Comandi.h"
#include "verifica/RegoleCatalogo.h"
#include "verifica/Rilievo.h"

namespace parvik::batch {

/// A finding as it is told: of a template or of a catalogue.
struct RilievoDetto {
  std::string_view Regola;
  Livello Grado = Livello::Errore;
  std::optional<std::string_view> Sezione = {};
  std::size_t Riga = 1;
  std::size_t Colonna = 1;
  std::size_t Lunghezza = 0;
  std::string_view Testo;  // looks at the finding
  std::optional<std::string_view> Proposta = {};
};

std::vector<RilievoDetto> Detti(std::span<const Rilievo> rilievi);
std::vector<RilievoDetto> Detti(std::span<const RilievoCatalogo> rilievi);

/// Fatto, or ConRilievi where there is an error, or a warning and `come` is strict.
Uscita EsitoDi(std::span<const RilievoDetto> rilievi, const ComeVerificare& come);

/// Told of one file after the other. Every function is false, after a message, when writing fails.
class Resoconto {
 public:
  Resoconto() = default;
  Resoconto(const Resoconto&) = delete;
  Resoconto& operator=(const Resoconto&) = delete;
  virtual ~Resoconto() = default;

  virtual bool Inizia() { return true; }
  virtual bool File(const std::filesystem::path& file, std::span<const RilievoDetto> rilievi) = 0;
  virtual bool Finisci() { return true; }
};

std::unique_ptr<Resoconto> ResocontoPer(const ComeVerificare& come);

/// The table of the rules.
bool StampaRegole(const ComeVerificare& come);

}  // namespace parvik::batch
