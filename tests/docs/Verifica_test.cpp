// docs/verifica.md
#include "verifica/Verifica.h"

#include <gtest/gtest.h>

#include "catalogue/TrovaTipo.h"
#include "docs/Pagine.h"
#include "verifica/Correzioni.h"
#include "verifica/RegoleCatalogo.h"

namespace parvik::prova {
namespace {

constexpr std::string_view Pagina = "verifica.md";

/// The page's examples, a table for each rule.
constexpr std::string_view Tabelle[] = {"tipo-incerto",
                                        "variabile-sconosciuta",
                                        "variabile-di-altra-sezione",
                                        "flag-sconosciuto",
                                        "flag-di-altra-sezione",
                                        "codice-sconosciuto",
                                        "codice-non-chiuso",
                                        "codice-su-piu-righe",
                                        "apertura-nel-codice",
                                        "chiusura-isolata",
                                        "codice-incompleto",
                                        "formato-diverso",
                                        "multilinea-persa",
                                        "larghezza-insufficiente",
                                        "flag-senza-effetto",
                                        "flag-su-altra-riga",
                                        "flag-su-stile",
                                        "marcatore-mancante",
                                        "marcatore-in-prima-riga",
                                        "marcatore-malformato",
                                        "marcatore-ambiguo",
                                        "righe-corpo",
                                        "corpo-non-stampato",
                                        "testo-stile",
                                        "fine-riga-lf",
                                        "delimitatore-di-file",
                                        "riga-senza-fine",
                                        "riga-lunga",
                                        "pagina-lunga",
                                        "cornice"};

const Catalogo& CatalogoDellaPagina() {
  static const Esito<Catalogo, ErroreCatalogo> catalogo =
      Catalogo::CaricaCampi(FileEsempio(Pagina, "catalogue"));
  return *catalogo;
}

/// What the check is told: "--larghezza 3", "--cornici", "finestra".
OpzioniVerifica OpzioniDi(const std::string& scritte) {
  const auto numero = [&scritte](std::string_view opzione) -> std::optional<std::size_t> {
    if (!scritte.starts_with(opzione)) return std::nullopt;
    return std::stoul(scritte.substr(opzione.size()));
  };
  OpzioniVerifica opzioni;
  opzioni.Larghezza = numero("--larghezza ");
  opzioni.Righe = numero("--righe ");
  opzioni.Cornici = scritte == "--cornici";
  return opzioni;
}

std::vector<Rilievo> Trovati(const RigaEsempio& riga) {
  const TipoDoc& tipo = CatalogoDellaPagina().TipiDoc()[static_cast<std::size_t>(riga.Numero(0)) - 1];
  Verificatore verificatore(CatalogoDellaPagina(), tipo);
  EXPECT_TRUE(verificatore.Errori().empty()) << riga.Posto();
  const std::string byte = riga.Byte(1);
  const std::string con = riga.Byte(2);
  if (con != "finestra") return *verificatore.File(byte, OpzioniDi(con));
  return *verificatore.Testi({.Testi = {byte, "\r\n", "\r\n"}, .Corpo = {}}, {});
}

/// "1:2, 3:4", and the name of any other rule.
std::string Luoghi(const std::vector<Rilievo>& rilievi, Regola regola) {
  std::string luoghi;
  for (const Rilievo& rilievo : rilievi) {
    luoghi +=
        (luoghi.empty() ? "" : ", ") + std::to_string(rilievo.Riga) + ":" + std::to_string(rilievo.Colonna);
    if (rilievo.Quale != regola) luoghi.append(" ").append(VoceDi(rilievo.Quale).Nome);
  }
  return luoghi;
}

void ControllaRegola(const VoceRegola& voce) {
  int trovate = 0;
  int pulite = 0;
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, voce.Nome, 4)) {
    EXPECT_EQ(Luoghi(Trovati(riga), voce.Quale), riga.Testo(3)) << riga.Posto();
    ++(riga.Testo(3).empty() ? pulite : trovate);
  }
  EXPECT_GT(trovate, 0) << voce.Nome;
  EXPECT_GT(pulite, 0) << voce.Nome;
}

