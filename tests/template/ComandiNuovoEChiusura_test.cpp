// File > Nuovo, and the question before the window closes.
#include <gtest/gtest.h>

#include <string>

#include "template/BancoComandi.h"

namespace parvik::prova {
namespace {

using Elenco = std::vector<std::string>;

class ComandoNuovo : public BancoComandi {
 protected:
  void AttendiRipartenza() const {
    EXPECT_FALSE(documento_.Stato().Modificato);
    EXPECT_EQ(Elenco{"senza tipo"}, contorno_.Fatti);
  }
};
class PuoChiudere : public BancoComandi {};

TEST_F(ComandoNuovo, AsksNothingAboutAnUnmodifiedTemplateAndKeepsTextsAndName) {
  documento_.Stato().NomeFile = dirImg_ / "A.IMG";
  comandi_.Nuovo(tre_);
  AttendiRipartenza();
  AttendiMessaggi({});
  EXPECT_EQ(dirImg_ / "A.IMG", documento_.Stato().NomeFile);
  EXPECT_EQ((TestiSezioni{"t\r\n", "c\r\n", "p\r\n"}), TestiOra());
}

TEST_F(ComandoNuovo, GoesOnThoughTheQuestionIsCancelled) {
  documento_.Stato().NomeFile = dirImg_ / "A.IMG";
  documento_.Stato().Modificato = true;
  interlocutore_.Rispondera(Risposta::Annulla);
  comandi_.Nuovo(tre_);
  AttendiMessaggi({Domanda()});
  AttendiRipartenza();
  EXPECT_EQ(Elenco{}, Nomi(dirImg_.Percorso()));
}

TEST_F(ComandoNuovo, DoesNotSaveWhenTheAnswerIsNo) {
  documento_.Stato().NomeFile = dirImg_ / "A.IMG";
  documento_.Stato().Modificato = true;
  interlocutore_.Rispondera(Risposta::No);
  comandi_.Nuovo(tre_);
  AttendiRipartenza();
  EXPECT_EQ(Elenco{}, Nomi(dirImg_.Percorso()));
}

TEST_F(ComandoNuovo, SavesWhenTheAnswerIsYes) {
  documento_.Stato().NomeFile = dirImg_ / "A.IMG";
  documento_.Stato().Modificato = true;
  interlocutore_.Rispondera(Risposta::Si);
  comandi_.Nuovo(tre_);
  AttendiRipartenza();
  EXPECT_EQ(FileIniziale(), Contenuto(dirImg_ / "A.IMG"));
}

TEST_F(ComandoNuovo, GoesOnThoughSaveAsIsGivenUp) {
  documento_.Stato().Modificato = true;
  interlocutore_.Rispondera(Risposta::Si);
  interlocutore_.Scegliera({});
  comandi_.Nuovo(tre_);
  AttendiRipartenza();
}

TEST_F(ComandoNuovo, GoesOnThoughTheWriteFails) {
  documento_.Stato().NomeFile = FileImpossibile();
  documento_.Stato().Modificato = true;
  interlocutore_.Rispondera(Risposta::Si);
  interlocutore_.Rispondera(Risposta::Ok);
  comandi_.Nuovo(tre_);
  AttendiMessaggi({Domanda(), Errore(NumeroErrore::PercorsoNonTrovato)});
  AttendiRipartenza();
}

TEST_F(PuoChiudere, AsksNothingAboutAnUnmodifiedTemplate) {
  EXPECT_TRUE(comandi_.PuoChiudere(tre_));
  AttendiMessaggi({});
}

TEST_F(PuoChiudere, KeepsTheWindowAndItsTextWhenTheQuestionIsCancelled) {
  documento_.Stato().Modificato = true;
  interlocutore_.Rispondera(Risposta::Annulla);
  EXPECT_FALSE(comandi_.PuoChiudere(tre_));
  AttendiMessaggi({Domanda()});
  EXPECT_TRUE(documento_.Stato().Modificato);
  EXPECT_EQ((TestiSezioni{"t\r\n", "c\r\n", "p\r\n"}), TestiOra());
}

TEST_F(PuoChiudere, ClosesWithoutSavingWhenTheAnswerIsNo) {
  documento_.Stato().NomeFile = dirImg_ / "A.IMG";
  documento_.Stato().Modificato = true;
  interlocutore_.Rispondera(Risposta::No);
  EXPECT_TRUE(comandi_.PuoChiudere(tre_));
  EXPECT_EQ(Elenco{}, Nomi(dirImg_.Percorso()));
}

TEST_F(PuoChiudere, ClosesAfterSavingWhenTheAnswerIsYes) {
  documento_.Stato().NomeFile = dirImg_ / "A.IMG";
  documento_.Stato().Modificato = true;
  interlocutore_.Rispondera(Risposta::Si);
  EXPECT_TRUE(comandi_.PuoChiudere(tre_));
  EXPECT_EQ(FileIniziale(), Contenuto(dirImg_ / "A.IMG"));
}

TEST_F(PuoChiudere, ClosesAfterSavingUnderANewName) {
  documento_.Stato().Modificato = true;
  interlocutore_.Rispondera(Risposta::Si);
  interlocutore_.Scegliera(dirImg_ / "A.IMG");
  EXPECT_TRUE(comandi_.PuoChiudere(tre_));
  EXPECT_EQ(FileIniziale(), Contenuto(dirImg_ / "A.IMG"));
}

TEST_F(PuoChiudere, KeepsTheWindowWhenTheAnswerWasYesAndSaveAsIsGivenUp) {
  documento_.Stato().Modificato = true;
  interlocutore_.Rispondera(Risposta::Si);
  interlocutore_.Scegliera({});
  EXPECT_FALSE(comandi_.PuoChiudere(tre_));
  EXPECT_TRUE(documento_.Stato().Modificato);
}

TEST_F(PuoChiudere, KeepsTheWindowWhenTheAnswerWasYesAndTheWriteFails) {
  documento_.Stato().NomeFile = FileImpossibile();
  documento_.Stato().Modificato = true;
  interlocutore_.Rispondera(Risposta::Si);
  interlocutore_.Rispondera(Risposta::Ok);
  EXPECT_FALSE(comandi_.PuoChiudere(tre_));
  AttendiMessaggi({Domanda(), Errore(NumeroErrore::PercorsoNonTrovato)});
  EXPECT_TRUE(documento_.Stato().Modificato);
}

TEST_F(PuoChiudere, KeepsTheWindowWhenTheAnswerWasYesAndSaveAsFails) {
  documento_.Stato().Modificato = true;
  interlocutore_.Rispondera(Risposta::Si);
  interlocutore_.Scegliera(FileImpossibile());
  EXPECT_FALSE(comandi_.PuoChiudere(tre_));
  AttendiMessaggi({Domanda()});
}

TEST_F(PuoChiudere, ClosesWhenTheAnswerWasYesAndThereIsNothingToSave) {
  documento_.Stato().Modificato = true;
  Imposta({"\r\n", "\r\n", "\r\n"});
  interlocutore_.Rispondera(Risposta::Si);
  EXPECT_TRUE(comandi_.PuoChiudere(tre_));
}

}  // namespace
}  // namespace parvik::prova
