#include "output/Leggibile.h"

#include <gtest/gtest.h>

namespace parvik::prova {
namespace {

std::string CorpoScritto(CorpoCarattere corpo) {
  if (corpo == CorpoCarattere::Normale) return "10";
  return corpo == CorpoCarattere::Compresso ? "8" : "9.75";
}

std::string Etichetta(const Aspetto& a) {
  const bool disegno = a.Corpo == CorpoCarattere::Disegno;
  std::string nome;
  if (a.Grassetto) nome += "GR";
  if (a.Italico) nome += "IT";
  if (a.Sottolineato) nome += "SO";
  if (!nome.empty()) return disegno ? nome : nome + "+" + CorpoScritto(a.Corpo);
  if (disegno) return "?";
  return a.Corpo == CorpoCarattere::Compresso ? "CO" : "";
}

std::string ConSegniDiParagrafo(std::string_view testo) {
  std::string leggibile;
  for (std::size_t i = 0; i < testo.size(); ++i) {
    if (testo.substr(i, 2) == "\r\n") {
      leggibile += "¶";
      ++i;
    } else {
      leggibile += testo[i];
    }
  }
  return leggibile;
}

}  // namespace

std::vector<Aspetto> AspettiPerByte(std::string_view testo, const std::vector<Tratto>& tratti) {
  std::vector<Aspetto> aspetti;
  for (const Tratto& tratto : tratti) {
    EXPECT_EQ(tratto.Inizio, aspetti.size()) << "a gap or an overlap";
    EXPECT_GT(tratto.Lunghezza, 0U);
    aspetti.insert(aspetti.end(), tratto.Lunghezza, tratto.Come);
  }
  EXPECT_EQ(aspetti.size(), testo.size());
  aspetti.resize(testo.size());
  return aspetti;
}

std::string Leggibile(std::string_view testo, const std::vector<Tratto>& tratti) {
  const std::vector<Aspetto> aspetti = AspettiPerByte(testo, tratti);
  std::string leggibile;
  for (std::size_t inizio = 0, fine = 0; inizio < testo.size(); inizio = fine) {
    while (fine < testo.size() && aspetti[fine] == aspetti[inizio]) ++fine;
    const std::string etichetta = Etichetta(aspetti[inizio]);
    const std::string pezzo = ConSegniDiParagrafo(testo.substr(inizio, fine - inizio));
    leggibile += etichetta.empty() ? pezzo : "<" + etichetta + ">" + pezzo + "</" + etichetta + ">";
  }
  return leggibile;
}

std::string ConStili(std::string testo) {
  const std::vector<Tratto> tratti = MettiStili(testo);
  return Leggibile(testo, tratti);
}

}  // namespace parvik::prova
