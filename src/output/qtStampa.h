// Printing, as the main window sees it: the print module, and the waiting.
#pragma once

#include <QWidget>
#include <filesystem>
#include <string>

#include "common/Esito.h"
#include "output/qtStampante.h"
#include "output/ricCarta.h"

namespace parvik {

/// Loads the print module that lies in a folder; nothing when it is loaded already. It stays, its owner is
/// the toolkit. The error is the message that the user sees: what happened, and on a second line the
/// module's path. UTF-8.
Esito<ModuloStampa*, std::string> CaricaModuloStampa(const std::filesystem::path& cartella);

/// Prints. When it takes longer than half a second a box in front of `padre` says so and offers "Annulla",
/// which gives the job up. Failures are silent.
void StampaConAttesa(Stampante& stampante, const LavoroCarta& lavoro, QWidget* padre);

}  // namespace parvik