TEST(VerificaPage, HasExamplesOfWhatEachRuleFindsAndDoesNot) {
  ASSERT_EQ(std::size(Tabelle), NumRegole);
  for (const VoceRegola& voce : Regole()) {
    EXPECT_EQ(Tabelle[static_cast<std::size_t>(voce.Quale)], voce.Nome);
    if (voce.Quale != Regola::TipoIncerto) ControllaRegola(voce);
  }
}

TEST(VerificaPage, HasExamplesOfNamesThatTellNoType) {
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, VoceDi(Regola::TipoIncerto).Nome, 2)) {
    const bool incerto = TipiPerNome(CatalogoDellaPagina(), riga.Byte(0)).size() != 1;
    EXPECT_EQ(incerto ? "1:1" : "", riga.Testo(1)) << riga.Posto();
  }
}

TEST(VerificaPage, TellsWhatIsMended) {
  const TipoDoc& tipo = CatalogoDellaPagina().TipiDoc()[1];
  Verificatore verificatore(CatalogoDellaPagina(), tipo);
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "mends", 3)) {
    const std::string prima = riga.Byte(0);
    const auto corretto = Correggi(prima, verificatore, CatalogoDellaPagina(), {});
    ASSERT_TRUE(corretto) << riga.Posto();
    const std::string perche =
        corretto->Mancate.empty() ? "" : std::string(Motivo(corretto->Mancate.front().Perche));
    EXPECT_EQ(corretto->Byte, riga.Testo(1).empty() ? prima : riga.Byte(1)) << riga.Posto();
    EXPECT_EQ(perche, riga.Testo(2)) << riga.Posto();
  }
}

TEST(VerificaPage, TellsTheRulesOfTheCatalogueItself) {
  const std::vector<RigaEsempio> righe = TabellaEsempi(Pagina, "catalogue-rules", 5);
  ASSERT_EQ(righe.size(), NumRegoleCatalogo);
  for (std::size_t i = 0; i < righe.size(); ++i) {
    const VoceRegolaCatalogo& voce = RegoleCatalogo()[i];
    EXPECT_EQ(righe[i].Testo(0), voce.Nome) << righe[i].Posto();
    EXPECT_EQ(righe[i].Testo(1), voce.Grado == Livello::Errore ? "error" : "warning") << righe[i].Posto();
    const auto rilievi = VerificaCatalogo(righe[i].Byte(2));
    ASSERT_TRUE(rilievi && rilievi->size() == 1) << righe[i].Posto();
    const RilievoCatalogo& rilievo = rilievi->front();
    EXPECT_EQ(rilievo.Quale, voce.Quale) << righe[i].Posto();
    EXPECT_EQ(std::to_string(rilievo.Riga) + ":" + std::to_string(rilievo.Colonna), righe[i].Testo(3))
        << righe[i].Posto();
  }
}

TEST(VerificaPage, TellsTheRulesInTheOrderOfTheTable) {
  std::vector<std::string> titoli;
  for (const std::string& riga : RighePagina(Pagina))
    if (riga.starts_with("### ")) titoli.push_back(riga.substr(4));
  std::vector<std::string> nomi;
  for (const VoceRegola& voce : Regole()) nomi.emplace_back(voce.Nome);
  EXPECT_EQ(titoli, nomi);
}

TEST(VerificaPage, TellsTheLevelsOfTheRules) {
  const std::vector<std::string> righe = RighePagina(Pagina);
  for (std::size_t i = 0; i + 2 < righe.size(); ++i) {
    if (!righe[i].starts_with("### ")) continue;
    const VoceRegola* voce = RegolaDi(righe[i].substr(4));
    ASSERT_NE(voce, nullptr) << righe[i];
    EXPECT_TRUE(righe[i + 2].starts_with(voce->Grado == Livello::Errore ? "Error. " : "Warning. "))
        << righe[i];
  }
}

}  // namespace
}  // namespace parvik::prova
