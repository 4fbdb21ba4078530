// Windows-1252, the one encoding of the host's files.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace parvik {

/// The Unicode value of each byte. The five bytes that the code page leaves undefined stand for the C1
/// control of the same number, so that the table is one to one on all 256 values.
extern const std::array<char16_t, 256> UnicodeDiAnsi;

/// Windows-1252 bytes as UTF-8, value by value.
std::string Utf8DaAnsi(std::string_view byte);

/// The same on one line that does nothing to a terminal: control characters, those of the undefined values
/// too, are spaces.
std::string Utf8SenzaControlli(std::string_view byte);

/// UTF-8 as Windows-1252: what the code page lacks becomes "?". Bytes that are no UTF-8 stay as they are.
std::string AnsiDaUtf8(std::string_view utf8);

/// UTF-16, low byte first and without its mark, as Windows-1252: what the code page lacks becomes "?", one
/// for each unit of two bytes. Half a unit at the end is dropped.
std::string AnsiDaUtf16(std::string_view byte);

}  // namespace parvik
