#include "sistema/LetturaFile.h"

#include <algorithm>

#include "common/SeBastaMemoria.h"
#include "sistema/windows/OperazioniFile.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t Pezzo = 256UL * 1024UL;

/// What is missing of a path that is not there is the file, unless a file stands where a folder should.
NumeroErrore PercheNonSiApre(const fs::path& percorso, DWORD errore) {
  if (errore != ERROR_PATH_NOT_FOUND) return DaErroreWin(errore);
  for (fs::path cartella = percorso.parent_path(); cartella.has_relative_path();
       cartella = cartella.parent_path()) {
    const DWORD attributi = ::GetFileAttributesW(cartella.c_str());
    if (attributi == INVALID_FILE_ATTRIBUTES) continue;
    const bool eCartella = (attributi & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return eCartella ? NumeroErrore::FileNonTrovato : NumeroErrore::PercorsoNonTrovato;
  }
  return NumeroErrore::FileNonTrovato;
}

/// A file that somebody else keeps for himself is AutorizzazioneNegata.
Esito<Maniglia> ApriPerLeggere(const fs::path& percorso) {
  EsitoSistema<Maniglia> file =
      ApriFile(percorso, GENERIC_READ, Tutti, OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN);
  if (!file) return PercheNonSiApre(percorso, file.Errore());
  if (!SuDisco(*file)) return NumeroErrore::AccessoPercorsoFile;
  return std::move(*file);
}

/// Reads on until the end of the file, whatever its size was when it was opened.
template <class Contenuto, class Letto>
Esito<Contenuto> LeggiTutto(const Maniglia& file, std::uint64_t dimensione, const Letto& letto) {
  Contenuto contenuto;
  contenuto.reserve(dimensione + 1);  // one more than needed: the read after it finds the end
  for (;;) {
    const std::size_t letti = contenuto.size();
    const std::size_t spazio = contenuto.capacity() - letti;
    contenuto.resize(letti + (spazio == 0 ? Pezzo : std::min(spazio, Pezzo)));
    DWORD n = 0;
    const auto quanti = static_cast<DWORD>(contenuto.size() - letti);
    if (::ReadFile(file.Valore(), contenuto.data() + letti, quanti, &n, nullptr) == FALSE)
      return DaErroreWin(::GetLastError());
    contenuto.resize(letti + n);
    if (n == 0) return contenuto;
    letto(std::span<char>(contenuto));
  }
}

template <class Contenuto, class Letto>
Esito<Contenuto> Leggi(const fs::path& percorso, const Letto& letto) {
  const Esito<Maniglia> file = ApriPerLeggere(percorso);
  if (!file) return file.Errore();
  const EsitoSistema<StatoFile> stato = Stato(*file);
  if (!stato) return DaErroreWin(stato.Errore());
  if (stato->Cartella()) return NumeroErrore::AccessoPercorsoFile;
  return LeggiTutto<Contenuto>(*file, stato->Identita.Dimensione, letto);
}

}  // namespace

Esito<std::string> LeggiFile(const fs::path& percorso) {
  return SeBastaMemoria([&] { return Leggi<std::string>(percorso, [](std::span<char>) {}); });
}

Esito<ByteFile> LeggiFile(const fs::path& percorso,
                          const std::function<void(std::span<char> finora)>& letto) {
  return SeBastaMemoria([&] { return Leggi<ByteFile>(percorso, letto); });
}

Esito<void> ProvaLettura(const fs::path& percorso) {
  if (const Esito<Maniglia> file = ApriPerLeggere(percorso); !file) return file.Errore();
  return {};
}

}  // namespace parvik
