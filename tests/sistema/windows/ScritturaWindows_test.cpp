// The safe writer beside other programs, as this system keeps them apart.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "common/FileDiProva.h"
#include "common/TestoPercorso.h"
#include "sistema/CopiaPrecedente.h"
#include "sistema/LetturaFile.h"
#include "sistema/ScritturaSicura.h"
#include "sistema/windows/OperazioniFile.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;
using Elenco = std::vector<std::string>;

const ErroreScrittura FileInUso = {.Numero = NumeroErrore::AutorizzazioneNegata,
                                   .Nota = "Il file è in uso: un altro programma lo sta salvando"};

class ScritturaWindows : public testing::Test {
 protected:
  ScritturaWindows() { Crea(File, "vecchio"); }

  /// As another program opens it.
  Maniglia Altrui(DWORD accesso, DWORD condivisione) const {
    EsitoSistema<Maniglia> aperto = ApriFile(File, accesso, condivisione, OPEN_EXISTING);
    EXPECT_TRUE(aperto);
    return aperto ? std::move(*aperto) : Maniglia();
  }
  void AttendiInUso() const {
    const EsitoScrittura scritto = ScriviFile(File, "nuovo");
    ASSERT_FALSE(scritto);
    EXPECT_EQ(scritto.Errore(), FileInUso);
  }
  void AttendiIntatto() const {
    EXPECT_EQ(Contenuto(File), "vecchio");
    EXPECT_EQ(Nomi(Cartella.Percorso()), Elenco{"a.img"});
  }

  CartellaTemporanea Cartella;
  const fs::path File = Cartella / "a.img";
};

TEST_F(ScritturaWindows, AFileThatAnotherProgramSharesWithNobodyIsError70AndStaysWhole) {
  {
    const Maniglia altrui = Altrui(GENERIC_READ, Nessuno);
    AttendiInUso();
    EXPECT_EQ(LeggiFile(File).Errore(), NumeroErrore::AutorizzazioneNegata);
    EXPECT_EQ(ProvaLettura(File).Errore(), NumeroErrore::AutorizzazioneNegata);
  }
  AttendiIntatto();
}

TEST_F(ScritturaWindows, AFileThatAnotherProgramLetsBeReadAloneIsError70AndStaysWhole) {
  {
    const Maniglia altrui = Altrui(GENERIC_READ, FILE_SHARE_READ);
    AttendiInUso();
    EXPECT_TRUE(LeggiFile(File));
  }
  AttendiIntatto();
}

