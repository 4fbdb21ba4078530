// Templates as the batch program reads them: each as the editor does right after it was started.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include "catalogue/TipoDoc.h"
#include "template/ImmagineModello.h"

namespace parvik::batch {

/// nullopt after a message. Draws a warning when the file has fewer body lines than its marker promises.
std::optional<ImmagineLetta> LeggiModello(const std::filesystem::path& file, const TipoDoc& tipo);
/// The same for a look at it; nullptr after a message.
std::unique_ptr<const ImmagineInPosto> ApriModello(const std::filesystem::path& file, const TipoDoc& tipo);

}  // namespace parvik::batch
