#include "editor/Menu.h"

#include <array>

namespace parvik {
namespace {

using enum GenereVoce;
using enum Uso;

// clang-format off
constexpr std::array Voci = {
    VoceMenu{"mnuFile",       Menu,       "&File",                   "",             Sempre,     false},
    VoceMenu{"mnuScelta",     Voce,       "&Tipo Stampa",            "",             SenzaTipo,  false},
    VoceMenu{"sep1",          Separatore, "",                        "",             Sempre,     false},
    VoceMenu{"mnuNuovo",      Voce,       "&Nuovo",                  "Ctrl+N",       ConTipo,    false},
    VoceMenu{"mnuApri",       Voce,       "&Apri",                   "Ctrl+O",       ConTipo,    false},
    VoceMenu{"mnuSalva",      Voce,       "Sa&lva",                  "Ctrl+S",       ConTipo,    false},
    VoceMenu{"mnuSalvaNome",  Voce,       "Salva con no&me",         "Ctrl+Shift+S", ConTipo,    false},
    VoceMenu{"sep2",          Separatore, "",                        "",             Sempre,     false},
    VoceMenu{"mnuStampa",     Voce,       "&Stampa",                 "Ctrl+P",       ConTipo,    false},
    VoceMenu{"sep3",          Separatore, "",                        "",             Sempre,     false},
    VoceMenu{"mnuInfo",       Voce,       "&Informazioni su...",     "",             Sempre,     false},
    VoceMenu{"sep5",          Separatore, "",                        "",             Sempre,     false},
    VoceMenu{"mnuEsci",       Voce,       "&Esci",                   "Ctrl+Q",       Sempre,     false},
    VoceMenu{"mnuVisualizza", Menu,       "&Visualizzazione",        "",             Sempre,     false},
    VoceMenu{"mnuAnte",       Voce,       "&Anteprima",              "",             ConTipo,    true},
    VoceMenu{"mnuComandi",    Menu,       "&Comandi",                "",             Sempre,     false},
    VoceMenu{"mnuVar",        Voce,       "&Variabile",              "",             ConTipo,    false},
    VoceMenu{"mnuFlag",       Voce,       "&Flag",                   "",             ConTipo,    false},
    VoceMenu{"mnuStile",      Voce,       "&Stile carattere",        "",             ConTipo,    false},
    VoceMenu{"mnuLingua",     Voce,       "Variabile &lingua",       "",             ConTipo,    false},
    VoceMenu{"mnuPagina",     Voce,       "&Numero pagina",          "",             ConTipo,    false},
    VoceMenu{"mnuCostante",   Voce,       "Co&stante",               "",             ConTipo,    false},
    VoceMenu{"sep4",          Separatore, "",                        "",             Sempre,     false},
    VoceMenu{"mnuComando",    Voce,       "Co&mando corpo",          "",             TreSezioni, false},
    VoceMenu{"mnuOpzioni",    Menu,       "&Opzioni",                "",             Sempre,     false},
    VoceMenu{"mnuRighe",      Voce,       "Totali &righe",           "",             ConTipo,    true},
    VoceMenu{"mnuSettaFlag",  Voce,       "&Setta Flag per stampe",  "",             ConTipo,    true},
    VoceMenu{"mnuTool",       Menu,       "&Tools Comandi",          "",             ConTipo,    false},
};
// clang-format on

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

}  // namespace parvik
