// What the batch program says: results on standard output, everything else on standard error, both in UTF-8.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "common/EsitoScrittura.h"

namespace parvik::batch {

/// "parvik32-batch: " and the text, on one line of standard error. Line ends in the text become " - ".
void Segnala(std::string_view testo);
/// The same about a file.
void Segnala(const std::filesystem::path& file, std::string_view testo);
void Segnala(const std::filesystem::path& file, NumeroErrore errore);
/// What came of writing it, if there is anything to say. Whether it was written.
bool SegnalaScritto(const std::filesystem::path& file, const EsitoScrittura& scritto);

/// A text of the catalogue as it is printed in a table: UTF-8, control characters as spaces.
std::string PerTabella(std::string_view ansi);

/// Writes to standard output; false, after a message, when that fails.
bool Stampa(std::string_view testo);

}  // namespace parvik::batch
