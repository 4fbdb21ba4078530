#include "template/TestoSezione.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <future>
#include <string>
#include <vector>

#include "common/Delimitatori.h"

namespace parvik {
namespace {

/// Texts made of what matters: delimiters, line ends, a lone LF, letters.
std::string Frammento() {
  std::string testo;
  for (const int pezzo : *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 8))) {
    const char* const pezzi[] = {"\xAB", "\xBB", "\r\n", "\n", "V1", "ab", "\xABP1\xBB", " "};
    testo += pezzi[pezzo];
  }
  return testo;
}

/// A place that cuts no line end.
std::size_t UnPosto(const TestoSezione& testo) {
  const Selezione riga = testo.Riga(*rc::gen::inRange<std::size_t>(0, testo.Righe()));
  return riga.Inizio + *rc::gen::inRange<std::size_t>(0, riga.Lunghezza + 1);
}

Modifica UnaModifica(const TestoSezione& testo) {
  const std::size_t uno = UnPosto(testo);
  const std::size_t altro = *rc::gen::inRange(0, 2) == 0 ? uno : UnPosto(testo);
  const Selezione via = Cursore{.Ancora = uno, .Posto = altro}.Selezionato();
  return {.Dove = via.Inizio, .Tolti = via.Lunghezza, .Messi = Frammento()};
}

std::vector<Pezzo> LettiDaCapo(const std::string& byte) {
  std::vector<Pezzo> pezzi;
  LettorePezzi lettore(byte);
  while (const auto pezzo = lettore.Prossimo()) pezzi.push_back(*pezzo);
  return pezzi;
}

TEST(TestoSezioneProprieta, AfterAnyEditsThePiecesAreThoseOfAFreshReading) {
  EXPECT_TRUE(rc::check([] {
    TestoSezione testo(Frammento());
    for (int passo = 0; passo < 20; ++passo) {
      testo = testo.Con(UnaModifica(testo));
      const std::string byte = testo.Byte();
      RC_ASSERT(testo.PezziDi({.Inizio = 0, .Lunghezza = byte.size()}) == LettiDaCapo(byte));
    }
  }));
}

TEST(TestoSezioneProprieta, EveryByteLiesInThePieceThatIsAskedForIt) {
  EXPECT_TRUE(rc::check([] {
    const TestoSezione testo(Frammento());
    for (std::size_t i = 0; i < testo.Dimensione(); ++i) {
      const Pezzo pezzo = testo.PezzoDi(i);
      RC_ASSERT(pezzo.Inizio <= i);
      RC_ASSERT(i < pezzo.Fine);
      RC_ASSERT(testo.PezzoDi(pezzo.Inizio) == pezzo);
    }
  }));
}

TEST(TestoSezioneProprieta, PlacesMapBothWays) {
  EXPECT_TRUE(rc::check([] {
    TestoSezione testo(Frammento());
    for (int passo = 0; passo < 5; ++passo) testo = testo.Con(UnaModifica(testo));
    for (std::size_t riga = 0; riga < testo.Righe(); ++riga) {
      const Selezione tutta = testo.Riga(riga);
      for (std::size_t colonna = 0; colonna <= tutta.Lunghezza; ++colonna) {
        const RigaColonna posto{.Riga = riga, .Colonna = colonna};
        RC_ASSERT(testo.RigaColonnaDi(testo.ByteDi(posto)) == posto);
        RC_ASSERT(testo.RigaDi(testo.ByteDi(posto)) == riga);
      }
    }
    std::string unite;
    for (std::size_t riga = 0; riga < testo.Righe(); ++riga)
      unite += (riga == 0 ? "" : "\r\n") + testo.Byte(testo.Riga(riga));
    RC_ASSERT(unite == testo.Byte());
  }));
}

TEST(TestoSezioneProprieta, ASnapshotNeverChanges) {
  EXPECT_TRUE(rc::check([] {
    TestoSezione testo(Frammento());
    std::vector<std::pair<TestoSezione, std::string>> istantanee;
    for (int passo = 0; passo < 15; ++passo) {
      istantanee.emplace_back(testo, testo.Byte());
      testo = testo.Con(UnaModifica(testo));
    }
    for (const auto& [istantanea, byte] : istantanee) RC_ASSERT(istantanea.Byte() == byte);
  }));
}

