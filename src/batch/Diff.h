// What a mend changes, as people read it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace parvik::batch {

/// A unified diff of two templates that have as many lines, in UTF-8; "" where they are equal. Lines are read
/// as templates are, control characters are spaces.
std::string DiffUnificato(const std::filesystem::path& file, std::string_view prima, std::string_view dopo);

}  // namespace parvik::batch
