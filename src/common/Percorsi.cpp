#include "common/Percorsi.h"

#include <algorithm>
#include <system_error>

#include "common/TestoPercorso.h"
#include "common/Windows1252.h"

namespace parvik {
namespace {

bool ContinuaCarattere(char c) {
  return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

}  // namespace

bool UgualiSenzaCaso(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, Minuscola, Minuscola);
}

bool EsisteFile(const std::filesystem::path& percorso) {
  std::error_code errore;
  const std::filesystem::file_status stato = std::filesystem::status(percorso, errore);
  return std::filesystem::exists(stato) && !std::filesystem::is_directory(stato);
}

std::filesystem::path TrovaSenzaCaso(const std::filesystem::path& cartella, std::string_view nome) {
  std::filesystem::path esatto = cartella / PercorsoDaTesto(nome);
  std::error_code errore;
  if (std::filesystem::exists(esatto, errore)) return esatto;
  std::string migliore;
  for (std::filesystem::directory_iterator voce(cartella, errore), fine; !errore && voce != fine;
       voce.increment(errore)) {
    std::string candidato = TestoPercorso(voce->path().filename());
    if (UgualiSenzaCaso(candidato, nome) && (migliore.empty() || candidato < migliore)) {
      migliore = std::move(candidato);
    }
  }
  return migliore.empty() ? esatto : cartella / PercorsoDaTesto(migliore);
}

std::filesystem::path PercorsoDellHost(std::string_view valore) {
  // A system whose own separator it is has the names of the host's.
  if constexpr (std::filesystem::path::preferred_separator == '\\')
    return PercorsoDaTesto(Utf8DaAnsi(valore)).make_preferred();
  std::string byte(valore);
  std::ranges::replace(byte, '\\', '/');
  std::error_code errore;
  if (std::filesystem::exists(byte, errore)) return byte;
  std::filesystem::path utf8 = Utf8DaAnsi(byte);
  return std::filesystem::exists(utf8, errore) ? utf8 : std::filesystem::path(byte);
}

std::filesystem::path ConEstensione(std::filesystem::path percorso, std::string_view estensione) {
  if (TestoPercorso(percorso.filename()).find('.') == std::string::npos) percorso += estensione;
  return percorso;
}

std::string UltimiCaratteri(std::string_view utf8, std::size_t quanti) {
  std::size_t inizio = utf8.size();
  while (quanti > 0 && inizio > 0) {
    --inizio;
    if (!ContinuaCarattere(utf8[inizio])) --quanti;
  }
  return std::string(utf8.substr(inizio));
}

}  // namespace parvik
