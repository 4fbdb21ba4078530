#include "common/TestoPercorso.h"

#include <type_traits>

#include "common/Utf16.h"

namespace parvik {
namespace {

template <class Nome>
std::string TestoDi(const Nome& nome) {
  if constexpr (std::is_same_v<typename Nome::value_type, char>) {
    return nome;
  } else {
    return Utf8DaUtf16(std::u16string(nome.begin(), nome.end()));
  }
}

template <class Percorso>
Percorso PercorsoDi(std::string_view testo) {
  if constexpr (std::is_same_v<typename Percorso::value_type, char>) {
    return Percorso(testo);
  } else {
    const std::u16string nome = Utf16DaUtf8(testo);
    return Percorso(typename Percorso::string_type(nome.begin(), nome.end()));
  }
}

}  // namespace

std::string TestoPercorso(const std::filesystem::path& percorso) {
  return TestoDi(percorso.native());
}

std::filesystem::path PercorsoDaTesto(std::string_view testo) {
  return PercorsoDi<std::filesystem::path>(testo);
}

}  // namespace parvik
