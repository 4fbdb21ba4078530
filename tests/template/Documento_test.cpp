#include "template/Documento.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <string>
#include <vector>

#include "supporto/Tasti.h"
#include "supporto/TestoConSelezione.h"

namespace parvik {
namespace {

using prova::BancoSezione;
using prova::ConSelezione;

std::string Disegno(BancoSezione& banco) {
  return prova::Scritto(banco.Testo(), banco.Selezionato());
}

/// A section on a drawn text, and what is done to it.
class Documenti : public testing::Test {
 protected:
  void Disegna(const char* disegno) {
    const ConSelezione caso(disegno);
    banco_.Modello().Imposta(Sezione::Testata, caso.Testo.Byte());
    banco_.Seleziona(caso.Selezionato);
  }
  void Scrivi(const char* testo) { banco_.Comandi().Scrivi(testo, Pressione::Prima); }
  void Premi(TastoSezione tasto) { banco_.Comandi().Premi(tasto, Pressione::Prima); }
  void Muovi(std::size_t posto) {
    banco_.Seleziona({.Inizio = posto});
    banco_.Modello().InterrompiBattitura();
  }
  std::string Annulla() {
    banco_.Veduta().Poni(banco_.Modello().Annulla().Dentro);
    return Disegno(banco_);
  }
  std::string Ripeti() {
    banco_.Veduta().Poni(banco_.Modello().Ripeti().Dentro);
    return Disegno(banco_);
  }

