// What becomes of a run whose standard output takes nothing.
#include <gtest/gtest.h>

#include "batch/Esecuzione.h"
#include "batch/Esempi.h"
#include "supporto/ConNome.h"

namespace parvik::prova {
namespace {

struct Caso {
  const char* Nome;
  UscitaStandard Dove;
  std::string_view Detto;
};
using prova::PrintTo;

class UscitaStandardTest : public testing::TestWithParam<Caso> {
 protected:
  void SetUp() override {
    if (GetParam().Dove == UscitaStandard::DiscoPieno && !DispositivoPieno())
      GTEST_SKIP() << "no full device here";
  }
};

TEST_P(UscitaStandardTest, EndsEveryCommandThatPrintsWithStatus2) {
  const Esecuzione atteso = {2, "", Detto(GetParam().Detto)};
  const Avvio avvio = {.Uscita = GetParam().Dove};
  EXPECT_EQ(Esegui({"--help"}, avvio), atteso);
  EXPECT_EQ(Esegui({"--version"}, avvio), atteso);
  EXPECT_EQ(EseguiEsempio({"tipi"}, avvio), atteso);
  EXPECT_EQ(EseguiEsempio({"campi", "--tipo", "1"}, avvio), atteso);
  const std::string modello = FileDi(ModelliEsempio().front()).string();
  EXPECT_EQ(EseguiEsempio({"stampa", "--tipo", "1", modello}, avvio), atteso);
}

// The first failure ends the run: the second file is not tried.
TEST_P(UscitaStandardTest, IsReportedOnceForSeveralFiles) {
  const std::string modello = FileDi(ModelliEsempio().front()).string();
  EXPECT_EQ(EseguiEsempio({"stampa", "--tipo", "1", modello, modello, "/nonexistent/x.img"},
                          {.Uscita = GetParam().Dove}),
            (Esecuzione{2, "", Detto(GetParam().Detto)}));
}

TEST_P(UscitaStandardTest, DoesNotMatterToACommandThatPrintsNothing) {
  const HostDiProva host;
  const std::string m = host.Modello("m.img", "a").string();
  EXPECT_EQ(Esegui(host.Argomenti({"normalizza", "--tipo", "2", m}), {.Uscita = GetParam().Dove}),
            (Esecuzione{0, "", ""}));
  EXPECT_EQ(Contenuto(m), "a\r\n");
}

TEST_P(UscitaStandardTest, DoesNotMatterToARunThatWritesAFile) {
  const HostDiProva host;
  const std::string m = host.Modello("m.img", "a\r\n").string();
  const std::string uscita = (host.Percorso() / "uscita.txt").string();
  EXPECT_EQ(Esegui(host.Argomenti({"stampa", "--tipo", "2", "-o", uscita, m}), {.Uscita = GetParam().Dove}),
            (Esecuzione{0, "", ""}));
  EXPECT_EQ(Contenuto(uscita), "a\r\n");
}

INSTANTIATE_TEST_SUITE_P(
    Casi, UscitaStandardTest,
    testing::Values(Caso{"closed", UscitaStandard::Chiusa,
                         "uscita standard: Si è verificato l'errore: 75 Errore di accesso al percorso/file"},
                    Caso{"disk_full", UscitaStandard::DiscoPieno,
                         "uscita standard: Si è verificato l'errore: 61 Disco pieno"},
                    Caso{"nobody_reads", UscitaStandard::NessunoLegge,
                         "uscita standard: Si è verificato l'errore: 57 Errore di periferica I/O"}),
    [](const auto& caso) { return std::string(caso.param.Nome); });

}  // namespace
}  // namespace parvik::prova
