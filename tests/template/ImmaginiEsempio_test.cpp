// The templates of the example installation, each under its document type.
#include <gtest/gtest.h>

#include <string>

#include "catalogue/Catalogo.h"
#include "supporto/Cartelle.h"
#include "supporto/ConNome.h"
#include "template/ImmagineModello.h"

namespace parvik::prova {
namespace {

struct Caso {
  const char* Nome;
  std::size_t Tipo;  // as the catalogue numbers it
  Formato Come;
};
using prova::PrintTo;

class ImmagineEsempioTest : public testing::TestWithParam<Caso> {};

TEST_P(ImmagineEsempioTest, IsTheSameByteByByteWhenReadAndWrittenBack) {
  const auto catalogo = Catalogo::CaricaCampi(Contenuto(Esempio() / "D_IMG" / "CAMPI.TXT"));
  ASSERT_TRUE(catalogo);
  const Formato formato = FormatoDi(catalogo->TipiDoc()[GetParam().Tipo - 1].NumSezioni);
  ASSERT_EQ(GetParam().Come, formato);
  const std::string file = Contenuto(Esempio() / "D_IMG" / (std::string(GetParam().Nome) + ".IMG"));
  ASSERT_NE("", file);

  ImmagineLetta letta = *LeggiImmagine(file, formato, ImpostazioniPredefinite());
  EXPECT_EQ(std::nullopt, letta.Errore);
  EXPECT_FALSE(letta.CorpoIncompleto);
  EXPECT_FALSE(letta.TestoNonLetto);
  EXPECT_EQ(formato == Formato::TreSezioni, !letta.Testi[1].empty());
  const Esito<std::string> scritta = ScriviImmagine(letta.Testi, letta.Corpo, formato);
  ASSERT_TRUE(scritta);
  EXPECT_EQ(file, *scritta);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Tutti, ImmagineEsempioTest, testing::Values(
    Caso{"FATT01", 1, Formato::TreSezioni},
    Caso{"FATTEST", 1, Formato::TreSezioni},
    Caso{"NCRED01", 3, Formato::TreSezioni},
    Caso{"DDT01", 4, Formato::TreSezioni},
    Caso{"ORDCL01", 5, Formato::TreSezioni},
    Caso{"PREV01", 7, Formato::TreSezioni},
    Caso{"RICEV01", 8, Formato::TreSezioni},
    Caso{"ESTCL01", 10, Formato::TreSezioni},
    Caso{"LIST01", 12, Formato::UnaSezione},
    Caso{"COLLO01", 14, Formato::UnaSezione},
    Caso{"SOLL01", 15, Formato::UnaSezione}),
    [](const auto& caso) { return std::string(caso.param.Nome); });
// clang-format on

}  // namespace
}  // namespace parvik::prova
