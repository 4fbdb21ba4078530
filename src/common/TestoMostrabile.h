// Texts from outside (names of files, arguments) inside a message (docs/batch.md).
#pragma once

#include <string>
#include <string_view>

namespace parvik {

/// UTF-8 on one line that does nothing to a terminal, whatever the bytes are. Characters stay; each byte of a
/// control character, of a line or paragraph separator, and of what is no UTF-8 is written as "\xNN".
std::string Mostrabile(std::string_view byte);

}  // namespace parvik
