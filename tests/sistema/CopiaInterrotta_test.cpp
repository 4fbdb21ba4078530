// What a killed program left behind, and two programs that write the same file.
#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>

#include "common/FileDiProva.h"
#include "sistema/CopiaPrecedente.h"
#include "sistema/LetturaFile.h"
#include "sistema/ScritturaSicura.h"
#include "sistema/posix/CopiaDiRiserva.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;
using Elenco = std::vector<std::string>;

const ErroreScrittura InUso = {.Numero = NumeroErrore::AutorizzazioneNegata,
                               .Nota = "Il file è in uso: un altro programma lo sta salvando"};

class CopiaInterrotta : public testing::Test {
 protected:
  void SetUp() override { Crea(File, "mezzo"); }
  /// As an earlier version named it: who wrote it is not known.
  void Abbandona(std::string_view byte) const { Crea(Cartella / ".a.img.vecchio~", byte); }

  CartellaTemporanea Cartella;
  const fs::path File = Cartella / "a.img";
};

TEST_F(CopiaInterrotta, LiesBesideTheFileWhileThatIsWrittenOver) {
  EsitoSistema<CopiaDiRiserva> copia = CopiaDiRiserva::Crea(File, "vecchio");
  ASSERT_TRUE(copia);
  EXPECT_EQ((Elenco{copia->Nome().filename(), "a.img"}), Nomi(Cartella.Percorso()));
  EXPECT_TRUE(copia->Nome().string().ends_with(".vecchio~"));
  EXPECT_EQ("vecchio", Contenuto(copia->Nome()));
  copia->Togli();
  EXPECT_EQ(Elenco{"a.img"}, Nomi(Cartella.Percorso()));
}

TEST_F(CopiaInterrotta, BecomesThePreviousContentWithTheNextSave) {
  Abbandona("vecchio");
  EXPECT_TRUE(ScriviFile(File, "nuovo"));
  EXPECT_EQ((Elenco{"a.img", "a.img~"}), Nomi(Cartella.Percorso()));
  EXPECT_EQ("nuovo", Contenuto(File));
  EXPECT_EQ("vecchio", Contenuto(Cartella / "a.img~"));
}

TEST_F(CopiaInterrotta, BecomesThePreviousContentWithTheNextSaveInPlace) {
  fs::create_hard_link(File, Cartella / "b.img");
  Abbandona("vecchio");
  EXPECT_TRUE(ScriviFile(File, "nuovo"));
  EXPECT_EQ((Elenco{"a.img", "a.img~", "b.img"}), Nomi(Cartella.Percorso()));
  EXPECT_EQ("nuovo", Contenuto(Cartella / "b.img"));
  EXPECT_EQ("vecchio", Contenuto(Cartella / "a.img~"));
}

TEST_F(CopiaInterrotta, BecomesThePreviousContentOfAFileThatIsGone) {
  Abbandona("vecchio");
  fs::remove(File);
  EXPECT_TRUE(ScriviFile(File, "nuovo"));
  EXPECT_EQ("vecchio", Contenuto(Cartella / "a.img~"));
}

TEST_F(CopiaInterrotta, GoesAwayWhenTheFileHoldsTheSameBytes) {
  Abbandona("mezzo");
  EXPECT_TRUE(ScriviFile(File, "nuovo"));
  EXPECT_EQ(Elenco{"a.img"}, Nomi(Cartella.Percorso()));
}

TEST_F(CopiaInterrotta, StaysAndStopsTheSaveWhereItCannotBeKept) {
  Abbandona("vecchio");
  Crea(Cartella / "a.img~" / "dentro", "");  // a folder has the name
  EXPECT_FALSE(ScriviFile(File, "nuovo"));
  EXPECT_EQ("mezzo", Contenuto(File));
  EXPECT_EQ("vecchio", Contenuto(Cartella / ".a.img.vecchio~"));
}

