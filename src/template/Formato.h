// The two layouts of template files.
#pragma once

#include <cstdint>

#include "common/Sezione.h"

namespace parvik {

/// How a document type lays a template out; the file itself does not say.
enum class Formato { UnaSezione, TreSezioni };

constexpr Formato FormatoDi(std::int16_t numSezioni) {
  return HaTreSezioni(numSezioni) ? Formato::TreSezioni : Formato::UnaSezione;
}

}  // namespace parvik
