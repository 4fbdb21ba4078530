// A drag in a view of a text, without the pane.
#include "output/ricTrascinamento.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QWidget>
#include <algorithm>
#include <utility>
#include <vector>

#include "PannelloDiProva.h"

namespace parvik {
namespace {

using Pezzi = std::pair<Selezione, Selezione>;
using Passo = std::pair<int, int>;  // lines, pixels

/// A view of 200 x 100 pixels, and all that a drag in it asks for.
class RicTrascinamento : public testing::Test {
 protected:
  RicTrascinamento() {
    QObject::connect(&trascinamento_, &ricTrascinamento::DaSelezionare, &schermo_,
                     [this](const Selezione& dal, const Selezione& al) { scelti_.emplace_back(dal, al); });
    QObject::connect(&trascinamento_, &ricTrascinamento::DaScorrere, &schermo_, [this](int righe, int pixel) {
      passi_.emplace_back(righe, pixel);
      finestrella_.PrimaRiga += static_cast<std::size_t>(std::max(0, righe));
    });
  }

  VedutaAnteprima Veduta() const { return {testo_, celle_, finestrella_}; }
  QPoint Su(std::size_t byte) const { return Veduta().RettangoloDi(byte).center().toPoint(); }
  int AltezzaRiga() const { return static_cast<int>(Veduta().AltezzaRiga()); }

  /// The first step that scrolls while the mouse is held there.
  Passo PassoDa(QPoint punto) {
    passi_.clear();
    trascinamento_.Muovi(punto);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !passi_.empty(); }));
    return passi_.empty() ? Passo() : passi_.front();
  }

  QWidget schermo_;
  TestoAnteprima testo_{prova::DiProva(prova::Ripeti("uno due\r\n", 1000))};
  Celle celle_ = Celle::SuSchermo(CarattereAnteprima(), schermo_);
  Finestrella finestrella_{.Dimensione = QSize(200, 100)};
  ricTrascinamento trascinamento_{[this] { return Veduta(); }, nullptr};
  std::vector<Pezzi> scelti_;
  std::vector<Passo> passi_;
};

TEST_F(RicTrascinamento, ClicksInARowSelectByCharactersWordsLinesAndCharactersAgain) {
  const QPoint punto = Su(5);
  trascinamento_.Premi(punto, std::nullopt);
  trascinamento_.PremiAncora(punto);
  trascinamento_.Premi(punto, std::nullopt);
  trascinamento_.Premi(punto, std::nullopt);
  ASSERT_EQ(scelti_.size(), 4U);
  EXPECT_EQ(scelti_[0].first.Lunghezza, 0U);
  EXPECT_EQ(scelti_[1].first, (Selezione{4, 3}));
  EXPECT_EQ(scelti_[2].first, (Selezione{0, 9}));
  EXPECT_EQ(scelti_[3].first, scelti_[0].first);
}

TEST_F(RicTrascinamento, AClickElsewhereIsNoThirdOne) {
  trascinamento_.PremiAncora(Su(5));
  trascinamento_.Premi(Su(5) + QPoint(QApplication::startDragDistance(), 0), std::nullopt);
  ASSERT_EQ(scelti_.size(), 2U);
  EXPECT_EQ(scelti_[1].first.Lunghezza, 0U);
}

TEST_F(RicTrascinamento, GoesFromTheAnchorThatItIsGivenAndStaysThere) {
  trascinamento_.Premi(Veduta().RettangoloDi(5).topLeft().toPoint(), 2);
  trascinamento_.Muovi(Veduta().RettangoloDi(1).topLeft().toPoint());
  EXPECT_EQ(scelti_, (std::vector<Pezzi>{{{2, 0}, {5, 0}}, {{2, 0}, {1, 0}}}));
}

TEST_F(RicTrascinamento, IsOnFromThePressUntilItEnds) {
  EXPECT_FALSE(trascinamento_.Finisci());
  trascinamento_.Muovi(Su(5));
  EXPECT_TRUE(scelti_.empty());
  trascinamento_.Premi(Su(5), std::nullopt);
  EXPECT_TRUE(trascinamento_.Finisci());
  EXPECT_FALSE(trascinamento_.Finisci());
  trascinamento_.Muovi(Su(1));
  EXPECT_EQ(scelti_.size(), 1U);
}

TEST_F(RicTrascinamento, TheFurtherOutsideTheMouseTheFasterTheTextScrolls) {
  trascinamento_.Premi(Su(0), std::nullopt);
  EXPECT_EQ(PassoDa(QPoint(10, 100)), Passo(1, 0));
  EXPECT_EQ(PassoDa(QPoint(10, 100 + 3 * AltezzaRiga())), Passo(4, 0));
  EXPECT_EQ(PassoDa(QPoint(10, -1)), Passo(-1, 0));
  EXPECT_EQ(PassoDa(QPoint(10, -2 * AltezzaRiga())), Passo(-3, 0));
  EXPECT_EQ(PassoDa(QPoint(200 + 6, 50)), Passo(0, 7));
  EXPECT_EQ(PassoDa(QPoint(-7, 50)), Passo(0, -7));
}

TEST_F(RicTrascinamento, WhatHasScrolledInIsSelected) {
  constexpr std::size_t Prima = 10;  // no margin above
  finestrella_.PrimaRiga = Prima;
  trascinamento_.Premi(QPoint(10, 50), std::nullopt);
  trascinamento_.Muovi(QPoint(10, 100));
  const std::size_t ultima = testo_.RigaDi(scelti_.back().second.Inizio);
  EXPECT_TRUE(QTest::qWaitFor([this] { return passi_.size() >= 2; }));
  EXPECT_EQ(testo_.RigaDi(scelti_.back().second.Inizio), ultima + finestrella_.PrimaRiga - Prima);
}

}  // namespace
}  // namespace parvik
