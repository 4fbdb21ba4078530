#include "editor/Recenti.h"

#include <gtest/gtest.h>

#include "supporto/Cartelle.h"

namespace parvik {
namespace {

std::vector<std::string> Nomi(const Recenti& recenti) {
  std::vector<std::string> nomi;
  for (const ModelloRecente& voce : recenti.Voci()) nomi.push_back(voce.File.string());
  return nomi;
}

TEST(Recenti, HoldTheLastTenOfThemTheLastOneFirst) {
  Recenti recenti;
  for (int i = 1; i <= 12; ++i) recenti.Aggiungi({.File = "/m" + std::to_string(i), .Tipo = 1});
  ASSERT_EQ(recenti.Voci().size(), Recenti::Massimo);
  EXPECT_EQ(recenti.Voci().front().File, "/m12");
  EXPECT_EQ(recenti.Voci().back().File, "/m3");
}

TEST(Recenti, HoldAFileOnceUnderItsLastType) {
  Recenti recenti;
  recenti.Aggiungi({.File = "/a", .Tipo = 1});
  recenti.Aggiungi({.File = "/b", .Tipo = 1});
  recenti.Aggiungi({.File = "/a", .Tipo = 12});
  EXPECT_EQ(Nomi(recenti), (std::vector<std::string>{"/a", "/b"}));
  EXPECT_EQ(recenti.Voci().front().Tipo, 12);
  recenti.Accoda({.File = "/b", .Tipo = 3});
  EXPECT_EQ(recenti.Voci().size(), 2U);
}

TEST(Recenti, LeaveOutWhatHasGone) {
  Recenti recenti;
  const prova::CartellaTemporanea cartella;
  const std::string file = (cartella / "b.img").string();
  prova::Crea(file, "");
  recenti.Accoda({.File = "/nessuna/a.img", .Tipo = 1});
  recenti.Accoda({.File = file, .Tipo = 1});
  recenti.Accoda({.File = cartella.Percorso(), .Tipo = 1});
  EXPECT_EQ(recenti.Spariti(), (std::vector<std::filesystem::path>{"/nessuna/a.img", cartella.Percorso()}));
  recenti.Togli(recenti.Spariti());
  EXPECT_EQ(Nomi(recenti), std::vector<std::string>{file});
}

}  // namespace
}  // namespace parvik
