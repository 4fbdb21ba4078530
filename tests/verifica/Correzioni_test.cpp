// What can be mended, and what is not.
#include "verifica/Correzioni.h"

#include <gtest/gtest.h>

#include "verifica/DiProva.h"

namespace parvik::prova {
namespace {

FileCorretto Corretto(const std::string& byte, int tipo = 1, const OpzioniVerifica& opzioni = {}) {
  Verificatore verificatore(CatalogoDiVerifica(), TipoDiVerifica(tipo));
  return *Correggi(byte, verificatore, CatalogoDiVerifica(), opzioni);
}

/// What becomes of a file, and nothing is left out.
void EsigiCorretto(std::string_view prima, std::string_view dopo, int tipo = 1) {
  const FileCorretto corretto = Corretto(DelFile(prima), tipo);
  EXPECT_EQ(corretto.Byte, DelFile(dopo)) << prima;
  EXPECT_TRUE(corretto.Mancate.empty()) << prima;
  EXPECT_EQ(Corretto(corretto.Byte, tipo).Fatte, 0U) << prima;
}

void EsigiMancato(std::string_view byte, NonCorretto perche, int tipo = 1) {
  const FileCorretto corretto = Corretto(DelFile(byte), tipo);
  EXPECT_EQ(corretto.Byte, DelFile(byte));
  EXPECT_EQ(corretto.Fatte, 0U);
  ASSERT_EQ(corretto.Mancate.size(), 1U) << byte;
  EXPECT_EQ(corretto.Mancate[0].Perche, perche) << byte;
}

TEST(Correggi, WritesCodesAsTheirDialogsDo) {
  EsigiCorretto("a <V01;30L> b¶<C4;1;>¶<V011;16L>¶<V022;12L>¶", "a <V1;30L> b¶<C4;1;>¶<V11;16L>¶<V22;12L>¶");
  EsigiCorretto("<V501;30>¶", "<V501;30L>¶", 2);
  EsigiCorretto("<F7><P1><F08S><P1>¶", "<F7N><P1><F8S><P1>¶", 2);
  EsigiCorretto("<C0;\"x\">¶", "<V0;\"x\">¶", 2);
  EsigiCorretto("<S;it>a<S;NORMAL>¶", "<S;ITALICO>a<S;NORMALE>¶", 2);
  EsigiCorretto("<V502,3;8R;0;x>¶", "<V502;8R;0;1>¶", 2);
  EsigiCorretto("<V501;30x>¶", "<V501;30R>¶", 2);
}

TEST(Correggi, LeavesAllOtherBytesAsTheyWere) {
  std::string prima = DelFile("a\n\x01\r<V0501;3L> <V99;1L> x> ");
  prima +=
      "\xAB"
      "V0501;3L"
      "\xBB senza fine";
  std::string dopo = DelFile("a\n\x01\r<V501;3L> <V99;1L> x> ");
  dopo +=
      "\xAB"
      "V501;3L"
      "\xBB senza fine";
  EXPECT_EQ(Corretto(prima, 2).Byte, dopo);
}

TEST(Correggi, MakesNoMendThatChangesWhatPrints) {
  EsigiMancato("<V501;30L;#;0>¶", NonCorretto::CambiaStampa, 2);  // $ in place of blanks
  EsigiMancato("<V502;8>¶", NonCorretto::CambiaStampa, 2);
  EsigiMancato("<V501;R12>¶", NonCorretto::CambiaStampa, 2);
}

TEST(Correggi, MakesNoMendWithAnotherLetter) {
  EsigiMancato("<V501;30LR>¶", NonCorretto::CambiaLettera, 2);
  EsigiMancato("<V501;30L >¶", NonCorretto::CambiaLettera, 2);
}

TEST(Correggi, MakesNoMendOfAStyleThatTheWordDoesNotBegin) {
  EsigiMancato("<S;Corsivo>a¶", NonCorretto::CambiaStile, 2);
  EsigiMancato("<S;ITALICO >a¶", NonCorretto::CambiaStile, 2);
}

TEST(Correggi, LooksAtThePreviewWithItsLooks) {
  // Literal text takes the marker apart, and its letters show.
  EsigiMancato("S;<S;it>a¶", NonCorretto::CambiaStampa, 2);
  const FileCorretto corretto = Corretto(DelFile("S;<S;it>a¶<S;gr>b<S;so>c¶"), 2);
  EXPECT_EQ(corretto.Byte, DelFile("S;<S;it>a¶<S;GRASSETTO>b<S;SOTTOLINEATO>c¶"));
  EXPECT_EQ(corretto.Mancate.size(), 1U);
}

TEST(Correggi, MendsWhatABodyThatIsNotPrintedHolds) {
  EsigiCorretto("t¶<C0;1;>¶<V12;10>¶p¶", "t¶<C0;1;>¶<V12;10R;#;0>¶p¶");
  EsigiMancato("t¶<C1;1;>¶<V12;10>¶p¶", NonCorretto::CambiaStampa);
}

TEST(Correggi, MendsOnlyWhatTheRulesAskedForFind) {
  OpzioniVerifica opzioni;
  opzioni.Regole = {};
  opzioni.Regole.Metti(Regola::MultilineaPersa);
  EXPECT_EQ(Corretto(DelFile("<V0501;3L><V502,3;8R;0;1>¶"), 2, opzioni).Byte,
            DelFile("<V0501;3L><V502;8R;0;1>¶"));
}

TEST(Correggi, LeavesAFileThatIsNotCheckedFurther) {
  EXPECT_EQ(Corretto("\xAE"
                     "V0501;3L"
                     "\xAF\n",
                     2)
                .Fatte,
            0U);
}

TEST(Correggi, TellsWhatIsLeftInTheOrderOfTheFile) {
  const FileCorretto corretto = Corretto(DelFile("<S;Corsivo>¶<V501;30LR> <V0501;30L>¶<V501;30L;#;0>¶"), 2);
  ASSERT_EQ(corretto.Mancate.size(), 3U);
  for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(corretto.Mancate[i].Quale.Riga, i + 1);
  EXPECT_EQ(corretto.Fatte, 1U);
}

}  // namespace
}  // namespace parvik::prova
