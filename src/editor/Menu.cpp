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
    VoceMenu{"mnuAnte",       Voce,       Comando::Anteprima,     "&Anteprima",              "F5",           ConTipo,    true},
    VoceMenu{"mnuComandi",    Menu,       {},                     "&Comandi",                "",             Sempre,     false},
    VoceMenu{"mnuVar",        Voce,       Comando::Variabile,     "&Variabile",              "Ctrl+1",       ConTipo,    false},
    VoceMenu{"mnuFlag",       Voce,       Comando::Flag,          "&Flag",                   "Ctrl+2",       ConTipo,    false},
    VoceMenu{"mnuStile",      Voce,       Comando::Stile,         "&Stile carattere",        "Ctrl+3",       ConTipo,    false},
    VoceMenu{"mnuLingua",     Voce,       Comando::Lingua,        "Variabile &lingua",       "Ctrl+4",       ConTipo,    false},
    VoceMenu{"mnuPagina",     Voce,       Comando::Pagina,        "&Numero pagina",          "Ctrl+5",       ConTipo,    false},
    VoceMenu{"mnuCostante",   Voce,       Comando::Costante,      "Co&stante",               "Ctrl+6",       ConTipo,    false},
    VoceMenu{"sep4",          Separatore, {},                     "",                        "",             Sempre,     false},
    VoceMenu{"mnuComando",    Voce,       Comando::ComandoCorpo,  "Co&mando corpo",          "Ctrl+7",       TreSezioni, false},
    VoceMenu{"mnuOpzioni",    Menu,       {},                     "&Opzioni",                "",             Sempre,     false},
    VoceMenu{"mnuRighe",      Voce,       Comando::TotaliRighe,   "Totali &righe",           "",             ConTipo,    true},
    VoceMenu{"mnuSettaFlag",  Voce,       Comando::SettaFlag,     "&Setta Flag per stampe",  "",             ConTipo,    true},
    VoceMenu{"mnuTool",       Menu,       {},                     "&Tools Comandi",          "",             ConTipo,    false},
    VoceMenu{"mnuAnnulla",    Voce,       Comando::Annulla,       "&Annulla",                "Ctrl+Z",       DaAnnullare, false},
    VoceMenu{"mnuRipeti",     Voce,       Comando::Ripeti,        "&Ripeti",                 "Ctrl+Y",       DaRipetere,  false},
    VoceMenu{"sep6",          Separatore, {},                     "",                        "",             Sempre,      false},
    VoceMenu{"mnuTrova",      Voce,       Comando::Trova,         "&Trova...",               "Ctrl+F",       ConTipo,     false},
    VoceMenu{"mnuTrovaSucc",  Voce,       Comando::TrovaSucc,     "Trova s&uccessivo",       "F3",           DaTrovare,   false},
    VoceMenu{"mnuTrovaPrec",  Voce,       Comando::TrovaPrec,     "Trova prece&dente",       "Shift+F3",     DaTrovare,   false},
    VoceMenu{"mnuSostituisci", Voce,      Comando::Sostituisci,   "&Sostituisci...",         "Ctrl+H",       ConTipo,     false},
    VoceMenu{"sep10",         Separatore, {},                     "",                        "",             Sempre,      false},
    VoceMenu{"mnuInserisci",  Voce,       Comando::Inserisci,     "&Inserisci codice...",    "Ctrl+Space",   ConTipo,     false},
    VoceMenu{"mnuVerifica",   Voce,       Comando::Verifica,      "&Verifica modello",       "F8",           ConTipo,     false},
    VoceMenu{"sep7",          Separatore, {},                     "",                        "",             Sempre,      false},
    VoceMenu{"mnuAnteAuto",   Voce,       Comando::AnteAuto,      "Anteprima automati&ca",   "",             ConTipo,     true},
    VoceMenu{"mnuMisura",     Voce,       Comando::Misura,        "Campi a &misura",         "F7",           ConTipo,     true},
    VoceMenu{"mnuVaiAnte",    Voce,       Comando::VaiAnte,       "Mostra nell'ante&prima",  "F6",           ConTipo,     false},
    VoceMenu{"sep8",          Separatore, {},                     "",                        "",             Sempre,      false},
    VoceMenu{"mnuMostra",     Sottomenu,  {},                     "M&ostra",                 "",             Sempre,      false},
    VoceMenu{"mnuBarraStrumenti", Voce,   Comando::BarraStrumenti, "Barra degli &strumenti", "",             Sempre,      true},
    VoceMenu{"mnuBarraStato", Voce,       Comando::BarraStato,    "Barra di s&tato",         "",             Sempre,      true},
    VoceMenu{"mnuRighello",   Voce,       Comando::Righello,      "&Righello",               "",             Sempre,      true},
    VoceMenu{"mnuPannelloCampi", Voce,    Comando::PannelloCampi, "Pannello &campi",         "Ctrl+Shift+V", Sempre,      true},
    VoceMenu{"mnuProblemi",   Voce,       Comando::Problemi,      "&Problemi",               "",             Sempre,      true},
    VoceMenu{"mnuFoglio",     Voce,       Comando::Foglio,        "&Foglio...",              "",             ConTipo,     false},
    VoceMenu{"mnuFlagVeri",   Voce,       Comando::FlagVeri,      "Flag tutti &veri",        "",             Sempre,      true},
    VoceMenu{"",              Fine,       {},                     "",                        "",             Sempre,      false},
    VoceMenu{"sep9",          Separatore, {},                     "",                        "",             Sempre,      false},
    VoceMenu{"mnuEsportaPdf", Voce,       Comando::EsportaPdf,    "Esporta PD&F...",         "",             ConTipo,     false},
    VoceMenu{"sep11",         Separatore, {},                     "",                        "",             Sempre,      false},
    VoceMenu{"mnuRicorda",    Voce,       Comando::Ricorda,       "Ricorda tra una sessione e l'a&ltra", "", Sempre,      true},
    VoceMenu{"mnuGuida",      Voce,       Comando::Guida,         "&Guida",                  "F1",           Sempre,      false},
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
    case DaAnnullare:
      return stato.TipoScelto && stato.PuoAnnullare;
    case DaRipetere:
      return stato.TipoScelto && stato.PuoRipetere;
    case DaTrovare:
      return stato.TipoScelto && stato.PuoTrovare;
    default:
      return true;
  }
}

