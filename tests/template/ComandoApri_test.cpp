// File > Apri.
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <string>

#include "common/TestoPercorso.h"
#include "template/BancoComandi.h"

namespace parvik::prova {
namespace {

using Testi = std::vector<std::string>;

class ComandoApri : public BancoComandi {
 protected:
  /// What stands before each test in the file that is there to be opened, and what it becomes.
  void SetUp() override { Crea(dirImg_ / "MODELLO1.IMG", "n\r\n" + Marcatore("7;1;CS") + "m\r\no\r\n"); }
  static TestiSezioni Aperti() { return {"n\r\n", "m\r\n", "o\r\n"}; }
  static TestiSezioni Iniziali() { return {"t\r\n", "c\r\n", "p\r\n"}; }
};

TEST_F(ComandoApri, ReadsTheChosenFileAndShowsItsName) {
  interlocutore_.Scegliera(dirImg_ / "MODELLO1.IMG");
  comandi_.Apri(tre_);
  EXPECT_EQ(Aperti(), TestiOra());
  EXPECT_EQ((ImpostazioniCorpo{7, 1, "C", "S"}), documento_.Stato().Corpo);
  EXPECT_EQ(dirImg_ / "MODELLO1.IMG", documento_.Stato().NomeFile);
  EXPECT_FALSE(documento_.Stato().Modificato);
  EXPECT_EQ((Testi{"anteprima spenta", "flag azzerati", "titolo Ordavia - MODELLO1.IMG"}), contorno_.Fatti);
}

TEST_F(ComandoApri, AsksForTheFileByTheTypesPattern) {
  interlocutore_.Scegliera({});
  comandi_.Apri(tre_);
  AttendiRichiesta(RichiestaFile::Scopo::Apri, "Apri File Immagine", "FATT*.IMG", "");
}

TEST_F(ComandoApri, AsksForEveryTemplateWhenTheTypesTextIsNoPattern) {
  for (const char* titolo : {"", "FATTURA", "   "}) {
    interlocutore_.Richieste.clear();
    tre_.Titolo = titolo;
    interlocutore_.Scegliera({});
    comandi_.Apri(tre_);
    AttendiRichiesta(RichiestaFile::Scopo::Apri, "Apri File Immagine", "*.img", "");
  }
}

TEST_F(ComandoApri, TakesATextWithOneOfThePatternCharactersForAPattern) {
  for (const char* titolo : {"FATT*", "FATT?", "FATT.IMG"}) {
    interlocutore_.Richieste.clear();
    tre_.Titolo = titolo;
    interlocutore_.Scegliera({});
    comandi_.Apri(tre_);
    AttendiRichiesta(RichiestaFile::Scopo::Apri, "Apri File Immagine", titolo, "");
  }
}

TEST_F(ComandoApri, GivesThePatternAsUtf8) {
  tre_.Titolo = "QUALIT\xC0*.IMG";
  interlocutore_.Scegliera({});
  comandi_.Apri(tre_);
  AttendiRichiesta(RichiestaFile::Scopo::Apri, "Apri File Immagine", "QUALITÀ*.IMG", "");
}

TEST_F(ComandoApri, ForgetsTheFileNameAndNothingElseWhenTheChoiceIsGivenUp) {
  documento_.Stato().NomeFile = "prima.img";
  interlocutore_.Scegliera({});
  comandi_.Apri(tre_);
  EXPECT_EQ("", documento_.Stato().NomeFile);
  EXPECT_EQ(Iniziali(), TestiOra());
  EXPECT_EQ(Testi{}, contorno_.Fatti);
}

TEST_F(ComandoApri, StaysModifiedWhenTheChoiceIsGivenUp) {
  documento_.Stato().Modificato = true;
  interlocutore_.Rispondera(Risposta::No);
  interlocutore_.Scegliera({});
  comandi_.Apri(tre_);
  EXPECT_TRUE(documento_.Stato().Modificato);
}

TEST_F(ComandoApri, AsksNothingAboutAnUnmodifiedTemplate) {
  interlocutore_.Scegliera(dirImg_ / "MODELLO1.IMG");
  comandi_.Apri(tre_);
  AttendiMessaggi({});
}

TEST_F(ComandoApri, DoesNothingWhenTheQuestionIsCancelled) {
  documento_.Stato().Modificato = true;
  documento_.Stato().NomeFile = dirImg_ / "prima.img";
  interlocutore_.Rispondera(Risposta::Annulla);
  comandi_.Apri(tre_);
  AttendiMessaggi({Domanda()});
  EXPECT_EQ(dirImg_ / "prima.img", documento_.Stato().NomeFile);
  EXPECT_TRUE(documento_.Stato().Modificato);
  EXPECT_EQ(Iniziali(), TestiOra());
  EXPECT_EQ(Testi{}, contorno_.Fatti);
}

TEST_F(ComandoApri, OpensWithoutSavingWhenTheAnswerIsNo) {
  documento_.Stato().Modificato = true;
  documento_.Stato().NomeFile = dirImg_ / "prima.img";
  interlocutore_.Rispondera(Risposta::No);
  interlocutore_.Scegliera(dirImg_ / "MODELLO1.IMG");
  comandi_.Apri(tre_);
  EXPECT_EQ(Testi{"MODELLO1.IMG"}, Nomi(dirImg_.Percorso()));
  EXPECT_EQ(Aperti(), TestiOra());
  EXPECT_FALSE(documento_.Stato().Modificato);
}

TEST_F(ComandoApri, SavesFirstWhenTheAnswerIsYes) {
  documento_.Stato().Modificato = true;
  documento_.Stato().NomeFile = dirImg_ / "prima.img";
  interlocutore_.Rispondera(Risposta::Si);
  interlocutore_.Scegliera(dirImg_ / "MODELLO1.IMG");
  comandi_.Apri(tre_);
  EXPECT_EQ(FileIniziale(), Contenuto(dirImg_ / "prima.img"));
  EXPECT_EQ(Aperti(), TestiOra());
  EXPECT_EQ(dirImg_ / "MODELLO1.IMG", documento_.Stato().NomeFile);
}

TEST_F(ComandoApri, SavesANamelessTemplateUnderANameFirstWhenTheAnswerIsYes) {
  documento_.Stato().Modificato = true;
  interlocutore_.Rispondera(Risposta::Si);
  interlocutore_.Scegliera(dirImg_ / "nuovo.img");
  interlocutore_.Scegliera(dirImg_ / "MODELLO1.IMG");
  comandi_.Apri(tre_);
  EXPECT_EQ(FileIniziale(), Contenuto(dirImg_ / "nuovo.img"));
  EXPECT_EQ(Aperti(), TestiOra());
}

TEST_F(ComandoApri, DoesNothingWhenTheAnswerWasYesAndSaveAsWasGivenUp) {
  documento_.Stato().Modificato = true;
  interlocutore_.Rispondera(Risposta::Si);
  interlocutore_.Scegliera({});
  comandi_.Apri(tre_);
  EXPECT_EQ(1U, interlocutore_.Richieste.size());
  EXPECT_TRUE(documento_.Stato().Modificato);
  EXPECT_EQ(Iniziali(), TestiOra());
}

TEST_F(ComandoApri, DoesNothingWhenTheAnswerWasYesAndTheWriteFailed) {
  documento_.Stato().Modificato = true;
  documento_.Stato().NomeFile = FileImpossibile();
  interlocutore_.Rispondera(Risposta::Si);
  interlocutore_.Rispondera(Risposta::Ok);
  comandi_.Apri(tre_);
  AttendiMessaggi({Domanda(), Errore(NumeroErrore::PercorsoNonTrovato)});
  EXPECT_EQ(FileImpossibile(), documento_.Stato().NomeFile);
  EXPECT_TRUE(documento_.Stato().Modificato);
}

TEST_F(ComandoApri, GoesOnWhenTheAnswerWasYesAndThereIsNothingToSave) {
  documento_.Stato().Modificato = true;
  Imposta({"\r\n", "\r\n", "\r\n"});
  interlocutore_.Rispondera(Risposta::Si);
  interlocutore_.Scegliera(dirImg_ / "MODELLO1.IMG");
  comandi_.Apri(tre_);
  EXPECT_EQ(Aperti(), TestiOra());
  EXPECT_FALSE(documento_.Stato().Modificato);
}

TEST_F(ComandoApri, IsSilentAboutAMissingFileWhoseNameItKeeps) {
  documento_.Stato().Modificato = true;
  interlocutore_.Rispondera(Risposta::No);
  interlocutore_.Scegliera(dirImg_ / "MANCA001.IMG");
  comandi_.Apri(tre_);
  AttendiMessaggi({Domanda()});
  EXPECT_EQ(dirImg_ / "MANCA001.IMG", documento_.Stato().NomeFile);
  EXPECT_EQ(Iniziali(), TestiOra());
  EXPECT_FALSE(documento_.Stato().Modificato);
  EXPECT_EQ((Testi{"anteprima spenta", "flag azzerati", "titolo Ordavia - MANCA001.IMG"}), contorno_.Fatti);
}

TEST_F(ComandoApri, OpensAFileOf128MiBAndRefusesAGreaterOneBeforeAnythingChanges) {
  constexpr std::uintmax_t massimo = 128U << 20U;
  std::filesystem::resize_file(dirImg_ / "MODELLO1.IMG", massimo + 1);
  documento_.Stato().NomeFile = dirImg_ / "prima.img";
  interlocutore_.Scegliera(dirImg_ / "MODELLO1.IMG");
  interlocutore_.Rispondera(Risposta::Ok);
  comandi_.Apri(tre_);
  AttendiMessaggi({Errore(NumeroErrore::MemoriaEsaurita)});
  EXPECT_EQ(Iniziali(), TestiOra());
  EXPECT_EQ(dirImg_ / "prima.img", documento_.Stato().NomeFile);
  EXPECT_EQ(Testi{}, contorno_.Fatti);

  interlocutore_.Messaggi.clear();
  std::filesystem::resize_file(dirImg_ / "MODELLO1.IMG", massimo);
  interlocutore_.Scegliera(dirImg_ / "MODELLO1.IMG");
  comandi_.Apri(tre_);
  AttendiMessaggi({});
  EXPECT_EQ(Aperti()[0], Testo(Sezione::Testata));
  EXPECT_EQ(dirImg_ / "MODELLO1.IMG", documento_.Stato().NomeFile);
}

TEST_F(ComandoApri, ShowsWhatCouldBeReadOfAFileThatEndsTooEarly) {
  Crea(dirImg_ / "CORTO.IMG", "n\r\n" + Marcatore("7;5;") + "m\r\n");
  interlocutore_.Scegliera(dirImg_ / "CORTO.IMG");
  comandi_.Apri(tre_);
  AttendiMessaggi({});
  EXPECT_EQ((TestiSezioni{"n\r\n", "m\r\n", ""}), TestiOra());
  EXPECT_EQ((ImpostazioniCorpo{7, 5, "", ""}), documento_.Stato().Corpo);
}

TEST_F(ComandoApri, LeavesThePrintFlagsAloneWhenTheTestataIsEmpty) {
  Imposta(Sezione::Testata, "");
  interlocutore_.Scegliera(dirImg_ / "MODELLO1.IMG");
  comandi_.Apri(tre_);
  EXPECT_EQ((Testi{"anteprima spenta", "titolo Ordavia - MODELLO1.IMG"}), contorno_.Fatti);
}

TEST_F(ComandoApri, TouchesOnlyTheTestataUnderATypeOfOneSection) {
  Crea(dirImg_ / "LISTINO1.IMG", "uno\r\n" + CodiceFile("V1") + "\r\n");
  interlocutore_.Scegliera(dirImg_ / "LISTINO1.IMG");
  comandi_.Apri(una_);
  EXPECT_EQ((TestiSezioni{"uno\r\n" + Codice("V1") + "\r\n", "c\r\n", "p\r\n"}), TestiOra());
  EXPECT_EQ(std::vector<Sezione>{Sezione::Testata}, uditore_.Sostituite);
  EXPECT_EQ(ImpostazioniPredefinite(), documento_.Stato().Corpo);
}

TEST_F(ComandoApri, CompletesANameTypedWithoutItsExtension) {
  Crea(dirImg_ / "uno.img", "uno\r\n");
  interlocutore_.Scegliera(dirImg_ / "uno");
  comandi_.Apri(una_);
  EXPECT_EQ(dirImg_ / "uno.img", documento_.Stato().NomeFile);
  EXPECT_EQ("uno\r\n", Testo(Sezione::Testata));
}

TEST_F(ComandoApri, FindsTheCompletedNameInAnyCase) {
  if (!DistingueCasi()) GTEST_SKIP() << "this system does not tell the cases of letters apart";
  interlocutore_.Scegliera(dirImg_ / "modello1");
  comandi_.Apri(tre_);
  EXPECT_EQ(dirImg_ / "MODELLO1.IMG", documento_.Stato().NomeFile);
  EXPECT_EQ(Aperti(), TestiOra());
}

TEST_F(ComandoApri, PrefersAFileThatBearsTheNameAsItWasTyped) {
  Crea(dirImg_ / "uno", "senza\r\n");
  Crea(dirImg_ / "uno.img", "con\r\n");
  interlocutore_.Scegliera(dirImg_ / "uno");
  comandi_.Apri(una_);
  EXPECT_EQ(dirImg_ / "uno", documento_.Stato().NomeFile);
  EXPECT_EQ("senza\r\n", Testo(Sezione::Testata));
}

TEST_F(ComandoApri, ShowsTheLastTwelveCharactersOfTheWholePath) {
  const std::filesystem::path accentato = dirImg_ / "x" / PercorsoDaTesto("à.img");
  Crea(accentato, "uno\r\n");
  Crea(dirImg_ / "UN-NOME-LUNGO.IMG", "due\r\n");
  interlocutore_.Scegliera(dirImg_ / "UN-NOME-LUNGO.IMG");
  comandi_.Apri(una_);
  EXPECT_EQ("titolo Ordavia - ME-LUNGO.IMG", contorno_.Fatti.back());

  const std::string percorso = TestoPercorso(accentato);
  interlocutore_.Scegliera(accentato);
  comandi_.Apri(una_);
  EXPECT_EQ("titolo Ordavia - " + percorso.substr(percorso.size() - 13), contorno_.Fatti.back());
}

}  // namespace
}  // namespace parvik::prova
