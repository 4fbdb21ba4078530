#include "output/SelezioneAnteprima.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <string>
#include <string_view>

#include "supporto/ConNome.h"

namespace parvik {
namespace {

using Coordinate = SelezioneAnteprima::Coordinate;

Anteprima Di(std::string testo) {
  return {.Testo = std::move(testo), .Tratti = {}};
}

/// From a text with "|" for the caret and "#" for the anchor, where it is elsewhere.
SelezioneAnteprima Da(std::string_view disegno) {
  std::string testo;
  std::size_t cursore = 0;
  std::size_t ancora = std::string_view::npos;
  for (const char c : disegno) {
    if (c == '|') {
      cursore = testo.size();
    } else if (c == '#') {
      ancora = testo.size();
    } else {
      testo += c;
    }
  }
  SelezioneAnteprima scelta(Di(testo));
  scelta.Seleziona(ancora == std::string_view::npos ? cursore : ancora, cursore);
  return scelta;
}

/// The way back.
std::string Disegno(const SelezioneAnteprima& scelta) {
  const auto [ancora, posto] = scelta.Estremi();
  std::string disegno(scelta.Testo().Testo());
  disegno.insert(posto, "|");
  if (ancora != posto) disegno.insert(ancora > posto ? ancora + 1 : ancora, "#");
  return disegno;
}

/// Characters of lines with an odd number are twice as wide as others.
MisureRighe MisureDi(const TestoAnteprima& testo, std::size_t perPagina) {
  const auto larghezza = [](std::size_t riga) { return riga % 2 == 0 ? 1.0 : 2.0; };
  return {.PerPagina = perPagina,
          .XDi = [larghezza](std::size_t riga,
                             std::size_t colonna) { return static_cast<double>(colonna) * larghezza(riga); },
          .ColonnaVicina =
              [larghezza, &testo](std::size_t riga, double x) {
                return std::min(static_cast<std::size_t>(std::lround(x / larghezza(riga))),
                                testo.Riga(riga).size());
              }};
}

void Muovi(SelezioneAnteprima& scelta, std::initializer_list<Movimento> movimenti,
           ModoMovimento modo = ModoMovimento::Muove) {
  for (const Movimento dove : movimenti) scelta.Muovi(dove, modo, MisureDi(scelta.Testo(), 2));
}

TEST(SelezioneAnteprima, BeginsWithTheCaretAtTheStart) {
  EXPECT_EQ(Disegno(SelezioneAnteprima(Di("ab\r\n"))), "|ab\r\n");
  EXPECT_EQ(Disegno(SelezioneAnteprima()), "|");
}

TEST(SelezioneAnteprima, IsTheSameTextInEitherDirection) {
  for (const char* disegno : {"a#b\r\nc|d", "a|b\r\nc#d"}) {
    const SelezioneAnteprima scelta = Da(disegno);
    EXPECT_EQ(scelta.Selezionato(), (Selezione{1, 4})) << disegno;
    EXPECT_EQ(scelta.TestoSelezionato(), "b\r\nc") << disegno;
    EXPECT_EQ(scelta.RigaColonna(), (Coordinate{1, 2})) << disegno;
  }
}

TEST(SelezioneAnteprima, ACaretAloneIsAPlaceWithoutText) {
  const SelezioneAnteprima scelta = Da("ab\r\nc|d");
  EXPECT_EQ(scelta.Selezionato(), (Selezione{5, 0}));
  EXPECT_EQ(scelta.TestoSelezionato(), "");
  EXPECT_EQ(scelta.RigaColonna(), (Coordinate{2, 2}));
}

TEST(SelezioneAnteprima, AnEmptyTextIsAtItsFirstLineAndColumn) {
  EXPECT_EQ(SelezioneAnteprima().RigaColonna(), (Coordinate{1, 1}));
  EXPECT_EQ(Da("ab\r\n|").RigaColonna(), (Coordinate{2, 1})) << "so is the line behind the last line end";
}

TEST(SelezioneAnteprima, BothEndsStandInFrontOfALineEndAndNotPastTheText) {
  SelezioneAnteprima scelta(Di("ab\r\ncd"));
  scelta.Seleziona(3, 100);
  EXPECT_EQ(Disegno(scelta), "ab#\r\ncd|");
  scelta.Seleziona(100, 3);
  EXPECT_EQ(Disegno(scelta), "ab|\r\ncd#");
}

TEST(SelezioneAnteprima, AllEndsAtTheTextsEnd) {
  SelezioneAnteprima scelta = Da("a|b\r\n");
  scelta.SelezionaTutto();
  EXPECT_EQ(Disegno(scelta), "#ab\r\n|");
  SelezioneAnteprima vuota;
  vuota.SelezionaTutto();
  EXPECT_EQ(Disegno(vuota), "|");
}

// From piece to piece

struct Pezzi {
  const char* Nome;
  Selezione Dal;
  Selezione Al;
  const char* Diviene;
};

using prova::PrintTo;

class FraPezzi : public testing::TestWithParam<Pezzi> {};

TEST_P(FraPezzi, SelectsBothWithTheCaretOnTheSideOfTheSecond) {
  SelezioneAnteprima scelta(Di("uno due\r\ntre"));
  scelta.SelezionaFra(GetParam().Dal, GetParam().Al);
  EXPECT_EQ(Disegno(scelta), GetParam().Diviene);
}

INSTANTIATE_TEST_SUITE_P(SelezioneAnteprima, FraPezzi,
                         testing::Values(Pezzi{"one_place", {5, 0}, {5, 0}, "uno d|ue\r\ntre"},
                                         Pezzi{"a_place_behind", {1, 0}, {5, 0}, "u#no d|ue\r\ntre"},
                                         Pezzi{"a_place_in_front", {5, 0}, {1, 0}, "u|no d#ue\r\ntre"},
                                         Pezzi{"one_word", {4, 3}, {4, 3}, "uno #due|\r\ntre"},
                                         Pezzi{"a_word_behind", {0, 3}, {4, 3}, "#uno due|\r\ntre"},
                                         Pezzi{"a_word_in_front", {4, 3}, {0, 3}, "|uno due#\r\ntre"},
                                         Pezzi{"a_place_in_the_word", {4, 3}, {5, 0}, "uno #due|\r\ntre"},
                                         Pezzi{"one_line", {0, 9}, {0, 9}, "#uno due\r\n|tre"},
                                         Pezzi{"a_line_behind", {0, 9}, {9, 3}, "#uno due\r\ntre|"},
                                         Pezzi{"a_line_in_front", {9, 3}, {0, 9}, "|uno due\r\ntre#"}),
                         [](const auto& caso) { return std::string(caso.param.Nome); });

// A text that grows

TEST(SelezioneAnteprima, StaysInATextThatGrew) {
  for (const char* disegno : {"a#b\r\nc|d\r\n", "a|b\r\nc#d\r\n", "ab\r\ncd\r\n|"}) {
    SelezioneAnteprima scelta = Da(disegno);
    scelta.Completa(Di("ab\r\ncd\r\nef"));
    EXPECT_EQ(Disegno(scelta), std::string(disegno) + "ef");
  }
}

TEST(SelezioneAnteprima, MovesOutOfALineEndThatTheGrownTextHasThere) {
  SelezioneAnteprima scelta = Da("#ab\r|");
  scelta.Completa(Di("ab\r\ncd"));
  EXPECT_EQ(Disegno(scelta), "#ab|\r\ncd");
}

TEST(SelezioneAnteprima, KeepsToItsColumnWhileTheTextGrows) {
  SelezioneAnteprima scelta = Da("abcdef|\r\n");
  Muovi(scelta, {Movimento::RigaSotto});
  scelta.Completa(Di("abcdef\r\n\r\nabcdefgh"));
  Muovi(scelta, {Movimento::RigaSotto});
  EXPECT_EQ(Disegno(scelta), "abcdef\r\n\r\nabcdef|gh");
}

TEST(SelezioneAnteprima, ACopyKeepsTheTextThatItWasMadeOf) {
  SelezioneAnteprima scelta = Da("#ab|\r\n");
  const SelezioneAnteprima copia = scelta;
  scelta = SelezioneAnteprima(Di("cd"));
  EXPECT_EQ(copia.TestoSelezionato(), "ab");
}

// Along the text

struct Mossa {
  const char* Nome;
  const char* Prima;
  Movimento Dove;
  const char* Muove;
  const char* Seleziona;
};

class MossaDelCursore : public testing::TestWithParam<Mossa> {};

TEST_P(MossaDelCursore, GivesTheSelectionUpOrTakesTheCaretAlong) {
  SelezioneAnteprima muove = Da(GetParam().Prima);
  Muovi(muove, {GetParam().Dove});
  EXPECT_EQ(Disegno(muove), GetParam().Muove);
  SelezioneAnteprima seleziona = Da(GetParam().Prima);
  Muovi(seleziona, {GetParam().Dove}, ModoMovimento::Seleziona);
  EXPECT_EQ(Disegno(seleziona), GetParam().Seleziona);
}

INSTANTIATE_TEST_SUITE_P(
    SelezioneAnteprima, MossaDelCursore,
    testing::Values(
        Mossa{"on", "a|b", Movimento::CarattereDopo, "ab|", "a#b|"},
        Mossa{"on_over_a_line_end", "a|\r\nb", Movimento::CarattereDopo, "a\r\n|b", "a#\r\n|b"},
        Mossa{"on_at_the_end", "ab|", Movimento::CarattereDopo, "ab|", "ab|"},
        Mossa{"on_from_a_selection", "#ab|cd", Movimento::CarattereDopo, "ab|cd", "#abc|d"},
        Mossa{"on_from_a_selection_backwards", "|ab#cd", Movimento::CarattereDopo, "ab|cd", "a|b#cd"},
        Mossa{"back", "a|b", Movimento::CarattereDavanti, "|ab", "|a#b"},
        Mossa{"back_over_a_line_end", "a\r\n|b", Movimento::CarattereDavanti, "a|\r\nb", "a|\r\n#b"},
        Mossa{"back_at_the_start", "|ab", Movimento::CarattereDavanti, "|ab", "|ab"},
        Mossa{"back_from_a_selection", "ab#cd|", Movimento::CarattereDavanti, "ab|cd", "ab#c|d"},
        Mossa{"back_from_a_selection_backwards", "ab|cd#", Movimento::CarattereDavanti, "ab|cd", "a|bcd#"},
        Mossa{"a_word_on", "u|no due", Movimento::ParolaDopo, "uno |due", "u#no |due"},
        Mossa{"a_word_on_from_a_selection", "|un#o due", Movimento::ParolaDopo, "uno |due", "un#o |due"},
        Mossa{"a_word_back", "uno du|e", Movimento::ParolaDavanti, "uno |due", "uno |du#e"},
        Mossa{"a_word_back_from_a_selection", "uno d#u|e", Movimento::ParolaDavanti, "uno |due", "uno |d#ue"},
        Mossa{"to_the_lines_start", "a\r\nbc|d", Movimento::InizioRiga, "a\r\n|bcd", "a\r\n|bc#d"},
        Mossa{"to_the_lines_end", "a|b\r\nc", Movimento::TermineRiga, "ab|\r\nc", "a#b|\r\nc"},
        Mossa{"to_the_texts_start", "a\r\nb|c", Movimento::InizioTesto, "|a\r\nbc", "|a\r\nb#c"},
        Mossa{"to_the_texts_end", "a|\r\nb\r\n", Movimento::FineTesto, "a\r\nb\r\n|", "a#\r\nb\r\n|"},
        Mossa{"a_line_down", "a|b\r\ncd", Movimento::RigaSotto, "ab\r\nc|d", "a#b\r\nc|d"},
        Mossa{"a_line_up_from_a_selection", "#ab\r\ncd\r\nef|", Movimento::RigaSopra, "ab\r\nc|d\r\nef",
              "#ab\r\nc|d\r\nef"}),
    [](const auto& caso) { return std::string(caso.param.Nome); });

TEST(SelezioneAnteprima, NoMovementLeavesAnEmptyText) {
  for (int dove = 0; dove <= static_cast<int>(Movimento::PaginaSotto); ++dove) {
    SelezioneAnteprima scelta;
    Muovi(scelta, {static_cast<Movimento>(dove)}, ModoMovimento::Seleziona);
    EXPECT_EQ(Disegno(scelta), "|") << dove;
  }
}

// From line to line

TEST(SelezioneAnteprima, LinesKeepToTheXWhereTheFirstOfThemStarted) {
  SelezioneAnteprima scelta = Da("abcd|ef\r\nx\r\nabcdef\r\nabcdef");
  Muovi(scelta, {Movimento::RigaSotto});
  EXPECT_EQ(Disegno(scelta), "abcdef\r\nx|\r\nabcdef\r\nabcdef");
  Muovi(scelta, {Movimento::RigaSotto});
  EXPECT_EQ(Disegno(scelta), "abcdef\r\nx\r\nabcd|ef\r\nabcdef");
  Muovi(scelta, {Movimento::RigaSotto});
  EXPECT_EQ(Disegno(scelta), "abcdef\r\nx\r\nabcdef\r\nab|cdef") << "its characters are twice as wide";
}

TEST(SelezioneAnteprima, TheFirstAndTheLastLineAreStayedOn) {
  SelezioneAnteprima scelta = Da("a|b\r\ncd");
  Muovi(scelta, {Movimento::RigaSopra});
  EXPECT_EQ(Disegno(scelta), "a|b\r\ncd");
  Muovi(scelta, {Movimento::RigaSotto, Movimento::RigaSotto});
  EXPECT_EQ(Disegno(scelta), "ab\r\nc|d");
}

TEST(SelezioneAnteprima, APageIsAsManyLinesAsItIsToldOrAsThereAre) {
  SelezioneAnteprima scelta = Da("|0\r\n1\r\n2\r\n3\r\n4\r\n5");
  Muovi(scelta, {Movimento::PaginaSotto});
  EXPECT_EQ(scelta.RigaColonna(), (Coordinate{3, 1}));
  Muovi(scelta, {Movimento::PaginaSotto, Movimento::PaginaSotto});
  EXPECT_EQ(scelta.RigaColonna(), (Coordinate{6, 1}));
  Muovi(scelta, {Movimento::PaginaSopra});
  EXPECT_EQ(scelta.RigaColonna(), (Coordinate{4, 1}));
  Muovi(scelta, {Movimento::PaginaSopra, Movimento::PaginaSopra});
  EXPECT_EQ(scelta.RigaColonna(), (Coordinate{1, 1}));
}

TEST(SelezioneAnteprima, WhateverElseMovesTheCaretLetsGoOfTheX) {
  const auto sotto = [](const auto& mossa) {
    SelezioneAnteprima scelta = Da("abcd|\r\n\r\nabcd");
    Muovi(scelta, {Movimento::RigaSotto});
    mossa(scelta);
    Muovi(scelta, {Movimento::RigaSotto});
    return scelta.RigaColonna();
  };
  EXPECT_EQ(sotto([](SelezioneAnteprima&) {}), (Coordinate{3, 5}));
  EXPECT_EQ(sotto([](auto& scelta) { Muovi(scelta, {Movimento::InizioRiga}); }), (Coordinate{3, 1}));
  EXPECT_EQ(sotto([](auto& scelta) { scelta.Seleziona(6, 6); }), (Coordinate{3, 1}));
  EXPECT_EQ(sotto([](auto& scelta) { scelta.SelezionaFra({6, 0}, {6, 0}); }), (Coordinate{3, 1}));
}

}  // namespace
}  // namespace parvik
