// docs/verifica.md
#include "editor/Problemi.h"

#include <gmock/gmock.h>

#include "BancoEditore.h"
#include "supporto/NomeSelezione.h"

namespace parvik::prova {
namespace {

using testing::ElementsAre;

class ProblemiTest : public BancoEditore {
 protected:
  ProblemiTest() {
    editore_.ScegliTipo(Fattura);
    editore_.Commuta(Preferenza::Problemi);
  }
  void Verifica() {
    ASSERT_TRUE(editore_.VerificaDaRifare());
    EXPECT_FALSE(editore_.RinnovaVerifica().has_value()) << "short: at once";
  }
  std::vector<std::string> Regole() const {
    std::vector<std::string> regole;
    for (const Rilievo& rilievo : editore_.Trovati().Trovati())
      regole.emplace_back(VoceDi(rilievo.Quale).Nome);
    return regole;
  }
  /// As the user does.
  void Scrivi(std::size_t dove, std::size_t tolti, const std::string& messi) {
    editore_.Modello().Applica(Sezione::Testata, {.Dove = dove, .Tolti = tolti, .Messi = messi},
                               GenereModifica::Intera, {});
  }
  std::optional<Selezione> Posto(std::size_t quale) const { return editore_.Trovati().Posto(quale); }
};

constexpr const char* DueErrori =
    "ab\xAB"
    "X\xBB"
    "cd\xAB"
    "Y\xBB"
    "ef\r\n";

TEST_F(ProblemiTest, AreLookedForWhenTheyAreShownAndWhenSomethingHasChanged) {
  EXPECT_TRUE(editore_.VerificaDaRifare());
  EXPECT_EQ(editore_.DettiProblemi(), "") << "not looked for yet";
  Verifica();
  EXPECT_FALSE(editore_.VerificaDaRifare());
  EXPECT_EQ(editore_.DettiProblemi(), "Nessun problema");
  Scrivi(0, 0, "x");
  EXPECT_TRUE(editore_.VerificaDaRifare());
  Verifica();
  editore_.ImpostaCorpo({.RigheCorpo = 7, .LineeCorpo = 1, .FlagSbarra = "", .FlagAccorpa = ""});
  EXPECT_TRUE(editore_.VerificaDaRifare());
  Verifica();
  editore_.ImpostaPaginaVerifica({.Larghezza = 80});
  EXPECT_TRUE(editore_.VerificaDaRifare());
  editore_.Commuta(Preferenza::Problemi);
  EXPECT_FALSE(editore_.VerificaDaRifare()) << "nobody wants to know";
}

TEST_F(ProblemiTest, AreCountedInWords) {
  EXPECT_EQ(ContoProblemi(0, 0), "Nessun problema");
  EXPECT_EQ(ContoProblemi(1, 0), "1 errore");
  EXPECT_EQ(ContoProblemi(0, 1), "1 avviso");
  EXPECT_EQ(ContoProblemi(2, 3), "2 errori, 3 avvisi");
  Imposta(Sezione::Testata, DueErrori);
  Verifica();
  EXPECT_EQ(editore_.DettiProblemi(), "2 errori");
  EXPECT_EQ(editore_.Barra({}, {}).Problemi, "2 errori");
}

TEST_F(ProblemiTest, GoWithTheirTextUntilTheyAreLookedForAnew) {
  Imposta(Sezione::Testata, DueErrori);
  Verifica();
  EXPECT_THAT(Regole(), ElementsAre("codice-sconosciuto", "codice-sconosciuto"));
  EXPECT_EQ(Posto(0), (Selezione{.Inizio = 2, .Lunghezza = 3}));
  EXPECT_EQ(Posto(1), (Selezione{.Inizio = 7, .Lunghezza = 3}));
  Scrivi(0, 1, "xyz");
  EXPECT_EQ(Posto(0), (Selezione{.Inizio = 4, .Lunghezza = 3}));
  Scrivi(7, 0, "z");  // right behind the first one
  EXPECT_EQ(Posto(0), (Selezione{.Inizio = 4, .Lunghezza = 3}));
  EXPECT_EQ(Posto(1), (Selezione{.Inizio = 10, .Lunghezza = 3}));
  Scrivi(5, 1, "V");
  EXPECT_EQ(Posto(0), std::nullopt) << "it is another code";
  EXPECT_EQ(Posto(1), (Selezione{.Inizio = 10, .Lunghezza = 3}));
  const auto segni = editore_.Trovati().In(Sezione::Testata, {.Inizio = 12, .Lunghezza = 1});
  ASSERT_EQ(segni.size(), 1U);
  EXPECT_EQ(segni[0].Quale, 1U);
  EXPECT_TRUE(editore_.Trovati().In(Sezione::Testata, {.Inizio = 13, .Lunghezza = 5}).empty());
  Imposta(Sezione::Testata, DueErrori);
  EXPECT_EQ(Posto(1), std::nullopt);
}

TEST_F(ProblemiTest, ALongTemplateIsLookedAtElsewhereAndWhatIsTypedMeanwhileIsMinded) {
  Imposta(Sezione::Testata, DueErrori + std::string(70'000, 'x') + "\r\n");
  const auto lavoro = editore_.RinnovaVerifica();
  ASSERT_TRUE(lavoro);
  EXPECT_FALSE(editore_.VerificaDaRifare()) << "it is under way";
  Scrivi(0, 0, "zz");
  EXPECT_TRUE(editore_.VerificaDaRifare());
  editore_.Consegna(lavoro->Esegui());
  EXPECT_EQ(Posto(1), (Selezione{.Inizio = 9, .Lunghezza = 3}));
  EXPECT_TRUE(editore_.VerificaDaRifare());
}

TEST_F(ProblemiTest, OfAnOlderLookAreNotTold) {
  Imposta(Sezione::Testata, DueErrori + std::string(70'000, 'x') + "\r\n");
  const auto vecchio = editore_.RinnovaVerifica();
  Imposta(Sezione::Testata, "\r\n");
  Verifica();
  editore_.Consegna(vecchio->Esegui());
  EXPECT_THAT(Regole(), ElementsAre());
  CambiaTipo(Listino);
  EXPECT_EQ(editore_.DettiProblemi(), "") << "another template";
}

TEST_F(ProblemiTest, PutTheCaretOnTheirPlace) {
  Imposta(Sezione::Testata, DueErrori);
  Verifica();
  editore_.RaggiungiProblema(1);
  EXPECT_THAT(vista_.Raggiunti, ElementsAre(CursoreSezione{.Dove = Sezione::Testata, .Dentro = {7, 7}}));
  Scrivi(7, 3, "");
  editore_.RaggiungiProblema(1);
  EXPECT_EQ(vista_.Raggiunti.size(), 1U) << "it is gone";
}

TEST_F(ProblemiTest, AreMendedInOneStepWhereThereIsOneRightAnswer) {
  const std::string prima =
      "\xAB"
      "V4;05L\xBB \xAB"
      "X\xBB \xAB"
      "V5;030L\xBB\r\n";
  Imposta(Sezione::Testata, prima);
  Verifica();
  ASSERT_THAT(Regole(), ElementsAre("formato-diverso", "codice-sconosciuto", "formato-diverso"));
  const std::vector<std::size_t> tutti = {0, 1, 2};
  editore_.CorreggiProblemi(tutti);
  EXPECT_EQ(Testo(Sezione::Testata),
            "\xAB"
            "V4;5L\xBB \xAB"
            "X\xBB \xAB"
            "V5;30L\xBB\r\n");
  EXPECT_TRUE(editore_.Modello().Stato().Modificato);
  editore_.Annulla();
  EXPECT_EQ(Testo(Sezione::Testata), prima);
  EXPECT_FALSE(editore_.Modello().PuoAnnullare());
}

TEST_F(ProblemiTest, NothingToMendChangesNothing) {
  Imposta(Sezione::Testata, DueErrori);
  Verifica();
  const std::vector<std::size_t> tutti = {0, 1};
  editore_.CorreggiProblemi(tutti);
  EXPECT_FALSE(editore_.Modello().PuoAnnullare());
}

TEST_F(ProblemiTest, SayThatTheTemplateSeemsToBeOfAnotherType) {
  const std::string ddt = Contenuto(Esempio() / "D_IMG" / "DDT01.IMG");
  const auto letta = LeggiImmagine(ddt, Formato::TreSezioni, ImpostazioniPredefinite());
  Imposta({std::string(letta->Testi[0]), std::string(letta->Testi[1]), std::string(letta->Testi[2])});
  Verifica();
  EXPECT_EQ(editore_.Trovati().Avviso(), "Sembra un modello di «Documento di trasporto»");
  Imposta(Sezione::Testata, "\r\n");
  Imposta(Sezione::Corpo, "\r\n");
  Imposta(Sezione::Piede, "\r\n");
  Verifica();
  EXPECT_EQ(editore_.Trovati().Avviso(), "");
}

}  // namespace
}  // namespace parvik::prova
