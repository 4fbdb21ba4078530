#include "docs/Pagine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <regex>

#include "docs/Manuale.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

TEST(Pagine, StandAllInTheIndex) {
  std::vector<std::string> collegate = Trovati(Contenuto(Docs() / "README.md"), R"(\]\(([a-z-]+\.md)\))");
  collegate.emplace_back("README.md");
  for (const std::string& pagina : Pagine()) EXPECT_THAT(collegate, testing::Contains(pagina));
  EXPECT_GE(Pagine().size(), 10U);
}

TEST(Pagine, LinkOnlyToFilesThatExist) {
  int collegamenti = 0;
  for (const std::string& pagina : Pagine()) {
    for (const std::string& meta : Trovati(Contenuto(Docs() / pagina), R"(\]\(([^)#:]+)[^):]*\))")) {
      EXPECT_TRUE(fs::exists(Docs() / meta)) << pagina << " links to " << meta;
      ++collegamenti;
    }
  }
  EXPECT_GE(collegamenti, 10);
}

/// A name with NAME in it is a pattern for a file that is still to come; its folder must be there.
fs::path DaCercare(const std::string& nome) {
  const fs::path intero = Docs().parent_path() / nome;
  return nome.find("NAME") == std::string::npos ? intero : intero.parent_path();
}

TEST(Pagine, NameOnlySourcesThatExist) {
  int nominati = 0;
  for (const std::string& pagina : Pagine()) {
    for (const std::string& nome :
         Trovati(Contenuto(Docs() / pagina), "`((?:src|tests|cmake|esempio)/[\\w./-]+)`")) {
      EXPECT_TRUE(fs::exists(DaCercare(nome))) << pagina << " names " << nome;
      ++nominati;
    }
  }
  EXPECT_GE(nominati, 10);
}

/// Whether a header or source of the program says both words.
bool DiceInsieme(const std::string& classe, const std::string& membro) {
  const std::regex cercato("\\b" + membro + "\\b");
  for (const auto& voce : fs::recursive_directory_iterator(Docs().parent_path() / "src")) {
    if (!voce.is_regular_file()) continue;
    const std::string testo = Contenuto(voce.path());
    if (testo.find(classe) != std::string::npos && std::regex_search(testo, cercato)) return true;
  }
  return false;
}

TEST(Pagine, NameOnlyMembersThatExist) {
  int nominati = 0;
  for (const std::string& pagina : Pagine()) {
    for (const std::string& nome : Trovati(Contenuto(Docs() / pagina), "`(\\w+::\\w+)")) {
      const std::size_t mezzo = nome.find("::");
      EXPECT_TRUE(DiceInsieme(nome.substr(0, mezzo), nome.substr(mezzo + 2))) << pagina << " names " << nome;
      ++nominati;
    }
  }
  EXPECT_GE(nominati, 2);
}

/// An example that nothing reads would grow stale unseen.
TEST(Pagine, HaveNoExampleThatNoTestReads) {
  std::string test;
  for (const auto& voce : fs::directory_iterator(Docs().parent_path() / "tests" / "docs")) {
    if (voce.path().filename().string().ends_with("_test.cpp")) test += Contenuto(voce.path());
  }
  for (const std::string& pagina : Pagine()) {
    for (const std::string& nome : NomiEsempi(pagina)) {
      EXPECT_THAT(test, testing::HasSubstr("\"" + nome + "\"")) << pagina;
    }
  }
}

TEST(Pagine, NameEachExampleOnce) {
  for (const std::string& pagina : Pagine()) {
    std::vector<std::string> nomi = NomiEsempi(pagina);
    std::ranges::sort(nomi);
    EXPECT_EQ(std::ranges::adjacent_find(nomi), nomi.end()) << pagina;
  }
}

TEST(DaPagina, TurnsTheTextOfThePagesIntoBytes) {
  for (const RigaEsempio& riga : TabellaEsempi("README.md", "notation", 2)) {
    std::string esadecimale;
    for (const char c : riga.Byte(0)) {
      constexpr const char* Cifre = "0123456789ABCDEF";
      const auto byte = static_cast<unsigned char>(c);
      if (!esadecimale.empty()) esadecimale += ' ';
      esadecimale += {Cifre[byte / 16], Cifre[byte % 16]};
    }
    EXPECT_EQ(esadecimale, riga.Testo(1)) << riga.Posto();
  }
}

}  // namespace
}  // namespace parvik::prova