TEST_F(CopiaInterrotta, IsDeniedToASecondSaverWhileTheFirstIsAtWork) {
  fs::create_hard_link(File, Cartella / "b.img");
  EsitoSistema<CopiaDiRiserva> copia = CopiaDiRiserva::Crea(File, "vecchio");
  ASSERT_TRUE(copia);
  const EsitoScrittura secondo = ScriviFile(File, "nuovo");
  ASSERT_FALSE(secondo);
  EXPECT_EQ(InUso, secondo.Errore());
  EXPECT_EQ("mezzo", Contenuto(File));
  EXPECT_EQ("vecchio", Contenuto(copia->Nome()));
  copia->Togli();
  EXPECT_TRUE(ScriviFile(File, "nuovo"));
  EXPECT_EQ((Elenco{"a.img", "b.img"}), Nomi(Cartella.Percorso()));
}

TEST_F(CopiaInterrotta, IsNotWhatASecondWriterOfTheSameFileFinds) {
  auto primo = ScritturaSicura::Apri(File);
  ASSERT_TRUE(primo);
  EXPECT_TRUE(primo->Scrivi("primo"));
  const EsitoScrittura secondo = ScriviFile(File, "secondo");
  ASSERT_FALSE(secondo);
  EXPECT_EQ(InUso, secondo.Errore());
  EXPECT_EQ("mezzo", Contenuto(File));
  EXPECT_TRUE(primo->Conferma());
  EXPECT_EQ("primo", Contenuto(File));
  EXPECT_EQ(Elenco{"a.img"}, Nomi(Cartella.Percorso()));
}

TEST_F(CopiaInterrotta, OfAnUnfinishedNewFileIsClearedAway) {
  Crea(Cartella / ".a.img.nuovo~", "meta' di un nuovo");
  EXPECT_TRUE(ScriviFile(File, "nuovo"));
  EXPECT_EQ("nuovo", Contenuto(File));
  EXPECT_EQ(Elenco{"a.img"}, Nomi(Cartella.Percorso()));
}

class CopiaTemporanea : public CopiaInterrotta {
 protected:
  void SetUp() override {
    CopiaInterrotta::SetUp();
    fs::permissions(File, fs::perms{0666});
    fs::permissions(Cartella.Percorso(), fs::perms{0555});
    fs::permissions(Copie.Percorso(), fs::perms{0777});
    Utente.emplace();
    if (!Utente->Comune()) GTEST_SKIP() << "root cannot become an ordinary user here";
  }
  void TearDown() override {
    Utente.reset();
    fs::permissions(Cartella.Percorso(), fs::perms::owner_all);  // so that it can be removed
  }
  fs::path Propria() const { return Copie / ("parvik32-" + std::to_string(::geteuid())); }

  CartellaTemporanea Copie;
  const VariabileAmbiente Temporanea{"TMPDIR", Copie.Percorso().c_str()};
  std::optional<UtenteComune> Utente;
};

TEST_F(CopiaTemporanea, LiesWhereNobodyElseSeesIt) {
  EsitoSistema<CopiaDiRiserva> copia = CopiaDiRiserva::Crea(File, "vecchio");
  ASSERT_TRUE(copia);
  EXPECT_EQ(0700U, Modo(Propria()));
  ASSERT_EQ(1U, Nomi(Propria()).size());
  EXPECT_EQ("vecchio", Contenuto(Propria() / Nomi(Propria())[0]));
  copia->Togli();
  EXPECT_EQ(Elenco{}, Nomi(Copie.Percorso()));
}

