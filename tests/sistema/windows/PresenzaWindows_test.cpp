#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <utility>

#include "sistema/Presenza.h"
#include "sistema/windows/OperazioniFile.h"
#include "supporto/Cartelle.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;
using Altri = Presenza::Altri;

class PresenzaWindows : public testing::Test {
 protected:
  Altri Trovati() const { return Presenza(File).Trovati(); }

  prova::CartellaTemporanea cartella_;
  const fs::path File = cartella_ / "sua" / "segno";
};

TEST_F(PresenzaWindows, FindsNobodyAndLeavesNothingBehind) {
  {
    const Presenza presenza(File);
    EXPECT_EQ(presenza.Trovati(), Altri::Nessuno);
    EXPECT_TRUE(fs::exists(File));
  }
  EXPECT_FALSE(fs::exists(File));
}

TEST_F(PresenzaWindows, FindsTheOthersAndIsFoundByThem) {
  Presenza prima(File);
  auto seconda = std::make_unique<Presenza>(File);
  EXPECT_EQ(seconda->Trovati(), Altri::Presenti);
  EXPECT_EQ(prima.Trovati(), Altri::Nessuno) << "as it was found";
  prima = Presenza();
  EXPECT_TRUE(fs::exists(File)) << "the second one is there still";
  EXPECT_EQ(Trovati(), Altri::Presenti);
  seconda.reset();
  EXPECT_FALSE(fs::exists(File));
  EXPECT_EQ(Trovati(), Altri::Nessuno);
}

TEST_F(PresenzaWindows, GoesAlongWhenItIsMoved) {
  Presenza prima(File);
  const Presenza dopo(std::move(prima));
  EXPECT_EQ(dopo.Trovati(), Altri::Nessuno);
  EXPECT_EQ(Trovati(), Altri::Presenti);
}

TEST_F(PresenzaWindows, WhatAKilledProgramLeavesIsHarmless) {
  ASSERT_EQ(Trovati(), Altri::Nessuno);
  prova::Crea(File, "");
  EXPECT_EQ(Trovati(), Altri::Nessuno);
}

TEST_F(PresenzaWindows, WithoutAFolderThereIsNoSign) {
  EXPECT_EQ(Presenza(cartella_ / "manca" / "sua" / "segno").Trovati(), Altri::Ignoti);
  EXPECT_FALSE(fs::exists(cartella_ / "manca"));
  prova::Crea(File.parent_path(), "a file in its place");
  EXPECT_EQ(Trovati(), Altri::Ignoti);
  EXPECT_EQ(Presenza().Trovati(), Altri::Ignoti);
}

TEST_F(PresenzaWindows, WhereSomebodyKeepsTheFileForHimselfThereIsNoSign) {
  ASSERT_EQ(Trovati(), Altri::Nessuno);
  const EsitoSistema<Maniglia> altrui = ApriFile(File, GENERIC_READ, Nessuno, CREATE_NEW);
  ASSERT_TRUE(altrui);
  EXPECT_EQ(Trovati(), Altri::Ignoti);
}

}  // namespace
}  // namespace parvik
