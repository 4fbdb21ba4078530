// Where the system keeps what programs are told.
#pragma once

#include <filesystem>
#include <vector>

namespace parvik {

/// The folders of configuration files: the user's own first, then those for all users.
std::vector<std::filesystem::path> CartelleConfigurazione();

/// The user's own among them; "" for a user who has none.
std::filesystem::path CartellaConfigurazioneUtente();

/// In the place of such a folder, for a library that keeps things where nothing is to be kept: no file can be
/// made in it.
std::filesystem::path NessunaCartella();

}  // namespace parvik
