// The catalogue of the example installation, whole.
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <tuple>

#include "catalogue/CampiDiProva.h"
#include "catalogue/Catalogo.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

Catalogo CatalogoEsempio() {
  return Carica(Contenuto(Esempio() / "D_IMG" / "CAMPI.TXT"));
}

TEST(CatalogoEsempio, Has23TypesOfWhich19HaveThreeSections) {
  const Catalogo catalogo = CatalogoEsempio();
  int tre = 0;
  for (std::size_t slot = 0; slot < MaxTipiDoc; ++slot) {
    const TipoDoc& tipo = catalogo.TipiDoc()[slot];
    EXPECT_NE("", tipo.Descrizione) << slot;
    EXPECT_EQ(slot, static_cast<std::size_t>(tipo.Indice));
    if (HaTreSezioni(tipo.NumSezioni)) ++tre;
  }
  EXPECT_EQ(19, tre);
}

TEST(CatalogoEsempio, ListsAllTypesButTheLast) {
  const Catalogo catalogo = CatalogoEsempio();
  const std::vector<const TipoDoc*> elencati = catalogo.TipiElencati();
  ASSERT_EQ(22U, elencati.size());
  EXPECT_EQ("Fattura immediata", elencati.front()->Descrizione);
  EXPECT_EQ("FATT*.IMG", elencati.front()->Titolo);
  EXPECT_EQ("Provvigioni agenti", elencati.back()->Descrizione);
}

TEST(CatalogoEsempio, Offers526VariablesAnd107FlagsThroughTheRangesOfItsTypes) {
  const Catalogo catalogo = CatalogoEsempio();
  std::set<std::tuple<int, int>> gia;
  std::size_t variabili = 0;
  std::size_t flag = 0;
  for (const TipoDoc& tipo : catalogo.TipiDoc()) {
    for (const Sezione sezione : TutteLeSezioni) {
      const VociSezione& voci = tipo.Voci[Indice(sezione)];
      const Tabella<Variabile> leVariabili = catalogo.LeggiVariabili(tipo, sezione);
      const Tabella<Flag> iFlag = catalogo.LeggiFlags(tipo, sezione);
      EXPECT_EQ(std::nullopt, leVariabili.Errore) << tipo.Descrizione;
      EXPECT_EQ(std::nullopt, iFlag.Errore) << tipo.Descrizione;
      if (gia.emplace(voci.Variabili.Da, voci.Variabili.A).second) variabili += leVariabili.Voci.size();
      if (gia.emplace(voci.Flag.Da, voci.Flag.A).second) flag += iFlag.Voci.size();
    }
  }
  EXPECT_EQ(526U, variabili);
  EXPECT_EQ(107U, flag);
}

TEST(CatalogoEsempio, ReadsTextAndNumericVariablesOfTheInvoicesHeader) {
  const Catalogo catalogo = CatalogoEsempio();
  const Tabella<Variabile> tabella = catalogo.LeggiVariabili(catalogo.TipiDoc()[0], Sezione::Testata);
  ASSERT_EQ(51U, tabella.Voci.size());
  EXPECT_EQ((Variabile{"Ragione sociale ditta", 1, 40, "", 1, 0, 0, 0, 0, 0, "0", "0"}),
            tabella.Voci.front());
  EXPECT_EQ((Variabile{"Capitale sociale", 13, 16, "", 0, 1, 0, 0, 1, 1, "2", "1"}), tabella.Voci[12]);
}

TEST(CatalogoEsempio, OffersOnlyThePageConditionsWhereASectionHasNoFlags) {
  const Catalogo catalogo = CatalogoEsempio();
  const Tabella<Flag> tabella = catalogo.CaricaFlag(catalogo.TipiDoc()[16], Sezione::Testata);
  EXPECT_EQ((std::vector<Flag>{{}, CondPagina()[0], CondPagina()[1], CondPagina()[2], {}}), tabella.Voci);
}

}  // namespace
}  // namespace parvik::prova
