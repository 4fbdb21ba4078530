// JSON as this program writes it: members in the order in which they are given, whatever bytes a name has.
#pragma once

#include <filesystem>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>

namespace parvik::batch {

using Json = nlohmann::ordered_json;

/// A name as it stands where it is UTF-8, and as messages show it where it is not.
std::string NomePerJson(const std::filesystem::path& file);

/// The text, or null.
Json OppureNiente(std::optional<std::string_view> testo);

/// A document that is one array, an element at a time: each on a line of its own, so that none is kept.
class ElencoJson {
 public:
  bool Inizia();
  bool Aggiungi(const Json& elemento);
  bool Finisci();

 private:
  bool vuoto_ = true;
};

}  // namespace parvik::batch
