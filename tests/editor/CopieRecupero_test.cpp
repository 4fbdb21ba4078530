// The copies of templates that were not saved, on the disk (docs/recupero.md).
#include "editor/CopieRecupero.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "common/FileDiProva.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

class CopieRecupero : public testing::Test {
 protected:
  static CopiaRecupero Copia(std::int64_t quando) {
    return {.Tipo = 1, .Quando = quando, .NomeFile = "/a.img", .Testi = {"t\r\n", "c\r\n", "p\r\n"}};
  }
  /// What a program that was killed leaves: the copy, and a sign that nobody holds any more.
  void Lascia(const std::string& chiave, const std::string& byte) {
    Crea(Cartella / ("recupero-" + chiave + ".copia"), byte);
    Crea(Cartella / ("recupero-" + chiave + ".vivo"), "");
    fs::permissions(Cartella, fs::perms(0700));
  }
  std::vector<fs::path> File() const {
    std::vector<fs::path> file;
    if (fs::exists(Cartella))
      for (const auto& voce : fs::directory_iterator(Cartella)) file.push_back(voce.path());
    std::ranges::sort(file);
    return file;
  }
  std::vector<std::int64_t> Trovate() const {
    std::vector<std::int64_t> quando;
    for (const CopiaTrovata& trovata : CercaCopie(Stato)) quando.push_back(trovata.Copia.Quando);
    return quando;
  }

  CartellaTemporanea cartella_;
  const fs::path Stato = cartella_ / "casa" / ".local" / "state";
  const fs::path Cartella = Stato / "ordavia";
};

const std::string A(16, 'a');
const std::string B(16, 'b');
const std::string C(16, 'c');

TEST_F(CopieRecupero, OnesOwnIsForOneselfAloneAndGoesWithItsFolder) {
  CopiaPropria propria(Stato);
  EXPECT_FALSE(fs::exists(Stato)) << "nothing before there is something to keep";
  ASSERT_TRUE(propria.Scrivi(Copia(1)));
  ASSERT_TRUE(propria.Scrivi(Copia(2)));
  const std::vector<fs::path> file = File();
  ASSERT_EQ(file.size(), 2U) << "the copy and its sign";
  if (ConDiritti) {
    EXPECT_EQ(Modo(Cartella), 0700U);
    for (const fs::path& suo : file) EXPECT_EQ(Modo(suo), 0600U) << suo;
  }
  EXPECT_EQ(LeggiCopia(Contenuto(file[0])), Copia(2));
  propria.Togli();
  EXPECT_FALSE(fs::exists(Cartella));
  ASSERT_TRUE(propria.Scrivi(Copia(3)));
  EXPECT_EQ(File().size(), 2U);
}

TEST_F(CopieRecupero, OnesOwnGoesAtTheEnd) {
  { EXPECT_TRUE(CopiaPropria(Stato).Scrivi(Copia(1))); }
  EXPECT_FALSE(fs::exists(Cartella));
}

TEST_F(CopieRecupero, AreFoundOnlyWhenTheirOwnersAreDead) {
  CopiaPropria viva(Stato);
  ASSERT_TRUE(viva.Scrivi(Copia(1)));
  EXPECT_EQ(Trovate(), std::vector<std::int64_t>());
  Lascia(A, ScriviCopia(Copia(2)));
  EXPECT_EQ(Trovate(), std::vector<std::int64_t>{2});
  EXPECT_EQ(File().size(), 3U) << "looking takes no copy away";
}

TEST_F(CopieRecupero, AreFoundTheNewestFirst) {
  Lascia(A, ScriviCopia(Copia(5)));
  Lascia(B, ScriviCopia(Copia(9)));
  Lascia(C, ScriviCopia(Copia(7)));
  EXPECT_EQ(Trovate(), (std::vector<std::int64_t>{9, 7, 5}));
}

TEST_F(CopieRecupero, AreOfferedByOneWindowAtATime) {
  Lascia(A, ScriviCopia(Copia(5)));
  {
    const std::vector<CopiaTrovata> prima = CercaCopie(Stato);
    EXPECT_EQ(prima.size(), 1U);
    EXPECT_EQ(Trovate(), std::vector<std::int64_t>());
  }
  EXPECT_EQ(Trovate(), std::vector<std::int64_t>{5}) << "put off, and offered once more";
}

