#include <gtest/gtest.h>

#include "template/Marcatore.h"

namespace parvik::prova {
namespace {

std::string FraDelimitatori(const std::string& contenuto) {
  return '\xAE' + contenuto + '\xAF';
}

TEST(MarcatoreIntero, TakesAWholeMarkerWithTheDelimitersOfFilesOrTheEditors) {
  for (const std::string contenuto :
       {"C1;2;", "C23;14;C", "C23;14;S", "C23;14;CS", "C-1;-02;", "C123456;0;"}) {
    EXPECT_EQ(MarcatoreIntero(FraDelimitatori(contenuto)), contenuto.size() + 2) << contenuto;
    EXPECT_EQ(MarcatoreIntero('\xAB' + contenuto + '\xBB'), contenuto.size() + 2) << contenuto;
    EXPECT_EQ(MarcatoreIntero(FraDelimitatori(contenuto) + "x"), contenuto.size() + 2) << contenuto;
  }
}

TEST(MarcatoreIntero, TakesNothingElse) {
  for (const std::string contenuto :
       {"", "C", "C1;2", "C1;;", "C;2;", "C1;2;SC", "C1;2;CC", "C1;2;x", "C+1;2;", "C 1;2;", "C1 ;2;",
        "C1.0;2;", "c1;2;", "C1,2;", "C-;2;", "C1;2;3;"}) {
    EXPECT_EQ(MarcatoreIntero(FraDelimitatori(contenuto)), 0U) << contenuto;
  }
  EXPECT_EQ(MarcatoreIntero(""), 0U);
  EXPECT_EQ(MarcatoreIntero("\xAE"
                            "C1;2;\xBB"),
            0U);
  EXPECT_EQ(MarcatoreIntero("\xAB"
                            "C1;2;\xAF"),
            0U);
  EXPECT_EQ(MarcatoreIntero("x" + FraDelimitatori("C1;2;")), 0U);
}

}  // namespace
}  // namespace parvik::prova
