#include "sistema/LetturaProfilo.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "common/TestoPercorso.h"
#include "docs/Pagine.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

class LetturaProfilo : public testing::Test {
 protected:
  std::string Dir(std::string_view contenuto) const {
    Crea(File, contenuto);
    return LeggiDaProfilo(File, "AMBIENTE", "Dir velkor");
  }

  CartellaTemporanea Cartella;
  const fs::path File = Cartella / "VELKOR.INI";
};

TEST_F(LetturaProfilo, IsThatOfTheSystem) {
  EXPECT_EQ(Dir("[AMBIENTE]\r\nDir velkor=C:\\VELKOR\r\n"), "C:\\VELKOR");
  EXPECT_EQ(Dir("[ambiente]\r\n  DIR VELKOR = C:\\VELKOR\\ \r\n"), "C:\\VELKOR\\");
  EXPECT_EQ(Dir("[ALTRO]\r\nDir velkor=x\r\n"), "");
  EXPECT_EQ(Dir(""), "");
}

TEST_F(LetturaProfilo, CutsAValueTo199Characters) {
  const std::string lungo(250, 'x');
  EXPECT_EQ(Dir("[AMBIENTE]\r\nDir velkor=" + lungo + "\r\n"), lungo.substr(0, 199));
}

TEST_F(LetturaProfilo, GivesWindows1252) {
  EXPECT_EQ(Dir("[AMBIENTE]\r\nDir velkor=D:\\Citt\xE0 \x80\r\n"), "D:\\Citt\xE0 \x80");
}

TEST_F(LetturaProfilo, FindsTheFileByAnyNameAndNoFileGivesNothing) {
  const fs::path altro = Cartella.Percorso() / PercorsoDaTesto("Citt\xC3\xA0") / "VELKOR.INI";
  Crea(altro, "[AMBIENTE]\r\nDir velkor=D:\\VELKOR\r\n");
  EXPECT_EQ(LeggiDaProfilo(altro, "AMBIENTE", "Dir velkor"), "D:\\VELKOR");
  EXPECT_EQ(LeggiDaProfilo(Cartella / "manca.ini", "AMBIENTE", "Dir velkor"), "");
}

TEST_F(LetturaProfilo, ReadsEveryExampleOfThePageAsElsewhere) {
  for (const RigaEsempio& riga : TabellaEsempi("installation-lookup.md", "profile", 2))
    EXPECT_EQ(Dir(riga.Byte(0)), riga.Byte(1)) << riga.Posto();
}

}  // namespace
}  // namespace parvik::prova
