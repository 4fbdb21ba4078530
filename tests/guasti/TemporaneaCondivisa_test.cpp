// Saves in place at once whose copies lie in one folder in the temporary folder: that folder comes and goes.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <numeric>
#include <string>
#include <vector>

#include "common/FileDiProva.h"
#include "guasti/Salvatore.h"
#include "sistema/ScritturaSicura.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;
using Stato = Salvatore::Stato;

class TemporaneaCondivisa : public testing::Test {
 protected:
  void Ricomincia() const {
    for (const char* nome : {"a.img", "b.img"}) Crea(Cartella / nome, "vecchio e piu' lungo");
  }
  PianoGuasti Piano(int fermata = 0) const {
    PianoGuasti piano{
        .Cartelle = {Cartella.Percorso(), Copie.Percorso()}, .Guasti = {}, .Chiusa = Cartella.Percorso()};
    if (fermata > 0) piano.Guasti = {{.Chiamata = fermata, .Quale = Guasto::Genere::Fermata}};
    return piano;
  }
  /// The numbers of a save's calls, from the first one on that has to do with the folder of copies.
  std::vector<int> Chiamate() const {
    Ricomincia();
    const GuastiInCorso inCorso(Piano());
    EXPECT_TRUE(ScriviFile(Cartella / "a.img", "nuovo"));
    const std::vector<std::string> nomi = GuastiInCorso::Chiamate();
    const auto prima =
        std::ranges::find_if(nomi, [](const std::string& nome) { return nome.starts_with("mkdir"); });
    std::vector<int> numeri(static_cast<std::size_t>(nomi.end() - prima));
    std::iota(numeri.begin(), numeri.end(), static_cast<int>(prima - nomi.begin()) + 1);
    return numeri;
  }

  CartellaTemporanea Cartella;
  CartellaTemporanea Copie;
  const VariabileAmbiente Temporanea{"TMPDIR", Copie.Percorso().c_str()};
};

TEST_F(TemporaneaCondivisa, LetsBothSavesOfTwoFilesSucceedAndHoldsNothingThen) {
  const std::vector<int> chiamate = Chiamate();
  ASSERT_GT(chiamate.size(), 20U);
  for (const int i : chiamate) {
    for (const int j : chiamate) {
      if (j % UnaSu != i % UnaSu) continue;
      Ricomincia();
      Salvatore primo(Cartella / "a.img", "primo", Piano(i));
      Salvatore secondo(Cartella / "b.img", "secondo", Piano(j));
      primo.Prosegui();
      secondo.Prosegui();
      EXPECT_EQ(primo.Ora(), Stato::Scritto) << i << ", " << j;
      EXPECT_EQ(secondo.Ora(), Stato::Scritto) << i << ", " << j;
      EXPECT_EQ(Contenuto(Cartella / "a.img"), "primo");
      EXPECT_EQ(Contenuto(Cartella / "b.img"), "secondo");
      EXPECT_EQ(Nomi(Copie.Percorso()), std::vector<std::string>());
      if (HasFailure()) return;
    }
  }
}

TEST_F(TemporaneaCondivisa, LetsOneOfTwoSavesOfOneFileSucceed) {
  for (const int i : Chiamate()) {
    Ricomincia();
    Salvatore primo(Cartella / "a.img", "primo", Piano(i));
    const Salvatore secondo(Cartella / "a.img", "secondo", Piano());
    primo.Prosegui();
    EXPECT_TRUE(primo.Ora() == Stato::Scritto || secondo.Ora() == Stato::Scritto) << i;
    for (const Stato stato : {primo.Ora(), secondo.Ora()})
      EXPECT_TRUE(stato == Stato::Scritto || stato == Stato::InUso) << i;
    EXPECT_EQ(Contenuto(Cartella / "a.img"), primo.Ora() == Stato::Scritto ? "primo" : "secondo") << i;
    EXPECT_EQ(Nomi(Copie.Percorso()), std::vector<std::string>()) << i;
  }
}

}  // namespace
}  // namespace parvik::prova
