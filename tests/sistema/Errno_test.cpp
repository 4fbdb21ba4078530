#include "sistema/posix/Errno.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <system_error>

#include "sistema/ErroreSistema.h"

namespace parvik::prova {
namespace {

TEST(DaErrno, MapsTheSystemsErrorsOntoTheProgramsOwn) {
  EXPECT_EQ(NumeroErrore::FileNonTrovato, DaErrno(ENOENT));
  EXPECT_EQ(NumeroErrore::PercorsoNonTrovato, DaErrno(ENOTDIR));
  EXPECT_EQ(NumeroErrore::AutorizzazioneNegata, DaErrno(EACCES));
  EXPECT_EQ(NumeroErrore::AutorizzazioneNegata, DaErrno(EPERM));
  EXPECT_EQ(NumeroErrore::DiscoPieno, DaErrno(ENOSPC));
  EXPECT_EQ(NumeroErrore::DiscoPieno, DaErrno(EDQUOT));
  EXPECT_EQ(NumeroErrore::MemoriaEsaurita, DaErrno(ENOMEM));
  EXPECT_EQ(NumeroErrore::ErroreDiPeriferica, DaErrno(EIO));
  EXPECT_EQ(NumeroErrore::AccessoPercorsoFile, DaErrno(EISDIR));
  EXPECT_EQ(NumeroErrore::AccessoPercorsoFile, DaErrno(EROFS));
  EXPECT_EQ(NumeroErrore::AutorizzazioneNegata, DaErrno(EBUSY));
}

TEST(DaErroreSistema, ReadsWhatTheStandardLibraryTells) {
  EXPECT_EQ(NumeroErrore::FileNonTrovato,
            DaErroreSistema(std::make_error_code(std::errc::no_such_file_or_directory)));
  EXPECT_EQ(NumeroErrore::DiscoPieno, DaErroreSistema(std::make_error_code(std::errc::no_space_on_device)));
  EXPECT_EQ(NumeroErrore::AutorizzazioneNegata,
            DaErroreSistema(std::error_code(EACCES, std::system_category())));
}

}  // namespace
}  // namespace parvik::prova
