#include "sistema/windows/ErroreWin.h"

#include <gtest/gtest.h>

#include <system_error>

#include "sistema/ErroreSistema.h"

namespace parvik {
namespace {

TEST(DaErroreWin, GivesTheRunTimeErrorThatAUserKnows) {
  EXPECT_EQ(DaErroreWin(ERROR_FILE_NOT_FOUND), NumeroErrore::FileNonTrovato);
  EXPECT_EQ(DaErroreWin(ERROR_PATH_NOT_FOUND), NumeroErrore::PercorsoNonTrovato);
  EXPECT_EQ(DaErroreWin(ERROR_ACCESS_DENIED), NumeroErrore::AutorizzazioneNegata);
  EXPECT_EQ(DaErroreWin(ERROR_SHARING_VIOLATION), NumeroErrore::AutorizzazioneNegata);
  EXPECT_EQ(DaErroreWin(ERROR_LOCK_VIOLATION), NumeroErrore::AutorizzazioneNegata);
  EXPECT_EQ(DaErroreWin(ERROR_DISK_FULL), NumeroErrore::DiscoPieno);
  EXPECT_EQ(DaErroreWin(ERROR_NOT_ENOUGH_MEMORY), NumeroErrore::MemoriaEsaurita);
  EXPECT_EQ(DaErroreWin(ERROR_IO_DEVICE), NumeroErrore::ErroreDiPeriferica);
  EXPECT_EQ(DaErroreWin(ERROR_NO_DATA), NumeroErrore::ErroreDiPeriferica);
  EXPECT_EQ(DaErroreWin(ERROR_INVALID_NAME), NumeroErrore::AccessoPercorsoFile);
}

TEST(DaErroreWin, NotesOfWhoeverWritesThatAnotherProgramIsAtTheFile) {
  EXPECT_NE(ErroreDaWin(ERROR_SHARING_VIOLATION).Nota, "");
  EXPECT_EQ(ErroreDaWin(ERROR_ACCESS_DENIED).Nota, "");
}

TEST(DaErroreSistema, KnowsTheSystemsNumbersAndTheLibrarys) {
  EXPECT_EQ(DaErroreSistema(std::error_code(ERROR_SHARING_VIOLATION, std::system_category())),
            NumeroErrore::AutorizzazioneNegata);
  EXPECT_EQ(DaErroreSistema(std::make_error_code(std::errc::no_space_on_device)), NumeroErrore::DiscoPieno);
}

}  // namespace
}  // namespace parvik
