// docs/catalogue-file.md
#include <gtest/gtest.h>

#include <optional>

#include "catalogue/Catalogo.h"
#include "docs/Pagine.h"
#include "tokens/CodiceFlag.h"
#include "tokens/CodiceVariabile.h"

namespace parvik::prova {
namespace {

constexpr std::string_view Pagina = "catalogue-file.md";

std::string Scritto(NumeroErrore errore) {
  return "error " + std::to_string(static_cast<int>(errore));
}

/// A catalogue of one type whose Testata has the variables and the flags of lines 1 to 2.
Esito<Catalogo, ErroreCatalogo> ConRiga(const std::string& riga, const std::string& seconda) {
  return Catalogo::CaricaCampi("1,\"Prova;P;1;1;2;0;0;0;0;1;2;0;0;0;0\"\r\n//fine documenti\r\n" + riga +
                               "\r\n" + seconda + "\r\n");
}

template <class Voce>
std::string Numeri(const Tabella<Voce>& tabella, std::int16_t Voce::*numero) {
  if (tabella.Errore) return Scritto(*tabella.Errore);
  std::string numeri;
  for (const Voce& voce : tabella.Voci) numeri += (numeri.empty() ? "" : ", ") + std::to_string(voce.*numero);
  return numeri;
}

std::string Interi(const Variabile& v) {
  std::string interi;
  for (const int intero :
       {v.Intero1, v.Intero2, v.Intero3, v.Intero4, v.Intero5, v.Intero6, v.Intero7, v.Intero8}) {
    interi += (interi.empty() ? "" : " ") + std::to_string(intero);
  }
  return interi;
}

TEST(CatalogueFilePage, TellsWhichTypesAreListed) {
  const auto catalogo = Catalogo::CaricaCampi(FileEsempio(Pagina, "catalogue"));
  ASSERT_TRUE(catalogo);
  const auto elenco = catalogo->TipiElencati();
  const auto righe = TabellaEsempi(Pagina, "listed", 4);
  ASSERT_EQ(elenco.size(), righe.size());
  for (std::size_t i = 0; i < righe.size(); ++i) {
    EXPECT_EQ(elenco[i]->Indice + 1, righe[i].Numero(0)) << righe[i].Posto();
    EXPECT_EQ(elenco[i]->Descrizione, righe[i].Byte(1)) << righe[i].Posto();
    EXPECT_EQ(elenco[i]->Titolo, righe[i].Byte(2)) << righe[i].Posto();
    EXPECT_EQ(elenco[i]->NumSezioni, righe[i].Numero(3)) << righe[i].Posto();
  }
}

TEST(CatalogueFilePage, TellsWhatRangesGive) {
  const auto catalogo = Catalogo::CaricaCampi(FileEsempio(Pagina, "catalogue"));
  ASSERT_TRUE(catalogo);
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "ranges", 4)) {
    const TipoDoc& tipo = catalogo->TipiDoc().at(static_cast<std::size_t>(riga.Numero(0)) - 1);
    const std::string nome = riga.Testo(1);
    const Sezione sezione = nome == "Corpo"   ? Sezione::Corpo
                            : nome == "Piede" ? Sezione::Piede
                                              : Sezione::Testata;
    EXPECT_EQ(Numeri(catalogo->LeggiVariabili(tipo, sezione), &Variabile::Intero1), riga.Testo(2))
        << riga.Posto();
    EXPECT_EQ(Numeri(catalogo->LeggiFlags(tipo, sezione), &Flag::Codice), riga.Testo(3)) << riga.Posto();
  }
}

TEST(CatalogueFilePage, TellsWhatIsWrongInAHead) {
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "head-errors", 3)) {
    const auto catalogo = Catalogo::CaricaCampi(riga.Byte(0) + "\r\n//fine documenti\r\n");
    EXPECT_EQ(static_cast<bool>(catalogo), riga.Testo(1) == "none") << riga.Posto();
    EXPECT_EQ(riga.Testo(2).empty(), riga.Testo(1) == "none") << riga.Posto();
    if (catalogo || riga.Testo(1) == "none") continue;
    EXPECT_EQ(static_cast<int>(catalogo.Errore().Numero), riga.Numero(1)) << riga.Posto();
    EXPECT_EQ(static_cast<int>(catalogo.Errore().Riga), riga.Numero(2)) << riga.Posto();
  }
}

TEST(CatalogueFilePage, TellsWhatVariableLinesSay) {
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "variables", 7)) {
    const auto catalogo = ConRiga(riga.Byte(0), "0002,\"Altra;99;1;;1;0;0;0;0;0;0");
    ASSERT_TRUE(catalogo);
    const auto tabella = catalogo->LeggiVariabili(catalogo->TipiDoc()[0], Sezione::Testata);
    if (tabella.Errore) {
      EXPECT_EQ(Scritto(*tabella.Errore), riga.Testo(1)) << riga.Posto();
      continue;
    }
    ASSERT_EQ(tabella.Voci.size(), 2U) << riga.Posto();
    const Variabile& variabile = tabella.Voci.front();
    EXPECT_EQ(variabile.Descrizione, riga.Byte(1)) << riga.Posto();
    EXPECT_EQ(Interi(variabile), riga.Testo(2)) << riga.Posto();
    EXPECT_EQ(variabile.Testo1, riga.Byte(3)) << riga.Posto();
    EXPECT_EQ(variabile.Testo2, riga.Byte(4)) << riga.Posto();
    EXPECT_EQ(variabile.Testo3, riga.Byte(5)) << riga.Posto();
    EXPECT_EQ(CostruisciVariabile(variabile), riga.Byte(6)) << riga.Posto();
  }
}

TEST(CatalogueFilePage, TellsWhatFlagLinesSay) {
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "flags", 5)) {
    const auto catalogo = ConRiga(riga.Byte(0), "0002,\"Altro;99;N");
    ASSERT_TRUE(catalogo);
    const auto tabella = catalogo->LeggiFlags(catalogo->TipiDoc()[0], Sezione::Testata);
    if (tabella.Errore) {
      EXPECT_EQ(Scritto(*tabella.Errore), riga.Testo(1)) << riga.Posto();
      continue;
    }
    ASSERT_EQ(tabella.Voci.size(), 2U) << riga.Posto();
    const Flag& flag = tabella.Voci.front();
    EXPECT_EQ(flag.Descrizione, riga.Byte(1)) << riga.Posto();
    EXPECT_EQ(flag.Codice, riga.Numero(2)) << riga.Posto();
    EXPECT_EQ(flag.Valore, riga.Byte(3)) << riga.Posto();
    const CodiceFlag codice{.Numero = std::to_string(flag.Codice), .Interruttore = flag.Valore};
    EXPECT_EQ(CostruisciFlag(codice), riga.Byte(4)) << riga.Posto();
  }
}

}  // namespace
}  // namespace parvik::prova
