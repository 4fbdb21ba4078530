// The host's configuration file, read by whoever reads such files on this system.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace parvik {

/// The value of `chiave` in `sezione` of `file`, in Windows-1252: at most 199 characters of it. Empty when
/// section or key is not there, or the file cannot be read. Where the system has no reader of its own it is
/// that of common/ProfiloHost.h.
std::string LeggiDaProfilo(const std::filesystem::path& file, std::string_view sezione,
                           std::string_view chiave);

}  // namespace parvik
