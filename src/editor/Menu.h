// The menus as a table, and the one rule of what can be used when (docs/menus.md).
#pragma once

#include <optional>
#include <span>
#include <string>

#include "editor/Preferenze.h"
#include "template/RegistroModifiche.h"

namespace parvik {

enum class GenereVoce {
  Menu,       // opens a top menu; what follows it belongs to it
  Sottomenu,  // opens a menu in the one that is open; what follows it belongs to it, up to its end
  Fine,       // of a submenu
  Voce,
  Separatore,
};

/// When an entry can be used.
enum class Uso {
  Sempre,
  SenzaTipo,    // only while no document type is chosen
  ConTipo,      // only while one is chosen
  TreSezioni,   // only while one with three sections is chosen
  DaAnnullare,  // only while there is a change to take back
  DaRipetere,   // only while there is one to do again
  DaTrovare,    // only while something is looked for
};

/// What an entry does, in the order of the screen.
enum class Comando {
  TipoStampa,
  Nuovo,
  Apri,
  Salva,
  SalvaConNome,
  Stampa,
  Informazioni,
  Esci,
  Anteprima,
  Variabile,
  Flag,
  Stile,
  Lingua,
  Pagina,
  Costante,
  ComandoCorpo,
  TotaliRighe,
  SettaFlag,
  Annulla,
  Ripeti,
  Trova,
  TrovaSucc,
  TrovaPrec,
  Sostituisci,
  Inserisci,
  Verifica,
  AnteAuto,
  Misura,
  VaiAnte,
  BarraStrumenti,
  BarraStato,
  Righello,
  PannelloCampi,
  Problemi,
  Foglio,
  FlagVeri,
  EsportaPdf,
  Ricorda,
  Guida,
};

/// The switch that a command turns; nullopt of those that turn none.
std::optional<Preferenza> PreferenzaDi(Comando comando);

struct VoceMenu {
  const char* Nome;  // its objectName
  GenereVoce Genere;
  std::optional<Comando> Cosa;  // of an entry, and of nothing else
  const char* Didascalia;       // UTF-8, with its access key
  const char* Scorciatoia;      // portable key names, "" for none
  Uso Quando;
  bool ConSpunta;  // shows a check mark
};

/// In the order of the screen.
std::span<const VoceMenu> VociMenu();

/// What the rule looks at, and what is shown.
struct StatoMenu {
  bool TipoScelto = false;
  bool TreSezioni = false;
  bool Anteprima = false;
  bool TotaliRighe = false;
  bool SettaFlag = false;
  bool PuoAnnullare = false;
  bool PuoRipetere = false;
  bool PuoTrovare = false;
  GenereModifica DaAnnullare = GenereModifica::Intera;  // the step that would be undone
  GenereModifica DaRipetere = GenereModifica::Intera;
  Preferenze Scelte = {};
};

bool Abilitata(const VoceMenu& voce, const StatoMenu& stato);
bool Abilitato(Comando comando, const StatoMenu& stato);

/// An entry's caption now, UTF-8, with its access key: undo and redo say what they would undo and redo.
std::string DidascaliaDi(const VoceMenu& voce, const StatoMenu& stato);

/// Whether the command's check mark is there; false of those that have none.
bool Spuntato(Comando comando, const StatoMenu& stato);

}  // namespace parvik
