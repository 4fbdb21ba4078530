// docs/barra-di-stato.md
#include "editor/StatoBarra.h"

#include "BancoEditore.h"

namespace parvik::prova {
namespace {

class StatoBarraTest : public BancoEditore {
 protected:
  StatoBarraTest() { editore_.ScegliTipo(Fattura); }

  TestiBarra Barra() { return editore_.Barra(pannello_, foglio_); }
  void Cursore(Sezione sezione, std::size_t ancora, std::size_t posto) {
    editore_.AttivaSezione(sezione);
    vista_.ImpostaCursore(sezione, {.Ancora = ancora, .Posto = posto});
  }

  TestoAnteprima pannello_;
  std::optional<MisuraFoglio> foglio_;
};

TEST_F(StatoBarraTest, TellsSectionLineAndColumnOfTheCaretFromOne) {
  Imposta(Sezione::Corpo, "uno\r\ndue\r\ntre quattro\r\n");
  Cursore(Sezione::Corpo, 21, 21);
  EXPECT_EQ(Barra().Sezione, "Corpo: riga 3, col. 12");
  Cursore(Sezione::Testata, 0, 0);
  EXPECT_EQ(Barra().Sezione, "Testata: riga 1, col. 1");
  EXPECT_EQ(Barra().ColCarta, "Stampa: col. 1");
}

TEST_F(StatoBarraTest, TellsTheColumnOnPaperBehindWideAndHiddenCodes) {
  Imposta(Sezione::Testata,
          "ab\xAB"
          "V1;29L\xBB"
          "c\xAB"
          "S;GRASSETTO\xBB"
          "d\r\n");
  for (const auto& [posto, colonna] : {std::pair(2U, 3U), std::pair(5U, 3U), std::pair(10U, 32U),
                                       std::pair(11U, 33U), std::pair(24U, 33U), std::pair(25U, 34U)}) {
    Cursore(Sezione::Testata, posto, posto);
    EXPECT_EQ(Barra().ColCarta, "Stampa: col. " + std::to_string(colonna)) << posto;
  }
}

TEST_F(StatoBarraTest, TellsTheCodeAtTheCaretInWords) {
  Imposta(Sezione::Testata,
          "ab\xAB"
          "V1;29L\"*\"\xBB\xAB"
          "S;GRASSETTO\xBBz");
  const std::string variabile = Barra().Codice;
  EXPECT_EQ(variabile, "");
  for (const std::size_t posto : {2U, 3U, 8U}) {
    Cursore(Sezione::Testata, posto, posto);
    EXPECT_TRUE(Barra().Codice.starts_with("Variabile 1 ")) << Barra().Codice;
    EXPECT_TRUE(Barra().Codice.find(", 29 caratteri a sinistra") != std::string::npos) << Barra().Codice;
  }
  const std::size_t fra = Testo(Sezione::Testata).find('\xBB') + 1;
  Cursore(Sezione::Testata, fra, fra);
  EXPECT_EQ(Barra().Codice, "Stile Grassetto") << "the one behind the caret";
  const std::size_t dopo = Testo(Sezione::Testata).find('z');
  Cursore(Sezione::Testata, dopo, dopo);
  EXPECT_EQ(Barra().Codice, "Stile Grassetto");
  Cursore(Sezione::Testata, dopo + 1, dopo + 1);
  EXPECT_EQ(Barra().Codice, "");
}

TEST_F(StatoBarraTest, TellsTheSizeOfTheSelectionInItsPlace) {
  Imposta(Sezione::Testata, "uno\r\ndue\xABV1;2L\xBB");
  Cursore(Sezione::Testata, 1, 2);
  EXPECT_EQ(Barra().Codice, "1 carattere selezionato");
  Cursore(Sezione::Testata, 8, 0);
  EXPECT_EQ(Barra().Codice, "7 caratteri selezionati") << "a line end is one";
}

TEST_F(StatoBarraTest, TellsTheWholePathOfTheFile) {
  EXPECT_EQ(Barra().Percorso, "");
  editore_.Modello().Stato().NomeFile = "/velkor/D_IMG/FATT01.IMG";
  EXPECT_EQ(Barra().Percorso, std::filesystem::absolute("/velkor/D_IMG/FATT01.IMG").string());
  editore_.Modello().Stato().NomeFile = "FATT01.IMG";
  EXPECT_EQ(Barra().Percorso, (std::filesystem::current_path() / "FATT01.IMG").string());
}

TEST_F(StatoBarraTest, TellsTheBytesOfAPathThatIsNoText) {
  if (!NomiDiByte) GTEST_SKIP() << "names are no bytes here, and a backslash separates";
  editore_.Modello().Stato().NomeFile = "/velkor/\xFF.IMG";
  EXPECT_EQ(Barra().Percorso, "/velkor/\\xFF.IMG") << "no UTF-8";
}

struct CasoCorsa {
  const char* Testo;
  const char* Atteso;
};

TEST_F(StatoBarraTest, TellsTheLinesOfTheLastRun) {
  for (const auto& [testo, atteso] :
       {CasoCorsa{"", ""}, CasoCorsa{"a\r\n\r\n--- Fine file ---", "1 riga + fine"},
        CasoCorsa{"a\r\n\r\nb\r\n\r\n--- Fine file ---", "3 righe + fine"},
        CasoCorsa{"a\r\nb\r\n", "2 righe"}}) {
    pannello_ = TestoAnteprima({.Testo = testo, .Tratti = {}});
    EXPECT_EQ(Barra().Pagine, atteso);
  }
  editore_.CommutaAnteprima();
  EXPECT_EQ(Barra().Pagine, "") << "the pane is hidden";
}

TEST_F(StatoBarraTest, TellsThePagesOfASheetAndWhatStandsOutside) {
  pannello_ = TestoAnteprima({.Testo = "a\r\nb\r\nc\r\n\r\n--- Fine file ---", .Tratti = {}});
  foglio_ = MisuraFoglio{.Pagina = {.Colonne = 80, .Righe = 3}, .Oltre = 0};
  EXPECT_EQ(Barra().Pagine, "3 righe + fine: 1 pagina");
  foglio_->Pagina.Righe = 2;
  EXPECT_EQ(Barra().Pagine, "3 righe + fine: 2 pagine");
  foglio_->Oltre = 1;
  EXPECT_EQ(Barra().Pagine, "3 righe + fine: 2 pagine, 1 riga oltre il foglio");
  foglio_->Oltre = 2;
  EXPECT_EQ(Barra().Pagine, "3 righe + fine: 2 pagine, 2 righe oltre il foglio");
  editore_.CommutaAnteprima();
  EXPECT_EQ(Barra().Pagine, "") << "the pane is hidden";
}

TEST_F(StatoBarraTest, SaysThatThePreviewIsNotUpToDateOnlyWhereOneShows) {
  const DatiBarra vecchia{.Modello = editore_.Modello(), .Dove = {}, .Aggiornata = false};
  EXPECT_EQ(PerBarra(vecchia).Aggiornata, "");
  DatiBarra mostrata = vecchia;
  mostrata.Corsa = CorsaMostrata{.Righe = 3, .Fine = true};
  EXPECT_EQ(PerBarra(mostrata).Aggiornata, "Anteprima non aggiornata");
  mostrata.Aggiornata = true;
  EXPECT_EQ(PerBarra(mostrata).Aggiornata, "");
}

TEST_F(StatoBarraTest, TellsWhereASaveKeptWhatSomebodyElseHadWritten) {
  const std::filesystem::path file = dir_ / "A.IMG";
  Crea(file, "uno\r\n");
  interlocutore_.Scegliera(file);
  editore_.Apri();
  EXPECT_EQ(Barra().Percorso, file.string());
  Crea(file, "altrui\r\n");
  editore_.Salva();
  EXPECT_EQ(Barra().Percorso, "La versione trovata sul disco è in A.IMG~");
  EXPECT_EQ(Contenuto(file.string() + "~"), "altrui\r\n");
  editore_.Salva();
  EXPECT_EQ(Barra().Percorso, file.string()) << "nothing was kept this time";
}

TEST_F(StatoBarraTest, TellsWhereASaveThroughALinkKeptWhatSomebodyElseHadWritten) {
  if (!Collegamenti()) GTEST_SKIP() << "no links here";
  const std::filesystem::path file = dir_ / "A.IMG";
  Crea(file, "uno\r\n");
  interlocutore_.Scegliera(file);
  editore_.Apri();
  Crea(file, "altrui\r\n");
  std::filesystem::create_symlink(file, FileNuovo());
  interlocutore_.Scegliera(FileNuovo());
  editore_.SalvaConNome();
  EXPECT_EQ(Barra().Percorso, "La versione trovata sul disco è in A.IMG~")
      << "beside the file that the link leads to";
  interlocutore_.Scegliera(file);
  editore_.Apri();
  EXPECT_EQ(Barra().Percorso, file.string());
}

}  // namespace
}  // namespace parvik::prova
