// How findings are told on standard output.
#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <span>

#include "batch/Comandi.h"
#include "verifica/Rilievo.h"

namespace parvik::batch {

/// Told of one file after the other. Every function is false, after a message, when writing fails.
class Resoconto {
 public:
  Resoconto() = default;
  Resoconto(const Resoconto&) = delete;
  Resoconto& operator=(const Resoconto&) = delete;
  virtual ~Resoconto() = default;

  virtual bool Inizia() { return true; }
  virtual bool File(const std::filesystem::path& file, std::span<const Rilievo> rilievi) = 0;
  virtual bool Finisci() { return true; }
};

std::unique_ptr<Resoconto> ResocontoPer(const ComeVerificare& come);

/// The table of the rules.
bool StampaRegole(const ComeVerificare& come);

}  // namespace parvik::batch
