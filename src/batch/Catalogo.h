// The catalogue and the document type that the command line names.
#pragma once

#include <filesystem>
#include <optional>
#include <span>

#include "batch/Comandi.h"
#include "catalogue/Catalogo.h"

namespace parvik::batch {

struct CatalogoScelto {
  std::filesystem::path File;
  Catalogo Campi;
};

/// Where the catalogue is; empty after a message.
std::filesystem::path FileCatalogo(const Opzioni& opzioni);

/// nullopt after a message.
std::optional<CatalogoScelto> ApriCatalogo(const Opzioni& opzioni);

/// Any filled slot; nullptr after a message.
const TipoDoc* TrovaTipo(const CatalogoScelto& catalogo, int numero);

/// Says what is wrong with the sections' lines: each line that is wrong once, with all sections that it
/// belongs to.
void SegnalaErrori(const CatalogoScelto& catalogo, std::span<const ErroreSezione> errori);

/// Whether one of them tells that the catalogue is of another version.
bool AltraVersione(std::span<const ErroreSezione> errori);

}  // namespace parvik::batch
