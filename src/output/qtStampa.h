// Printing, as the main window sees it: the print module, and the waiting.
#pragma once

#include <QWidget>
#include <filesystem>
#include <functional>
#include <string>

#include "common/Esito.h"
#include "output/qtStampante.h"
#include "output/ricCarta.h"

namespace parvik {

/// Loads the print module that lies in a folder; nothing when it is loaded already. It stays, its owner is
/// the toolkit. The error is the message that the user sees: what happened, and on a second line the
/// module's path. UTF-8.
Esito<ModuloStampa*, std::string> CaricaModuloStampa(const std::filesystem::path& cartella);

/// How work on paper is waited for.
struct AttesaCarta {
  QWidget* Padre = nullptr;
  const char* Nome = "";   // of the box
  const char* Testo = "";  // what it says
  /// Asked after each page: false gives the job up.
  std::function<bool()> Serve = [] { return true; };
};

/// Prints. When it takes longer than half a second a box in front of the window says so and offers "Annulla",
/// which gives the job up. Returns whether the job was handed over whole; what became of it then is unknown.
bool StampaConAttesa(Stampante& stampante, const LavoroCarta& lavoro, const AttesaCarta& attesa);

}  // namespace parvik
