#include "template/Spostamenti.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <string>
#include <vector>

namespace parvik::prova {
namespace {

Selezione Parte(std::size_t inizio, std::size_t lunghezza) {
  return {.Inizio = inizio, .Lunghezza = lunghezza};
}

TEST(Spostamenti, BehindAnInsertionPlacesMoveOnAndInFrontTheyStay) {
  Spostamenti spostamenti(10);
  spostamenti.Modificato({.Dove = 4, .Tolti = 0, .Messi = "xyz"});
  EXPECT_EQ(spostamenti.Dopo(Parte(3, 1)), Parte(3, 1));
  EXPECT_EQ(spostamenti.Dopo(Parte(4, 6)), Parte(7, 6));
  EXPECT_EQ(spostamenti.Prima(Parte(7, 2)), Parte(4, 2));
  EXPECT_EQ(spostamenti.Prima(Parte(4, 1)), std::nullopt) << "what was typed was not there";
}

TEST(Spostamenti, ACodeCountsOnlyWhenAllOfItIsUnchanged) {
  Spostamenti spostamenti(10);
  spostamenti.Modificato({.Dove = 4, .Tolti = 0, .Messi = "x"});
  EXPECT_EQ(spostamenti.Dopo(Parte(2, 5)), std::nullopt);
  spostamenti.Modificato({.Dove = 8, .Tolti = 1, .Messi = ""});
  EXPECT_EQ(spostamenti.Dopo(Parte(7, 1)), std::nullopt) << "it was taken away";
  EXPECT_EQ(spostamenti.Dopo(Parte(6, 3)), std::nullopt);
  EXPECT_EQ(spostamenti.Dopo(Parte(8, 2)), Parte(8, 2));
}

TEST(Spostamenti, WhatWasTypedAndTakenAwayAgainHasPartedNothing) {
  Spostamenti spostamenti(10);
  spostamenti.Modificato({.Dove = 4, .Tolti = 0, .Messi = "xyz"});
  spostamenti.Modificato({.Dove = 4, .Tolti = 3, .Messi = ""});
  EXPECT_EQ(spostamenti.Dopo(Parte(0, 10)), Parte(0, 10));
}

TEST(Spostamenti, AWholeNewTextMakesNothingCertain) {
  Spostamenti spostamenti(10);
  spostamenti.Sostituito();
  for (std::size_t byte = 0; byte < 10; ++byte) {
    EXPECT_EQ(spostamenti.Dopo(Parte(byte, 1)), std::nullopt);
    EXPECT_EQ(spostamenti.Prima(Parte(byte, 1)), std::nullopt);
  }
}

TEST(Spostamenti, NothingLiesBehindTheEnd) {
  const Spostamenti spostamenti(10);
  EXPECT_EQ(spostamenti.Dopo(Parte(9, 1)), Parte(9, 1));
  EXPECT_EQ(spostamenti.Dopo(Parte(9, 2)), std::nullopt);
  EXPECT_EQ(Spostamenti(0).Dopo(Parte(0, 1)), std::nullopt);
}

TEST(Spostamenti, ATextEditedEverywhereIsGivenUp) {
  constexpr std::size_t Tanti = 20'000;
  Spostamenti spostamenti(Tanti);
  for (std::size_t i = 0; i < Tanti / 2; ++i)
    spostamenti.Modificato({.Dove = 2 * i, .Tolti = 1, .Messi = "x"});
  EXPECT_EQ(spostamenti.Dopo(Parte(Tanti - 1, 1)), std::nullopt);
}

/// Each byte of the old text has a number, and each that comes is a new one: so what is certain can be seen.
struct Numerati {
  std::vector<std::size_t> Byte;
  Spostamenti Sposta;
  std::size_t Prossimo;

  explicit Numerati(std::size_t quanti) : Sposta(quanti), Prossimo(quanti) {
    for (std::size_t i = 0; i < quanti; ++i) Byte.push_back(i);
  }
  void Cambia() {
    const auto dove = *rc::gen::inRange<std::size_t>(0, Byte.size() + 1);
    const auto tolti = *rc::gen::inRange<std::size_t>(0, std::min<std::size_t>(Byte.size() - dove, 6) + 1);
    const auto messi = *rc::gen::inRange<std::size_t>(0, 5);
    Sposta.Modificato({.Dove = dove, .Tolti = tolti, .Messi = std::string(messi, 'x')});
    const auto qui = Byte.begin() + static_cast<std::ptrdiff_t>(dove);
    const auto resto = Byte.erase(qui, qui + static_cast<std::ptrdiff_t>(tolti));
    std::vector<std::size_t> nuovi;
    for (std::size_t i = 0; i < messi; ++i) nuovi.push_back(Prossimo++);
    Byte.insert(resto, nuovi.begin(), nuovi.end());
  }
};

TEST(SpostamentiProprieta, EveryByteThatIsLeftIsFoundAndNoOther) {
  EXPECT_TRUE(rc::check([] {
    const auto quanti = *rc::gen::inRange<std::size_t>(0, 40);
    Numerati numerati(quanti);
    const int modifiche = *rc::gen::inRange(0, 12);
    for (int i = 0; i < modifiche; ++i) numerati.Cambia();
    for (std::size_t vecchio = 0; vecchio < quanti; ++vecchio) {
      const auto qui = std::ranges::find(numerati.Byte, vecchio);
      const auto dopo = numerati.Sposta.Dopo(Parte(vecchio, 1));
      RC_ASSERT(dopo.has_value() == (qui != numerati.Byte.end()));
      if (dopo) RC_ASSERT(numerati.Byte[dopo->Inizio] == vecchio);
    }
    for (std::size_t nuovo = 0; nuovo < numerati.Byte.size(); ++nuovo) {
      const auto prima = numerati.Sposta.Prima(Parte(nuovo, 1));
      RC_ASSERT(prima.has_value() == (numerati.Byte[nuovo] < quanti));
      if (prima) RC_ASSERT(numerati.Sposta.Dopo(*prima) == Parte(nuovo, 1));
    }
  }));
}

TEST(SpostamentiProprieta, APartIsCertainOnlyWhileItsBytesStandTogether) {
  EXPECT_TRUE(rc::check([] {
    const auto quanti = *rc::gen::inRange<std::size_t>(1, 30);
    Numerati numerati(quanti);
    const int modifiche = *rc::gen::inRange(0, 5);
    for (int i = 0; i < modifiche; ++i) numerati.Cambia();
    const auto inizio = *rc::gen::inRange<std::size_t>(0, quanti);
    const auto lunghezza = *rc::gen::inRange<std::size_t>(1, quanti - inizio + 1);
    const auto dopo = numerati.Sposta.Dopo(Parte(inizio, lunghezza));
    if (!dopo) return;
    RC_ASSERT(dopo->Lunghezza == lunghezza);
    for (std::size_t i = 0; i < lunghezza; ++i) RC_ASSERT(numerati.Byte[dopo->Inizio + i] == inizio + i);
    RC_ASSERT(numerati.Sposta.Prima(*dopo) == Parte(inizio, lunghezza));
  }));
}

}  // namespace
}  // namespace parvik::prova
