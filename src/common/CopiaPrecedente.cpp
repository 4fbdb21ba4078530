#include "common/CopiaPrecedente.h"

#include "common/ScritturaAccanto.h"

namespace parvik {

namespace fs = std::filesystem;

fs::path NomePrecedente(const fs::path& file) {
  return CartellaDi(file) / NomeDerivato("", file.filename().string(), "~");
}

Esito<void> ConservaPrecedente(const fs::path& file, std::string_view contenuto) {
  const EsitoSistema<fs::path> fine = SeguiCollegamenti(file);
  if (!fine) return DaErrno(fine.Errore());
  const fs::path copia = NomePrecedente(*fine);
  const auto strada = ScritturaAccanto::Apri(
      {.Destinazione = copia, .Provvisorio = NomeProvvisorio(copia), .Originale = *fine});
  if (!strada) return DaErrno(strada.Errore());
  if (const Esito<void> scritto = (*strada)->Scrivi(contenuto); !scritto) return scritto.Errore();
  return (*strada)->Conferma();
}

}  // namespace parvik
