// Names of files and folders that come from a host installation.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace parvik {

/// `cartella`/`nome` when that exists. Otherwise the entry of `cartella` whose name is `nome` without regard
/// to the case of the letters A to Z (the first in byte order when there are several), because installations
/// come from shares that do not tell the cases apart. `cartella`/`nome` again when there is none.
std::filesystem::path TrovaSenzaCaso(const std::filesystem::path& cartella, std::string_view nome);

/// The folder that a value of the host means. Where a backslash separates it is what the value says;
/// elsewhere a backslash is "/", and, for the host writes Windows-1252, where the very bytes name nothing
/// that exists, but the same text in UTF-8 does, it is that.
std::filesystem::path PercorsoDellHost(std::string_view valore);

/// The small letter of A to Z; any other character as it is. No locale.
constexpr char Minuscola(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// Equality without regard to the case of the letters A to Z; no locale.
bool UgualiSenzaCaso(std::string_view a, std::string_view b);

/// Whether something that is not a folder stands at `percorso` (links are followed). Errors read as "no".
bool EsisteFile(const std::filesystem::path& percorso);

/// The path with `estensione` (".img") added when its file name has none.
std::filesystem::path ConEstensione(std::filesystem::path percorso, std::string_view estensione);

/// The last `quanti` characters (not bytes) of UTF-8 text; the whole of it when it is shorter.
std::string UltimiCaratteri(std::string_view utf8, std::size_t quanti);

}  // namespace parvik
