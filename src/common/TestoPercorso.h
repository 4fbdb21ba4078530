// Paths and their texts.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace parvik {

/// A path as a text of bytes. Where the system's names are bytes those, as they are; where they are UTF-16
/// their UTF-8 (Utf16.h). No two names have one text.
std::string TestoPercorso(const std::filesystem::path& percorso);

/// The path of such a text.
std::filesystem::path PercorsoDaTesto(std::string_view testo);

}  // namespace parvik
