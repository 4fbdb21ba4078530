// When a template that is not saved is kept, and how it comes back (docs/recupero.md).
#include "editor/Recupero.h"

#include "BancoEditore.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

class RecuperoTest : public BancoEditore {
 protected:
  RecuperoTest() { editore_.ScegliTipo(Fattura); }
  StatoModello& Stato() { return editore_.Modello().Stato(); }
  void Batti(const std::string& testo) {
    editore_.Modello().Applica(Sezione::Testata, {.Dove = 0, .Tolti = 0, .Messi = testo},
                               GenereModifica::Battuta, {});
  }
  bool Serve() { return recupero_.Serve(true, editore_.NumeroTipo()); }
  CopiaRecupero Copia() { return recupero_.Prendi(*editore_.NumeroTipo()).Copia(7); }

  Recupero recupero_{editore_.Modello()};
};

TEST_F(RecuperoTest, IsNeededForAModifiedTemplateWhileThingsAreKept) {
  EXPECT_FALSE(Serve());
  Batti("x");
  EXPECT_TRUE(Serve());
  EXPECT_FALSE(recupero_.Serve(false, editore_.NumeroTipo()));
  Stato().Modificato = false;
  EXPECT_FALSE(Serve());
  Batti("x");
  interlocutore_.Rispondera(Risposta::No);
  editore_.Nuovo();
  EXPECT_FALSE(Serve());
}

TEST_F(RecuperoTest, WritesOnlyWhatIsOtherThanWasTaken) {
  EXPECT_TRUE(recupero_.DaScrivere());
  Copia();
  EXPECT_FALSE(recupero_.DaScrivere());
  Batti("x");
  EXPECT_TRUE(recupero_.DaScrivere());
  Copia();
  Stato().Corpo.RigheCorpo = 9;
  EXPECT_TRUE(recupero_.DaScrivere()) << "the body settings";
  Copia();
  Stato().NomeFile = "/b.img";
  EXPECT_TRUE(recupero_.DaScrivere()) << "the name";
  Copia();
  Stato().Origine = {.File = "/b.img", .Byte = std::make_shared<const std::string>()};
  EXPECT_TRUE(recupero_.DaScrivere()) << "what it comes from";
  Copia();
  EXPECT_FALSE(recupero_.DaScrivere());
  recupero_.Perduta();
  EXPECT_TRUE(recupero_.DaScrivere()) << "it did not get there";
}

TEST_F(RecuperoTest, TheCopyIsOfTheMomentAtWhichItWasTaken) {
  Imposta({"t\r\n", "c\r\n", "p\r\n"});
  Stato().NomeFile = "/a.img";
  const IstantaneaRecupero presa = recupero_.Prendi(3);
  Batti("dopo");
  EXPECT_EQ(presa.Copia(7), (CopiaRecupero{.Tipo = 3,
                                           .Quando = 7,
                                           .NomeFile = "/a.img",
                                           .Corpo = ImpostazioniPredefinite(),
                                           .Testi = {"t\r\n", "c\r\n", "p\r\n"}}));
}

class RipristinoTest : public RecuperoTest {
 protected:
  RipristinoTest() {
    Crea(File, "uno\r\n");
    editore_.Nuovo();
    editore_.ScegliTipo(Listino);
    interlocutore_.Scegliera(File);
    editore_.Apri();
    Batti("mio ");
    copia_ = Copia();
    Stato().Modificato = false;
    editore_.Nuovo();
  }

  const fs::path File = dir_ / "A.IMG";
  CopiaRecupero copia_;
};

TEST_F(RipristinoTest, BringsBackTypeTextsNameAndSettingsAndIsModified) {
  copia_.Corpo = {.RigheCorpo = 5, .LineeCorpo = 6, .FlagSbarra = "C", .FlagAccorpa = "S"};
  EXPECT_TRUE(editore_.Ripristina(copia_));
  EXPECT_EQ(editore_.NumeroTipo(), copia_.Tipo);
  EXPECT_EQ(Testo(Sezione::Testata), "mio uno\r\n");
  EXPECT_EQ(Stato().NomeFile, File);
  EXPECT_EQ(Stato().Corpo, copia_.Corpo);
  EXPECT_TRUE(Stato().Modificato);
  EXPECT_FALSE(editore_.Modello().PuoAnnullare());
  EXPECT_TRUE(editore_.Titolo().ends_with("A.IMG")) << editore_.Titolo();
  EXPECT_TRUE(editore_.AnteSpuntata()) << "as after the choice of its type";
}

TEST_F(RipristinoTest, SavesOverTheFileThatItCameFromAndKeepsNothing) {
  EXPECT_TRUE(editore_.Ripristina(copia_));
  editore_.Salva();
  EXPECT_EQ(Contenuto(File), "mio uno\r\n");
  EXPECT_FALSE(fs::exists(File.string() + "~"));
}

TEST_F(RipristinoTest, KeepsWhatSomebodyElseWroteThereMeanwhile) {
  Crea(File, "altrui\r\n");
  EXPECT_TRUE(editore_.Ripristina(copia_));
  EXPECT_FALSE(Stato().Origine);
  editore_.Salva();
  EXPECT_EQ(Contenuto(File), "mio uno\r\n");
  EXPECT_EQ(Contenuto(File.string() + "~"), "altrui\r\n");
}

TEST_F(RipristinoTest, AsksAboutTheTemplateAtHandAsApriDoes) {
  editore_.ScegliTipo(Fattura);
  Batti("altro");
  interlocutore_.Rispondera(Risposta::Annulla);
  EXPECT_FALSE(editore_.Ripristina(copia_));
  EXPECT_EQ(Testo(Sezione::Testata), "altro\r\n");
  EXPECT_EQ(editore_.NumeroTipo(), 1);
  interlocutore_.Rispondera(Risposta::No);
  EXPECT_TRUE(editore_.Ripristina(copia_));
  EXPECT_EQ(Testo(Sezione::Testata), "mio uno\r\n");
  EXPECT_EQ(editore_.NumeroTipo(), copia_.Tipo);
}

TEST_F(RipristinoTest, ATemplateWithoutANameHasNoneAgain) {
  copia_.NomeFile.clear();
  copia_.Origine.reset();
  EXPECT_TRUE(editore_.Ripristina(copia_));
  EXPECT_TRUE(Stato().NomeFile.empty());
  EXPECT_TRUE(editore_.Titolo().starts_with("Ordavia - ")) << editore_.Titolo();
}

TEST_F(RipristinoTest, TextsWithOddLineEndsGetWholeOnes) {
  copia_.Testi[0] = "a\rb\nc";
  EXPECT_TRUE(editore_.Ripristina(copia_));
  EXPECT_EQ(Testo(Sezione::Testata), "a\r\nb\nc");
}

}  // namespace
}  // namespace parvik::prova