TEST_F(ScritturaWindows, AFileThatAnotherProgramDoesNotLetBeReplacedIsError70AndStaysWhole) {
  {
    const Maniglia altrui = Altrui(GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
    AttendiInUso();
  }
  AttendiIntatto();
}

TEST_F(ScritturaWindows, AFileThatAnotherProgramOpensMeanwhileIsError70AndStaysWhole) {
  auto scrittura = ScritturaSicura::Apri(File);
  ASSERT_TRUE(scrittura);
  EXPECT_TRUE(scrittura->Scrivi("nuovo"));
  {
    const Maniglia altrui = Altrui(GENERIC_READ, FILE_SHARE_READ);
    const EsitoScrittura scritto = scrittura->Conferma();
    ASSERT_FALSE(scritto);
    EXPECT_EQ(scritto.Errore(), FileInUso);
  }
  scrittura = ErroreScrittura{};  // it goes away
  AttendiIntatto();
}

TEST_F(ScritturaWindows, AReaderThatSharesEverythingKeepsNobodyAwayAndReadsTheOldFile) {
  const Maniglia lettore = Altrui(GENERIC_READ, Tutti);
  EXPECT_TRUE(ScriviFile(File, "nuovo"));
  EXPECT_EQ(*LeggiTutto(lettore), "vecchio");
  EXPECT_EQ(Contenuto(File), "nuovo");
}

TEST_F(ScritturaWindows, AFileMarkedReadOnlyIsError70AndStaysWhole) {
  ASSERT_TRUE(::SetFileAttributesW(File.c_str(), FILE_ATTRIBUTE_READONLY));
  const EsitoScrittura scritto = ScriviFile(File, "nuovo");
  ASSERT_TRUE(::SetFileAttributesW(File.c_str(), FILE_ATTRIBUTE_NORMAL));
  ASSERT_FALSE(scritto);
  EXPECT_EQ(scritto.Errore(), ErroreScrittura{NumeroErrore::AutorizzazioneNegata});
  AttendiIntatto();
}

TEST_F(ScritturaWindows, OfTwoSaversTheSecondFindsTheFileInUse) {
  auto primo = ScritturaSicura::Apri(File);
  ASSERT_TRUE(primo);
  EXPECT_TRUE(primo->Scrivi("primo"));
  AttendiInUso();
  EXPECT_TRUE(primo->Conferma());
  primo = ErroreScrittura{};
  EXPECT_EQ(Contenuto(File), "primo");
  EXPECT_EQ(Nomi(Cartella.Percorso()), Elenco{"a.img"});
  EXPECT_TRUE(ScriviFile(File, "secondo"));
}

TEST_F(ScritturaWindows, WhatAKilledProgramLeftOfANewFileIsClearedAway) {
  Crea(Cartella / ".a.img.nuovo~", "half of a new one");
  Crea(Cartella / ".a.img.inuso~", "");
  EXPECT_TRUE(ScriviFile(File, "nuovo"));
  EXPECT_EQ(Contenuto(File), "nuovo");
  EXPECT_EQ(Nomi(Cartella.Percorso()), Elenco{"a.img"});
}

TEST_F(ScritturaWindows, TheOldContentThatAnInterruptedSaveLeftBecomesThePreviousContent) {
  for (const bool conFile : {true, false}) {
    Crea(Cartella / ".a.img.vecchio~", "prima");
    if (!conFile) fs::remove(File);
    EXPECT_TRUE(ScriviFile(File, "nuovo"));
    EXPECT_EQ(Contenuto(File), "nuovo");
    EXPECT_EQ(Contenuto(Cartella / "a.img~"), "prima");
    EXPECT_EQ(Nomi(Cartella.Percorso()), (Elenco{"a.img", "a.img~"}));
  }
}

TEST_F(ScritturaWindows, TheOldContentThatAnInterruptedSaveLeftGoesWhereTheFileHasIt) {
  Crea(Cartella / ".a.img.vecchio~", "vecchio");
  EXPECT_TRUE(ScriviFile(File, "nuovo"));
  EXPECT_EQ(Nomi(Cartella.Percorso()), Elenco{"a.img"});
}

TEST_F(ScritturaWindows, AFileWithTwoNamesIsWrittenInPlaceAndAnInterruptedCopyIsKeptThereToo) {
  fs::create_hard_link(File, Cartella / "b.img");
  Crea(Cartella / ".a.img.vecchio~", "prima");
  EXPECT_TRUE(ScriviFile(File, "nuovo"));
  EXPECT_EQ(Contenuto(Cartella / "b.img"), "nuovo");
  EXPECT_EQ(Contenuto(Cartella / "a.img~"), "prima");
  EXPECT_EQ(Nomi(Cartella.Percorso()), (Elenco{"a.img", "a.img~", "b.img"}));
  {
    const Maniglia altrui = Altrui(GENERIC_READ, FILE_SHARE_READ);
    AttendiInUso();
  }
  EXPECT_EQ(Contenuto(File), "nuovo");
}

TEST_F(ScritturaWindows, ThePreviousContentReplacesAnOlderOne) {
  EXPECT_TRUE(ConservaPrecedente(File, "uno"));
  EXPECT_TRUE(ConservaPrecedente(File, "due"));
  EXPECT_EQ(Contenuto(Cartella / "a.img~"), "due");
  EXPECT_EQ(Contenuto(File), "vecchio");
  EXPECT_EQ(Nomi(Cartella.Percorso()), (Elenco{"a.img", "a.img~"}));
}

TEST_F(ScritturaWindows, NamesAreTheUtf8OfTheSystemsOwn) {
  const std::string nome = "Citt\xC3\xA0 \xE2\x82\xAC \xF0\x9F\x98\x80.img";
  const fs::path file = Cartella.Percorso() / PercorsoDaTesto(nome);
  EXPECT_TRUE(ScriviFile(file, "uno"));
  EXPECT_TRUE(ScriviFile(file, "due"));
  EXPECT_EQ(*LeggiFile(file), "due");
  std::vector<std::string> nomi;
  for (const auto& voce : fs::directory_iterator(Cartella.Percorso()))
    nomi.push_back(TestoPercorso(voce.path().filename()));
  std::ranges::sort(nomi);
  EXPECT_EQ(nomi, (Elenco{nome, "a.img"}));
  EXPECT_EQ(
      ::GetFileAttributesW((Cartella.Percorso().native() + L"\\Citt\u00E0 \u20AC \U0001F600.img").c_str()) &
          FILE_ATTRIBUTE_DIRECTORY,
      0U);
}

TEST_F(ScritturaWindows, EitherSeparatorLeadsToTheFile) {
  const fs::path sotto = Cartella / "sotto";
  fs::create_directory(sotto);
  EXPECT_TRUE(ScriviFile(sotto.native() + L"\\uno.img", "uno"));
  EXPECT_TRUE(ScriviFile(sotto.native() + L"/due.img", "due"));
  EXPECT_EQ(Nomi(sotto), (Elenco{"due.img", "uno.img"}));
  EXPECT_EQ(*LeggiFile(sotto.native() + L"/UNO.IMG"), "uno");
}

TEST_F(ScritturaWindows, ADeviceIsWrittenToAndNotRead) {
  EXPECT_TRUE(ScriviFile("NUL", "via"));
  EXPECT_EQ(LeggiFile("NUL").Errore(), NumeroErrore::AccessoPercorsoFile);
  AttendiIntatto();
}

TEST_F(ScritturaWindows, APipeGetsTheBytesAtOnce) {
  const fs::path nome = LR"(\\.\pipe\parvik-)" + Cartella.Percorso().filename().native();
  const Maniglia pipe(::CreateNamedPipeW(nome.c_str(), PIPE_ACCESS_INBOUND, PIPE_TYPE_BYTE | PIPE_WAIT, 1,
                                         4096, 4096, 0, nullptr));
  ASSERT_TRUE(pipe);
  EXPECT_TRUE(ScriviFile(nome, "testo"));
  std::string letto(100, '\0');
  DWORD n = 0;
  EXPECT_TRUE(::ReadFile(pipe.Valore(), letto.data(), 100, &n, nullptr));
  EXPECT_EQ(letto.substr(0, n), "testo");
}

}  // namespace
}  // namespace parvik::prova
