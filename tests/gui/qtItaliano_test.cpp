#include "common/qtItaliano.h"

#include <gtest/gtest.h>
#include <langinfo.h>
#include <locale.h>

#include <string>

namespace parvik {
namespace {

/// Of the characters that whoever started the program types and reads. The toolkit may know better than plain
/// ASCII.
TEST(Italiano, TheUsersCharacterSetStaysWhetherTheSystemHasAnItalianLocaleOrNot) {
  const locale_t dellUtente = newlocale(LC_CTYPE_MASK, "", locale_t());
  ASSERT_NE(dellUtente, locale_t());
  const std::string suo = nl_langinfo_l(CODESET, dellUtente);
  freelocale(dellUtente);
  const std::string nostro = nl_langinfo(CODESET);
  EXPECT_TRUE(nostro == suo || nostro == "UTF-8") << nostro << " for " << suo;
}

}  // namespace
}  // namespace parvik
