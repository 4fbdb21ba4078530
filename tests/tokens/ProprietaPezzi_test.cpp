// Properties of the pieces of any text, held against a reading byte by byte.
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <vector>

#include "tokens/Codice.h"
#include "tokens/Generatori.h"
#include "tokens/Pezzi.h"

namespace parvik::prova {
namespace {

/// Texts in which delimiters are as frequent as all else.
rc::Gen<std::string> TestoConDelimitatori() {
  const auto byte = rc::gen::oneOf(rc::gen::elementOf(std::string("\xAB\xBB\r\nV0;")), QualunqueByte());
  // Stretches longer than what the search looks at one by one.
  const auto tratto =
      rc::gen::oneOf(rc::gen::container<std::string>(byte), rc::gen::just(std::string(70, 'x')),
                     rc::gen::just(std::string(1, '\xAB')), rc::gen::just(std::string(1, '\xBB')));
  return rc::gen::map(rc::gen::container<std::vector<std::string>>(tratto),
                      [](const std::vector<std::string>& tratti) {
                        std::string testo;
                        for (const std::string& t : tratti) testo += t;
                        return testo;
                      });
}

std::vector<Pezzo> PezziDi(std::string_view testo) {
  std::vector<Pezzo> pezzi;
  LettorePezzi lettore(testo);
  while (const auto pezzo = lettore.Prossimo()) pezzi.push_back(*pezzo);
  return pezzi;
}

/// The rule, a byte at a time: what each byte belongs to.
std::vector<GenerePezzo> GeneriDeiByte(std::string_view testo) {
  std::vector<GenerePezzo> generi;
  while (generi.size() < testo.size()) {
    const char c = testo[generi.size()];
    const std::size_t chiusura = testo.find('\xBB', generi.size());
    if (c == '\xAB' && chiusura != std::string_view::npos) {
      generi.resize(chiusura + 1, GenerePezzo::Codice);
    } else {
      generi.push_back(c == '\xAB' || c == '\xBB' ? GenerePezzo::Delimitatore : GenerePezzo::Testo);
    }
  }
  return generi;
}

TEST(ProprietaPezzi, PiecesCoverTheTextWithoutGapOrOverlap) {
  EXPECT_TRUE(rc::check([] {
    const std::string testo = *TestoConDelimitatori();
    std::size_t fine = 0;
    for (const Pezzo& pezzo : PezziDi(testo)) {
      RC_ASSERT(pezzo.Inizio == fine);
      RC_ASSERT(pezzo.Fine > pezzo.Inizio);
      fine = pezzo.Fine;
    }
    RC_ASSERT(fine == testo.size());
  }));
}

TEST(ProprietaPezzi, EachByteBelongsToWhatTheRuleSays) {
  EXPECT_TRUE(rc::check([] {
    const std::string testo = *TestoConDelimitatori();
    const std::vector<GenerePezzo> generi = GeneriDeiByte(testo);
    for (const Pezzo& pezzo : PezziDi(testo)) {
      for (std::size_t i = pezzo.Inizio; i < pezzo.Fine; ++i) RC_ASSERT(generi[i] == pezzo.Genere);
    }
  }));
}

TEST(ProprietaPezzi, NoTwoPiecesOfTextStandSideBySideAndACodeHasOneClosingDelimiter) {
  EXPECT_TRUE(rc::check([] {
    const std::string testo = *TestoConDelimitatori();
    GenerePezzo prima = GenerePezzo::Delimitatore;
    for (const Pezzo& pezzo : PezziDi(testo)) {
      RC_ASSERT(pezzo.Genere != GenerePezzo::Testo || prima != GenerePezzo::Testo);
      prima = pezzo.Genere;
      const std::string_view byte = pezzo.In(testo);
      if (pezzo.Genere == GenerePezzo::Codice) {
        RC_ASSERT(byte.front() == '\xAB');
        RC_ASSERT(byte.find('\xBB') == byte.size() - 1);
      }
      if (pezzo.Genere == GenerePezzo::Delimitatore) RC_ASSERT(byte.size() == 1U);
    }
  }));
}

TEST(ProprietaPezzi, ACodeIsFoundWhereItWasPutIntoAText) {
  EXPECT_TRUE(rc::check([] {
    const auto senzaDelimitatori = [](std::string testo) {
      std::erase_if(testo, [](char c) { return c == '\xAB' || c == '\xBB'; });
      return testo;
    };
    const std::string prima = senzaDelimitatori(*QualunqueTesto());
    const std::string contenuto = senzaDelimitatori(*QualunqueTesto());
    const std::string testo = prima + ConDelimitatori(contenuto) + *QualunqueTesto();
    const Pezzo trovato = PezziDi(testo).at(prima.empty() ? 0 : 1);
    RC_ASSERT(trovato.Genere == GenerePezzo::Codice);
    RC_ASSERT(trovato.Inizio == prima.size());
    RC_ASSERT(ContenutoDi(trovato.In(testo)) == contenuto);
  }));
}

// They part only behind the last code, where the run swallows what an unclosed delimiter begins.
TEST(ProprietaPezzi, TheRunReadsTheSameCodesAndAllTextInFrontOfAnUnclosedDelimiter) {
  EXPECT_TRUE(rc::check([] {
    const std::string testo = *TestoConDelimitatori();
    std::string dellaCorsa;
    std::size_t fine = testo.size();
    for (LettoreCorsa lettore(testo); lettore.Prossimo();) {
      dellaCorsa += testo.substr(lettore.InizioTesto(), lettore.FineTesto() - lettore.InizioTesto());
      if (lettore.ConCodice()) dellaCorsa += ConDelimitatori(lettore.Contenuto());
      if (!lettore.ConCodice()) fine = lettore.FineTesto();
    }
    std::string deiPezzi;
    std::size_t apertura = testo.size();
    for (const Pezzo& pezzo : PezziDi(testo)) {
      const bool apre = pezzo.Genere == GenerePezzo::Delimitatore && testo[pezzo.Inizio] == '\xAB';
      if (apre && apertura == testo.size()) apertura = pezzo.Inizio;
      if (pezzo.Inizio < apertura) deiPezzi += pezzo.In(testo);
    }
    RC_ASSERT(dellaCorsa == deiPezzi);
    RC_ASSERT(fine == apertura);
  }));
}

}  // namespace
}  // namespace parvik::prova
