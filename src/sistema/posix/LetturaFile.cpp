#include "sistema/LetturaFile.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>

#include "common/SeBastaMemoria.h"
#include "sistema/posix/OperazioniFile.h"
#include "sistema/posix/Ripeti.h"

namespace parvik {
namespace {

constexpr std::size_t Pezzo = 256UL * 1024UL;

/// Asks for the memory of a large file at once, and in large pages: handing it out page by page, as each is
/// first written to, takes longer than reading the file. A system that knows neither does without.
void ChiediMemoria(void* inizio, std::size_t spazio) {
  constexpr std::size_t Grande = 1024UL * 1024UL;
  constexpr std::size_t Pagina = 4096;
  if (spazio < Grande || std::align(Pagina, Grande - Pagina, inizio, spazio) == nullptr) return;
  spazio -= spazio % Pagina;
  for (const int richiesta : {MADV_HUGEPAGE, MADV_POPULATE_WRITE})
    static_cast<void>(::madvise(inizio, spazio, richiesta));
}

/// Reads on until the end of the file, whatever its size was when it was opened. In pieces that stay in a
/// near cache: what is done to them before and after finds them there.
template <class Contenuto, class Letto>
Esito<Contenuto> LeggiTutto(const Descrittore& file, std::size_t dimensione, const Letto& letto) {
  Contenuto contenuto;
  contenuto.reserve(dimensione + 1);  // one more than needed: the read after it finds the end
  ChiediMemoria(contenuto.data(), contenuto.capacity());
  for (;;) {
    const std::size_t letti = contenuto.size();
    const std::size_t spazio = contenuto.capacity() - letti;
    contenuto.resize(letti + (spazio == 0 ? Pezzo : std::min(spazio, Pezzo)));
    const ssize_t n =
        Ripeti([&] { return ::read(file.Numero(), contenuto.data() + letti, contenuto.size() - letti); });
    if (n < 0) return DaErrno(errno);
    contenuto.resize(letti + static_cast<std::size_t>(n));
    if (n == 0) return contenuto;
    letto(std::span<char>(contenuto));
  }
}

template <class Contenuto, class Letto>
Esito<Contenuto> Leggi(const std::filesystem::path& percorso, const Letto& letto) {
  // O_NONBLOCK: opening a pipe that nobody writes to must not wait.
  const Descrittore file = ApriFile(percorso, O_RDONLY | O_NONBLOCK);
  if (!file && errno == ENXIO) return NumeroErrore::AccessoPercorsoFile;  // a socket
  if (!file) return DaErrno(errno);
  const EsitoSistema<struct stat> stato = Stato(file);
  if (!stato) return DaErrno(stato.Errore());
  if (!S_ISREG(stato->st_mode)) return NumeroErrore::AccessoPercorsoFile;
  return LeggiTutto<Contenuto>(file, static_cast<std::size_t>(stato->st_size), letto);
}

}  // namespace

Esito<std::string> LeggiFile(const std::filesystem::path& percorso) {
  return SeBastaMemoria([&] { return Leggi<std::string>(percorso, [](std::span<char>) {}); });
}

Esito<ByteFile> LeggiFile(const std::filesystem::path& percorso,
                          const std::function<void(std::span<char> finora)>& letto) {
  return SeBastaMemoria([&] { return Leggi<ByteFile>(percorso, letto); });
}

Esito<void> ProvaLettura(const std::filesystem::path& percorso) {
  if (::access(percorso.c_str(), R_OK) != 0) return DaErrno(errno);
  return {};
}

}  // namespace parvik
