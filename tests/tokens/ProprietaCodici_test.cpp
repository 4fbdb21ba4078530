// For every kind of code but the variable: what was built is read back, and builds the same code again.
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>

#include "tokens/Codice.h"
#include "tokens/CodiceCostante.h"
#include "tokens/CodiceFlag.h"
#include "tokens/CodiceLingua.h"
#include "tokens/CodicePagina.h"
#include "tokens/CodiceStile.h"
#include "tokens/CodiceVariabile.h"
#include "tokens/Generatori.h"

namespace parvik::prova {
namespace {

bool SoloSpazi(const std::string& testo) {
  return testo.find_first_not_of(' ') == std::string::npos;
}

TEST(Proprieta, AConstantOfAnyBytesIsReadBackAsItWas) {
  EXPECT_TRUE(rc::check([] {
    const std::string testo = *QualunqueTesto();
    const std::string codice = CostruisciCostante(testo);
    if (SoloSpazi(testo)) {
      RC_ASSERT(codice.empty());
      return;
    }
    RC_ASSERT(Riconosci(ContenutoDi(codice)) == TipoCodice::Costante);
    RC_ASSERT(LeggiCostante(ContenutoDi(codice)) == testo);
    RC_ASSERT(CostruisciCostante(LeggiCostante(ContenutoDi(codice))) == codice);
  }));
}

TEST(Proprieta, AFlagIsReadBackAsItWas) {
  EXPECT_TRUE(rc::check([] {
    const char interruttore = *rc::gen::suchThat(QualunqueByte(), [](char c) { return c < '0' || c > '9'; });
    const CodiceFlag flag{.Numero = *Cifre(-32768, 32768), .Interruttore = std::string(1, interruttore)};
    const std::string codice = CostruisciFlag(flag);
    RC_ASSERT(Riconosci(ContenutoDi(codice)) == TipoCodice::Flag);
    RC_ASSERT(LeggiFlag(ContenutoDi(codice)) == flag);
    RC_ASSERT(CostruisciFlag(LeggiFlag(ContenutoDi(codice))) == codice);
  }));
}

// The separator ends the index. An empty width is not written, and reads back as the default one.
TEST(Proprieta, ALanguageCodeIsReadBackAsItWas) {
  EXPECT_TRUE(rc::check([] {
    CodiceLingua lingua{.IndiceTabella = *QualunqueTesto(), .Lunghezza = *QualunqueTesto()};
    std::erase(lingua.IndiceTabella, ';');
    const std::string codice = CostruisciLingua(lingua);
    if (lingua.IndiceTabella.empty()) {
      RC_ASSERT(codice.empty());
      return;
    }
    if (lingua.Lunghezza.empty()) lingua.Lunghezza = "10";
    RC_ASSERT(Riconosci(ContenutoDi(codice)) == TipoCodice::Lingua);
    RC_ASSERT(LeggiLingua(ContenutoDi(codice)) == lingua);
    RC_ASSERT(CostruisciLingua(LeggiLingua(ContenutoDi(codice))) == CostruisciLingua(lingua));
  }));
}

TEST(Proprieta, ALanguageCodeOfTheWindowIsReadBackAsItWas) {
  EXPECT_TRUE(rc::check([] {
    const CodiceLingua lingua{.IndiceTabella = *Cifre(0, 1000), .Lunghezza = *Cifre(0, 1000)};
    const std::string codice = CostruisciLingua(lingua);
    RC_ASSERT(LeggiLingua(ContenutoDi(codice)) == lingua);
    RC_ASSERT(CostruisciLingua(LeggiLingua(ContenutoDi(codice))) == codice);
  }));
}

TEST(Proprieta, APageCodeOfAnyBytesIsReadBackAsItWas) {
  EXPECT_TRUE(rc::check([] {
    const std::string numero = *QualunqueTesto();
    const std::string codice = CostruisciPagina(numero);
    if (SoloSpazi(numero)) {
      RC_ASSERT(codice.empty());
      return;
    }
    RC_ASSERT(Riconosci(ContenutoDi(codice)) == TipoCodice::Pagina);
    RC_ASSERT(LeggiPagina(ContenutoDi(codice)) == numero);
    RC_ASSERT(CostruisciPagina(LeggiPagina(ContenutoDi(codice))) == codice);
  }));
}

TEST(Proprieta, TwoLettersOfAnyCaseTellAStyleOrNone) {
  EXPECT_TRUE(rc::check([] {
    const std::string parola = *rc::gen::container<std::string>(2, QualunqueByte());
    const std::optional<Stile> stile = StileDi(parola);
    std::string maiuscola = parola;
    for (char& c : maiuscola) c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    const auto iniziali = {"NO", "GR", "CO", "IT", "SO"};
    const auto trovata = std::find(iniziali.begin(), iniziali.end(), maiuscola);
    RC_ASSERT(stile.has_value() == (trovata != iniziali.end()));
    if (stile) RC_ASSERT(static_cast<std::ptrdiff_t>(*stile) == trovata - iniziali.begin());
  }));
}

/// Every reader, on a content that may be of no kind at all. What each must hold whatever it was given.
void LeggiInTuttiIModi(const std::string& contenuto) {
  RC_ASSERT(LeggiCostante(contenuto).size() <= contenuto.size());
  const CodiceFlag flag = LeggiFlag(contenuto);
  RC_ASSERT(flag.Numero.size() <= contenuto.size());
  RC_ASSERT(flag.Interruttore.size() == 1U);
  RC_ASSERT(LeggiLingua(contenuto).IndiceTabella.find(';') == std::string::npos);
  RC_ASSERT(LeggiPagina(contenuto).size() == contenuto.size() - (contenuto.empty() ? 0U : 1U));
  RC_ASSERT(contenuto.ends_with(LeggiStile(contenuto)));
  Variabile numerica;
  numerica.Intero1 = 12;
  numerica.Intero4 = 1;
  const VariabileLetta letta = LeggiVariabile(contenuto, {&numerica, 1});
  RC_ASSERT(letta.Formato.Testo1.size() <= 1U);
  RC_ASSERT(letta.Voce.has_value() == (letta.Formato.Intero1 == 12));
}

TEST(Proprieta, NoReaderMindsArbitraryBytes) {
  EXPECT_TRUE(rc::check([] { LeggiInTuttiIModi(*QualunqueTesto()); }));
}

TEST(Proprieta, NoReaderMindsWhatLooksLikeACode) {
  EXPECT_TRUE(rc::check([] { LeggiInTuttiIModi(*ContenutoSimile()); }));
}

}  // namespace
}  // namespace parvik::prova
