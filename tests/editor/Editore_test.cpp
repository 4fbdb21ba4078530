#include "editor/Editore.h"

#include <gtest/gtest.h>

#include <string>

#include "BancoEditore.h"

namespace parvik::prova {
namespace {

using EditoreTest = BancoEditore;

TEST_F(EditoreTest, StartsWithoutATypeAndLeavesTheWindowAlone) {
  EXPECT_EQ("Ordavia", editore_.Titolo());
  EXPECT_FALSE(editore_.TipoScelto());
  EXPECT_FALSE(editore_.TreSezioni());
  EXPECT_FALSE(editore_.AnteVisibile());
  EXPECT_FALSE(editore_.Modello().Stato().Modificato);
  EXPECT_EQ("", editore_.Modello().Stato().NomeFile);
  EXPECT_FALSE(editore_.PerMenu().TipoScelto);
  EXPECT_FALSE(editore_.PerMenu().TreSezioni);
  EXPECT_TRUE(editore_.Flag().Righe().empty());
  EXPECT_EQ(0, vista_.Aggiornamenti);
}

TEST_F(EditoreTest, ShowsThreeSectionsOfOneEmptyLineForATypeOfThree) {
  editore_.ScegliTipo(Fattura);
  EXPECT_EQ("Ordavia - FATT*.IMG", editore_.Titolo());
  EXPECT_EQ((TestiSezioni{"\r\n", "\r\n", "\r\n"}), TestiOra());
  EXPECT_TRUE(editore_.TipoScelto());
  EXPECT_TRUE(editore_.TreSezioni());
  EXPECT_TRUE(editore_.PerMenu().TipoScelto);
  EXPECT_TRUE(editore_.PerMenu().TreSezioni);
  EXPECT_EQ((ImpostazioniCorpo{23, 1, "", ""}), editore_.Modello().Stato().Corpo);
  EXPECT_FALSE(editore_.Modello().Stato().Modificato);
  EXPECT_GT(vista_.Aggiornamenti, 0);
}

TEST_F(EditoreTest, FillsOnlyTheTestataForATypeOfOne) {
  editore_.ScegliTipo(Listino);
  EXPECT_EQ("Ordavia - LIST*.IMG", editore_.Titolo());
  EXPECT_EQ((TestiSezioni{"\r\n", "mai scelto", "mai scelto"}), TestiOra());
  EXPECT_TRUE(editore_.TipoScelto());
  EXPECT_FALSE(editore_.TreSezioni());
  EXPECT_FALSE(editore_.PerMenu().TreSezioni);
}

TEST_F(EditoreTest, TurnsThePreviewOnWithEveryChoiceOfATypeWithoutRendering) {
  editore_.ScegliTipo(Fattura);
  EXPECT_TRUE(editore_.AnteSpuntata());
  EXPECT_TRUE(editore_.AnteVisibile());
  EXPECT_TRUE(vista_.Anteprime.empty());
}

TEST_F(EditoreTest, LoadsThePrintFlagsOfTheType) {
  editore_.ScegliTipo(Fattura);
  // 10 of the header, 8 of the body, 10 of the footer, and the three page conditions.
  EXPECT_EQ(31U, editore_.Flag().Righe().size());
}

TEST_F(EditoreTest, BecomesModifiedByAnEditAndUnmodifiedByTheChoiceOfAType) {
  editore_.ScegliTipo(Fattura);
  editore_.SegnaModificato();
  EXPECT_TRUE(editore_.Modello().Stato().Modificato);
  editore_.ScegliTipo(Listino);
  EXPECT_FALSE(editore_.Modello().Stato().Modificato);
}

TEST_F(EditoreTest, GoesBackToNoTypeWithNewAndKeepsTextsNameAndCheckMark) {
  editore_.ScegliTipo(Fattura);
  interlocutore_.Scegliera(Esempio() / "D_IMG" / "FATT01.IMG");
  editore_.Apri();
  editore_.CommutaAnteprima();
  const TestiSezioni testi = TestiOra();
  vista_.Aggiornamenti = 0;
  editore_.Nuovo();
  EXPECT_EQ("Ordavia", editore_.Titolo());
  EXPECT_FALSE(editore_.TipoScelto());
  EXPECT_TRUE(editore_.AnteSpuntata());
  EXPECT_FALSE(editore_.AnteVisibile());
  EXPECT_TRUE(editore_.Flag().Righe().empty());
  EXPECT_EQ(testi, TestiOra());
  EXPECT_EQ(Esempio() / "D_IMG" / "FATT01.IMG", editore_.Modello().Stato().NomeFile);
  EXPECT_GT(vista_.Aggiornamenti, 0);
}

TEST_F(EditoreTest, FillsTheSectionsAnewWithTheNextChoiceAfterNew) {
  editore_.ScegliTipo(Fattura);
  Imposta({"a\r\n", "b\r\n", "c\r\n"});
  editore_.Nuovo();
  editore_.ScegliTipo(Fattura);
  EXPECT_EQ((TestiSezioni{"\r\n", "\r\n", "\r\n"}), TestiOra());
  EXPECT_TRUE(editore_.AnteSpuntata());
}

TEST_F(EditoreTest, OpensATemplateTurnsThePreviewOffAndClearsThePrintFlags) {
  editore_.ScegliTipo(Fattura);
  editore_.Flag().SettaFlag(0, true);
  interlocutore_.Scegliera(Esempio() / "D_IMG" / "FATT01.IMG");
  editore_.Apri();
  EXPECT_EQ("Ordavia - G" + std::filesystem::path("/FATT01.IMG").make_preferred().string(),
            editore_.Titolo());
  EXPECT_FALSE(editore_.AnteSpuntata());
  EXPECT_FALSE(editore_.AnteVisibile());
  EXPECT_FALSE(editore_.Flag().Vero(0));
  EXPECT_FALSE(editore_.Modello().Stato().Modificato);
  EXPECT_NE("\r\n", Testo(Sezione::Testata));
}

TEST_F(EditoreTest, RendersWhenThePreviewIsTurnedOnAndOnlyThen) {
  editore_.ScegliTipo(Listino);
  Imposta(Sezione::Testata, "uno\r\n");
  editore_.CommutaAnteprima();
  EXPECT_FALSE(editore_.AnteSpuntata());
  EXPECT_TRUE(vista_.Anteprime.empty());
  editore_.CommutaAnteprima();
  EXPECT_TRUE(editore_.AnteSpuntata());
  EXPECT_EQ(std::vector<std::string>{"uno\r\n\r\n--- Fine file ---"}, vista_.Anteprime);
}

TEST_F(EditoreTest, SavesWhatItOpenedByteByByte) {
  editore_.ScegliTipo(Fattura);
  const std::string originale = Contenuto(Esempio() / "D_IMG" / "FATT01.IMG");
  Crea(FileNuovo(), originale);
  interlocutore_.Scegliera(FileNuovo());
  editore_.Apri();
  editore_.SegnaModificato();
  Crea(FileNuovo(), "sciupato");
  editore_.Salva();
  EXPECT_EQ(originale, Contenuto(FileNuovo()));
  EXPECT_FALSE(editore_.Modello().Stato().Modificato);
}

TEST_F(EditoreTest, TakesTheCaptionAndTheTextsOfTheFileThatSaveAsMade) {
  editore_.ScegliTipo(Fattura);
  Imposta({"abc", "c\r\n", "p\r\n"});
  editore_.SegnaModificato();
  interlocutore_.Scegliera(FileNuovo());
  editore_.SalvaConNome();
  EXPECT_EQ("Ordavia - NUOVO001.IMG", editore_.Titolo());
  EXPECT_EQ((TestiSezioni{"abc\r\n\r\n", "c\r\n", "p\r\n"}), TestiOra());
  EXPECT_FALSE(editore_.Modello().Stato().Modificato);
  EXPECT_TRUE(editore_.AnteSpuntata());
}

TEST_F(EditoreTest, LetsTheWindowCloseWithoutAQuestionWhenNothingIsModified) {
  EXPECT_TRUE(editore_.PuoChiudere());
  editore_.ScegliTipo(Fattura);
  EXPECT_TRUE(editore_.PuoChiudere());
}

TEST_F(EditoreTest, KeepsTheWindowOpenWhenTheQuestionIsCancelled) {
  editore_.ScegliTipo(Fattura);
  editore_.SegnaModificato();
  interlocutore_.Rispondera(Risposta::Annulla);
  EXPECT_FALSE(editore_.PuoChiudere());
  interlocutore_.Rispondera(Risposta::No);
  EXPECT_TRUE(editore_.PuoChiudere());
}

TEST_F(EditoreTest, LetsTheWindowCloseWithoutAQuestionAfterNew) {
  editore_.ScegliTipo(Fattura);
  editore_.SegnaModificato();
  interlocutore_.Rispondera(Risposta::Annulla);
  editore_.Nuovo();
  EXPECT_TRUE(editore_.PuoChiudere());
}

constexpr const char* TestataRotta = "1,\"A;A\xC0*.IMG;3;0;0;0;0;0;0;1;2;0;0;0;0\"\r\n//fine documenti\r\n";

class EditoreDiAltraVersione : public BancoEditore {
 protected:
  EditoreDiAltraVersione() : BancoEditore(std::string(TestataRotta) + "0001,\"Uno;1;N\r\n0002,\"Due\r\n") {}
};

TEST_F(EditoreDiAltraVersione, EndsTheProgramAfterTheMessage) {
  interlocutore_.Rispondera(Risposta::Ok);
  editore_.ScegliTipo(0);
  ASSERT_EQ(1U, interlocutore_.Messaggi.size());
  const Messaggio& messaggio = interlocutore_.Messaggi.front();
  EXPECT_EQ(
      "Questa versione di Parvik a 32 bit è disallineata con quella del file CAMPI.TXT.\r\n"
      "Impossibile continuare!",
      messaggio.Testo);
  EXPECT_EQ(Icona::Critica, messaggio.Simbolo);
  EXPECT_EQ(Pulsanti::Ok, messaggio.Tasti);
  EXPECT_EQ("Ordavia", messaggio.Titolo);
  EXPECT_EQ(std::vector<int>{1}, interlocutore_.Terminazioni);
}

class EditoreConNumeroEnorme : public BancoEditore {
 protected:
  EditoreConNumeroEnorme()
      : BancoEditore(std::string(TestataRotta) + "0001,\"Uno;1;N\r\n0002,\"Due;40000;N\r\n") {}
};

TEST_F(EditoreConNumeroEnorme, ShowsTheErrorAndGoesOn) {
  interlocutore_.Rispondera(Risposta::Ok);
  editore_.ScegliTipo(0);
  ASSERT_EQ(1U, interlocutore_.Messaggi.size());
  EXPECT_EQ("Si è verificato l'errore: 6 Overflow", interlocutore_.Messaggi.front().Testo);
  EXPECT_EQ(Icona::Critica, interlocutore_.Messaggi.front().Simbolo);
  EXPECT_EQ(std::vector<int>{}, interlocutore_.Terminazioni);
  EXPECT_TRUE(editore_.TipoScelto());
  EXPECT_EQ("Ordavia - AÀ*.IMG", editore_.Titolo());
}

}  // namespace
}  // namespace parvik::prova
