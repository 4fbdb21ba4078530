// The export into a PDF document: what is asked, rendered, written and told.
#include <gmock/gmock.h>

#include "BancoStampa.h"
#include "common/FileDiProva.h"

namespace parvik::prova {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Esporta : public Stampa {
 protected:
  void EsportaSu(const std::filesystem::path& file) {
    interlocutore_.Scegliera(file);
    editore_.EsportaPdf();
  }

  const VistaFinta::PdfComposto& Composto() const { return vista_.PdfComposti.at(0); }
  std::filesystem::path Pdf() const { return dir_ / "uscita.pdf"; }
};

TEST_F(Esporta, AnEmptyTemplateAsksForNoFile) {
  Imposta(Sezione::Testata, "\r\n");
  editore_.EsportaPdf();
  EXPECT_THAT(interlocutore_.Richieste, IsEmpty());
  EXPECT_THAT(vista_.PdfComposti, IsEmpty());
}

TEST_F(Esporta, TheSaveDialogOpensInTheFolderOfTheTextFiles) {
  if (!DistingueCasi()) GTEST_SKIP() << "this system does not tell the cases of letters apart";
  std::filesystem::create_directory(dir_ / "d_stm");
  EsportaSu({});
  ASSERT_EQ(interlocutore_.Richieste.size(), 1U);
  const RichiestaFile& richiesta = interlocutore_.Richieste.front();
  EXPECT_EQ(richiesta.Uso, RichiestaFile::Scopo::Salva);
  EXPECT_EQ(richiesta.Titolo, "Esporta PDF");
  EXPECT_EQ(richiesta.Cartella, dir_ / "d_stm");
  EXPECT_EQ(richiesta.EtichettaFiltro, "File PDF (*.pdf)");
  EXPECT_EQ(richiesta.Modello, "*.pdf");
  EXPECT_EQ(richiesta.NomeProposto, "");
}

TEST_F(Esporta, TheTemplatesNameIsProposedAndTitlesTheDocument) {
  interlocutore_.Scegliera(FileNuovo());
  editore_.SalvaConNome();
  EsportaSu(Pdf());
  EXPECT_EQ(interlocutore_.Richieste.back().NomeProposto, "NUOVO001.pdf");
  EXPECT_EQ(Composto().Titolo, "NUOVO001.IMG");
}

TEST_F(Esporta, WithoutATemplatesFileTheDocumentHasTheProgramsName) {
  EsportaSu(Pdf());
  EXPECT_EQ(Composto().Titolo, "Ordavia");
}

TEST_F(Esporta, GivingUpTheChoiceOfTheFileRendersNothing) {
  EsportaSu({});
  EXPECT_THAT(vista_.PdfComposti, IsEmpty());
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir_.Percorso()), {}), 0);
}

TEST_F(Esporta, TheFileHoldsAllPiecesOfTheDocument) {
  EsportaSu(Pdf());
  EXPECT_EQ(Contenuto(Pdf()), "%PDF tutto");
  EXPECT_THAT(interlocutore_.Messaggi, IsEmpty());
}

TEST_F(Esporta, ANameWithoutAnExtensionGetsPdf) {
  EsportaSu(dir_ / "uscita");
  EXPECT_EQ(Contenuto(Pdf()), "%PDF tutto");
}

TEST_F(Esporta, PagesHoldAllThatIsPrintedButTheEndMarkersLine) {
  EsportaSu(Pdf());
  EXPECT_EQ(Composto().Testo, std::string(TestoReso) + "\r\n--- Fine file ---");
  EXPECT_EQ(Composto().Parte, TestoReso);
}

TEST_F(Esporta, ARunThatGivesNothingIsAnEmptyDocument) {
  CambiaTipo(Fattura);
  editore_.ImpostaCorpo({.RigheCorpo = 0, .LineeCorpo = 1, .FlagSbarra = "", .FlagAccorpa = ""});
  Imposta({"", "corpo\r\n", ""});
  EsportaSu(Pdf());
  EXPECT_EQ(Composto().Testo, "");
  EXPECT_EQ(Composto().Parte, "");
  EXPECT_EQ(Contenuto(Pdf()), "%PDF tutto");
}

TEST_F(Esporta, TheTemplateIsRenderedAnewAndThePaneStaysAsItIs) {
  StampaSu(Destinazione::Anteprima);
  Imposta(Sezione::Testata, "dopo\r\n");
  EsportaSu(Pdf());
  EXPECT_EQ(Composto().Parte, "dopo\r\n");
  EXPECT_EQ(vista_.Anteprime.size(), 1U);
  EXPECT_THAT(vista_.Rinnovate, IsEmpty());
}

TEST_F(Esporta, AHiddenPreviewStaysHidden) {
  editore_.CommutaAnteprima();
  EsportaSu(Pdf());
  EXPECT_FALSE(editore_.AnteVisibile());
  EXPECT_EQ(Contenuto(Pdf()), "%PDF tutto");
}

TEST_F(Esporta, TheSheetOfTheDocumentTypeIsThePaper) {
  EsportaSu(Pdf());
  EXPECT_EQ(Composto().SuFoglio.Quale, Carta::Nessuna);
  editore_.ImpostaFoglio(FoglioDi(Carta::A5));
  EsportaSu(dir_ / "altra.pdf");
  EXPECT_EQ(vista_.PdfComposti.at(1).SuFoglio, FoglioDi(Carta::A5));
}

