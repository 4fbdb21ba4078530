// The host's configuration file, read as the private-profile reader of its platform reads it
// (docs/installation-lookup.md).
#pragma once

#include <string>
#include <string_view>

namespace parvik {

/// The value of `chiave` in `sezione`, at most 199 characters of it; empty when section or key is not there.
/// Bytes as they are in the file, of UTF-16 those of Windows-1252. `contenuto` is the whole file; the names
/// are compared without regard to the case of A to Z.
std::string LeggiProfilo(std::string_view contenuto, std::string_view sezione, std::string_view chiave);

}  // namespace parvik
