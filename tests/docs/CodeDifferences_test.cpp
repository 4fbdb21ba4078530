// docs/code-grammar.md: where readings differ
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "common/Windows1252.h"
#include "docs/Pagine.h"
#include "docs/Riletto.h"
#include "supporto/DifferenzeViste.h"
#include "supporto/TestoConSelezione.h"
#include "template/TastiSezione.h"
#include "tokens/CodiceCorsa.h"
#include "tokens/Pezzi.h"

namespace parvik::prova {
namespace {

constexpr std::string_view Pagina = "code-grammar.md";

std::string Racconta(const CampoCorsa& campo) {
  std::string testo = "width " + std::to_string(campo.Larghezza) + ", fill ";
  testo += campo.Riempimento == ' ' ? std::string("blank") : std::string(1, campo.Riempimento);
  if (!campo.Zero) return testo;
  testo += ", zero";
  if (campo.Decimali) testo += ", decimals " + std::to_string(*campo.Decimali);
  return testo + (campo.ADestra ? ", right" : ", left");
}

/// What the run reads in a content.
std::string DettoDallaCorsa(std::string_view contenuto) {
  switch (Riconosci(contenuto)) {
    case TipoCodice::Variabile:
      return Racconta(VariabileCorsa(contenuto));
    case TipoCodice::Lingua:
      return Racconta(LinguaCorsa(contenuto));
    case TipoCodice::Costante:
      return std::string(CostanteCorsa(contenuto));
    case TipoCodice::Stile:
      return "marker " + std::string(StileCorsa(contenuto));
    case TipoCodice::Flag:
      return "number " + std::to_string(static_cast<int>(FlagCorsa(contenuto)));
    case TipoCodice::Pagina:
      return std::string(PaginaCorsa(contenuto));
    default:
      return "the text of the code before";
  }
}

/// What a text is made of, to whom: the words for its parts.
std::string Elenco(const std::vector<std::string>& parti) {
  std::string elenco;
  for (const std::string& parte : parti) elenco += (elenco.empty() ? "" : ", ") + parte;
  return elenco;
}

std::string DettoDaiPezzi(std::string_view testo) {
  std::vector<std::string> parti;
  LettorePezzi lettore(testo);
  while (const auto pezzo = lettore.Prossimo()) {
    constexpr const char* Nomi[] = {"text", "code", "stray"};
    parti.emplace_back(Nomi[static_cast<std::size_t>(pezzo->Genere)]);
  }
  return Elenco(parti);
}

std::string TestoDettoDallaCorsa(std::string_view testo) {
  std::vector<std::string> parti;
  for (LettoreCorsa lettore(testo); lettore.Prossimo();) {
    if (lettore.FineTesto() > lettore.InizioTesto()) parti.emplace_back("text");
    if (lettore.ConCodice()) parti.emplace_back("code");
    if (!lettore.ConCodice() && lettore.FineTesto() < testo.size()) parti.emplace_back("swallowed");
  }
  return Elenco(parti);
}

bool EUnCodice(std::string_view testo) {
  LettorePezzi lettore(testo);
  const auto pezzo = lettore.Prossimo();
  return pezzo && pezzo->Genere == GenerePezzo::Codice && pezzo->Fine == testo.size();
}

/// The code that the caret stands in, as the pieces have it.
std::string CodiceDeiPezzi(const ConSelezione& caso) {
  const std::string testo = caso.Testo.Byte();
  LettorePezzi lettore(testo);
  while (const auto pezzo = lettore.Prossimo()) {
    const bool dentro = pezzo->Inizio < caso.Selezionato.Inizio && caso.Selezionato.Inizio < pezzo->Fine;
    if (dentro && pezzo->Genere == GenerePezzo::Codice) return std::string(pezzo->In(testo));
  }
  return {};
}

/// The same, as the keys have it.
std::string CodiceDeiTasti(const ConSelezione& caso) {
  const auto codice = CodiceIntorno(caso.Testo, caso.Selezionato.Inizio);
  return codice ? caso.Testo.Byte(*codice) : std::string();
}

class Differenza {
 public:
  explicit Differenza(const RigaEsempio& riga) : riga_(riga), testo_(riga.Byte(2)) {}

  void Prova(std::span<const Variabile> variabili) const {
    if (riga_.Testo(1) == "the keys") {
      ProvaTasti();
    } else if (EUnCodice(testo_)) {
      ProvaContenuto(variabili);
    } else {
      Confronta(DettoDaiPezzi(testo_), TestoDettoDallaCorsa(testo_));
    }
    EXPECT_NE(riga_.Testo(3), riga_.Testo(4)) << riga_.Posto() << ": no difference";
  }

 private:
  void ProvaContenuto(std::span<const Variabile> variabili) const {
    const std::string_view contenuto = ContenutoDi(testo_);
    Confronta(Rileggi(contenuto, variabili).Detto, DettoDallaCorsa(contenuto));
    const std::vector<std::string> nomi = NomiDifferenze();
    if (std::ranges::find(nomi, riga_.Testo(0)) == nomi.end()) return;
    EXPECT_THAT(Differenze(contenuto), testing::Contains(riga_.Testo(0))) << riga_.Posto();
  }

  void ProvaTasti() const {
    const ConSelezione caso(riga_.Testo(2));
    EXPECT_EQ(CodiceDeiPezzi(caso), riga_.Byte(3)) << riga_.Posto();
    EXPECT_EQ(CodiceDeiTasti(caso), riga_.Byte(4)) << riga_.Posto();
  }

  void Confronta(const std::string& unaVista, const std::string& altra) const {
    EXPECT_EQ(riga_.Testo(1), "the run") << riga_.Posto();
    EXPECT_EQ(Utf8DaAnsi(unaVista), riga_.Testo(3)) << riga_.Posto();
    EXPECT_EQ(Utf8DaAnsi(altra), riga_.Testo(4)) << riga_.Posto();
  }

  const RigaEsempio& riga_;
  std::string testo_;
};

TEST(CodeGrammarPage, TellsWhereReadingsDiffer) {
  const std::vector<Variabile> variabili = VariabiliDellaPagina(Pagina);
  ASSERT_EQ(variabili.size(), 4U);
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "differences", 5)) Differenza(riga).Prova(variabili);
}

TEST(CodeGrammarPage, HasARowForEveryKindOfDifference) {
  std::set<std::string> nomi;
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "differences", 5)) nomi.insert(riga.Testo(0));
  for (const std::string& nome : NomiDifferenze()) EXPECT_THAT(nomi, testing::Contains(nome));
}

}  // namespace
}  // namespace parvik::prova