TEST_F(CopiaTemporanea, OfAKilledProgramIsKeptByTheNextSave) {
  EsitoSistema<CopiaDiRiserva> copia = CopiaDiRiserva::Crea(File, "vecchio");
  ASSERT_TRUE(copia);
  const std::string nome = Nomi(Propria())[0];
  copia->Togli();
  fs::create_directory(Propria());
  fs::permissions(Propria(), fs::perms{0700});
  Crea(Propria() / nome, "vecchio");
  const EsitoScrittura scritto = ScriviFile(File, "nuovo");
  ASSERT_TRUE(scritto);
  EXPECT_EQ("nuovo", Contenuto(File));
  const Elenco rimasti = Nomi(Propria());
  ASSERT_EQ(1U, rimasti.size());
  EXPECT_TRUE(rimasti[0].ends_with("a.img~")) << rimasti[0];
  EXPECT_EQ("vecchio", Contenuto(Propria() / rimasti[0]));
  EXPECT_EQ(Propria() / rimasti[0], scritto->CopiaTenuta);  // nobody would look for it there
}

TEST_F(CopiaTemporanea, IsNotMadeInAFolderThatOthersMayUse) {
  fs::create_directory(Propria());
  fs::permissions(Propria(), fs::perms{0777});
  const EsitoScrittura scritto = ScriviFile(File, "nuovo");
  ASSERT_FALSE(scritto);
  EXPECT_EQ(NumeroErrore::AutorizzazioneNegata, scritto.Errore().Numero);
  EXPECT_EQ("mezzo", Contenuto(File));
  EXPECT_EQ(Elenco{}, Nomi(Propria()));
}

TEST_F(CopiaTemporanea, IsAnErrorAndNoCrashWhereThereIsNoTemporaryFolder) {
  const VariabileAmbiente nessuna("TMPDIR", (Copie / "manca").c_str());
  const EsitoScrittura scritto = ScriviFile(File, "nuovo");
  ASSERT_FALSE(scritto);
  EXPECT_EQ(NumeroErrore::PercorsoNonTrovato, scritto.Errore().Numero);
  EXPECT_EQ("mezzo", Contenuto(File));
}

TEST(CopiaPrecedente, StandsBesideTheFileThatALinkLeadsTo) {
  const CartellaTemporanea cartella;
  Crea(cartella / "vero" / "a.img", "x");
  fs::permissions(cartella / "vero" / "a.img", fs::perms{0640});
  fs::create_symlink("vero/a.img", cartella / "link.img");
  EXPECT_TRUE(ConservaPrecedente(cartella / "link.img", "primo"));
  EXPECT_TRUE(ConservaPrecedente(cartella / "link.img", "secondo"));
  EXPECT_EQ((Elenco{"a.img", "a.img~"}), Nomi(cartella / "vero"));
  EXPECT_EQ("secondo", Contenuto(cartella / "vero" / "a.img~"));
  EXPECT_EQ(0640U, Modo(cartella / "vero" / "a.img~"));
  EXPECT_EQ("x", Contenuto(cartella / "vero" / "a.img"));
}

TEST(CopiaPrecedente, ReplacesALinkOfItsNameAndNotWhatThatLeadsTo) {
  const CartellaTemporanea cartella;
  Crea(cartella / "a.img", "x");
  Crea(cartella / "altrui", "di un altro");
  fs::create_symlink("altrui", cartella / "a.img~");
  EXPECT_TRUE(ConservaPrecedente(cartella / "a.img", "vecchio"));
  EXPECT_EQ("di un altro", Contenuto(cartella / "altrui"));
  EXPECT_FALSE(fs::is_symlink(cartella / "a.img~"));
  EXPECT_EQ("vecchio", Contenuto(cartella / "a.img~"));
}

TEST(CopiaPrecedente, OfTheLongestNameHasAnotherNameOfThatLength) {
  const CartellaTemporanea cartella;
  const std::string nome(255, 'n');
  Crea(cartella / nome, "x");
  EXPECT_TRUE(ConservaPrecedente(cartella / nome, "vecchio"));
  EXPECT_EQ(255U, NomePrecedente(cartella / nome).filename().string().size());
  EXPECT_EQ("vecchio", Contenuto(NomePrecedente(cartella / nome)));
  const std::string altro = nome.substr(1) + "o";
  EXPECT_NE(NomePrecedente(cartella / nome), NomePrecedente(cartella / altro));
}

}  // namespace
}  // namespace parvik::prova
