// The batch program ended by a signal at each call of a save.
#include <gtest/gtest.h>

#include <csignal>

#include "guasti/SalvataggioGuasto.h"
#include "supporto/ConNome.h"

namespace parvik::prova {
namespace {

struct Caso {
  const char* Nome;
  Via Quale;
  int Segnale;
};
using prova::PrintTo;

class SegnaliBatch : public testing::TestWithParam<Caso> {};

TEST_P(SegnaliBatch, EndItAndLeaveTheFileWholeAndNothingBesideIt) {
  const SalvataggioGuasto salvataggio(GetParam().Quale);
  const int chiamate = static_cast<int>(salvataggio.Salva({}).Chiamate.size());
  ASSERT_GT(chiamate, 15);
  for (int i = 1; i <= chiamate; ++i) {
    const EsitoSalvataggio esito =
        salvataggio.Salva({{.Chiamata = i, .Quale = Guasto::Genere::Segnale, .Errore = GetParam().Segnale}});
    EXPECT_EQ(esito.Programma, (Esecuzione{-GetParam().Segnale, "", ""})) << i;
    EXPECT_TRUE(esito.Stato == Disco::Vecchio || esito.Stato == Disco::Nuovo) << i;
    EXPECT_EQ(esito.Avanzi, std::vector<std::string>()) << i;
  }
}

INSTANTIATE_TEST_SUITE_P(Casi, SegnaliBatch,
                         testing::Values(Caso{"interrupt_beside", Via::Accanto, SIGINT},
                                         Caso{"terminate_beside", Via::Accanto, SIGTERM},
                                         Caso{"hang_up_beside", Via::Accanto, SIGHUP},
                                         Caso{"terminate_new_file", Via::NuovoFile, SIGTERM},
                                         Caso{"interrupt_in_place", Via::SulPosto, SIGINT},
                                         Caso{"terminate_copy_elsewhere", Via::CopiaAltrove, SIGTERM}),
                         [](const auto& caso) { return std::string(caso.param.Nome); });

}  // namespace
}  // namespace parvik::prova
