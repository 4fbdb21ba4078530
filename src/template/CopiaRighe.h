// Lines on their way between template file and section, at the speed of memory (docs/template-file.md).
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace parvik {

/// Replaces a text's delimiters by those of the other side: « and » in the editor, two bytes of their own in
/// a file.
void DelimitatoriVersoEditor(std::span<char> testo);
void DelimitatoriVersoFile(std::span<char> testo);

/// Adds lines of a file to a section: each of them, the last one too, gets CR LF as its end, and the codes
/// get the editor's delimiters.
void AggiungiDaFile(std::string_view righe, std::string& sezione);

/// Makes lines of a section of lines of a file where they stand; of the last one its line end may be missing.
/// False when a CR without its LF is among them: then AggiungiDaFile still makes of them what it would have
/// made before.
bool RendiRighe(std::span<char> righe);

/// Adds a section to a file: each line gets CR LF as its end, whatever byte follows its CR is skipped, and
/// the codes get the file's delimiters. Where in `file` that begins which the last CR leaves over; it is
/// added as it is.
std::size_t AggiungiVersoFile(std::string_view sezione, std::string& file);

/// The place of the first `coppia`, two bytes, at or after `da`; npos when there is none. Made for texts in
/// which the first byte is common and the second one seldom follows.
std::size_t TrovaCoppia(std::string_view testo, std::string_view coppia, std::size_t da);

}  // namespace parvik
