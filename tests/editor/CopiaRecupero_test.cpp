// The bytes of a copy that is kept of a template (docs/recupero.md).
#include "editor/CopiaRecupero.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <memory>

#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

std::string Byte() {
  return *rc::gen::container<std::string>(rc::gen::arbitrary<char>());
}

CopiaRecupero Qualsiasi() {
  CopiaRecupero copia{.Tipo = *rc::gen::arbitrary<int>(),
                      .Quando = *rc::gen::arbitrary<std::int64_t>(),
                      .NomeFile = Byte(),
                      .Corpo = {.RigheCorpo = *rc::gen::arbitrary<std::int16_t>(),
                                .LineeCorpo = *rc::gen::arbitrary<std::int16_t>(),
                                .FlagSbarra = Byte(),
                                .FlagAccorpa = Byte()},
                      .Testi = {Byte(), Byte(), Byte()}};
  if (*rc::gen::arbitrary<bool>())
    copia.Origine = {.File = Byte(),
                     .Dimensione = *rc::gen::arbitrary<std::uint64_t>(),
                     .Impronta = *rc::gen::arbitrary<std::uint64_t>()};
  return copia;
}

TEST(CopiaRecupero, IsReadBackAsItWasWritten) {
  EXPECT_TRUE(rc::check("whatever is in it", [] {
    const CopiaRecupero copia = Qualsiasi();
    RC_ASSERT(LeggiCopia(ScriviCopia(copia)) == copia);
  }));
}

TEST(CopiaRecupero, IsNoneWhereItWasCutOrGoesOn) {
  EXPECT_TRUE(rc::check("every beginning, and more", [] {
    const std::string byte = ScriviCopia(Qualsiasi());
    for (std::size_t i = 0; i < byte.size(); ++i) RC_ASSERT(!LeggiCopia(std::string_view(byte).substr(0, i)));
    RC_ASSERT(
        !LeggiCopia(byte + *rc::gen::nonEmpty(rc::gen::container<std::string>(rc::gen::arbitrary<char>()))));
  }));
}

TEST(CopiaRecupero, IsNoneWithAnotherByteInIt) {
  EXPECT_TRUE(rc::check("each byte", [] {
    const std::string byte = ScriviCopia(Qualsiasi());
    const auto quale = *rc::gen::inRange<std::size_t>(0, byte.size());
    std::string altra = byte;
    altra[quale] = static_cast<char>(altra[quale] ^ *rc::gen::inRange(1, 256));
    RC_ASSERT(!LeggiCopia(altra));
  }));
}

TEST(CopiaRecupero, ForeignBytesAreNone) {
  using namespace std::string_literals;
  for (const std::string& byte :
       {""s, "\n"s, "ordavia-recupero 1\n"s, "ordavia-recupero 2\nquando 1\n0\n"s, std::string(1000, '\0'),
        "ordavia-recupero 1\nquando 18446744073709551615\n0\n"s,
        "ordavia-recupero 1\nquando 99999999999999999999999\n0\n"s, "ordavia-recupero 1\nquando -1\n0\n"s,
        "ordavia-recupero 1\nquando 1\nx\n"s, "ordavia-recupero 1\nquando"s, "ordavia-recupero 1\nquando "s})
    EXPECT_FALSE(LeggiCopia(byte)) << byte;
}

TEST(CopiaRecupero, NumbersBeyondTheirRangeAreNone) {
  CopiaRecupero copia;
  copia.NomeFile = "righe 1\n7";  // no field, but bytes of one
  EXPECT_EQ(LeggiCopia(ScriviCopia(copia)), copia);
  std::string byte = ScriviCopia(copia);
  byte.replace(byte.find("righe 1\n0"), 9, "righe 5\n99999");
  EXPECT_FALSE(LeggiCopia(byte));
}

TEST(CopiaRecupero, KnowsWhetherItsFileIsStillWhatItCameFrom) {
  const CartellaTemporanea cartella;
  const std::filesystem::path file = cartella / "A.IMG";
  Crea(file, "uno");
  const ImprontaFile origine = ImprontaDi({.File = file, .Byte = std::make_shared<const std::string>("uno")});
  const auto ancora = AncoraUguale(origine);
  ASSERT_TRUE(ancora);
  EXPECT_EQ(ancora->File, file);
  EXPECT_EQ(*ancora->Byte, "uno");
  for (const char* altro : {"due", "", "uno "}) {
    Crea(file, altro);
    EXPECT_FALSE(AncoraUguale(origine)) << altro;
  }
  std::filesystem::remove(file);
  EXPECT_FALSE(AncoraUguale(origine));
}

}  // namespace
}  // namespace parvik::prova
