// The batch program as Windows starts it, and beside its other programs.
#include <gtest/gtest.h>

#include <algorithm>

#include "batch/Esecuzione.h"
#include "batch/Esempi.h"
#include "common/FileDiProva.h"
#include "common/TestoPercorso.h"
#include "sistema/windows/OperazioniFile.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

const Esecuzione Fatto = {0, "", ""};
constexpr std::string_view Negata =
    "Si è verificato l'errore: 70 Autorizzazione negata - Il file è in uso: un "
    "altro programma lo sta salvando";

class BatchWindows : public testing::Test {
 protected:
  Esecuzione Normalizza(const std::string& file) const {
    return Esegui(Host.Argomenti({"normalizza", "--tipo", "2", file}));
  }
  fs::path Modello(const std::string& nome, std::string_view byte) const {
    fs::path file = Host.Percorso() / "D_IMG" / PercorsoDaTesto(nome);
    Crea(file, byte);
    return file;
  }

  HostDiProva Host;
};

TEST_F(BatchWindows, ATemplateThatAnotherProgramHasOpenIsError70AndStaysWhole) {
  const fs::path file = Modello("m.img", "a\rb");
  for (const DWORD condivisione : {DWORD{FILE_SHARE_READ}, DWORD{FILE_SHARE_READ | FILE_SHARE_WRITE}}) {
    const EsitoSistema<Maniglia> altrui = ApriFile(file, GENERIC_READ, condivisione, OPEN_EXISTING);
    ASSERT_TRUE(altrui);
    EXPECT_EQ(Normalizza(TestoPercorso(file)), (Esecuzione{2, "", Detto(file, Negata)}));
  }
  {
    const EsitoSistema<Maniglia> altrui = ApriFile(file, GENERIC_READ, Nessuno, OPEN_EXISTING);
    ASSERT_TRUE(altrui);
    EXPECT_EQ(Normalizza(TestoPercorso(file)),
              (Esecuzione{2, "", Detto(file, "Si è verificato l'errore: 70 Autorizzazione negata")}));
  }
  EXPECT_EQ(Contenuto(file), "a\rb");
  EXPECT_EQ(Nomi(file.parent_path()), (std::vector<std::string>{"CAMPI.TXT", "m.img"}));
}

TEST_F(BatchWindows, NamesOfEveryScriptAreTakenAndToldAsTheyAre) {
  for (const std::string nome : {"Città €.img", "\xD0\x9C\xD0\xBE\xD0\xB4\xD0\xB5\xD0\xBB\xD1\x8C.img",
                                 "\xE6\xA8\xA1\xE7\x89\x88 \xF0\x9F\x98\x80.img"}) {
    const fs::path file = Modello(nome, "a\rb");
    EXPECT_EQ(Normalizza(TestoPercorso(file)), Fatto) << nome;
    EXPECT_EQ(Contenuto(file), "a\r\nb\r\n") << nome;
    const std::string manca = TestoPercorso(file) + ".manca.img";
    EXPECT_EQ(
        Normalizza(manca),
        (Esecuzione{2, "", Detto(manca + ": Si è verificato l'errore: 53 Impossibile trovare il file")}));
  }
}

TEST_F(BatchWindows, EitherSeparatorLeadsToATemplate) {
  const fs::path file = Modello("m.img", "a\r\nb\r\n");
  std::string barre = TestoPercorso(file);
  std::ranges::replace(barre, '/', '\\');
  std::string altre = barre;
  std::ranges::replace(altre, '\\', '/');
  for (const std::string& nome : {barre, altre})
    EXPECT_EQ(Esegui(Host.Argomenti({"stampa", "--tipo", "2", nome})), (Esecuzione{0, "a\r\nb\r\n", ""}))
        << nome;
}

TEST_F(BatchWindows, EndsOfLinesComeOutAsTheyAre) {
  const Esecuzione tipi = Esegui(Host.Argomenti({"tipi"}));
  EXPECT_EQ(tipi.Uscita.find('\r'), std::string::npos);
  EXPECT_EQ(std::ranges::count(tipi.Uscita, '\n'), 2);
  const Esecuzione aiuto = Esegui({"--help"});
  EXPECT_EQ(aiuto.Stato, 0);
  EXPECT_NE(aiuto.Uscita.find("Modelli di stampa di Velkor da riga di comando\n"), std::string::npos);
  EXPECT_EQ(aiuto.Uscita.find('\r'), std::string::npos);
  EXPECT_EQ(Esegui({"stampa"}).Errori.find('\r'), std::string::npos);
}

TEST_F(BatchWindows, ReadsTheHostsFolderFromTheUsersProfile) {
  const fs::path casa = Host.Percorso() / "casa";
  Crea(casa / "VELKOR.INI", "[AMBIENTE]\r\nDir velkor=" + Host.Percorso().string() + "\r\n");
  const fs::path programma = Host.Percorso() / "altrove" / "parvik32-batch.exe";
  fs::create_directory(programma.parent_path());
  fs::copy_file(Batch(), programma);
  EXPECT_EQ(Esegui({"tipi"}, {.Programma = programma, .Casa = casa}), Esegui(Host.Argomenti({"tipi"})));
}

TEST_F(BatchWindows, WritesToTheDeviceThatKeepsNothing) {
  const fs::path file = Modello("m.img", "a\r\n");
  EXPECT_EQ(Esegui(Host.Argomenti({"stampa", "--tipo", "2", TestoPercorso(file), "-o", "NUL"})), Fatto);
}

}  // namespace
}  // namespace parvik::prova
