#include "output/qtTestiStampa.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace parvik {
namespace {

struct Voce {
  std::string_view Contesto;
  std::string_view Testo;
  const char* Italiano;
};

constexpr std::array Voci = {
    Voce{"QPrintSettingsOutput", "Double Sided Printing", "Stampa fronte/retro"},
    Voce{"QPrintSettingsOutput", "Off", "No"},
    Voce{"QPrintSettingsOutput", "Long side binding", "Rilegatura sul lato lungo"},
    Voce{"QPrintSettingsOutput", "Short side binding", "Rilegatura sul lato corto"},
    Voce{"QPrintPropertiesWidget", "Advanced", "Avanzate"},
    Voce{"QPrintPropertiesWidget", "There are conflicts in some options. Please fix them.",
         "Alcune opzioni sono in conflitto tra loro: occorre cambiarle."},
    Voce{"QPrintPropertiesDialog", "Page Setup Conflicts", "Conflitti nelle impostazioni della pagina"},
    Voce{"QPrintPropertiesDialog", "There are conflicts in page setup options. Do you want to fix them?",
         "Alcune impostazioni della pagina sono in conflitto con altre. Cambiarle?"},
    Voce{"QPrintPropertiesDialog", "Advanced Option Conflicts", "Conflitti nelle opzioni avanzate"},
    Voce{"QPrintPropertiesDialog", "There are conflicts in some advanced options. Do you want to fix them?",
         "Alcune opzioni avanzate sono in conflitto tra loro. Cambiarle?"},
    Voce{"QPrintDialog", "Duplex Settings Conflicts", "Conflitti nella stampa fronte/retro"},
    Voce{"QPrintDialog", "There are conflicts in duplex settings. Do you want to fix them?",
         "La stampa fronte/retro è in conflitto con altre opzioni. Cambiarla?"},
};

}  // namespace

QString qtTestiStampa::translate(const char* contesto, const char* testo, const char* /*senso*/,
                                 int /*numero*/) const {
  const auto* voce =
      std::ranges::find_if(Voci, [&](const Voce& v) { return v.Contesto == contesto && v.Testo == testo; });
  return voce == Voci.end() ? QString() : QString::fromUtf8(voce->Italiano);
}

}  // namespace parvik
