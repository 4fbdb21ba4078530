#include <gmock/gmock.h>

#include "BancoStampa.h"
#include "common/FileDiProva.h"

namespace parvik::prova {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(Stampa, AnEmptyTemplateAsksForNoDestination) {
  Imposta(Sezione::Testata, "\r\n");
  StampaSu(Destinazione::Anteprima);
  EXPECT_EQ(vista_.RichiesteDestinazione, 0);
  EXPECT_THAT(vista_.Anteprime, IsEmpty());
}

TEST_F(Stampa, CancelInTheDestinationDialogDoesNothingAtAll) {
  StampaSu(std::nullopt);
  EXPECT_EQ(vista_.RichiesteDestinazione, 1);
  EXPECT_EQ(vista_.RichiesteStampante, 0);
  EXPECT_THAT(vista_.Anteprime, IsEmpty());
  EXPECT_THAT(interlocutore_.Richieste, IsEmpty());
}

TEST_F(Stampa, AnteprimaShowsAHiddenPreviewAndRendersIt) {
  editore_.CommutaAnteprima();
  ASSERT_FALSE(editore_.AnteVisibile());
  StampaSu(Destinazione::Anteprima);
  EXPECT_TRUE(editore_.AnteVisibile());
  EXPECT_THAT(vista_.Anteprime, ElementsAre(std::string(TestoReso) + "\r\n--- Fine file ---"));
}

TEST_F(Stampa, AnteprimaRendersAShownPreviewAgain) {
  ASSERT_TRUE(editore_.AnteVisibile());
  StampaSu(Destinazione::Anteprima);
  StampaSu(Destinazione::Anteprima);
  EXPECT_TRUE(editore_.AnteVisibile());
  EXPECT_EQ(vista_.Anteprime.size(), 2U);
}

TEST_F(Stampa, GivingUpTheChoiceOfThePrinterEndsTheCommand) {
  editore_.CommutaAnteprima();
  StampaSu(Destinazione::Stampante);
  EXPECT_EQ(vista_.RichiesteStampante, 1);
  EXPECT_FALSE(editore_.AnteVisibile());
  EXPECT_THAT(vista_.Anteprime, IsEmpty());
}

TEST_F(Stampa, WithNothingToPrintWithTheReasonIsToldAndTheCommandEnds) {
  editore_.CommutaAnteprima();
  vista_.SenzaStampe = "il motivo";
  interlocutore_.Rispondera(Risposta::Ok);
  StampaSu(Destinazione::Stampante);
  ASSERT_EQ(interlocutore_.Messaggi.size(), 1U);
  EXPECT_EQ(interlocutore_.Messaggi.front().Testo, "il motivo");
  EXPECT_EQ(interlocutore_.Messaggi.front().Simbolo, Icona::Critica);
  EXPECT_EQ(interlocutore_.Messaggi.front().Tasti, Pulsanti::Ok);
  EXPECT_FALSE(editore_.AnteVisibile());
  EXPECT_THAT(vista_.Anteprime, IsEmpty());
}

TEST_F(Stampa, AHiddenPreviewIsShownAndRenderedBeforeItIsPrinted) {
  editore_.CommutaAnteprima();
  vista_.ConStampante = true;
  StampaSu(Destinazione::Stampante);
  EXPECT_TRUE(editore_.AnteVisibile());
  EXPECT_EQ(vista_.Anteprime.size(), 1U);
  EXPECT_THAT(vista_.LavoriStampati, ElementsAre("Ordavia"));
}

TEST_F(Stampa, AShownPreviewIsPrintedAsItStandsWithoutRendering) {
  vista_.ConStampante = true;
  StampaSu(Destinazione::Stampante);
  EXPECT_THAT(vista_.Anteprime, IsEmpty());
  EXPECT_THAT(vista_.LavoriStampati, ElementsAre("Ordavia"));
}

TEST_F(Stampa, ThePrintJobHasTheNameOfTheFile) {
  interlocutore_.Scegliera(FileNuovo());
  editore_.SalvaConNome();
  vista_.ConStampante = true;
  StampaSu(Destinazione::Stampante);
  EXPECT_THAT(vista_.LavoriStampati, ElementsAre("NUOVO001.IMG"));
}

TEST_F(Stampa, APreviewThatIsGivenUpIsNotPrinted) {
  editore_.CommutaAnteprima();
  Imposta(Sezione::Testata, std::string(5'000'000, 'x') + "\r\n");
  vista_.ConStampante = true;
  vista_.Attesa = VistaFinta::ComeAttende::Smette;
  StampaSu(Destinazione::Stampante);
  EXPECT_TRUE(editore_.AnteVisibile());
  EXPECT_THAT(vista_.LavoriStampati, IsEmpty());
}

TEST_F(Stampa, TheTextFileHoldsTheRenderedLinesWithoutMarkersAndEndMarker) {
  const std::filesystem::path file = dir_ / "uscita.txt";
  StampaSuFile(file);
  EXPECT_EQ(Contenuto(file), TestoReso);
  EXPECT_THAT(vista_.Anteprime, IsEmpty());
}

TEST_F(Stampa, AnExistingTextFileIsReplacedWithoutAQuestion) {
  const std::filesystem::path file = dir_ / "uscita.txt";
  Crea(file, "molto più lungo di quello che lo sostituisce, e altro ancora");
  StampaSuFile(file);
  EXPECT_EQ(Contenuto(file), TestoReso);
  EXPECT_THAT(interlocutore_.Messaggi, IsEmpty());
}

TEST_F(Stampa, ANameWithoutAnExtensionGetsTxt) {
  StampaSuFile(dir_ / "uscita");
  EXPECT_EQ(Contenuto(dir_ / "uscita.txt"), TestoReso);
  StampaSuFile(dir_ / "uscita.prn");
  EXPECT_EQ(Contenuto(dir_ / "uscita.prn"), TestoReso);
}

TEST_F(Stampa, TheSaveDialogOpensInTheFolderOfTheTextFiles) {
  if (!DistingueCasi()) GTEST_SKIP() << "this system does not tell the cases of letters apart";
  std::filesystem::create_directory(dir_ / "d_stm");
  StampaSuFile({});
  ASSERT_EQ(interlocutore_.Richieste.size(), 1U);
  const RichiestaFile& richiesta = interlocutore_.Richieste.front();
  EXPECT_EQ(richiesta.Uso, RichiestaFile::Scopo::Salva);
  EXPECT_EQ(richiesta.Titolo, "");
  EXPECT_EQ(richiesta.Cartella, dir_ / "d_stm");
  EXPECT_EQ(richiesta.EtichettaFiltro, "File TXT (*.txt)");
  EXPECT_EQ(richiesta.Modello, "*.txt");
  EXPECT_EQ(richiesta.NomeProposto, "");
}

TEST_F(Stampa, WithoutThatFolderItOpensInTheHostsOwn) {
  StampaSuFile({});
  EXPECT_EQ(interlocutore_.Richieste.front().Cartella, dir_.Percorso() / "");
}

TEST_F(Stampa, TheTemplatesNameIsProposedAndLaterTheLastOneThatWasChosen) {
  interlocutore_.Scegliera(FileNuovo());
  editore_.SalvaConNome();
  interlocutore_.Richieste.clear();
  StampaSuFile(dir_ / "altro");
  StampaSuFile({});
  StampaSuFile({});
  ASSERT_EQ(interlocutore_.Richieste.size(), 3U);
  EXPECT_EQ(interlocutore_.Richieste[0].NomeProposto, "NUOVO001.txt");
  EXPECT_EQ(interlocutore_.Richieste[1].NomeProposto, (dir_ / "altro.txt").string());
  EXPECT_EQ(interlocutore_.Richieste[2].NomeProposto, (dir_ / "altro.txt").string());
}

TEST_F(Stampa, ACancelledSaveDialogWritesNothingEvenWhenItHoldsAName) {
  StampaSuFile(dir_ / "uscita.txt");
  std::filesystem::remove(dir_ / "uscita.txt");
  StampaSuFile({});
  EXPECT_FALSE(std::filesystem::exists(dir_ / "uscita.txt"));
}

TEST_F(Stampa, AFileThatCannotBeCreatedEndsTheCommandSilently) {
  StampaSuFile(dir_ / "manca" / "uscita.txt");
  EXPECT_FALSE(std::filesystem::exists(dir_ / "manca"));
  EXPECT_THAT(interlocutore_.Messaggi, IsEmpty());
}

TEST_F(Stampa, ATextFileThatIsGivenUpLeavesTheOldOneWhole) {
  const std::filesystem::path file = dir_ / "uscita.txt";
  Crea(file, "vecchio");
  vista_.Attesa = VistaFinta::ComeAttende::Smette;
  StampaSuFile(file);
  EXPECT_EQ(Contenuto(file), "vecchio");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir_.Percorso()), {}), 1);
}

TEST_F(Stampa, ATextFileWithFewerRightsThanBeforeIsTold) {
  const std::filesystem::path file = dir_ / "uscita.txt";
  Crea(file, "vecchio");
  if (!Regala(file)) GTEST_SKIP() << "only root can give a file away";
  std::filesystem::permissions(file, std::filesystem::perms{0646});
  std::filesystem::permissions(dir_.Percorso(), std::filesystem::perms{0777});
  interlocutore_.RisponderaSeChiesto(Risposta::Ok);
  {
    const UtenteComune utente;
    StampaSuFile(file);
  }
  EXPECT_EQ(Contenuto(file), TestoReso);
  ASSERT_EQ(interlocutore_.Messaggi.size(), 1U);
  EXPECT_EQ(interlocutore_.Messaggi[0].Testo, TestoAvviso({.Accesso = Diritti::Ridotti}));
}

TEST_F(Stampa, PrintingDoesNotModifyTheTemplate) {
  StampaSuFile(dir_ / "uscita.txt");
  StampaSu(Destinazione::Anteprima);
  EXPECT_FALSE(editore_.Modello().Stato().Modificato);
}

}  // namespace
}  // namespace parvik::prova
