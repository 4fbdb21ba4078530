// The output run does what its rules say word for word, on texts rich in what they give a meaning to.
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include "output/Leggibile.h"
#include "output/StampaCasuale.h"
#include "supporto/RiferimentoStampa.h"
#include "supporto/RiferimentoStili.h"

namespace parvik::prova {
namespace {

constexpr std::string_view CodaAnteprima = "\r\n--- Fine file ---";

void StampaUguale(TipoStampa destinazione) {
  const ProvaStampa prova = ProvaCasuale();
  Raccolta raccolta;
  RC_ASSERT(!!GeneraStampa(prova.Dati(), destinazione, raccolta));
  RC_ASSERT(raccolta.Testo == StampaDiRiferimento(prova.Riferimento, static_cast<int>(destinazione)));
  RC_ASSERT(!testing::Test::HasFailure());
}

TEST(ProprietaStampa, HoldForTheTextFile) {
  EXPECT_TRUE(rc::check([] { StampaUguale(TipoStampa::File); }));
}

TEST(ProprietaStampa, HoldForTheAuxiliaryPane) {
  EXPECT_TRUE(rc::check([] { StampaUguale(TipoStampa::Ausiliario); }));
}

TEST(ProprietaStampa, HoldForThePreview) {
  EXPECT_TRUE(rc::check([] {
    const ProvaStampa prova = ProvaCasuale();
    const TestoConAspetti riferimento = StiliDiRiferimento(StampaDiRiferimento(prova.Riferimento, 2));
    const Anteprima anteprima = GeneraAnteprima(prova.Dati());
    RC_ASSERT(anteprima.Testo == riferimento.Testo);
    RC_ASSERT(AspettiPerByte(anteprima.Testo, anteprima.Tratti) == riferimento.Aspetti);
    RC_ASSERT(!testing::Test::HasFailure());
  }));
}

/// Of a short run: whole lines, as many as fit.
TEST(ProprietaStampa, HoldForTheBeginningOfThePreview) {
  EXPECT_TRUE(rc::check([] {
    const ProvaStampa prova = ProvaCasuale();
    const std::string intera = StampaDiRiferimento(prova.Riferimento, 2);
    const std::string righe = intera.substr(0, intera.size() - std::min(intera.size(), CodaAnteprima.size()));
    const auto massimo = *rc::gen::inRange<std::size_t>(0, righe.size() + 3);
    const InizioAnteprima inizio = *GeneraInizioAnteprima(prova.Dati(), massimo);
    RC_ASSERT(inizio.Intera == (righe.size() <= massimo));
    const std::size_t fine = righe.substr(0, massimo).rfind("\r\n");
    const TestoConAspetti riferimento = StiliDiRiferimento(
        inizio.Intera ? intera : righe.substr(0, fine == std::string::npos ? 0 : fine + 2));
    RC_ASSERT(inizio.Testo.Testo == riferimento.Testo);
    RC_ASSERT(AspettiPerByte(inizio.Testo.Testo, inizio.Testo.Tratti) == riferimento.Aspetti);
  }));
}

TEST(ProprietaStampa, HoldForOneVariableOfAnyFormat) {
  EXPECT_TRUE(rc::check([] {
    ProvaStampa prova;
    prova.Riferimento.Testi[0] = *Variabili();
    prova.Riferimento.NumSezioni = 1;
    Raccolta raccolta;
    RC_ASSERT(!!GeneraStampa(prova.Dati(), TipoStampa::File, raccolta));
    RC_ASSERT(raccolta.Testo == StampaDiRiferimento(prova.Riferimento, 1));
  }));
}

}  // namespace
}  // namespace parvik::prova