  BancoSezione banco_{TestoSezione()};
  Documento& modello_ = banco_.Modello();
};

TEST_F(Documenti, ARunOfTypingIsOneStep) {
  Disegna("a|z");
  Scrivi("uno due");
  EXPECT_EQ(Annulla(), "a|z");
  EXPECT_FALSE(modello_.PuoAnnullare());
  EXPECT_EQ(Ripeti(), "auno due|z");
}

TEST_F(Documenti, TypingOverASelectionBringsItBackSelected) {
  Disegna("a[bc]d");
  Scrivi("xy");
  EXPECT_EQ(Annulla(), "a[bc]d");
}

TEST_F(Documenti, ALineEndIsAStepOfItsOwn) {
  Disegna("|");
  Scrivi("uno");
  banco_.Comandi().VaiACapo(Pressione::Prima);
  Scrivi("due");
  EXPECT_EQ(Annulla(), "uno\n|");
  EXPECT_EQ(Annulla(), "uno|");
  EXPECT_EQ(Annulla(), "|");
}

TEST_F(Documenti, TypingGoesOnOnlyWhereItStopped) {
  Disegna("|");
  Scrivi("abc");
  Muovi(1);
  Muovi(3);
  Scrivi("d");
  EXPECT_EQ(Annulla(), "abc|");
  EXPECT_EQ(Annulla(), "|");
}

TEST_F(Documenti, ARunOfBackspacesIsOneStepAndSoIsOneOfDeletes) {
  Disegna("abcd|efgh");
  for (int i = 0; i < 3; ++i) Premi(TastoSezione::Backspace);
  EXPECT_EQ(Disegno(banco_), "a|efgh");
  EXPECT_EQ(Annulla(), "abcd|efgh");
  for (int i = 0; i < 3; ++i) Premi(TastoSezione::Canc);
  EXPECT_EQ(Disegno(banco_), "abcd|h");
  EXPECT_EQ(Annulla(), "abcd|efgh");
  EXPECT_EQ(Ripeti(), "abcd|h");
}

TEST_F(Documenti, TypingAndTakingAwayAreTwoSteps) {
  Disegna("|");
  Scrivi("abc");
  Premi(TastoSezione::Backspace);
  EXPECT_EQ(Annulla(), "abc|");
  EXPECT_EQ(Annulla(), "|");
}

TEST_F(Documenti, APasteIsAStepBetweenTwoRunsOfTyping) {
  Disegna("|");
  Scrivi("a");
  banco_.Comandi().Incolla(ConSelezione("b\n«c»").Testo.Byte());
  Scrivi("d");
  EXPECT_EQ(Annulla(), "ab\n«c»|");
  EXPECT_EQ(Annulla(), "a|");
  EXPECT_EQ(Annulla(), "|");
}

TEST_F(Documenti, ADragIsOneStepWithBothItsEnds) {
  Disegna("a[bc]def");
  banco_.Comandi().Sposta(5);
  EXPECT_EQ(Disegno(banco_), "adebc|f");
  EXPECT_EQ(Annulla(), "a[bc]def");
}

TEST_F(Documenti, ADragOntoItselfIsNoStep) {
  Disegna("a[bc]d");
  for (const std::size_t posto : {1U, 2U, 3U}) {
    banco_.Comandi().Sposta(posto);
    EXPECT_EQ(Disegno(banco_), "a[bc]d") << posto;
  }
  EXPECT_FALSE(modello_.PuoAnnullare());
}

TEST_F(Documenti, WholeChangesSideBySideAreStepsOfTheirOwn) {
  Disegna("abcdef|");
  for (int i = 0; i < 2; ++i)
    modello_.Applica(Sezione::Testata, {.Dove = 1, .Tolti = 2, .Messi = ""}, GenereModifica::Intera, {});
  EXPECT_EQ(modello_.Testo(Sezione::Testata).Byte(), "af");
  modello_.Annulla();
  EXPECT_EQ(modello_.Testo(Sezione::Testata).Byte(), "adef");
}

TEST_F(Documenti, AHeldKeyTakesTheRestOfTheLineAndThenItsEnd) {
  Disegna("a|bc\nd");
  banco_.Comandi().CancellaFinoAFineRiga(Pressione::Ripetuta);
  EXPECT_EQ(Disegno(banco_), "a|\nd");
  banco_.Comandi().CancellaFinoAFineRiga(Pressione::Ripetuta);
  EXPECT_EQ(Disegno(banco_), "a|d");
}

TEST_F(Documenti, AChangeAfterAnUndoLeavesNothingToRedo) {
  Disegna("|");
  Scrivi("a");
  Annulla();
  EXPECT_TRUE(modello_.PuoRipetere());
  Scrivi("b");
  EXPECT_FALSE(modello_.PuoRipetere());
  EXPECT_EQ(Annulla(), "|");
}

TEST_F(Documenti, StepsOfAllSectionsAreUndoneInTheOrderInWhichTheyWereMade) {
  Disegna("|");
  Scrivi("a");
  modello_.Applica(Sezione::Piede, {.Dove = 0, .Tolti = 0, .Messi = "p"}, GenereModifica::Battuta, {});
  Scrivi("b");
  EXPECT_EQ(modello_.Annulla().Dove, Sezione::Testata);
  EXPECT_EQ(modello_.Annulla().Dove, Sezione::Piede);
  EXPECT_EQ(modello_.Testo(Sezione::Piede).Byte(), "");
  EXPECT_EQ(modello_.Testo(Sezione::Testata).Byte(), "a");
  EXPECT_EQ(modello_.Ripeti(), (CursoreSezione{.Dove = Sezione::Piede, .Dentro = {.Ancora = 1, .Posto = 1}}));
}

TEST_F(Documenti, UndoAndRedoMakeTheDocumentModified) {
  Disegna("|");
  Scrivi("a");
  modello_.Stato().Modificato = false;
  modello_.Annulla();
  EXPECT_TRUE(modello_.Stato().Modificato);
  modello_.Stato().Modificato = false;
  modello_.Ripeti();
  EXPECT_TRUE(modello_.Stato().Modificato);
}

TEST_F(Documenti, ReadingBackIsAStepOnlyWhereItChangesTheText) {
  Disegna("abc|");
  modello_.Rileggi(Sezione::Testata, "abc");
  EXPECT_FALSE(modello_.PuoAnnullare());
  modello_.Rileggi(Sezione::Testata, "abc\r\n");
  EXPECT_FALSE(modello_.Stato().Modificato);
  EXPECT_EQ(Disegno(banco_), "abc|\n");
  EXPECT_EQ(Annulla(), "abc|");
}

TEST_F(Documenti, WhatIsDoneWhileAStepIsOpenIsOneStep) {
  Disegna("|");
  {
    const Documento::PassoUnico passo(modello_);
    modello_.CompletaUltimaRiga(Sezione::Corpo);
    {
      const Documento::PassoUnico interno(modello_);
      modello_.Rileggi(Sezione::Testata, "x");
    }
    modello_.Rileggi(Sezione::Testata, "xy");
  }
  modello_.Annulla();
  EXPECT_FALSE(modello_.PuoAnnullare());
  EXPECT_EQ(modello_.Testo(Sezione::Corpo).Byte(), "");
  EXPECT_EQ(modello_.Testo(Sezione::Testata).Byte(), "");
}

TEST_F(Documenti, ForgettingTheStepsKeepsTheTexts) {
  Disegna("|");
  Scrivi("a");
  modello_.DimenticaPassi();
  EXPECT_FALSE(modello_.PuoAnnullare());
  EXPECT_EQ(modello_.Testo(Sezione::Testata).Byte(), "a");
}

TEST_F(Documenti, ThoseWhoNoLongerListenAreNotTold) {
  { const prova::VedutaFinta altra(modello_, Sezione::Testata); }
  Disegna("a|");
  Scrivi("b");
  EXPECT_EQ(Disegno(banco_), "ab|");
}

/// Any change, as people and the program make them.
void CambiaInQualcheModo(Documento& modello) {
  const Sezione sezione = *rc::gen::elementOf(std::vector(TutteLeSezioni.begin(), TutteLeSezioni.end()));
  const TestoSezione& testo = modello.Testo(sezione);
  const auto posto = [&testo] {
    const Selezione riga = testo.Riga(*rc::gen::inRange<std::size_t>(0, testo.Righe()));
    return riga.Inizio + *rc::gen::inRange<std::size_t>(0, riga.Lunghezza + 1);
  };
  const Cursore cursore{.Ancora = posto(), .Posto = *rc::gen::inRange(0, 2) == 0 ? posto() : cursore.Ancora};
  const Selezione via = cursore.Selezionato();
  const auto messi = *rc::gen::element<std::string>("a", "b\r\n", "\xABV1\xBB", "", "\xAB");
  const auto genere =
      *rc::gen::element(GenereModifica::Battuta, GenereModifica::Cancellata, GenereModifica::Intera);
  if (*rc::gen::inRange(0, 6) == 0) return modello.CompletaUltimaRiga(sezione);
  if (*rc::gen::inRange(0, 6) == 0) return modello.Rileggi(sezione, messi + "z");
  modello.Applica(sezione, {.Dove = via.Inizio, .Tolti = via.Lunghezza, .Messi = messi}, genere, cursore);
}

std::vector<std::string> Testi(const Documento& modello) {
  std::vector<std::string> testi;
  for (const TestoSezione& testo : modello.Testi()) testi.push_back(testo.Byte());
  return testi;
}

TEST(DocumentoProprieta, UndoingAllRestoresEveryByteAndRedoingAllAsWell) {
  EXPECT_TRUE(rc::check([] {
    Documento modello;
    for (const Sezione sezione : TutteLeSezioni) modello.Imposta(sezione, "inizio\r\n\xABV1\xBB");
    const std::vector<std::string> prima = Testi(modello);
    for (int passo = 0; passo < 25; ++passo) {
      if (*rc::gen::inRange(0, 5) == 0 && modello.PuoAnnullare()) modello.Annulla();
      CambiaInQualcheModo(modello);
    }
    const std::vector<std::string> dopo = Testi(modello);
    int passi = 0;
    for (; modello.PuoAnnullare(); ++passi) modello.Annulla();
    RC_ASSERT(Testi(modello) == prima);
    for (; passi > 0; --passi) modello.Ripeti();
    RC_ASSERT(Testi(modello) == dopo);
  }));
}

}  // namespace
}  // namespace parvik