TEST(TestoSezioneProprieta, TheDifferenceOfTwoTextsMakesOneOfTheOther) {
  EXPECT_TRUE(rc::check([] {
    const TestoSezione prima(Frammento());
    const TestoSezione dopo(Frammento());
    RC_ASSERT(prima.Con(Differenza(prima.Byte(), dopo.Byte())) == dopo);
  }));
}

TEST(TestoSezioneProprieta, ACodeIsOpenInALineWhenItBeginsInFrontOfItAndEndsInItOrLater) {
  EXPECT_TRUE(rc::check([] {
    const TestoSezione testo(Frammento());
    const std::vector<Pezzo> pezzi = LettiDaCapo(testo.Byte());
    for (std::size_t riga = 0; riga < testo.Righe(); ++riga) {
      std::optional<Pezzo> atteso;
      for (const Pezzo& pezzo : pezzi) {
        const std::size_t inizio = testo.Riga(riga).Inizio;
        if (pezzo.Genere == GenerePezzo::Codice && pezzo.Inizio < inizio && pezzo.Fine > inizio)
          atteso = pezzo;
      }
      RC_ASSERT(testo.CodiceAperto(riga) == atteso);
    }
  }));
}

TEST(TestoSezione, MayBeReadOnAnotherThreadWhileTheOriginalIsEdited) {
  std::string byte;
  for (int i = 0; i < 20'000; ++i) byte += "riga \xABV1;5\xBB\r\n";
  TestoSezione testo(byte);
  const TestoSezione istantanea = testo;
  std::future<bool> letta = std::async(std::launch::async, [istantanea, &byte] {
    for (int volta = 0; volta < 20; ++volta)
      if (istantanea.Byte() != byte) return false;
    return true;
  });
  for (int i = 0; i < 2'000; ++i) testo = testo.Con({.Dove = 0, .Tolti = 1, .Messi = "x"});
  EXPECT_TRUE(letta.get());
  EXPECT_EQ(testo[0], 'x');
}

TEST(TestoSezione, AnEmptyOneHasOneEmptyLine) {
  const TestoSezione testo;
  EXPECT_EQ(testo.Righe(), 1U);
  EXPECT_EQ(testo.Riga(0), Selezione{});
  EXPECT_EQ(testo.RigaColonnaDi(0), RigaColonna{});
  EXPECT_TRUE(testo.PezziDi({}).empty());
}

TEST(TestoSezione, ACrThatStandsAloneBecomesALineEnd) {
  EXPECT_EQ(TestoSezione("a\rb\r\nc\r").Byte(), "a\r\nb\r\nc\r\n");
  EXPECT_EQ(ConFiniRiga("\r\r\n\n"), "\r\n\r\n\n");
}

TEST(TestoSezione, ALongLineOfCodesKnowsThePieceAtItsEndAtOnce) {
  std::string byte;
  for (int i = 0; i < 200'000; ++i) byte += "\xABV1;5\xBB-";
  const TestoSezione testo(byte);
  EXPECT_EQ(testo.PezzoDi(byte.size() - 1).Genere, GenerePezzo::Testo);
  EXPECT_EQ(testo.PezzoDi(byte.size() - 2),
            (Pezzo{.Genere = GenerePezzo::Codice, .Inizio = byte.size() - 7, .Fine = byte.size() - 1}));
  EXPECT_EQ(testo.RigaColonnaDi(byte.size()).Colonna, byte.size());
}

TEST(TestoSezioneDeathTest, ALineEndIsNotCut) {
  const TestoSezione testo("a\r\nb");
  EXPECT_DEATH(static_cast<void>(testo.Con({.Dove = 2, .Tolti = 0, .Messi = "x"})), "line ends stay whole");
  EXPECT_DEATH(static_cast<void>(testo.Con({.Dove = 0, .Tolti = 2, .Messi = ""})), "line ends stay whole");
  EXPECT_DEATH(static_cast<void>(testo.Con({.Dove = 0, .Tolti = 0, .Messi = "\r"})), "whole line ends");
}

}  // namespace
}  // namespace parvik
