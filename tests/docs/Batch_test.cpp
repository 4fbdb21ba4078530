// docs/batch.md
#include <gtest/gtest.h>

#include "common/TestoMostrabile.h"
#include "docs/Pagine.h"
#include "docs/Sessioni.h"

namespace parvik::prova {
namespace {

constexpr std::string_view Pagina = "batch.md";

TEST(BatchPage, TellsHowANameIsShown) {
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "shown", 2)) {
    EXPECT_EQ(Mostrabile(riga.Byte(0)), riga.Byte(1)) << riga.Posto();
  }
}

TEST(BatchPage, ShowsHowTheCatalogueIsListed) {
  ControllaSessione(Pagina, "session-catalogue");
}
TEST(BatchPage, ShowsHowTemplatesAreRendered) {
  ControllaSessione(Pagina, "session-stampa");
}
TEST(BatchPage, ShowsHowTemplatesAreNormalised) {
  ControllaSessione(Pagina, "session-normalizza");
}
TEST(BatchPage, ShowsHowTemplatesAreChecked) {
  ControllaSessione(Pagina, "session-verifica");
}
TEST(BatchPage, ShowsWhatCodesAndTheCatalogueSay) {
  ControllaSessione(Pagina, "session-codici");
}
TEST(BatchPage, ShowsWhatIsSaidOfErrors) {
  ControllaSessione(Pagina, "session-errors");
}

}  // namespace
}  // namespace parvik::prova
