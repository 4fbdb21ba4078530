// File > Salva and File > Salva con nome.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "template/BancoComandi.h"

namespace parvik::prova {
namespace {

using Elenco = std::vector<std::string>;

class ComandoSalva : public BancoComandi {};
class ComandoSalvaConNome : public BancoComandi {};
class VerificaStampa : public BancoComandi {};

TEST_F(ComandoSalva, WritesToTheNamedFileWithoutAWord) {
  documento_.Stato().NomeFile = dirImg_ / "A.IMG";
  documento_.Stato().Modificato = true;
  comandi_.Salva(tre_);
  EXPECT_EQ(FileIniziale(), Contenuto(dirImg_ / "A.IMG"));
  EXPECT_FALSE(documento_.Stato().Modificato);
  EXPECT_EQ((TestiSezioni{"t\r\n", "c\r\n", "p\r\n"}), TestiOra());
  EXPECT_EQ(std::vector<Sezione>{}, uditore_.Sostituite);
  EXPECT_EQ(Elenco{}, contorno_.Fatti);
  AttendiMessaggi({});
}

TEST_F(ComandoSalva, WritesAnUnmodifiedTemplateToo) {
  documento_.Stato().NomeFile = dirImg_ / "A.IMG";
  comandi_.Salva(tre_);
  EXPECT_EQ(FileIniziale(), Contenuto(dirImg_ / "A.IMG"));
}

TEST_F(ComandoSalva, WritesANamedTemplateThoughThereIsNothingInIt) {
  documento_.Stato().NomeFile = dirImg_ / "A.IMG";
  Imposta({"\r\n", "\r\n", "\r\n"});
  comandi_.Salva(tre_);
  EXPECT_EQ("\r\n" + Marcatore("23;1;") + "\r\n\r\n", Contenuto(dirImg_ / "A.IMG"));
}

TEST_F(ComandoSalva, WritesOnlyTheTestataUnderATypeOfOneSection) {
  documento_.Stato().NomeFile = dirImg_ / "A.IMG";
  comandi_.Salva(una_);
  EXPECT_EQ("t\r\n", Contenuto(dirImg_ / "A.IMG"));
}

TEST_F(ComandoSalva, CompletesTheLastLineOfTheCorpoAndRecountsIt) {
  documento_.Stato().NomeFile = dirImg_ / "A.IMG";
  Imposta({"t\r\n", "uno\r\ndue", ""});
  comandi_.Salva(tre_);
  EXPECT_EQ("t\r\n" + Marcatore("23;2;") + "uno\r\ndue\r\n", Contenuto(dirImg_ / "A.IMG"));
  EXPECT_EQ("uno\r\ndue\r\n", Testo(Sezione::Corpo));
  EXPECT_EQ(std::vector<Sezione>{Sezione::Corpo}, uditore_.DelProgramma);
  EXPECT_EQ(std::vector<Sezione>{}, uditore_.Sostituite);
  EXPECT_EQ(2, documento_.Stato().Corpo.LineeCorpo);
  EXPECT_FALSE(documento_.Stato().Modificato);
}

TEST_F(ComandoSalva, LeavesTheOtherSectionsUnfinished) {
  documento_.Stato().NomeFile = dirImg_ / "A.IMG";
  Imposta({"t", "c\r\n", "p"});
  comandi_.Salva(tre_);
  EXPECT_EQ("t\r\n\r\n" + Marcatore("23;1;") + "c\r\np\r\n\r\n", Contenuto(dirImg_ / "A.IMG"));
  EXPECT_EQ((TestiSezioni{"t", "c\r\n", "p"}), TestiOra());
  EXPECT_EQ(std::vector<Sezione>{}, uditore_.DelProgramma);
}

TEST_F(ComandoSalva, DoesNothingForANamelessTemplateOfEmptyLines) {
  Imposta({"\r\n", "\r\n", "\r\n"});
  documento_.Stato().Modificato = true;
  comandi_.Salva(tre_);
  EXPECT_EQ(Elenco{}, Nomi(dirImg_.Percorso()));
  EXPECT_TRUE(documento_.Stato().Modificato);
}

TEST_F(ComandoSalva, AsksForANameWhereThereIsNone) {
  interlocutore_.Scegliera(dirImg_ / "MODELLO1.IMG");
  comandi_.Salva(tre_);
  AttendiRichiesta(RichiestaFile::Scopo::Salva, "Salva con nome", "FATT*.IMG", "FATT.IMG");
  EXPECT_EQ(FileIniziale(), Contenuto(dirImg_ / "MODELLO1.IMG"));
  EXPECT_EQ(dirImg_ / "MODELLO1.IMG", documento_.Stato().NomeFile);
}

TEST_F(ComandoSalva, ShowsTheErrorAndStaysModifiedWhenTheFolderIsGone) {
  documento_.Stato().NomeFile = FileImpossibile();
  documento_.Stato().Modificato = true;
  interlocutore_.Rispondera(Risposta::Ok);
  comandi_.Salva(tre_);
  AttendiMessaggi({Errore(NumeroErrore::PercorsoNonTrovato)});
  EXPECT_EQ("Si è verificato l'errore: 76 Impossibile trovare il percorso", interlocutore_.Messaggi[0].Testo);
  EXPECT_EQ(FileImpossibile(), documento_.Stato().NomeFile);
  EXPECT_TRUE(documento_.Stato().Modificato);
}

TEST_F(ComandoSalva, KeepsTheOldFileWholeWhenTheDiskIsFull) {
  if (!LimiteDimensione::Possibile()) GTEST_SKIP() << "no limit of the size of files here";
  Crea(dirImg_ / "A.IMG", "vecchio\r\n");
  documento_.Stato().NomeFile = dirImg_ / "A.IMG";
  documento_.Stato().Modificato = true;
  Imposta(Sezione::Testata, std::string(1000, 'x') + "\r\n");
  interlocutore_.Rispondera(Risposta::Ok);
  {
    const LimiteDimensione disco(100);
    comandi_.Salva(tre_);
  }
  AttendiMessaggi({Errore(NumeroErrore::DiscoPieno)});
  EXPECT_EQ("vecchio\r\n", Contenuto(dirImg_ / "A.IMG"));
  EXPECT_EQ(Elenco{"A.IMG"}, Nomi(dirImg_.Percorso()));
  EXPECT_TRUE(documento_.Stato().Modificato);
}

TEST_F(ComandoSalva, ShowsTheOverflowOfABodyOfTooManyLinesAndLeavesTheOldFile) {
  Crea(dirImg_ / "A.IMG", "vecchio\r\n");
  documento_.Stato().NomeFile = dirImg_ / "A.IMG";
  documento_.Stato().Modificato = true;
  Imposta(Sezione::Corpo, std::string(32768, '\r'));
  interlocutore_.Rispondera(Risposta::Ok);
  comandi_.Salva(tre_);
  AttendiMessaggi({Errore(NumeroErrore::Overflow)});
  EXPECT_EQ("vecchio\r\n", Contenuto(dirImg_ / "A.IMG"));
  EXPECT_TRUE(documento_.Stato().Modificato);
}

TEST_F(ComandoSalvaConNome, WritesTakesTheNameAndReadsTheFileBack) {
  documento_.Stato().NomeFile = dirImg_ / "prima.img";
  documento_.Stato().Modificato = true;
  Imposta({"abc", "x", "p\r\n  "});
  interlocutore_.Scegliera(dirImg_ / "MODELLO2.IMG");
  comandi_.SalvaConNome(tre_);
  EXPECT_EQ("abc\r\n\r\n" + Marcatore("23;1;") + "x\r\np\r\n", Contenuto(dirImg_ / "MODELLO2.IMG"));
  EXPECT_EQ((TestiSezioni{"abc\r\n\r\n", "x\r\n", "p\r\n"}), TestiOra());
  EXPECT_EQ(dirImg_ / "MODELLO2.IMG", documento_.Stato().NomeFile);
  EXPECT_FALSE(documento_.Stato().Modificato);
  EXPECT_EQ(Elenco{"titolo Ordavia - MODELLO2.IMG"}, contorno_.Fatti);
  EXPECT_EQ(Elenco{"MODELLO2.IMG"}, Nomi(dirImg_.Percorso()));
  AttendiMessaggi({});
}

TEST_F(ComandoSalvaConNome, WritesOverAnExistingFileWithoutAQuestion) {
  Crea(dirImg_ / "A.IMG", "vecchio");
  interlocutore_.Scegliera(dirImg_ / "A.IMG");
  comandi_.SalvaConNome(tre_);
  EXPECT_EQ(FileIniziale(), Contenuto(dirImg_ / "A.IMG"));
}

TEST_F(ComandoSalvaConNome, ChangesNothingWhenItIsGivenUp) {
  documento_.Stato().NomeFile = dirImg_ / "prima.img";
  documento_.Stato().Modificato = true;
  interlocutore_.Scegliera({});
  comandi_.SalvaConNome(tre_);
  EXPECT_EQ(dirImg_ / "prima.img", documento_.Stato().NomeFile);
  EXPECT_TRUE(documento_.Stato().Modificato);
  EXPECT_EQ(Elenco{}, contorno_.Fatti);
  EXPECT_EQ(Elenco{}, Nomi(dirImg_.Percorso()));
}

TEST_F(ComandoSalvaConNome, IsSilentWhenTheWriteFailsAndKeepsNameAndModifiedState) {
  documento_.Stato().NomeFile = dirImg_ / "prima.img";
  documento_.Stato().Modificato = true;
  interlocutore_.Scegliera(FileImpossibile());
  comandi_.SalvaConNome(tre_);
  AttendiMessaggi({});
  EXPECT_EQ(dirImg_ / "prima.img", documento_.Stato().NomeFile);
  EXPECT_TRUE(documento_.Stato().Modificato);
  EXPECT_EQ(Elenco{}, contorno_.Fatti);
  EXPECT_EQ((TestiSezioni{"t\r\n", "c\r\n", "p\r\n"}), TestiOra());
}

TEST_F(ComandoSalvaConNome, GivesANameTypedWithoutAnExtensionTheTemplatesOwn) {
  interlocutore_.Scegliera(dirImg_ / "nuovo");
  comandi_.SalvaConNome(tre_);
  EXPECT_EQ(dirImg_ / "nuovo.img", documento_.Stato().NomeFile);
  EXPECT_EQ(Elenco{"nuovo.img"}, Nomi(dirImg_.Percorso()));
}

TEST_F(ComandoSalvaConNome, TakesANameWithoutAnExtensionForTheFileThatOpenFindsByIt) {
  if (!DistingueCasi()) GTEST_SKIP() << "this system does not tell the cases of letters apart";
  for (const char* file : {"FATT01.IMG", "Conto.Img", "senza", "due", "due.img"}) Crea(dirImg_ / file, "x");
  std::filesystem::create_directory(dirImg_ / "CARTELLA.IMG");
  const std::vector<std::pair<const char*, const char*>> casi = {{"FATT01", "FATT01.IMG"},
                                                                 {"fatt01", "FATT01.IMG"},
                                                                 {"CONTO", "Conto.Img"},
                                                                 {"senza", "senza"},
                                                                 {"due", "due"},
                                                                 {"cartella", "cartella.img"},
                                                                 {"FATT01.txt", "FATT01.txt"},
                                                                 {"fatt01.img", "fatt01.img"}};
  for (const auto& [scelto, scritto] : casi) {
    interlocutore_.Scegliera(dirImg_ / scelto);
    comandi_.SalvaConNome(tre_);
    EXPECT_EQ(dirImg_ / scritto, documento_.Stato().NomeFile) << scelto;
    EXPECT_EQ(FileIniziale(), Contenuto(dirImg_ / scritto)) << scelto;
  }
}

TEST_F(ComandoSalvaConNome, KeepsAnyExtensionThatWasTyped) {
  for (const char* nome : {"nuovo.txt", "nuovo.IMG", "nuovo.v2"}) {
    interlocutore_.Scegliera(dirImg_ / nome);
    comandi_.SalvaConNome(tre_);
    EXPECT_EQ(dirImg_ / nome, documento_.Stato().NomeFile);
  }
  EXPECT_EQ((Elenco{"nuovo.IMG", "nuovo.txt", "nuovo.v2"}), Nomi(dirImg_.Percorso()));
}

TEST_F(ComandoSalvaConNome, CompletesANameInAFolderWhoseOwnNameHasAPoint) {
  std::filesystem::create_directory(dirImg_ / "v1.0");
  interlocutore_.Scegliera(dirImg_ / "v1.0" / "nuovo");
  comandi_.SalvaConNome(tre_);
  EXPECT_EQ(dirImg_ / "v1.0" / "nuovo.img", documento_.Stato().NomeFile);
}

TEST_F(ComandoSalvaConNome, ProposesTheTypesPatternWithoutItsWildcards) {
  struct Caso {
    const char* Titolo;
    const char* Modello;
    const char* Proposto;
  };
  for (const Caso& caso : {Caso{"FATT*.IMG", "FATT*.IMG", "FATT.IMG"}, Caso{"F?T*T.*", "F?T*T.*", "FTT."},
                           Caso{"FATTURA", "*.img", "FATTURA"}, Caso{"", "*.img", ""},
                           Caso{"QUALIT\xC0*.IMG", "QUALITÀ*.IMG", "QUALITÀ.IMG"}}) {
    interlocutore_.Richieste.clear();
    tre_.Titolo = caso.Titolo;
    interlocutore_.Scegliera({});
    comandi_.SalvaConNome(tre_);
    AttendiRichiesta(RichiestaFile::Scopo::Salva, "Salva con nome", caso.Modello, caso.Proposto);
  }
}

TEST_F(VerificaStampa, LooksAtTheTestataAloneUnderATypeOfOneSection) {
  Imposta({"\r\n", "c\r\n", "p\r\n"});
  EXPECT_FALSE(comandi_.VerificaStampa(una_));
  Imposta({"t\r\n", "\r\n", "\r\n"});
  EXPECT_TRUE(comandi_.VerificaStampa(una_));
}

TEST_F(VerificaStampa, LooksAtAllThreeSectionsUnderAnyOtherType) {
  for (const std::int16_t numero : std::initializer_list<std::int16_t>{3, 2, 0, 4}) {
    tre_.NumSezioni = numero;
    Imposta({"\r\n", "\r\n", "\r\n"});
    EXPECT_FALSE(comandi_.VerificaStampa(tre_)) << numero;
    for (const Sezione sezione : TutteLeSezioni) {
      Imposta(sezione, "x\r\n");
      EXPECT_TRUE(comandi_.VerificaStampa(tre_)) << numero;
      Imposta(sezione, "\r\n");
    }
  }
}

TEST_F(VerificaStampa, CountsAnEntirelyEmptySectionAsContent) {
  Imposta({"", "\r\n", "\r\n"});
  EXPECT_TRUE(comandi_.VerificaStampa(una_));
  EXPECT_TRUE(comandi_.VerificaStampa(tre_));
  Imposta({"\r\n", "\r\n", ""});
  EXPECT_TRUE(comandi_.VerificaStampa(tre_));
  Imposta({"\r\n\r\n", "\r\n", "\r\n"});
  EXPECT_TRUE(comandi_.VerificaStampa(una_));
}

}  // namespace
}  // namespace parvik::prova