TEST_F(Esporta, AnExistingFileIsReplacedWhenTheAnswerIsYes) {
  Crea(Pdf(), "vecchio");
  interlocutore_.Scegliera(Pdf());
  interlocutore_.Rispondera(Risposta::Si);
  editore_.EsportaPdf();
  EXPECT_EQ(Contenuto(Pdf()), "%PDF tutto");
  ASSERT_EQ(interlocutore_.Messaggi.size(), 1U);
  EXPECT_EQ(interlocutore_.Messaggi[0].Testo, "Il file esiste già, vuoi sostituirlo?\r\n" + Pdf().string());
  EXPECT_EQ(interlocutore_.Messaggi[0].Simbolo, Icona::Domanda);
  EXPECT_EQ(interlocutore_.Messaggi[0].Tasti, Pulsanti::SiNo);
}

TEST_F(Esporta, AnExistingFileStaysWhenTheAnswerIsNoAlsoForANameWithoutItsExtension) {
  Crea(Pdf(), "vecchio");
  interlocutore_.Scegliera(dir_ / "uscita");
  interlocutore_.Rispondera(Risposta::No);
  editore_.EsportaPdf();
  EXPECT_EQ(Contenuto(Pdf()), "vecchio");
  EXPECT_THAT(vista_.PdfComposti, IsEmpty());
}

/// The old file is there, and may be replaced.
class EsportaSuVecchio : public Esporta {
 protected:
  EsportaSuVecchio() {
    Crea(Pdf(), "vecchio");
    interlocutore_.Scegliera(Pdf());
    interlocutore_.Rispondera(Risposta::Si);
  }
  ~EsportaSuVecchio() override {
    EXPECT_EQ(Contenuto(Pdf()), "vecchio");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir_.Percorso()), {}), 1);
  }
};

TEST_F(EsportaSuVecchio, ARunThatIsGivenUpWritesNothing) {
  vista_.Attesa = VistaFinta::ComeAttende::Smette;
  editore_.EsportaPdf();
  EXPECT_THAT(vista_.PdfComposti, IsEmpty());
  EXPECT_EQ(interlocutore_.Messaggi.size(), 1U) << "the question alone";
}

TEST_F(EsportaSuVecchio, ARunWithoutMemorySaysSoAndWritesNothing) {
  vista_.Attesa = VistaFinta::ComeAttende::SenzaMemoria;
  interlocutore_.Rispondera(Risposta::Ok);
  editore_.EsportaPdf();
  EXPECT_THAT(vista_.PdfComposti, IsEmpty());
  EXPECT_EQ(interlocutore_.Messaggi.back().Testo, TestoErrore(NumeroErrore::MemoriaEsaurita));
}

TEST_F(EsportaSuVecchio, ADocumentThatIsGivenUpWritesNothing) {
  vista_.PdfLasciato = true;
  editore_.EsportaPdf();
  EXPECT_EQ(vista_.PdfComposti.size(), 1U);
  EXPECT_EQ(interlocutore_.Messaggi.size(), 1U) << "the question alone";
}

TEST_F(Esporta, AFullDiskIsToldWithTheFileAndEndsTheDocumentAndLeavesTheOldOne) {
  if (!LimiteDimensione::Possibile()) GTEST_SKIP() << "no limit of the size of files here";
  Crea(Pdf(), "vecchio");
  interlocutore_.Scegliera(Pdf());
  interlocutore_.Rispondera(Risposta::Si);
  vista_.PezziPdf = {std::string(20'000, 'x'), "mai scritto"};
  interlocutore_.Rispondera(Risposta::Ok);
  {
    const LimiteDimensione limite(10'000);
    editore_.EsportaPdf();
  }
  EXPECT_EQ(interlocutore_.Messaggi.back().Testo,
            TestoErrore(NumeroErrore::DiscoPieno) + "\r\n" + Pdf().string());
  EXPECT_EQ(interlocutore_.Messaggi.back().Simbolo, Icona::Critica);
  EXPECT_EQ(Contenuto(Pdf()), "vecchio");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir_.Percorso()), {}), 1);
}

TEST_F(Esporta, AFileThatCannotBeWrittenIsToldBeforeAnybodyWaits) {
  const std::filesystem::path file = dir_ / "manca" / "uscita.pdf";
  interlocutore_.Scegliera(file);
  interlocutore_.Rispondera(Risposta::Ok);
  editore_.EsportaPdf();
  EXPECT_THAT(vista_.PdfComposti, IsEmpty());
  ASSERT_EQ(interlocutore_.Messaggi.size(), 1U);
  EXPECT_EQ(interlocutore_.Messaggi[0].Testo,
            TestoErrore(NumeroErrore::PercorsoNonTrovato) + "\r\n" + file.string());
}

TEST_F(Esporta, ExportingDoesNotModifyTheTemplate) {
  EsportaSu(Pdf());
  EXPECT_FALSE(editore_.Modello().Stato().Modificato);
}

}  // namespace
}  // namespace parvik::prova