bool Abilitato(Comando comando, const StatoMenu& stato) {
  return std::ranges::any_of(
      Voci, [&](const VoceMenu& voce) { return voce.Cosa == comando && Abilitata(voce, stato); });
}

std::string DidascaliaDi(const VoceMenu& voce, const StatoMenu& stato) {
  std::string didascalia = voce.Didascalia;
  if (voce.Quando != DaAnnullare && voce.Quando != DaRipetere) return didascalia;
  const std::string_view nome =
      NomeModifica(voce.Quando == DaAnnullare ? stato.DaAnnullare : stato.DaRipetere);
  if (!nome.empty()) didascalia.append(" ").append(nome);
  return didascalia;
}

std::optional<Preferenza> PreferenzaDi(Comando comando) {
  switch (comando) {
    case Comando::AnteAuto:
      return Preferenza::AnteAuto;
    case Comando::Misura:
      return Preferenza::Misura;
    case Comando::BarraStrumenti:
      return Preferenza::BarraStrumenti;
    case Comando::BarraStato:
      return Preferenza::BarraStato;
    case Comando::Righello:
      return Preferenza::Righello;
    case Comando::FlagVeri:
      return Preferenza::FlagVeri;
    case Comando::PannelloCampi:
      return Preferenza::PannelloCampi;
    case Comando::Problemi:
      return Preferenza::Problemi;
    case Comando::Ricorda:
      return Preferenza::Ricorda;
    default:
      return std::nullopt;
  }
}

bool Spuntato(Comando comando, const StatoMenu& stato) {
  if (const auto scelta = PreferenzaDi(comando)) return stato.Scelte[*scelta];
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
