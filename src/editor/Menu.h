// The menus as a table, and the one rule of what can be used when (docs/menus.md).
#pragma once

#include <span>

namespace parvik {

enum class GenereVoce { Menu, Voce, Separatore };

/// When an entry can be used.
enum class Uso {
  Sempre,
  SenzaTipo,   // only while no document type is chosen
  ConTipo,     // only while one is chosen
  TreSezioni,  // only while one with three sections is chosen
};

struct VoceMenu {
  const char* Nome;         // its objectName
  GenereVoce Genere;        // a Menu opens a top menu; what follows it belongs to it
  const char* Didascalia;   // UTF-8, with its access key
  const char* Scorciatoia;  // portable key names, "" for none
  Uso Quando;
  bool ConSpunta;  // shows a check mark
};

/// In the order of the screen.
std::span<const VoceMenu> VociMenu();

/// What the rule looks at.
struct StatoMenu {
  bool TipoScelto = false;
  bool TreSezioni = false;
};

bool Abilitata(const VoceMenu& voce, const StatoMenu& stato);

}  // namespace parvik
