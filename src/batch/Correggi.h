// Mends made in files, or shown.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "batch/Comandi.h"
#include "catalogue/Catalogo.h"
#include "verifica/Verifica.h"

namespace parvik::batch {

/// The file as it is now, or with `come.Prova` as it would be: then the changes go to standard output. What
/// could not be mended is told on standard error. The bytes of before are kept beside a file that was
/// written. nullopt after a message.
std::optional<std::string> CorreggiFile(const std::filesystem::path& file, Verificatore& verificatore,
                                        const Catalogo& catalogo, const ComeVerificare& come);

}  // namespace parvik::batch
