#include "output/Ricollocazione.h"

#include <gtest/gtest.h>

#include "output/AnteprimaDiProva.h"
#include "template/Spostamenti.h"

namespace parvik::prova {
namespace {

/// Two runs, with edits of the Testata in between.
class Cambio {
 public:
  Cambio(const TestiSezioni& testi, const std::vector<Modifica>& modifiche, std::int16_t volte = 1,
         std::int16_t poi = 1)
      : prima_(Mappata(testi, volte)), spostamenti_(testi[0].size()) {
    TestiSezioni dopo = testi;
    for (const Modifica& modifica : modifiche) {
      dopo[0].replace(modifica.Dove, modifica.Tolti, modifica.Messi);
      spostamenti_.Modificato(modifica);
    }
    dopo_ = Mappata(dopo, poi);
  }

  std::size_t operator()(std::size_t byte) const {
    const Ricollocazione dove(prima_.Mappa, dopo_.Mappa, [this](Sezione sezione, const Selezione& parte) {
      return sezione == Sezione::Testata ? spostamenti_.Dopo(parte) : std::optional(parte);
    });
    return dove(*prima_.Testo, *dopo_.Testo, byte);
  }
  std::size_t Prima(std::string_view parola) const { return prima_.Testo->Testo().find(parola); }
  std::size_t Dopo(std::string_view parola) const { return dopo_.Testo->Testo().find(parola); }
  std::size_t FinePrima() const { return prima_.Testo->Testo().size(); }
  std::size_t FineDopo() const { return dopo_.Testo->Testo().size(); }

 private:
  AnteprimaMappata prima_;
  Spostamenti spostamenti_;
  AnteprimaMappata dopo_;
};

TEST(Ricollocazione, APlaceStaysWithItsText) {
  const Cambio cambio({"uno\r\ndue\r\n", "corpo\r\n", "piede\r\n"},
                      {{.Dove = 0, .Tolti = 0, .Messi = "zero\r\n"}});
  EXPECT_EQ(cambio(cambio.Prima("due") + 1), cambio.Dopo("due") + 1);
  EXPECT_EQ(cambio(cambio.Prima("piede")), cambio.Dopo("piede"));
}

TEST(Ricollocazione, APlaceInAFieldKeepsItsDistanceFromTheFieldsStart) {
  const Cambio cambio({"a\xABV1;5\xBB"
                       "b\r\n",
                       "", ""},
                      {{.Dove = 0, .Tolti = 0, .Messi = "xxx"}});
  EXPECT_EQ(cambio(3), 6U);
  EXPECT_EQ(cambio(6), 9U) << "behind the field";
}

TEST(Ricollocazione, APlaceStaysInItsRepetition) {
  const Cambio cambio({"t\r\n", "corpo\r\n", "p\r\n"}, {{.Dove = 0, .Tolti = 0, .Messi = "zero\r\n"}}, 100,
                      100);
  EXPECT_EQ(cambio(3 + 7 * 42 + 2), 9U + 7 * 42 + 2);
}

TEST(Ricollocazione, APlaceInARepetitionThatIsGoneIsInTheLastOne) {
  const Cambio cambio({"t\r\n", "corpo\r\n", "p\r\n"}, {}, 100, 10);
  EXPECT_EQ(cambio(3 + 7 * 42 + 2), 3U + 7 * 9 + 2);
}

TEST(Ricollocazione, APlaceWhoseTextIsGoneKeepsItsColumnInWhatHasBecomeOfItsLine) {
  const Cambio cambio({"uno\r\ndue tre\r\nfine\r\n", "", ""},
                      {{.Dove = 0, .Tolti = 0, .Messi = "zero\r\n"}, {.Dove = 11, .Tolti = 4, .Messi = ""}});
  ASSERT_EQ(cambio.Dopo("tre"), 11U);
  EXPECT_EQ(cambio(cambio.Prima("due") + 2), 13U);
}

TEST(Ricollocazione, APlaceWhoseLineIsGoneIsInTheOneBehindTheNearestThatIsLeft) {
  const Cambio cambio({"uno\r\ndue\r\ntre\r\nfine\r\n", "", ""}, {{.Dove = 5, .Tolti = 5, .Messi = ""}});
  EXPECT_EQ(cambio(cambio.Prima("due") + 1), cambio.Dopo("tre") + 1);
}

TEST(Ricollocazione, TheEndMarkerStaysTheEndMarker) {
  const Cambio cambio({"uno\r\n", "", ""}, {{.Dove = 0, .Tolti = 0, .Messi = "zero\r\n"}});
  EXPECT_EQ(cambio(cambio.FinePrima()), cambio.FineDopo());
  EXPECT_EQ(cambio(cambio.Prima("Fine")), cambio.Dopo("Fine"));
}

TEST(Ricollocazione, TheLastLineThatIsLeftTakesWhatIsBehindIt) {
  const Cambio cambio({"uno\r\ndue\r\ntre\r\n", "", ""}, {{.Dove = 3, .Tolti = 12, .Messi = "\r\n"}});
  EXPECT_LE(cambio(cambio.Prima("tre") + 2), cambio.FineDopo());
}

TEST(Ricollocazione, WithoutAMapOfTheRunBeforeLinesAreCounted) {
  const AnteprimaMappata dopo = Mappata({"a\r\nbb\r\nc\r\n", "", ""});
  const TestoAnteprima prima({.Testo = "xxxx\r\nyyyy\r\n", .Tratti = {}});
  const Ricollocazione dove(nullptr, dopo.Mappa, [](Sezione, const Selezione&) { return std::nullopt; });
  EXPECT_EQ(dove(prima, *dopo.Testo, 6 + 1), 3U + 1);
  EXPECT_EQ(dove(prima, *dopo.Testo, 6 + 4), 3U + 2) << "the line is shorter";
}

TEST(Ricollocazione, OutOfAnEmptyPreviewTheStartIsTheStart) {
  const AnteprimaMappata dopo = Mappata({"a\r\n", "", ""});
  const Ricollocazione dove(Mappata({"", "", ""}).Mappa, dopo.Mappa,
                            [](Sezione, const Selezione&) { return std::nullopt; });
  EXPECT_EQ(dove(TestoAnteprima(), *dopo.Testo, 0), 0U);
}

}  // namespace
}  // namespace parvik::prova
