// Variable codes: what was built is read back, against a table that has the variable, and builds the same
// code.
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include "tokens/Codice.h"
#include "tokens/CodiceVariabile.h"
#include "tokens/Generatori.h"
#include "tokens/StampaVariabile.h"

namespace parvik::prova {
namespace {

rc::Gen<std::int16_t> Intero(int da, int a) {
  return rc::gen::map(rc::gen::inRange(da, a), [](int v) { return static_cast<std::int16_t>(v); });
}

rc::Gen<std::int16_t> Interruttore() {
  return Intero(0, 2);
}

/// One character or none. The grammar itself cannot carry ";", which would end the width group, nor the
/// closing delimiter, which would end the code, nor the opening one, which never stands inside a code. A
/// quote is carried: the fill is the one character that follows the first quote, whatever it is.
rc::Gen<std::string> Riempimento() {
  const auto portabile = [](char c) { return c != ';' && c != '\xAB' && c != '\xBB'; };
  return rc::gen::oneOf(
      rc::gen::just(std::string()),
      rc::gen::map(rc::gen::suchThat(QualunqueByte(), portabile), [](char c) { return std::string(1, c); }));
}

rc::Gen<std::string> Decimali() {
  return rc::gen::elementOf(std::vector<std::string>{"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "*"});
}

/// What string and numeric variables have in common. The number 0 belongs to constants.
Variabile FormatoComune() {
  Variabile formato;
  formato.Descrizione = *QualunqueTesto();
  formato.Intero1 = *rc::gen::suchThat(Intero(-32768, 32768), [](std::int16_t n) { return n != 0; });
  formato.Intero2 = *Intero(0, 1000);
  formato.Testo1 = *Riempimento();
  formato.Intero3 = *Interruttore();
  formato.Testo2 = "0";
  formato.Testo3 = "0";
  return formato;
}

Variabile FormatoStringa() {
  Variabile formato = FormatoComune();
  formato.Intero5 = *Intero(0, 10);
  return formato;
}

Variabile FormatoNumerico() {
  Variabile formato = FormatoComune();
  formato.Intero4 = *rc::gen::element<std::int16_t>(1, -1, 9);
  formato.Intero6 = *Interruttore();
  formato.Intero7 = *Interruttore();
  formato.Intero8 = *Interruttore();
  formato.Testo2 = *Decimali();
  formato.Testo3 = *rc::gen::element<std::string>("0", "1");
  return formato;
}

/// The variable as the catalogue may have it: same number, type and description, any other format.
Variabile VoceDiCatalogo(const Variabile& formato) {
  Variabile voce = FormatoNumerico();
  voce.Intero1 = formato.Intero1;
  voce.Intero4 = formato.Intero4;
  voce.Descrizione = formato.Descrizione;
  return voce;
}

void RileggiERicostruisci(const Variabile& formato) {
  const std::string codice = CostruisciVariabile(formato);
  RC_ASSERT(Riconosci(ContenutoDi(codice)) == TipoCodice::Variabile);
  std::vector<Variabile> tabella(*rc::gen::inRange<std::size_t>(0, 3));
  tabella.push_back(VoceDiCatalogo(formato));
  const VariabileLetta letta = LeggiVariabile(ContenutoDi(codice), tabella);
  RC_ASSERT(letta.Voce == tabella.size() - 1);
  RC_ASSERT(letta.Formato == formato);
  RC_ASSERT(CostruisciVariabile(letta.Formato) == codice);
}

TEST(Proprieta, AStringVariableIsReadBackAsItWas) {
  EXPECT_TRUE(rc::check([] { RileggiERicostruisci(FormatoStringa()); }));
}

TEST(Proprieta, ANumericVariableIsReadBackAsItWas) {
  EXPECT_TRUE(rc::check([] { RileggiERicostruisci(FormatoNumerico()); }));
}

TEST(Proprieta, AHandWrittenVariableIsTheSameAfterItsFirstRebuilding) {
  EXPECT_TRUE(rc::check([] {
    // A fill, an euro text or decimals that are a separator or a switch are spellings that the windows never
    // write.
    const std::string contenuto = "V12" + *ContenutoSimile();
    Variabile voce;
    voce.Intero1 = 12;
    voce.Intero4 = *Intero(0, 2);
    voce.Testo3 = "0";
    const Variabile prima = LeggiVariabile(contenuto, {&voce, 1}).Formato;
    RC_ASSERT(prima.Intero2 >= 0 && prima.Intero5 >= 0);
    RC_PRE(prima.Intero1 == 12 && prima.Testo1 != ";" && prima.Testo3 != ";");
    RC_PRE(prima.Testo2 != "-" && prima.Testo2 != ".");
    const std::string codice = CostruisciVariabile(prima);
    RC_ASSERT(CostruisciVariabile(LeggiVariabile(ContenutoDi(codice), {&voce, 1}).Formato) == codice);
  }));
}

}  // namespace
}  // namespace parvik::prova
