#include "common/ErroreRuntime.h"

#include <gtest/gtest.h>

#include <string>

namespace parvik::prova {
namespace {

struct Caso {
  NumeroErrore Errore;
  int Numero;
  const char* Descrizione;
};

void PrintTo(const Caso& caso, std::ostream* uscita) {
  *uscita << caso.Descrizione;
}

class ErroreRuntimeTest : public testing::TestWithParam<Caso> {};

TEST_P(ErroreRuntimeTest, HasItsNumberAndItsItalianDescription) {
  EXPECT_EQ(GetParam().Numero, static_cast<int>(GetParam().Errore));
  EXPECT_EQ(GetParam().Descrizione, Descrizione(GetParam().Errore));
  EXPECT_EQ("Si è verificato l'errore: " + std::to_string(GetParam().Numero) + " " + GetParam().Descrizione,
            TestoErrore(GetParam().Errore));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Tutti, ErroreRuntimeTest, testing::Values(
    Caso{NumeroErrore::ArgomentoNonValido, 5, "Chiamata di routine o argomento non validi"},
    Caso{NumeroErrore::Overflow, 6, "Overflow"},
    Caso{NumeroErrore::MemoriaEsaurita, 7, "Memoria esaurita"},
    Caso{NumeroErrore::IndiceFuoriIntervallo, 9, "Indice non incluso nell'intervallo"},
    Caso{NumeroErrore::TipoNonCorrispondente, 13, "Tipo non corrispondente"},
    Caso{NumeroErrore::FileNonTrovato, 53, "Impossibile trovare il file"},
    Caso{NumeroErrore::ErroreDiPeriferica, 57, "Errore di periferica I/O"},
    Caso{NumeroErrore::DiscoPieno, 61, "Disco pieno"},
    Caso{NumeroErrore::InputOltreFine, 62, "Input oltre la fine del file"},
    Caso{NumeroErrore::AutorizzazioneNegata, 70, "Autorizzazione negata"},
    Caso{NumeroErrore::AccessoPercorsoFile, 75, "Errore di accesso al percorso/file"},
    Caso{NumeroErrore::PercorsoNonTrovato, 76, "Impossibile trovare il percorso"}),
    [](const auto& caso) { return "N" + std::to_string(caso.param.Numero); });
// clang-format on

}  // namespace
}  // namespace parvik::prova
