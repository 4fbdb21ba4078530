// Whether the preview shows what it would show if it were rendered now.
#include <gmock/gmock.h>

#include "BancoStampa.h"

namespace parvik::prova {
namespace {

/// The preview is shown, and of the template as it stands.
class AnteprimaAggiornata : public BancoEditore {
 protected:
  AnteprimaAggiornata() {
    editore_.ScegliTipo(Fattura);
    editore_.ImpostaCorpo({.RigheCorpo = 2, .LineeCorpo = 1, .FlagSbarra = "", .FlagAccorpa = ""});
    Imposta({"testa\r\n", "corpo\r\n", "piede\r\n"});
    Rendi();
  }

  void Rendi() {
    if (editore_.AnteSpuntata()) editore_.CommutaAnteprima();
    editore_.CommutaAnteprima();
    vista_.CambiamentiMisura = 0;
  }
  void Batti(const char* testo) {
    editore_.Modello().Applica(Sezione::Testata, {.Dove = 0, .Tolti = 0, .Messi = testo},
                               GenereModifica::Battuta, {});
  }
};

TEST_F(AnteprimaAggiornata, IsAfterARun) {
  EXPECT_TRUE(editore_.AnteprimaAggiornata());
}

TEST_F(AnteprimaAggiornata, IsNotAnyMoreWhenATextHasChanged) {
  Batti("x");
  EXPECT_FALSE(editore_.AnteprimaAggiornata());
  Rendi();
  EXPECT_TRUE(editore_.AnteprimaAggiornata());
}

TEST_F(AnteprimaAggiornata, IsNotAnyMoreWhenAChangeWasTakenBack) {
  Batti("x");
  Rendi();
  editore_.Annulla();
  EXPECT_FALSE(editore_.AnteprimaAggiornata());
}

TEST_F(AnteprimaAggiornata, IsNotAnyMoreWhenAPrintFlagWasSetAndTheWindowIsTold) {
  editore_.Flag().SettaFlag(0, false);
  EXPECT_TRUE(editore_.AnteprimaAggiornata()) << "it was false already";
  editore_.Flag().SettaFlag(0, true);
  EXPECT_FALSE(editore_.AnteprimaAggiornata());
  editore_.CambiatiFlag();
  EXPECT_EQ(vista_.CambiamentiMisura, 1);
}

TEST_F(AnteprimaAggiornata, IsNotAnyMoreWhenTheBodyIsSetOtherwiseAndTheWindowIsTold) {
  editore_.ImpostaCorpo({.RigheCorpo = 3, .LineeCorpo = 1, .FlagSbarra = "", .FlagAccorpa = ""});
  EXPECT_FALSE(editore_.AnteprimaAggiornata());
  EXPECT_EQ(vista_.CambiamentiMisura, 1);
  editore_.ImpostaCorpo({.RigheCorpo = 2, .LineeCorpo = 1, .FlagSbarra = "", .FlagAccorpa = ""});
  EXPECT_TRUE(editore_.AnteprimaAggiornata()) << "it is what was rendered again";
}

TEST_F(AnteprimaAggiornata, IsNotAnyMoreWhenAnotherTypeIsChosen) {
  CambiaTipo(Listino);
  EXPECT_FALSE(editore_.AnteprimaAggiornata());
}

TEST_F(AnteprimaAggiornata, IsNotAnyMoreWhenATemplateIsOpened) {
  std::filesystem::create_directories(dir_ / "D_IMG");
  Crea(dir_ / "D_IMG" / "A.IMG", "uno\r\n");
  interlocutore_.Scegliera(dir_ / "D_IMG" / "A.IMG");
  editore_.Modello().Stato().Modificato = false;
  editore_.Apri();
  EXPECT_EQ(editore_.AnteprimaAggiornata(), !editore_.AnteVisibile());
  Rendi();
  EXPECT_TRUE(editore_.AnteprimaAggiornata());
}

TEST_F(AnteprimaAggiornata, NothingIsSaidOfOneThatIsNotShown) {
  Batti("x");
  editore_.CommutaAnteprima();
  EXPECT_TRUE(editore_.AnteprimaAggiornata());
  editore_.Modello().Stato().Modificato = false;
  editore_.Nuovo();
  EXPECT_TRUE(editore_.AnteprimaAggiornata());
}

TEST_F(BancoEditore, APreviewThatWasNeverRenderedIsNotOutOfDate) {
  editore_.ScegliTipo(Fattura);
  Imposta(Sezione::Testata, "x\r\n");
  EXPECT_TRUE(editore_.AnteprimaAggiornata());
}

TEST_F(Stampa, APreviewOfWhichOnlyTheBeginningIsShownIsOutOfDate) {
  for (int i = 0; i < 20; ++i) Aggiungi(Sezione::Testata, Testo(Sezione::Testata));
  vista_.Attesa = VistaFinta::ComeAttende::Smette;
  StampaSu(Destinazione::Anteprima);
  EXPECT_FALSE(editore_.AnteprimaAggiornata());
  vista_.Attesa = VistaFinta::ComeAttende::FinoAllaFine;
  StampaSu(Destinazione::Anteprima);
  EXPECT_TRUE(editore_.AnteprimaAggiornata());
}

}  // namespace
}  // namespace parvik::prova
