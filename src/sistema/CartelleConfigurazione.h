// Where the system keeps what programs are told, and what they keep by themselves.
#pragma once

#include <filesystem>
#include <vector>

namespace parvik {

/// The folders of configuration files: the user's own first, then those for all users.
std::vector<std::filesystem::path> CartelleConfigurazione();

/// The user's own among them; "" for a user who has none.
std::filesystem::path CartellaConfigurazioneUtente();

/// Where the user's programs keep what they must know the next time; "" for a user who has no such place.
std::filesystem::path CartellaStatoUtente();

/// Where they keep what counts only while they run; "" where the system has no such place.
std::filesystem::path CartellaEsecuzione();

/// In the place of such a folder, for a library that keeps things where nothing is to be kept: no file can be
/// made in it.
std::filesystem::path NessunaCartella();

}  // namespace parvik
