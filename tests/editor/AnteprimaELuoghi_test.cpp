// From the caret of a section to the preview, and back.
#include <gmock/gmock.h>

#include "BancoStampa.h"
#include "supporto/NomeSelezione.h"

namespace parvik::prova {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// «» stand for the delimiters. The body is rendered three times.
class AndataRitorno : public BancoEditore {
 protected:
  AndataRitorno() {
    editore_.ScegliTipo(Fattura);
    editore_.ImpostaCorpo({.RigheCorpo = 3, .LineeCorpo = 1, .FlagSbarra = "", .FlagAccorpa = ""});
    Imposta({Byte("ab«V1;3»c\r\n\r\n"), Byte("x«V1;2»«V2;4»y\r\n"), "fine\r\n"});
    editore_.CommutaAnteprima();
    editore_.CommutaAnteprima();
  }

  std::vector<Selezione> Segni(Sezione sezione, std::size_t posto) {
    editore_.AttivaSezione(sezione);
    vista_.Cursori[Indice(sezione)] = {.Ancora = posto, .Posto = posto};
    return editore_.SegniAlCursore().In({.Inizio = 0, .Lunghezza = 1000});
  }
  void Metti(Sezione sezione, std::size_t dove, std::size_t tolti, const char* messi) {
    editore_.Modello().Applica(sezione, {.Dove = dove, .Tolti = tolti, .Messi = messi},
                               GenereModifica::Intera, {});
  }
  std::vector<CursoreSezione> Raggiunto(std::size_t byte) {
    vista_.Raggiunti.clear();
    editore_.RaggiungiOrigine(byte);
    return vista_.Raggiunti;
  }

  static Selezione Parte(std::size_t inizio, std::size_t lunghezza) {
    return {.Inizio = inizio, .Lunghezza = lunghezza};
  }
  static CursoreSezione In(Sezione sezione, std::size_t ancora, std::size_t posto) {
    return {.Dove = sezione, .Dentro = {.Ancora = ancora, .Posto = posto}};
  }
};

// The preview: ab$$$c, an empty line, three times x$$ and four more and y, fine.
constexpr std::size_t Corpo = 10;
constexpr std::size_t RigaCorpo = 10;

TEST_F(AndataRitorno, TheCodeAtTheCaretIsMarkedInAllItsRepetitions) {
  EXPECT_THAT(Segni(Sezione::Corpo, 3), ElementsAre(Parte(Corpo + 1, 2), Parte(Corpo + 1 + RigaCorpo, 2),
                                                    Parte(Corpo + 1 + 2 * RigaCorpo, 2)));
}

TEST_F(AndataRitorno, TheCodeThatFollowsTheCaretGoesBeforeTheOneInFront) {
  EXPECT_EQ(Segni(Sezione::Corpo, 1).front(), Parte(Corpo + 1, 2));
  EXPECT_EQ(Segni(Sezione::Corpo, 7).front(), Parte(Corpo + 3, 4));
  EXPECT_EQ(Segni(Sezione::Corpo, 13).front(), Parte(Corpo + 3, 4)) << "right behind a code";
}

TEST_F(AndataRitorno, InLiteralTextTheCharacterAtTheCaretIsMarked) {
  EXPECT_THAT(Segni(Sezione::Testata, 0), ElementsAre(Parte(0, 1)));
  EXPECT_THAT(Segni(Sezione::Testata, 1), ElementsAre(Parte(1, 1)));
  EXPECT_THAT(Segni(Sezione::Testata, 9), ElementsAre(Parte(5, 1))) << "the end of a line";
  EXPECT_THAT(Segni(Sezione::Testata, 11), ElementsAre(Parte(8, 1))) << "an empty line";
  EXPECT_THAT(Segni(Sezione::Testata, 13), IsEmpty()) << "behind the last line";
}

TEST_F(AndataRitorno, AfterAnEditPlacesAreCarriedAlong) {
  Metti(Sezione::Testata, 0, 0, "zz");
  EXPECT_THAT(Segni(Sezione::Testata, 4), ElementsAre(Parte(2, 3)));
  EXPECT_THAT(Segni(Sezione::Testata, 3), ElementsAre(Parte(1, 1)));
  EXPECT_THAT(Segni(Sezione::Testata, 0), IsEmpty()) << "it was not there";
  EXPECT_THAT(Raggiunto(3), ElementsAre(In(Sezione::Testata, 4, 10)));
}

TEST_F(AndataRitorno, ACodeThatWasEditedIsNotCertain) {
  Metti(Sezione::Testata, 6, 1, "9");
  EXPECT_THAT(Segni(Sezione::Testata, 4), IsEmpty());
  EXPECT_THAT(Raggiunto(3), IsEmpty());
  EXPECT_THAT(Segni(Sezione::Testata, 0), ElementsAre(Parte(0, 1)));
  EXPECT_THAT(Raggiunto(5), ElementsAre(In(Sezione::Testata, 8, 8)));
}

TEST_F(AndataRitorno, ACodeThatHasBecomeOneByAnEditIsNotCertain) {
  Metti(Sezione::Testata, 0, 0, "\xAB");
  EXPECT_THAT(Segni(Sezione::Testata, 1), IsEmpty());
}

TEST_F(AndataRitorno, InAWholeNewTextNothingIsCertain) {
  Imposta(Sezione::Testata, Testo(Sezione::Testata));
  EXPECT_THAT(Segni(Sezione::Testata, 0), IsEmpty());
  EXPECT_THAT(Raggiunto(0), IsEmpty());
  EXPECT_THAT(Segni(Sezione::Piede, 0), ElementsAre(Parte(Corpo + 3 * RigaCorpo, 1)));
}

TEST_F(AndataRitorno, FromThePreviewACodeIsSelectedWhole) {
  for (const std::size_t byte : {2U, 3U, 4U})
    EXPECT_THAT(Raggiunto(byte), ElementsAre(In(Sezione::Testata, 2, 8)));
  EXPECT_THAT(Raggiunto(Corpo + 2 * RigaCorpo + 5), ElementsAre(In(Sezione::Corpo, 7, 13)));
}

TEST_F(AndataRitorno, FromThePreviewTheCaretGoesToTheCharacter) {
  EXPECT_THAT(Raggiunto(1), ElementsAre(In(Sezione::Testata, 1, 1)));
  EXPECT_THAT(Raggiunto(6), ElementsAre(In(Sezione::Testata, 9, 9))) << "the end of a line";
  EXPECT_THAT(Raggiunto(7), ElementsAre(In(Sezione::Testata, 9, 9))) << "its second byte";
}

TEST_F(AndataRitorno, TheEndMarkerComesFromNowhere) {
  const std::size_t fine = vista_.Anteprime.back().size();
  EXPECT_THAT(Raggiunto(fine - 3), IsEmpty());
  EXPECT_THAT(Raggiunto(fine), IsEmpty());
}

TEST_F(AndataRitorno, APreviewThatIsNotShownHasNoMarks) {
  editore_.CommutaAnteprima();
  EXPECT_TRUE(editore_.SegniAlCursore().Vuoti());
}

TEST_F(AndataRitorno, APreviewOfAnotherTypeLeadsToNoSectionThatThisOneHasNot) {
  CambiaTipo(Listino);
  EXPECT_THAT(Raggiunto(Corpo), IsEmpty());
}

}  // namespace
}  // namespace parvik::prova
