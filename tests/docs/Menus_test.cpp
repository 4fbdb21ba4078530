// docs/menus.md
#include <gtest/gtest.h>

#include "docs/Pagine.h"
#include "editor/Disposizione.h"
#include "editor/Menu.h"

namespace parvik::prova {
namespace {

constexpr std::string_view Pagina = "menus.md";

std::string NomeGenere(GenereVoce genere) {
  switch (genere) {
    case GenereVoce::Menu:
      return "menu";
    case GenereVoce::Sottomenu:
      return "submenu";
    case GenereVoce::Fine:
      return "end";
    case GenereVoce::Voce:
      return "entry";
    case GenereVoce::Separatore:
      break;
  }
  return "separator";
}

TEST(MenusPage, ListsEveryEntryAndWhenItCanBeUsed) {
  const auto righe = TabellaEsempi(Pagina, "menu", 8);
  ASSERT_EQ(VociMenu().size(), righe.size());
  for (std::size_t i = 0; i < righe.size(); ++i) {
    const VoceMenu& voce = VociMenu()[i];
    const RigaEsempio& riga = righe[i];
    EXPECT_EQ(voce.Nome, riga.Testo(0)) << riga.Posto();
    EXPECT_EQ(NomeGenere(voce.Genere), riga.Testo(1)) << riga.Posto();
    EXPECT_EQ(voce.Didascalia, riga.Testo(2)) << riga.Posto();
    EXPECT_EQ(voce.Scorciatoia, riga.Testo(3)) << riga.Posto();
    EXPECT_EQ(Abilitata(voce, {}), riga.Si(4)) << riga.Posto();
    EXPECT_EQ(Abilitata(voce, {.TipoScelto = true, .TreSezioni = false}), riga.Si(5)) << riga.Posto();
    EXPECT_EQ(Abilitata(voce, {.TipoScelto = true, .TreSezioni = true}), riga.Si(6)) << riga.Posto();
    EXPECT_EQ(voce.ConSpunta, riga.Si(7)) << riga.Posto();
  }
}

std::string Posto(const std::optional<Rettangolo>& r) {
  if (!r) return {};
  return std::to_string(r->Sinistra) + " " + std::to_string(r->Alto) + " " + std::to_string(r->Larghezza) +
         " " + std::to_string(r->Altezza);
}

std::string Etichette(const Disposizione& disposizione) {
  std::string posti;
  for (const auto& etichetta : disposizione.Etichette) {
    if (!etichetta) continue;
    posti += (posti.empty() ? "" : ", ") + std::to_string(etichetta->Sinistra) + " " +
             std::to_string(etichetta->Alto);
  }
  return posti;
}

TEST(MenusPage, TellsWhereTheControlsStand) {
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "layout", 10)) {
    const Disposizione disposizione = Disponi({.Larghezza = riga.Numero(0),
                                               .Altezza = riga.Numero(1),
                                               .SinistraSezioni = 300,
                                               .SinistraEtichette = 60,
                                               .TreSezioni = riga.Numero(2) == 3,
                                               .Anteprima = riga.Testo(3) == "on"});
    for (std::size_t i = 0; i < MaxSezioni; ++i) {
      EXPECT_EQ(Posto(disposizione.Sezioni[i]), riga.Testo(4 + i)) << riga.Posto();
    }
    EXPECT_EQ(Etichette(disposizione), riga.Testo(7)) << riga.Posto();
    EXPECT_EQ(Posto(disposizione.StatoAnteprima), riga.Testo(8)) << riga.Posto();
    EXPECT_EQ(Posto(disposizione.Anteprima), riga.Testo(9)) << riga.Posto();
  }
}

}  // namespace
}  // namespace parvik::prova
