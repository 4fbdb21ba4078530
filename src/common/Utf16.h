// UTF-16, as a system's names and texts may be.
#pragma once

#include <string>
#include <string_view>

namespace parvik {

/// Half a character that stands by itself is written as if it were one: no two texts become one.
std::string Utf8DaUtf16(std::u16string_view utf16);

/// The way back. Of what is no UTF-8, and no half, each byte becomes U+FFFD.
std::u16string Utf16DaUtf8(std::string_view utf8);

}  // namespace parvik
