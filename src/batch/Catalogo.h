// The catalogue and the document type that the command line names.
#pragma once

#include <filesystem>
#include <optional>

#include "batch/Comandi.h"
#include "catalogue/Catalogo.h"

namespace parvik::batch {

struct CatalogoScelto {
  std::filesystem::path File;
  Catalogo Campi;
};

/// nullopt after a message.
std::optional<CatalogoScelto> ApriCatalogo(const Opzioni& opzioni);

/// Any filled slot; nullptr after a message.
const TipoDoc* TrovaTipo(const CatalogoScelto& catalogo, int numero);

/// Says what is wrong with a section's lines. True when the catalogue is of another version.
bool SegnalaErroreSezione(const CatalogoScelto& catalogo, NumeroErrore errore);

}  // namespace parvik::batch
