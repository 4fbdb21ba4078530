#include "template/AlberoTesto.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <string>

namespace parvik {
namespace {

/// The tree says the same of a text as a look at its bytes does.
void Confronta(const AlberoTesto& albero, const std::string& byte) {
  RC_ASSERT(albero.Dimensione() == byte.size());
  RC_ASSERT(albero.Byte(0, byte.size()) == byte);
  for (const Segno segno : {Segno::FineRiga, Segno::Apertura, Segno::Chiusura}) {
    const auto fine =
        byte.begin() + *rc::gen::inRange<std::ptrdiff_t>(0, static_cast<std::ptrdiff_t>(byte.size()) + 1);
    const auto davanti = static_cast<std::size_t>(std::count(byte.begin(), fine, ByteDi(segno)));
    RC_ASSERT(albero.Conta(segno, static_cast<std::size_t>(fine - byte.begin())) == davanti);
    const std::size_t prossimo = byte.find(ByteDi(segno), static_cast<std::size_t>(fine - byte.begin()));
    RC_ASSERT(albero.Trova(segno, davanti) == std::min(prossimo, byte.size()));
  }
}

std::string UnTesto(int massimo) {
  std::string testo(static_cast<std::size_t>(*rc::gen::inRange(0, massimo)), 'x');
  const auto passo = static_cast<std::size_t>(*rc::gen::inRange(1, 400));
  for (std::size_t i = 0; i < testo.size(); i += passo)
    testo[i] = *rc::gen::element('\r', '\n', '\xAB', '\xBB', 'y');
  return testo;
}

TEST(AlberoTesto, IsTheStringThatEditsWouldMakeOfIt) {
  EXPECT_TRUE(rc::check([] {
    std::string byte = UnTesto(300'000);
    AlberoTesto albero(byte);
    for (int passo = 0; passo < 30; ++passo) {
      const auto da = *rc::gen::inRange<std::size_t>(0, byte.size() + 1);
      const auto lungo =
          *rc::gen::weightedOneOf<std::size_t>({{3, rc::gen::just<std::size_t>(0)},
                                                {3, rc::gen::inRange<std::size_t>(0, 10)},
                                                {1, rc::gen::inRange<std::size_t>(0, 200'000)}});
      const std::size_t a = std::min(byte.size(), da + lungo);
      const std::string messi = UnTesto(*rc::gen::element(2, 20, 5000, 100'000));
      albero = albero.Con(da, a, messi);
      byte.replace(da, a - da, messi);
    }
    Confronta(albero, byte);
  }));
}

TEST(AlberoTesto, GivesEachByteByItsPlace) {
  std::string byte;
  for (int i = 0; i < 10'000; ++i) byte += static_cast<char>(static_cast<unsigned char>(i));
  const AlberoTesto albero(byte);
  for (std::size_t i = 0; i < byte.size(); ++i) ASSERT_EQ(albero[i], byte[i]) << i;
}

TEST(AlberoTesto, IsGoneOverFromAnyPlaceToAnyOtherUntilTheVisitorHasEnough) {
  std::string byte;
  for (int i = 0; i < 9'000; ++i) byte += static_cast<char>('a' + i % 23);
  const AlberoTesto albero(byte);
  for (const auto& [da, a] :
       {std::pair{0, 9'000}, {0, 0}, {9'000, 9'000}, {1, 8'999}, {2'047, 2'049}, {4'500, 4'501}}) {
    const auto inizio = static_cast<std::size_t>(da);
    EXPECT_EQ(albero.Byte(inizio, static_cast<std::size_t>(a)),
              byte.substr(inizio, static_cast<std::size_t>(a - da)));
  }
  int chiamate = 0;
  albero.Visita(0, byte.size(), [&chiamate](std::string_view) { return ++chiamate < 2; });
  EXPECT_EQ(chiamate, 2);
}

TEST(AlberoTesto, ACopyStaysWhatItWas) {
  const AlberoTesto prima(std::string(100'000, 'a'));
  const AlberoTesto dopo = prima.Con(50'000, 50'001, "b");
  EXPECT_EQ(prima[50'000], 'a');
  EXPECT_EQ(dopo[50'000], 'b');
  EXPECT_FALSE(prima.Stesso(dopo));
  EXPECT_TRUE(prima.Stesso(AlberoTesto(prima)));
}

TEST(AlberoTesto, CanBeTypedFullAndTakenAwayAgainByteByByte) {
  AlberoTesto albero;
  std::string byte;
  for (int i = 0; i < 20'000; ++i) {
    const char c = i % 40 == 0 ? '\r' : 'x';
    albero = albero.Con(byte.size() / 2, byte.size() / 2, {&c, 1});
    byte.insert(byte.size() / 2, 1, c);
  }
  EXPECT_EQ(albero.Byte(0, byte.size()), byte);
  EXPECT_EQ(albero.Misura().Di(Segno::FineRiga), 500U);
  while (albero.Dimensione() > 0)
    albero = albero.Con(albero.Dimensione() / 2, albero.Dimensione() / 2 + 1, {});
  EXPECT_EQ(albero.Misura().Di(Segno::FineRiga), 0U);
  EXPECT_EQ(albero.Con(0, 0, "z").Byte(0, 1), "z");
}

TEST(AlberoTestoDeathTest, APlaceOutsideIsABug) {
  const AlberoTesto albero("abc");
  EXPECT_DEATH(static_cast<void>(albero[3]), "the place lies in the text");
  EXPECT_DEATH(static_cast<void>(albero.Con(2, 4, "")), "the place lies in the text");
  EXPECT_DEATH(static_cast<void>(albero.Conta(Segno::Apertura, 4)), "the place lies in the text");
}

}  // namespace
}  // namespace parvik
