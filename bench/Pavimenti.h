// The floors: the least that somebody would write by hand who knows nothing of the format but its delimiters.
// What the program does costs more; the benchmarks say how much.
#pragma once

#include <cstddef>
#include <string_view>

namespace parvik::bench {

/// Goes over a text once, looks for the delimiters with memchr, and copies what stands between them, in codes
/// and outside, to `uscita`, which has room for it. Returns the end of what was written.
char* PassataNuda(std::string_view testo, char* uscita);

/// Walks the lines with memchr and copies each with its line end to `uscita`, likewise.
char* PassataRighe(std::string_view testo, char* uscita);

/// Copies the whole text with memcpy, likewise.
char* Copia(std::string_view testo, char* uscita);

/// Walks the lines with memchr and splits each at every ";". The number of fields.
std::size_t DividiCampi(std::string_view testo);

}  // namespace parvik::bench
