// docs/manuale: its pages lead to each other, and there is one for everything.
#include "docs/Manuale.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <filesystem>
#include <regex>
#include <set>

#include "docs/Pagine.h"
#include "docs/Sessioni.h"
#include "supporto/Cartelle.h"
#include "verifica/Regole.h"
#include "verifica/RegoleCatalogo.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view Indice = "indice.md";
constexpr std::uintmax_t MassimoImmagine = 60'000;  // bytes

fs::path Manuale() {
  return Docs() / "manuale";
}

std::set<std::string> Nomi() {
  std::set<std::string> nomi;
  for (const PaginaManuale& pagina : PagineManuale()) nomi.insert(pagina.Nome);
  return nomi;
}

std::vector<std::string> Immagini() {
  std::vector<std::string> immagini;
  for (const auto& voce : fs::directory_iterator(Manuale() / "immagini"))
    if (voce.path().extension() == ".png") immagini.push_back("immagini/" + voce.path().filename().string());
  return immagini;
}

/// All that the sources say between quotes, adjacent literals joined.
const std::string& TestiDelProgramma() {
  static const std::string testi = [] {
    std::string letti;
    for (const auto& voce : fs::recursive_directory_iterator(Docs().parent_path() / "src")) {
      const fs::path estensione = voce.path().extension();
      if (estensione == ".cpp" || estensione == ".h" || estensione == ".ui") letti += Contenuto(voce.path());
    }
    letti = std::regex_replace(letti, std::regex(R"("\s*\n\s*")"), "");
    letti = std::regex_replace(letti, std::regex(R"(\\")"), "\"");
    letti = std::regex_replace(letti, std::regex(R"(\\u00AB)"), "\xC2\xAB");
    return std::regex_replace(letti, std::regex(R"(\\u00BB)"), "\xC2\xBB");
  }();
  return testi;
}

/// The parts of a message between what changes.
std::vector<std::string> Parti(const std::string& messaggio) {
  const std::regex cambia("\xE2\x80\xA6");
  std::vector<std::string> parti(std::sregex_token_iterator(messaggio.begin(), messaggio.end(), cambia, -1),
                                 {});
  std::erase(parti, "");
  return parti;
}

TEST(Manuale, LinksOnlyToPagesAndPicturesThatExist) {
  std::size_t collegamenti = 0;
  for (const PaginaManuale& pagina : PagineManuale()) {
    for (const std::string& meta : CollegamentiDi(pagina)) {
      EXPECT_TRUE(fs::is_regular_file(Manuale() / meta)) << pagina.Nome << " links to " << meta;
      ++collegamenti;
    }
  }
  EXPECT_GT(collegamenti, 100U);
}

TEST(Manuale, ReachesEveryPageFromTheIndex) {
  std::set<std::string> raggiunte;
  std::deque<std::string> daLeggere = {std::string(Indice)};
  while (!daLeggere.empty()) {
    const std::string nome = daLeggere.front();
    daLeggere.pop_front();
    if (!raggiunte.insert(nome).second) continue;
    const auto pagina = std::ranges::find(PagineManuale(), nome, &PaginaManuale::Nome);
    if (pagina == PagineManuale().end()) continue;
    for (const std::string& meta : CollegamentiDi(*pagina)) daLeggere.push_back(meta);
  }
  for (const std::string& nome : Nomi()) EXPECT_TRUE(raggiunte.contains(nome)) << nome;
}

TEST(Manuale, HasAPageForEveryRuleAndNoOther) {
  std::set<std::string> attese;
  for (const VoceRegola& voce : Regole()) attese.insert("regole/" + std::string(voce.Nome) + ".md");
  for (const VoceRegolaCatalogo& voce : RegoleCatalogo())
    attese.insert("regole/" + std::string(voce.Nome) + ".md");
  std::set<std::string> trovate = Nomi();
  std::erase_if(trovate, [](const std::string& nome) { return !nome.starts_with("regole/"); });
  EXPECT_EQ(trovate, attese);
}

/// What several dialogs derive from is none itself.
TEST(Manuale, HasAPageForEveryDialogAndNoOther) {
  std::set<std::string> attese;
  std::string sorgenti;
  for (const auto& voce : fs::recursive_directory_iterator(Docs().parent_path() / "src")) {
    const std::string nome = voce.path().filename().string();
    if (nome.starts_with("frm") && nome.ends_with(".h")) {
      attese.insert("finestre/" + voce.path().stem().string() + ".md");
      sorgenti += Contenuto(voce.path());
    }
  }
  for (const std::string& base : Trovati(sorgenti, R"(public (frm\w+))"))
    attese.erase("finestre/" + base + ".md");
  std::set<std::string> trovate = Nomi();
  std::erase_if(trovate, [](const std::string& nome) { return !nome.starts_with("finestre/"); });
  EXPECT_EQ(trovate, attese);
  EXPECT_GT(attese.size(), 10U);
}

TEST(Manuale, QuotesOnlyMessagesThatTheProgramHas) {
  std::size_t messaggi = 0;
  for (const PaginaManuale& pagina : PagineManuale()) {
    for (const std::string& messaggio : MessaggiDi(pagina)) {
      for (const std::string& parte : Parti(messaggio))
        EXPECT_TRUE(TestiDelProgramma().find(parte) != std::string::npos) << pagina.Nome << ": " << parte;
      ++messaggi;
    }
  }
  EXPECT_GT(messaggi, 40U);
}

TEST(Manuale, ShowsEveryPictureAndNoneIsLarge) {
  std::set<std::string> mostrate;
  for (const PaginaManuale& pagina : PagineManuale())
    for (const std::string& meta : CollegamentiDi(pagina)) mostrate.insert(meta);
  for (const std::string& immagine : Immagini()) {
    EXPECT_TRUE(mostrate.contains(immagine)) << immagine;
    EXPECT_LE(fs::file_size(Manuale() / immagine), MassimoImmagine) << immagine;
  }
}

TEST(Manuale, BeginsEachPageWithItsHeading) {
  for (const PaginaManuale& pagina : PagineManuale())
    EXPECT_TRUE(pagina.Testo.starts_with("# ")) << pagina.Nome;
}

TEST(Manuale, ShowsSessionsThatRunAsTheyStand) {
  std::size_t sessioni = 0;
  for (const PaginaManuale& pagina : PagineManuale()) {
    const std::string nome = "manuale/" + pagina.Nome;
    for (const std::string& sessione : NomiEsempi(nome)) {
      ControllaSessione(nome, sessione);
      ++sessioni;
    }
  }
  EXPECT_GE(sessioni, 5U);
}

}  // namespace
}  // namespace parvik::prova
