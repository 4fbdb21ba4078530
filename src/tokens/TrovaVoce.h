// The search of the variable dialog.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

namespace parvik {

/// The 0-based entry whose text contains `cercato`, whatever the case of either: the first one after entry
/// `selezionata`, going on from entry 0 past the end; entry `selezionata` itself comes last. nullopt when
/// none does. Texts are Windows-1252, and its accented capitals have their small letters.
std::optional<std::size_t> TrovaVoce(std::span<const std::string_view> voci, std::size_t selezionata,
                                     std::string_view cercato);

/// The same by number, as the words of `cercato` say it (tokens/FiltraVoci.h): the first entry that has just
/// that number, or else one that has it as a part.
std::optional<std::size_t> TrovaNumero(std::span<const int> numeri, std::size_t selezionata,
                                       std::string_view cercato);

/// Whether one of the two searches could come to an entry.
bool SiTrova(std::string_view descrizione, int numero, std::string_view cercato);

}  // namespace parvik
