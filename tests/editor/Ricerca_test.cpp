// docs/ricerca.md
#include "editor/Ricerca.h"

#include <gmock/gmock.h>

#include "BancoEditore.h"
#include "cerca/EspressioneDiProva.h"
#include "common/Windows1252.h"
#include "supporto/NomeSelezione.h"

namespace parvik::prova {
namespace {

using testing::ElementsAre;

Esito<std::unique_ptr<Espressione>, std::string> Compila(const Criterio& criterio) {
  if (criterio.Testo == "(") return std::string("Espressione non valida (carattere 1)");
  return EspressioneDi(criterio.Testo);
}

class RicercaTest : public BancoEditore {
 protected:
  RicercaTest() { editore_.ScegliTipo(Fattura); }

  ComandiRicerca& Comandi() { return editore_.Ricerche(); }
  void Rinnova() {
    if (!Comandi().DaRifare()) return;
    if (const auto lavoro = Comandi().Rinnova()) Comandi().Consegna(lavoro->Esegui());
  }
  void Cerca(const Criterio& cosa, Ambito dove = Ambito::SezioneAttiva) {
    Comandi().Cerca(RichiestaRicerca{.Cosa = cosa, .Dove = dove}, Compila);
    Rinnova();
  }
  /// As the window does it.
  std::string SostituisciUna(std::string_view con) {
    Rinnova();
    const std::string detto = Comandi().SostituisciAttuale(con);
    Rinnova();
    const std::string poi = Avanti();
    return detto.empty() ? poi : detto;
  }
  std::string Avanti() { return Comandi().Trova(Verso::Avanti, Fuoco::Resta); }
  std::string Indietro() { return Comandi().Trova(Verso::Indietro, Fuoco::Resta); }
  CursoreSezione Rivelato() const { return vista_.Rivelati.back(); }
  static CursoreSezione In(Sezione sezione, std::size_t da, std::size_t a) {
    return {.Dove = sezione, .Dentro = {.Ancora = da, .Posto = a}};
  }
};

TEST_F(RicercaTest, CountsWhatItFinds) {
  Imposta(Sezione::Testata, "ab ab\r\nAB\r\n");
  EXPECT_EQ(Comandi().Detto(), "");
  Cerca({.Testo = "ab"});
  EXPECT_EQ(Comandi().Detto(), "3 risultati");
  Cerca({.Testo = "ab", .Maiuscole = true});
  EXPECT_EQ(Comandi().Detto(), "2 risultati");
  Cerca({.Testo = "AB", .Maiuscole = true});
  EXPECT_EQ(Comandi().Detto(), "1 risultato");
  Cerca({.Testo = "x"});
  EXPECT_EQ(Comandi().Detto(), "Nessun risultato");
  Cerca({.Testo = ""});
  EXPECT_EQ(Comandi().Detto(), "");
}

TEST_F(RicercaTest, GoesFromOneToTheNextAndSaysWhenItBeginsAgain) {
  Imposta(Sezione::Testata, "ab ab\r\nAB\r\n");
  Cerca({.Testo = "ab"});
  EXPECT_EQ(Avanti(), "1 di 3");
  EXPECT_EQ(Rivelato(), In(Sezione::Testata, 0, 2));
  EXPECT_EQ(Avanti(), "2 di 3");
  EXPECT_EQ(Avanti(), "3 di 3");
  EXPECT_EQ(Avanti(), "1 di 3, ripreso dall'inizio");
  EXPECT_EQ(Indietro(), "3 di 3, ripreso dalla fine");
  EXPECT_EQ(Indietro(), "2 di 3");
  EXPECT_EQ(Rivelato(), In(Sezione::Testata, 3, 5));
}

TEST_F(RicercaTest, BeginsAtTheCaret) {
  Imposta(Sezione::Testata, "ab ab\r\nab\r\n");
  vista_.Cursori[0] = {.Ancora = 3, .Posto = 3};
  Cerca({.Testo = "ab"});
  EXPECT_EQ(Avanti(), "2 di 3");
  vista_.Cursori[0] = {.Ancora = 3, .Posto = 3};
  EXPECT_EQ(Indietro(), "1 di 3");
}

TEST_F(RicercaTest, GoesThroughAllSections) {
  Imposta({"a\r\n", "b\r\n", "a a\r\n"});
  editore_.AttivaSezione(Sezione::Corpo);
  Cerca({.Testo = "a"}, Ambito::Tutte);
  EXPECT_EQ(Comandi().Detto(), "3 risultati");
  EXPECT_EQ(Avanti(), "2 di 3");
  EXPECT_EQ(Rivelato(), In(Sezione::Piede, 0, 1));
  editore_.AttivaSezione(Sezione::Piede);
  EXPECT_EQ(Avanti(), "3 di 3");
  EXPECT_EQ(Avanti(), "1 di 3, ripreso dall'inizio");
  EXPECT_EQ(Rivelato(), In(Sezione::Testata, 0, 1));
  editore_.AttivaSezione(Sezione::Testata);
  EXPECT_EQ(Indietro(), "3 di 3, ripreso dalla fine");
  Cerca({.Testo = "a"}, Ambito::SezioneAttiva);
  EXPECT_EQ(Comandi().Detto(), "1 risultato") << "the section is the Testata";
  editore_.AttivaSezione(Sezione::Corpo);
  Rinnova();
  EXPECT_EQ(Comandi().Detto(), "Nessun risultato");
}

TEST_F(RicercaTest, GivesTheFocusToWhatItFindsWhereItIsAskedTo) {
  Imposta(Sezione::Testata, "ab\r\n");
  Cerca({.Testo = "b"});
  Comandi().Trova(Verso::Avanti, Fuoco::Segue);
  EXPECT_THAT(vista_.Raggiunti, ElementsAre(In(Sezione::Testata, 1, 2)));
}

TEST_F(RicercaTest, GoesOnBehindAPlaceWithoutBytes) {
  Imposta(Sezione::Testata, "a\r\nb\r\n");
  Cerca({.Testo = "^", .Espressione = true});
  EXPECT_EQ(Avanti(), "1 di 3");
  EXPECT_EQ(Avanti(), "2 di 3");
  EXPECT_EQ(Rivelato(), In(Sezione::Testata, 3, 3));
  EXPECT_EQ(Avanti(), "3 di 3");
  EXPECT_EQ(Avanti(), "1 di 3, ripreso dall'inizio");
  EXPECT_EQ(Indietro(), "3 di 3, ripreso dalla fine");
  EXPECT_EQ(Indietro(), "2 di 3");
}

TEST_F(RicercaTest, GoesOnInsideAFieldThatTheSelectionHasTakenWhole) {
  Imposta(Sezione::Testata,
          "\xAB"
          "V1;11L\xBB 1\r\n");
  Cerca({.Testo = "1"});
  EXPECT_EQ(Comandi().Detto(), "4 risultati");
  EXPECT_EQ(Avanti(), "1 di 4");
  EXPECT_EQ(Avanti(), "2 di 4");
  EXPECT_EQ(Avanti(), "3 di 4");
  EXPECT_EQ(Avanti(), "4 di 4");
}

TEST_F(RicercaTest, FollowsTheTextUntilItLooksAgain) {
  Imposta(Sezione::Testata, "ab ab\r\n");
  Cerca({.Testo = "ab"});
  Avanti();
  Avanti();
  editore_.Modello().Applica(Sezione::Testata, {.Dove = 0, .Tolti = 0, .Messi = "xy"}, GenereModifica::Intera,
                             {});
  EXPECT_TRUE(Comandi().DaRifare());
  EXPECT_THAT(Comandi().Trovate().In(LuogoRicerca::Testata),
              ElementsAre(Selezione{.Inizio = 2, .Lunghezza = 2}, Selezione{.Inizio = 5, .Lunghezza = 2}));
  EXPECT_EQ(Comandi().Detto(), "2 di 2");
  editore_.Modello().Applica(Sezione::Testata, {.Dove = 6, .Tolti = 1, .Messi = ""}, GenereModifica::Intera,
                             {});
  EXPECT_EQ(Comandi().Detto(), "1 risultato");
  Rinnova();
  EXPECT_FALSE(Comandi().DaRifare());
}

TEST_F(RicercaTest, GivesItsPlacesByWhatShows) {
  Imposta(Sezione::Testata, "ab ab ab\r\n");
  Cerca({.Testo = "ab"});
  const Ricerca& trovate = Comandi().Trovate();
  EXPECT_THAT(trovate.In(LuogoRicerca::Testata, {.Inizio = 2, .Lunghezza = 2}),
              ElementsAre(Selezione{.Inizio = 3, .Lunghezza = 2}));
  EXPECT_TRUE(trovate.In(LuogoRicerca::Testata, {.Inizio = 2, .Lunghezza = 1}).empty());
  Cerca({.Testo = "^", .Espressione = true});
  EXPECT_EQ(trovate.In(LuogoRicerca::Testata, {.Inizio = 10, .Lunghezza = 0}).size(), 1U);
}

TEST_F(RicercaTest, KeepsLongTextsForAThreadAndMindsWhatIsTypedMeanwhile) {
  Imposta(Sezione::Testata, "ab ab" + std::string(300'000, 'x') + "\r\n");
  Comandi().Cerca(RichiestaRicerca{.Cosa = {.Testo = "ab"}}, Compila);
  const auto lavoro = Comandi().Rinnova();
  ASSERT_TRUE(lavoro);
  EXPECT_FALSE(Comandi().DaRifare()) << "it is under way";
  editore_.Modello().Applica(Sezione::Testata, {.Dove = 0, .Tolti = 1, .Messi = "zzz"},
                             GenereModifica::Intera, {});
  Comandi().Consegna(lavoro->Esegui());
  EXPECT_THAT(Comandi().Trovate().In(LuogoRicerca::Testata),
              ElementsAre(Selezione{.Inizio = 5, .Lunghezza = 2}));
  EXPECT_TRUE(Comandi().DaRifare());
}

TEST_F(RicercaTest, OfAnOlderLookIsNotTold) {
  Imposta(Sezione::Testata, "ab" + std::string(300'000, 'x') + "\r\n");
  Comandi().Cerca(RichiestaRicerca{.Cosa = {.Testo = "ab"}}, Compila);
  const auto vecchia = Comandi().Rinnova();
  Imposta(Sezione::Testata, "\r\n");
  Rinnova();
  Comandi().Consegna(vecchia->Esegui());
  EXPECT_EQ(Comandi().Detto(), "Nessun risultato");
}

TEST_F(RicercaTest, SaysWhatIsWrongWithAnExpression) {
  Imposta(Sezione::Testata, "abc\r\n");
  Cerca({.Testo = "(", .Espressione = true});
  EXPECT_EQ(Comandi().Detto(), "Espressione non valida (carattere 1)");
  Cerca({.Testo = "!", .Espressione = true});
  EXPECT_EQ(Comandi().Detto(), "Espressione troppo complessa: ricerca interrotta dopo un secondo");
}

TEST_F(RicercaTest, LooksThroughThePreview) {
  vista_.NelPannello = SelezioneAnteprima(Anteprima{.Testo = "uno due\r\ndue\r\n", .Tratti = {}});
  Cerca({.Testo = "due"}, Ambito::Anteprima);
  EXPECT_EQ(Comandi().Detto(), "2 risultati");
  EXPECT_EQ(Avanti(), "1 di 2");
  EXPECT_EQ(vista_.NelPannello.Selezionato(), (Selezione{.Inizio = 4, .Lunghezza = 3}));
  EXPECT_EQ(Avanti(), "2 di 2");
  Comandi().CambiatoPannello();
  EXPECT_TRUE(Comandi().DaRifare());
  EXPECT_TRUE(Comandi().Trovate().In(LuogoRicerca::Anteprima).empty()) << "of another text";
  EXPECT_EQ(Comandi().SostituisciTutte("x"), "");
}

TEST_F(RicercaTest, IsForgottenWithItsTemplate) {
  Imposta(Sezione::Testata, "ab\r\n");
  Cerca({.Testo = "ab"});
  EXPECT_TRUE(editore_.PerMenu().PuoTrovare);
  CambiaTipo(Listino);
  EXPECT_EQ(Comandi().Detto(), "");
  EXPECT_TRUE(Comandi().DaRifare());
  EXPECT_TRUE(editore_.PerMenu().PuoTrovare) << "the same is looked for in the next one";
}

TEST_F(RicercaTest, ReplacesTheCurrentOneAndGoesOn) {
  Imposta(Sezione::Testata, "ab ab\r\n");
  Cerca({.Testo = "ab"});
  EXPECT_EQ(SostituisciUna("xyz"), "1 di 2") << "it only goes there";
  EXPECT_EQ(Testo(Sezione::Testata), "ab ab\r\n");
  vista_.Cursori[0] = {.Ancora = 0, .Posto = 2};
  EXPECT_EQ(SostituisciUna("xyz"), "1 di 1");
  EXPECT_EQ(Testo(Sezione::Testata), "xyz ab\r\n");
  EXPECT_EQ(SostituisciUna("q"), "Nessun risultato");
  EXPECT_EQ(Testo(Sezione::Testata), "xyz q\r\n");
  EXPECT_TRUE(editore_.Modello().Stato().Modificato);
  editore_.Annulla();
  EXPECT_EQ(Testo(Sezione::Testata), "xyz ab\r\n");
}

TEST_F(RicercaTest, ReplacesAllOfThemInOneStep) {
  Imposta({"ab\r\nab\r\n", "x\r\n", "ab\r\n"});
  Cerca({.Testo = "ab"}, Ambito::Tutte);
  EXPECT_EQ(Comandi().SostituisciTutte("c"), "3 sostituzioni");
  EXPECT_EQ(TestiOra(), (TestiSezioni{"c\r\nc\r\n", "x\r\n", "c\r\n"}));
  editore_.Annulla();
  EXPECT_EQ(TestiOra(), (TestiSezioni{"ab\r\nab\r\n", "x\r\n", "ab\r\n"}));
  EXPECT_FALSE(editore_.Modello().PuoAnnullare());
  editore_.Ripeti();
  EXPECT_EQ(TestiOra(), (TestiSezioni{"c\r\nc\r\n", "x\r\n", "c\r\n"}));
}

TEST_F(RicercaTest, LeavesTheCaretAtItsText) {
  Imposta(Sezione::Testata, "ab ab q ab\r\n");
  Cerca({.Testo = "ab"});
  vista_.Cursori[0] = {.Ancora = 6, .Posto = 7};
  Comandi().SostituisciTutte("xyz");
  EXPECT_EQ(vista_.Cursori[0], (Cursore{.Ancora = 8, .Posto = 9}));
  Cerca({.Testo = "xyz"});
  vista_.Cursori[0] = {.Ancora = 1, .Posto = 1};
  Comandi().SostituisciTutte("c");
  EXPECT_EQ(vista_.Cursori[0], (Cursore{.Ancora = 1, .Posto = 1})) << "behind what has come";
}

TEST_F(RicercaTest, TellsWhatItHasNotReplaced) {
  Imposta(Sezione::Testata,
          "V1 \xAB"
          "V1;9L\xBB\r\n");
  Cerca({.Testo = "V1"});
  EXPECT_EQ(Comandi().SostituisciTutte("x"), "1 sostituzione, 1 non fatta: taglierebbe un codice");
  Rinnova();
  Avanti();
  EXPECT_EQ(SostituisciUna("x"), "Non sostituito: taglierebbe un codice");
  EXPECT_EQ(Testo(Sezione::Testata),
            "x \xAB"
            "V1;9L\xBB\r\n");
  EXPECT_EQ(Comandi().SostituisciTutte("\xAB"),
            "« e » racchiudono i codici: una sostituzione non può metterne");
}

TEST_F(RicercaTest, ChangesCodes) {
  Imposta(Sezione::Testata,
          "\xAB"
          "V5;29L\xBB \xAB"
          "V5;30L\xBB \xAB"
          "F3N\xBB\r\n");
  Cerca({.Testo = "V5", .Dove = DoveCercare::SoloCodici});
  EXPECT_EQ(Comandi().Detto(), "2 risultati");
  EXPECT_EQ(Comandi().SostituisciTutte("larghezza 29 -> 32"),
            "1 codice cambiato, 1 lasciato: non ha quel campo, o non quel valore");
  EXPECT_EQ(Testo(Sezione::Testata),
            "\xAB"
            "V5;32L\xBB \xAB"
            "V5;30L\xBB \xAB"
            "F3N\xBB\r\n");
  Rinnova();
  Avanti();
  EXPECT_EQ(SostituisciUna("decimali 2"), "Non cambiato: il codice non ha quel campo, o non quel valore");
  EXPECT_EQ(Comandi().SostituisciTutte(""), "2 codici tolti");
  EXPECT_EQ(Testo(Sezione::Testata),
            "  \xAB"
            "F3N\xBB\r\n");
}

TEST_F(RicercaTest, FindsCodesByTheirDescription) {
  Imposta(Sezione::Testata,
          "\xAB"
          "V5;29L\xBB\r\n");
  const std::string detto = editore_.Descrivi(Sezione::Testata, "V5;29L");
  const std::string nome = detto.substr(detto.find("· ") + 3);
  Cerca({.Testo = AnsiDaUtf8(nome.substr(0, nome.find(" ·"))), .Dove = DoveCercare::SoloCodici});
  EXPECT_EQ(Comandi().Detto(), "1 risultato") << detto;
}

}  // namespace
}  // namespace parvik::prova
