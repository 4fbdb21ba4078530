#include "editor/Menu.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace parvik::prova {
namespace {

/// The table in the form in which a person would write it: name, caption, shortcut; what stands under a top
/// menu is indented. A separator has a name only.
std::vector<std::string> Elenco() {
  std::vector<std::string> elenco;
  for (const VoceMenu& voce : VociMenu()) {
    std::string riga = voce.Genere == GenereVoce::Menu ? "" : "  ";
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
      "  mnuAnte &Anteprima",
      "mnuComandi &Comandi",
      "  mnuVar &Variabile",
      "  mnuFlag &Flag",
      "  mnuStile &Stile carattere",
      "  mnuLingua Variabile &lingua",
      "  mnuPagina &Numero pagina",
      "  mnuCostante Co&stante",
      "  sep4",
      "  mnuComando Co&mando corpo",
      "mnuOpzioni &Opzioni",
      "  mnuRighe Totali &righe",
      "  mnuSettaFlag &Setta Flag per stampe",
      "mnuTool &Tools Comandi",
  };
  EXPECT_EQ(atteso, Elenco());
}

TEST(VociMenu, AreSeparatorsExactlyWhereTheNameSaysSo) {
  for (const VoceMenu& voce : VociMenu()) {
    EXPECT_EQ(std::string(voce.Nome).starts_with("sep"), voce.Genere == GenereVoce::Separatore) << voce.Nome;
  }
}

TEST(VociMenu, ShowACheckMarkForWhatIsShownAndHidden) {
  for (const VoceMenu& voce : VociMenu()) {
    const std::string nome = voce.Nome;
    EXPECT_EQ(nome == "mnuAnte" || nome == "mnuRighe" || nome == "mnuSettaFlag", voce.ConSpunta) << nome;
  }
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
  EXPECT_EQ((Nomi{"mnuAnte", "mnuApri", "mnuComando", "mnuCostante", "mnuFlag", "mnuLingua", "mnuNuovo",
                  "mnuPagina", "mnuSalva", "mnuSalvaNome", "mnuStampa", "mnuStile", "mnuVar", "mnuRighe",
                  "mnuSettaFlag", "mnuTool"}),
            Disabilitate({.TipoScelto = false, .TreSezioni = false}));
}

TEST(Abilitata, TakesAwayTheChoiceOfATypeWithATypeOfThreeSections) {
  EXPECT_EQ(Nomi{"mnuScelta"}, Disabilitate({.TipoScelto = true, .TreSezioni = true}));
}

TEST(Abilitata, TakesAwayTheBodyCommandTooWithATypeOfOneSection) {
  EXPECT_EQ((Nomi{"mnuScelta", "mnuComando"}), Disabilitate({.TipoScelto = true, .TreSezioni = false}));
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
  EXPECT_EQ(Nomi{}, Spuntate({.TipoScelto = true, .TreSezioni = true}));
  EXPECT_EQ(Nomi{"mnuAnte"}, Spuntate({.Anteprima = true}));
  EXPECT_EQ(Nomi{"mnuRighe"}, Spuntate({.TotaliRighe = true}));
  EXPECT_EQ(Nomi{"mnuSettaFlag"}, Spuntate({.SettaFlag = true}));
}

}  // namespace
}  // namespace parvik::prova