TEST_F(CopieRecupero, ThatAreTakenAwayLeaveNothing) {
  Lascia(A, ScriviCopia(Copia(5)));
  std::vector<CopiaTrovata> trovate = CercaCopie(Stato);
  ASSERT_EQ(trovate.size(), 1U);
  trovate[0].Togli();
  trovate.clear();
  EXPECT_FALSE(fs::exists(Cartella));
}

TEST_F(CopieRecupero, ThatAreBrokenAreLeftAlone) {
  std::string rotta = ScriviCopia(Copia(5));
  rotta.pop_back();
  Lascia(A, rotta);
  Lascia(B, "");
  Crea(Cartella / ("recupero-" + C + ".copia") / "a folder", "");
  EXPECT_EQ(Trovate(), std::vector<std::int64_t>());
  EXPECT_EQ(Contenuto(Cartella / ("recupero-" + A + ".copia")), rotta);
}

TEST_F(CopieRecupero, ThatAreTooLargeForAnyTemplateAreLeftAlone) {
  Lascia(A, ScriviCopia(Copia(5)));
  fs::resize_file(Cartella / ("recupero-" + A + ".copia"), 1ULL << 30U);
  EXPECT_EQ(Trovate(), std::vector<std::int64_t>());
}

TEST_F(CopieRecupero, WhatADeadOwnerLeftHalfDoneIsClearedAway) {
  Lascia(A, ScriviCopia(Copia(5)));
  const fs::path mezza = Cartella / (".recupero-" + A + ".copia.0123.nuovo~");
  Crea(mezza, "half");
  const fs::path solo = Cartella / ("recupero-" + B + ".vivo");
  Crea(solo, "");
  const fs::path estraneo = Cartella / "recupero-di-mario.copia";
  Crea(estraneo, "mine");
  EXPECT_EQ(Trovate(), std::vector<std::int64_t>{5});
  EXPECT_FALSE(fs::exists(mezza));
  EXPECT_FALSE(fs::exists(solo));
  EXPECT_TRUE(fs::exists(estraneo));
}

TEST_F(CopieRecupero, WithoutAFolderThereAreNone) {
  EXPECT_EQ(Trovate(), std::vector<std::int64_t>());
  EXPECT_FALSE(fs::exists(Stato)) << "looking makes none";
  EXPECT_TRUE(CercaCopie("").empty());
  EXPECT_FALSE(CopiaPropria("").Scrivi(Copia(1)));
}

TEST_F(CopieRecupero, WhereNoneCanBeMadeNothingIsWrittenAndNothingHappens) {
  Crea(Stato, "a file in the folder's place");
  CopiaPropria propria(Stato);
  EXPECT_FALSE(propria.Scrivi(Copia(1)));
  EXPECT_FALSE(propria.Scritta());
  propria.Togli();
  EXPECT_EQ(Trovate(), std::vector<std::int64_t>());
  EXPECT_EQ(Contenuto(Stato), "a file in the folder's place");
}

TEST_F(CopieRecupero, InAFolderThatOthersSeeNothingIsWritten) {
  fs::create_directories(Cartella);
  fs::permissions(Cartella, fs::perms(0755));
  if (!ConDiritti) GTEST_SKIP() << "no permission bits here";
  EXPECT_FALSE(CopiaPropria(Stato).Scrivi(Copia(1)));
  EXPECT_TRUE(File().empty());
}

TEST_F(CopieRecupero, AWriteThatFailsKeepsTheCopyBefore) {
  CopiaPropria propria(Stato);
  ASSERT_TRUE(propria.Scrivi(Copia(1)));
  const fs::path copia = File()[0];
  fs::rename(copia, cartella_ / "via");
  fs::create_directory(copia);  // nothing can take its place
  Crea(copia / "dentro", "");
  EXPECT_FALSE(propria.Scrivi(Copia(2)));
  EXPECT_TRUE(propria.Scritta());
  fs::remove_all(copia);
  EXPECT_TRUE(propria.Scrivi(Copia(3)));
}

}  // namespace
}  // namespace parvik::prova
