#include "editor/Menu.h"

#include <algorithm>
#include <array>

namespace parvik {
namespace {

using enum GenereVoce;
using enum Uso;

// clang-format off
constexpr std::array Voci = {
    VoceMenu{"mnuFile",       Menu,       {},                     "&File",                   "",             Sempre,     false},
    VoceMenu{"mnuScelta",     Voce,       Comando::TipoStampa,    "&Tipo Stampa",            "",             SenzaTipo,  false},
    VoceMenu{"sep1",          Separatore, {},                     "",                        "",             Sempre,     false},
    VoceMenu{"mnuNuovo",      Voce,       Comando::Nuovo,         "&Nuovo",                  "Ctrl+N",       ConTipo,    false},
    VoceMenu{"mnuApri",       Voce,       Comando::Apri,          "&Apri",                   "Ctrl+O",       ConTipo,    false},
    VoceMenu{"mnuSalva",      Voce,       Comando::Salva,         "Sa&lva",                  "Ctrl+S",       ConTipo,    false},
    VoceMenu{"mnuSalvaNome",  Voce,       Comando::SalvaConNome,  "Salva con no&me",         "Ctrl+Shift+S", ConTipo,    false},
    VoceMenu{"sep2",          Separatore, {},                     "",                        "",             Sempre,     false},
    VoceMenu{"mnuStampa",     Voce,       Comando::Stampa,        "&Stampa",                 "Ctrl+P",       ConTipo,    false},
    VoceMenu{"sep3",          Separatore, {},                     "",                        "",             Sempre,     false},
    VoceMenu{"mnuInfo",       Voce,       Comando::Informazioni,  "&Informazioni su...",     "",             Sempre,     false},
    VoceMenu{"sep5",          Separatore, {},                     "",                        "",             Sempre,     false},
    VoceMenu{"mnuEsci",       Voce,       Comando::Esci,          "&Esci",                   "Ctrl+Q",       Sempre,     false},
    VoceMenu{"mnuVisualizza", Menu,       {},                     "&Visualizzazione",        "",             Sempre,     false},
    VoceMenu{"mnuAnte",       Voce,       Comando::Anteprima,     "&Anteprima",              "",             ConTipo,    true},
    VoceMenu{"mnuComandi",    Menu,       {},                     "&Comandi",                "",             Sempre,     false},
    VoceMenu{"mnuVar",        Voce,       Comando::Variabile,     "&Variabile",              "",             ConTipo,    false},
    VoceMenu{"mnuFlag",       Voce,       Comando::Flag,          "&Flag",                   "",             ConTipo,    false},
    VoceMenu{"mnuStile",      Voce,       Comando::Stile,         "&Stile carattere",        "",             ConTipo,    false},
    VoceMenu{"mnuLingua",     Voce,       Comando::Lingua,        "Variabile &lingua",       "",             ConTipo,    false},
    VoceMenu{"mnuPagina",     Voce,       Comando::Pagina,        "&Numero pagina",          "",             ConTipo,    false},
    VoceMenu{"mnuCostante",   Voce,       Comando::Costante,      "Co&stante",               "",             ConTipo,    false},
    VoceMenu{"sep4",          Separatore, {},                     "",                        "",             Sempre,     false},
    VoceMenu{"mnuComando",    Voce,       Comando::ComandoCorpo,  "Co&mando corpo",          "",             TreSezioni, false},
    VoceMenu{"mnuOpzioni",    Menu,       {},                     "&Opzioni",                "",             Sempre,     false},
    VoceMenu{"mnuRighe",      Voce,       Comando::TotaliRighe,   "Totali &righe",           "",             ConTipo,    true},
    VoceMenu{"mnuSettaFlag",  Voce,       Comando::SettaFlag,     "&Setta Flag per stampe",  "",             ConTipo,    true},
    VoceMenu{"mnuTool",       Menu,       {},                     "&Tools Comandi",          "",             ConTipo,    false},
};
// clang-format on

/// Each entry has the command that stands at its place in the enumeration, and nothing else has one.
constexpr bool UnaVocePerComando() {
  int prossimo = 0;
  for (const VoceMenu& voce : Voci) {
    if (voce.Cosa.has_value() != (voce.Genere == Voce)) return false;
    if (voce.Cosa && static_cast<int>(*voce.Cosa) != prossimo++) return false;
  }
  return true;
}
static_assert(UnaVocePerComando(), "each entry has a command, in the order of the enumeration");

}  // namespace

std::span<const VoceMenu> VociMenu() {
  return Voci;
}

bool Abilitata(const VoceMenu& voce, const StatoMenu& stato) {
  switch (voce.Quando) {
    case SenzaTipo:
      return !stato.TipoScelto;
    case ConTipo:
      return stato.TipoScelto;
    case TreSezioni:
      return stato.TipoScelto && stato.TreSezioni;
    default:
      return true;
  }
}

bool Abilitato(Comando comando, const StatoMenu& stato) {
  return std::ranges::any_of(
      Voci, [&](const VoceMenu& voce) { return voce.Cosa == comando && Abilitata(voce, stato); });
}

bool Spuntato(Comando comando, const StatoMenu& stato) {
  switch (comando) {
    case Comando::Anteprima:
      return stato.Anteprima;
    case Comando::TotaliRighe:
      return stato.TotaliRighe;
    case Comando::SettaFlag:
      return stato.SettaFlag;
    default:
      return false;
  }
}

}  // namespace parvik
