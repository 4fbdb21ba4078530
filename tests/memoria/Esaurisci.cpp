#include "Esaurisci.h"

#include <gtest/gtest.h>

#include "PocaMemoria.h"

namespace parvik::prova {

int Esaurisci(const std::function<Errore()>& prova, const std::function<void(bool fatto)>& dopo,
              Allora allora) {
  constexpr std::size_t Abbastanza = 10'000;
  for (std::size_t concesse = 0; concesse < Abbastanza && !testing::Test::HasFailure(); ++concesse) {
    Errore errore;
    bool negata = false;
    {
      const PocaMemoria poca(concesse);
      errore = prova();
      negata = PocaMemoria::Negata();
    }
    if (!negata) {
      EXPECT_FALSE(errore) << "with enough of it";
      return static_cast<int>(concesse);
    }
    const bool fatto = allora == Allora::ErroreOFatto && !errore;
    EXPECT_TRUE(fatto || errore == NumeroErrore::MemoriaEsaurita) << "after " << concesse;
    dopo(fatto);
  }
  ADD_FAILURE() << "there never was enough";
  return 0;
}

std::string Testo() {
  std::string testo;
  for (int i = 0; i < 300; ++i)
    testo +=
        "Riga \xAB"
        "S;GRASSETTO\xBB\xAB"
        "V1;12L\xBB e altro\xAB"
        "S;NORMALE\xBB\r\n";
  return testo;
}

}  // namespace parvik::prova
