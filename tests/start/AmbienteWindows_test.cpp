// Where the host is found on Windows.
#include <gtest/gtest.h>

#include <filesystem>

#include "common/FileDiProva.h"
#include "start/Installazione.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

class AmbienteWindows : public testing::Test {
 protected:
  fs::path DirVelkor(const std::string& valore) const {
    Crea(Cartella / "casa" / "VELKOR.INI", "[AMBIENTE]\r\nDir velkor=" + valore + "\r\n");
    return TrovaDirVelkor(
        {.DirProgramma = Cartella / "host" / "PARVIK", .CartelleConfigurazione = {Cartella / "casa"}});
  }

  CartellaTemporanea Cartella;
};

TEST_F(AmbienteWindows, ABackslashSeparatesAndOneIsAppended) {
  EXPECT_EQ(DirVelkor("D:\\VELKOR").native(), L"D:\\VELKOR\\");
  EXPECT_EQ(DirVelkor("D:\\VELKOR\\").native(), L"D:\\VELKOR\\");
  EXPECT_EQ(DirVelkor("D:/VELKOR").native(), L"D:\\VELKOR\\");
  EXPECT_EQ(DirVelkor("\\\\server\\dati").native(), L"\\\\server\\dati\\");
}

TEST_F(AmbienteWindows, TheValueIsWindows1252) {
  EXPECT_EQ(DirVelkor("D:\\Citt\xE0 \x80").native(), L"D:\\Citt\u00E0 \u20AC\\");
}

TEST_F(AmbienteWindows, TheNamesOfTheHostAreFoundInAnyCase) {
  Crea(Cartella / "host" / "velkor.ini", "");
  Crea(Cartella / "host" / "d_img" / "Campi.Txt", "x");
  const fs::path host =
      TrovaDirVelkor({.DirProgramma = Cartella / "host" / "PARVIK", .CartelleConfigurazione = {}});
  EXPECT_EQ(host.native(), (Cartella / "host").native() + L"\\");
  EXPECT_EQ(Contenuto(Installazione::In(host).FileCampi), "x");
}

TEST_F(AmbienteWindows, TheProcessLooksInTheUsersOwnFolderFirst) {
  const VariabileAmbiente mia("APPDATA", "C:\\casa");
  const Ambiente ambiente = AmbienteDelProcesso("x");
  ASSERT_EQ(ambiente.CartelleConfigurazione.size(), 2U);
  EXPECT_EQ(ambiente.CartelleConfigurazione[0], "C:\\casa");
  EXPECT_EQ(ambiente.CartellaUtente, "C:\\casa");
}

}  // namespace
}  // namespace parvik::prova
