#include "editor/Menu.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace parvik::prova {
namespace {

/// The table in the form in which a person would write it: name, caption, shortcut; what stands under a top
/// menu is indented, what stands in a submenu twice. A separator has a name only.
std::vector<std::string> Elenco() {
  std::vector<std::string> elenco;
  std::string rientro;
  for (const VoceMenu& voce : VociMenu()) {
    if (voce.Genere == GenereVoce::Fine) {
      rientro.resize(2);
      continue;
    }
    if (voce.Genere == GenereVoce::Menu) rientro.clear();
    std::string riga = rientro;
    if (voce.Genere == GenereVoce::Menu || voce.Genere == GenereVoce::Sottomenu) rientro += "  ";
    riga += voce.Nome;
    if (*voce.Didascalia != '\0') riga += std::string(" ") + voce.Didascalia;
    if (*voce.Scorciatoia != '\0') riga += std::string(" ") + voce.Scorciatoia;
    elenco.push_back(riga);
  }
  return elenco;
}

TEST(VociMenu, AreTheWholeTreeInTheOrderOfTheScreen) {
  const std::vector<std::string> atteso = {
      "mnuFile &File",
      "  mnuScelta &Tipo Stampa",
      "  sep1",
      "  mnuNuovo &Nuovo Ctrl+N",
      "  mnuApri &Apri Ctrl+O",
      "  mnuSalva Sa&lva Ctrl+S",
      "  mnuSalvaNome Salva con no&me Ctrl+Shift+S",
      "  sep2",
      "  mnuStampa &Stampa Ctrl+P",
      "  sep3",
      "  mnuInfo &Informazioni su...",
      "  sep5",
      "  mnuEsci &Esci Ctrl+Q",
      "mnuVisualizza &Visualizzazione",
      "  mnuAnte &Anteprima F5",
      "mnuComandi &Comandi",
      "  mnuVar &Variabile Ctrl+1",
      "  mnuFlag &Flag Ctrl+2",
      "  mnuStile &Stile carattere Ctrl+3",
      "  mnuLingua Variabile &lingua Ctrl+4",
      "  mnuPagina &Numero pagina Ctrl+5",
      "  mnuCostante Co&stante Ctrl+6",
      "  sep4",
      "  mnuComando Co&mando corpo Ctrl+7",
      "mnuOpzioni &Opzioni",
      "  mnuRighe Totali &righe",
      "  mnuSettaFlag &Setta Flag per stampe",
      "mnuTool &Tools Comandi",
      "  mnuAnnulla &Annulla Ctrl+Z",
      "  mnuRipeti &Ripeti Ctrl+Y",
      "  sep6",
      "  mnuTrova &Trova... Ctrl+F",
      "  mnuTrovaSucc Trova s&uccessivo F3",
      "  mnuTrovaPrec Trova prece&dente Shift+F3",
      "  mnuSostituisci &Sostituisci... Ctrl+H",
      "  sep10",
      "  mnuInserisci &Inserisci codice... Ctrl+Space",
      "  mnuVerifica &Verifica modello F8",
      "  sep7",
      "  mnuAnteAuto Anteprima automati&ca",
      "  mnuMisura Campi a &misura F7",
      "  mnuVaiAnte Mostra nell'ante&prima F6",
      "  sep8",
      "  mnuMostra M&ostra",
      "    mnuBarraStrumenti Barra degli &strumenti",
      "    mnuBarraStato Barra di s&tato",
      "    mnuRighello &Righello",
      "    mnuPannelloCampi Pannello &campi Ctrl+Shift+V",
      "    mnuProblemi &Problemi",
      "    mnuFoglio &Foglio...",
      "    mnuFlagVeri Flag tutti &veri",
      "  sep9",
      "  mnuEsportaPdf Esporta PD&F...",
      "  sep11",
      "  mnuRicorda Ricorda tra una sessione e l'a&ltra",
      "  mnuGuida &Guida F1",
  };
  EXPECT_EQ(atteso, Elenco());
}

TEST(VociMenu, AreSeparatorsExactlyWhereTheNameSaysSo) {
  for (const VoceMenu& voce : VociMenu()) {
    EXPECT_EQ(std::string(voce.Nome).starts_with("sep"), voce.Genere == GenereVoce::Separatore) << voce.Nome;
  }
}

TEST(VociMenu, ShowACheckMarkForWhatIsShownAndHidden) {
  const std::set<std::string> conSpunta = {
      "mnuAnte",       "mnuRighe",    "mnuSettaFlag", "mnuAnteAuto", "mnuMisura",        "mnuBarraStrumenti",
      "mnuBarraStato", "mnuRighello", "mnuFlagVeri",  "mnuProblemi", "mnuPannelloCampi", "mnuRicorda"};
  for (const VoceMenu& voce : VociMenu())
    EXPECT_EQ(conSpunta.contains(voce.Nome), voce.ConSpunta) << voce.Nome;
}

using Nomi = std::set<std::string>;

/// The names of the entries that cannot be used.
Nomi Disabilitate(const StatoMenu& stato) {
  Nomi nomi;
  for (const VoceMenu& voce : VociMenu()) {
    if (!Abilitata(voce, stato)) nomi.insert(voce.Nome);
  }
  return nomi;
}

TEST(Abilitata, LeavesOnlyTheChoiceOfATypeTheAboutBoxAndTheExitWithoutAType) {
  EXPECT_EQ(
      (Nomi{"mnuAnte",      "mnuApri",      "mnuComando",     "mnuCostante",  "mnuFlag",      "mnuLingua",
            "mnuNuovo",     "mnuPagina",    "mnuSalva",       "mnuSalvaNome", "mnuStampa",    "mnuStile",
            "mnuVar",       "mnuRighe",     "mnuSettaFlag",   "mnuTool",      "mnuAnnulla",   "mnuRipeti",
            "mnuAnteAuto",  "mnuMisura",    "mnuFoglio",      "mnuVerifica",  "mnuVaiAnte",   "mnuTrova",
            "mnuTrovaSucc", "mnuTrovaPrec", "mnuSostituisci", "mnuInserisci", "mnuEsportaPdf"}),
      Disabilitate({.TipoScelto = false, .TreSezioni = false}));
}

TEST(Abilitata, TakesAwayTheChoiceOfATypeWithATypeOfThreeSections) {
  EXPECT_EQ((Nomi{"mnuScelta", "mnuAnnulla", "mnuRipeti", "mnuTrovaSucc", "mnuTrovaPrec"}),
            Disabilitate({.TipoScelto = true, .TreSezioni = true}));
}

TEST(Abilitata, TakesAwayTheBodyCommandTooWithATypeOfOneSection) {
  EXPECT_EQ((Nomi{"mnuScelta", "mnuComando", "mnuAnnulla", "mnuRipeti", "mnuTrovaSucc", "mnuTrovaPrec"}),
            Disabilitate({.TipoScelto = true, .TreSezioni = false}));
}

TEST(Abilitata, OffersUndoAndRedoWhileThereIsAStep) {
  EXPECT_EQ((Nomi{"mnuScelta", "mnuRipeti", "mnuTrovaSucc", "mnuTrovaPrec"}),
            Disabilitate({.TipoScelto = true, .TreSezioni = true, .PuoAnnullare = true}));
  EXPECT_EQ((Nomi{"mnuScelta", "mnuAnnulla", "mnuTrovaSucc", "mnuTrovaPrec"}),
            Disabilitate({.TipoScelto = true, .TreSezioni = true, .PuoRipetere = true}));
}

TEST(Abilitato, IsACommandWhoseEntryCanBeUsed) {
  for (const StatoMenu& stato :
       {StatoMenu{}, StatoMenu{.TipoScelto = true}, StatoMenu{.TipoScelto = true, .TreSezioni = true}}) {
    for (const VoceMenu& voce : VociMenu()) {
      if (voce.Genere != GenereVoce::Voce) continue;
      EXPECT_EQ(Abilitato(voce.Cosa.value(), stato), Abilitata(voce, stato)) << voce.Nome;
    }
  }
}

/// The names of the entries whose check mark is there.
Nomi Spuntate(const StatoMenu& stato) {
  Nomi nomi;
  for (const VoceMenu& voce : VociMenu()) {
    if (voce.Cosa && Spuntato(*voce.Cosa, stato)) nomi.insert(voce.Nome);
  }
  return nomi;
}

TEST(Spuntato, IsWhatIsShown) {
  StatoMenu spento{.TipoScelto = true, .TreSezioni = true};
  spento.Scelte.Imposta(Preferenza::BarraStato, false);
  spento.Scelte.Imposta(Preferenza::BarraStrumenti, false);
  const auto con = [&spento](bool StatoMenu::*acceso) {
    StatoMenu stato = spento;
    stato.*acceso = true;
    return stato;
  };
  EXPECT_EQ(Nomi{}, Spuntate(spento));
  EXPECT_EQ(Nomi{"mnuAnte"}, Spuntate(con(&StatoMenu::Anteprima)));
  EXPECT_EQ(Nomi{"mnuRighe"}, Spuntate(con(&StatoMenu::TotaliRighe)));
  EXPECT_EQ(Nomi{"mnuSettaFlag"}, Spuntate(con(&StatoMenu::SettaFlag)));
}

TEST(Spuntato, IsASwitchThatIsOn) {
  EXPECT_EQ((Nomi{"mnuBarraStato", "mnuBarraStrumenti"}), Spuntate({}));
  for (const VoceMenu& voce : VociMenu()) {
    const auto quale = voce.Cosa ? PreferenzaDi(*voce.Cosa) : std::nullopt;
    if (!quale) continue;
    StatoMenu stato;
    stato.Scelte.Imposta(Preferenza::BarraStato, false);
    stato.Scelte.Imposta(Preferenza::BarraStrumenti, false);
    stato.Scelte.Imposta(*quale, true);
    EXPECT_EQ(Nomi{voce.Nome}, Spuntate(stato));
  }
}

}  // namespace
}  // namespace parvik::prova
