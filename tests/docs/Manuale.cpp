#include "docs/Manuale.h"

#include <algorithm>
#include <filesystem>
#include <regex>

#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

/// Where a line ends in a text, it goes on.
std::vector<std::string> InUnaRiga(std::vector<std::string> testi) {
  for (std::string& testo : testi) std::ranges::replace(testo, '\n', ' ');
  return testi;
}

std::vector<PaginaManuale> Leggi() {
  const fs::path cartella = Docs() / "manuale";
  std::vector<PaginaManuale> pagine;
  for (const auto& voce : fs::recursive_directory_iterator(cartella)) {
    if (voce.path().extension() != ".md") continue;
    pagine.push_back(
        {.Nome = voce.path().lexically_relative(cartella).string(), .Testo = Contenuto(voce.path())});
  }
  std::ranges::sort(pagine, {}, &PaginaManuale::Nome);
  return pagine;
}

}  // namespace

const std::vector<PaginaManuale>& PagineManuale() {
  static const std::vector<PaginaManuale> pagine = Leggi();
  return pagine;
}

std::vector<std::string> Trovati(const std::string& testo, const char* espressione) {
  const std::regex cercato(espressione);
  std::vector<std::string> trovati;
  for (std::sregex_iterator i(testo.begin(), testo.end(), cercato), fine; i != fine; ++i)
    trovati.push_back((*i)[1]);
  return trovati;
}

std::vector<std::string> DidascalieDi(const PaginaManuale& pagina) {
  return InUnaRiga(Trovati(pagina.Testo, "\\*\\*\xC2\xAB([^*]*)\xC2\xBB\\*\\*"));
}

std::vector<std::string> TastiDi(const PaginaManuale& pagina) {
  return Trovati(
      pagina.Testo,
      "`((?:Ctrl|Alt|Maiusc|Shift)(?:\\+(?:Ctrl|Alt|Maiusc|Shift))*\\+[^`]+|F[0-9]+|Invio|Esc|Tab|Spazio|"
      "Backspace|Canc|Su|Gi\xC3\xB9|Sinistra|Destra|Inizio|Fine|Pag[A-Z][a-z\xC3\xB9]+)`");
}

std::vector<std::string> MessaggiDi(const PaginaManuale& pagina) {
  return InUnaRiga(Trovati(pagina.Testo, R"re(\*"([^*]+)"\*)re"));
}

std::vector<std::string> CollegamentiDi(const PaginaManuale& pagina) {
  std::vector<std::string> mete;
  for (const std::string& meta : Trovati(pagina.Testo, R"(\]\(([^)]*)\))"))
    mete.push_back((fs::path(pagina.Nome).parent_path() / meta).lexically_normal().string());
  return mete;
}

}  // namespace parvik::prova
