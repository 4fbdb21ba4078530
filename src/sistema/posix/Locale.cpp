#include "sistema/Locale.h"

#include <clocale>
#include <cstdlib>
#include <initializer_list>

namespace parvik {

void PreparaLocale() {
  // First: where the system lacks the Italian locale the toolkit will fail to set any, and keep this one.
  static_cast<void>(std::setlocale(LC_ALL, ""));  // NOLINT(concurrency-mt-unsafe): no other threads yet
  for (const char* categoria : {"LC_TIME", "LC_NUMERIC", "LC_MEASUREMENT"})
    static_cast<void>(::setenv(categoria, "it_IT.UTF-8", 1));  // NOLINT(concurrency-mt-unsafe): as above
}

}  // namespace parvik
