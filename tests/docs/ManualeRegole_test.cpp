// docs/manuale/regole: what each page shows is what the checker says.
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <sstream>

#include "catalogue/TrovaTipo.h"
#include "common/TestoMostrabile.h"
#include "docs/Manuale.h"
#include "docs/Pagine.h"
#include "supporto/Cartelle.h"
#include "verifica/RegoleCatalogo.h"
#include "verifica/Verifica.h"

namespace parvik::prova {
namespace {

constexpr std::string_view InizioEsempio = "<!-- esempio: ";
constexpr std::string_view Recinto = "```";
constexpr std::string_view Citazione = "> ";

/// "tipo 1, testata, larghezza 30": what the comment in front of an example says.
class Condizioni {
 public:
  explicit Condizioni(const std::string& scritte) {
    std::istringstream parole(scritte);
    for (std::string parola; std::getline(parole >> std::ws, parola, ',');) parole_.push_back(parola);
  }
  bool Ha(const std::string& parola) const { return std::ranges::count(parole_, parola) > 0; }
  /// What follows a word: "30".
  std::optional<std::string> Dopo(const std::string& parola) const {
    for (const std::string& una : parole_)
      if (una.starts_with(parola + " ")) return una.substr(parola.size() + 1);
    return std::nullopt;
  }
  std::optional<std::size_t> Numero(const std::string& parola) const {
    const auto dopo = Dopo(parola);
    return dopo ? std::optional<std::size_t>(std::stoul(*dopo)) : std::nullopt;
  }

 private:
  std::vector<std::string> parole_;
};

struct EsempioRegola {
  std::string Condizioni;
  std::vector<std::string> Righe;
  std::vector<std::string> Detti;
};

EsempioRegola EsempioDi(const std::string& pagina) {
  EsempioRegola esempio;
  bool dentro = false;
  for (const std::string& riga : RighePagina(pagina)) {
    if (riga.starts_with(InizioEsempio)) {
      esempio.Condizioni = riga.substr(InizioEsempio.size(), riga.find(" -->") - InizioEsempio.size());
    } else if (riga == Recinto) {
      dentro = !dentro;
    } else if (dentro) {
      esempio.Righe.push_back(riga);
    } else if (riga.starts_with(Citazione)) {
      esempio.Detti.push_back(riga.substr(Citazione.size()));
    }
  }
  EXPECT_FALSE(esempio.Condizioni.empty()) << pagina << " has no example";
  EXPECT_FALSE(esempio.Detti.empty()) << pagina << " does not say what the checker says";
  return esempio;
}

std::string TestoDi(const EsempioRegola& esempio, const Condizioni& condizioni) {
  const std::string fine = condizioni.Ha("lf") ? "\n" : "\r\n";
  std::string testo;
  for (const std::string& riga : esempio.Righe) testo += DaPagina(riga) + fine;
  if (condizioni.Ha("senza-fine")) testo.resize(testo.size() - fine.size());
  return testo;
}

const Catalogo& CatalogoDiEsempio() {
  static const Esito<Catalogo, ErroreCatalogo> catalogo =
      Catalogo::CaricaCampi(Contenuto(Esempio() / "D_IMG" / "CAMPI.TXT"));
  return *catalogo;
}

std::vector<Rilievo> Trovati(const EsempioRegola& esempio) {
  const Condizioni condizioni(esempio.Condizioni);
  const OpzioniVerifica opzioni{.Larghezza = condizioni.Numero("larghezza"),
                                .Righe = condizioni.Numero("righe"),
                                .Cornici = condizioni.Ha("cornici")};
  const TipoDoc& tipo = CatalogoDiEsempio().TipiDoc()[condizioni.Numero("tipo").value() - 1];
  Verificatore verificatore(CatalogoDiEsempio(), tipo);
  const std::string testo = TestoDi(esempio, condizioni);
  if (condizioni.Ha("file")) return *verificatore.File(testo, opzioni);
  return *verificatore.Testi({.Testi = {testo, "\r\n", "\r\n"}, .Corpo = {}}, opzioni);
}

/// The texts of what was found, and the name of any other rule.
std::vector<std::string> Detti(const std::vector<Rilievo>& rilievi, Regola regola) {
  std::vector<std::string> detti;
  for (const Rilievo& rilievo : rilievi) {
    const std::string_view altra = rilievo.Quale == regola ? "" : VoceDi(rilievo.Quale).Nome;
    detti.push_back(rilievo.Testo + (altra.empty() ? "" : " [" + std::string(altra) + "]"));
  }
  return detti;
}

std::string PaginaDi(std::string_view regola) {
  return "manuale/regole/" + std::string(regola) + ".md";
}

/// "Errore. Regola `NAME`", or what mends itself.
void ControllaGrado(const std::string& pagina, std::string_view nome, Livello grado, bool corregge) {
  const std::string atteso = std::string(grado == Livello::Errore ? "Errore. " : "Avviso. ") +
                             (corregge ? "Si corregge da solo. " : "") + "Regola `" + std::string(nome) + "`";
  EXPECT_TRUE(RighePagina(pagina).at(2).starts_with(atteso)) << pagina;
}

TEST(ManualeRegole, ShowWhatTheCheckerSaysOfTheirExamples) {
  for (const VoceRegola& voce : Regole()) {
    const std::string pagina = PaginaDi(voce.Nome);
    ControllaGrado(pagina, voce.Nome, voce.Grado, voce.Corregge);
    const EsempioRegola esempio = EsempioDi(pagina);
    if (voce.Quale == Regola::TipoIncerto) continue;
    EXPECT_EQ(Detti(Trovati(esempio), voce.Quale), esempio.Detti) << pagina;
  }
}

TEST(ManualeRegole, ShowANameThatTellsNoType) {
  const EsempioRegola esempio = EsempioDi(PaginaDi(VoceDi(Regola::TipoIncerto).Nome));
  const auto nome = Condizioni(esempio.Condizioni).Dopo("nome");
  ASSERT_TRUE(nome);
  EXPECT_TRUE(TipiPerNome(CatalogoDiEsempio(), *nome).empty());
}

TEST(ManualeRegole, ShowWhatTheCheckerSaysOfACatalogue) {
  for (const VoceRegolaCatalogo& voce : RegoleCatalogo()) {
    const std::string pagina = PaginaDi(voce.Nome);
    ControllaGrado(pagina, voce.Nome, voce.Grado, false);
    const EsempioRegola esempio = EsempioDi(pagina);
    const auto rilievi = VerificaCatalogo(TestoDi(esempio, Condizioni(esempio.Condizioni)));
    ASSERT_TRUE(rilievi) << pagina;
    std::vector<std::string> detti;
    for (const RilievoCatalogo& rilievo : *rilievi) {
      EXPECT_EQ(rilievo.Quale, voce.Quale) << pagina;
      detti.push_back(rilievo.Testo);
    }
    EXPECT_EQ(detti, esempio.Detti) << pagina;
  }
}

}  // namespace
}  // namespace parvik::prova
