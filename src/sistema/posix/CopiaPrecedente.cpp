#include "sistema/CopiaPrecedente.h"

#include "sistema/posix/ScritturaAccanto.h"

namespace parvik {

namespace fs = std::filesystem;

fs::path NomePrecedente(const fs::path& file) {
  return CartellaDi(file) / NomeDerivato("", file.filename().string(), "~");
}

EsitoPasso ConservaPrecedente(const fs::path& file, std::string_view contenuto) {
  const EsitoSistema<fs::path> fine = SeguiCollegamenti(file);
  if (!fine) return ErroreDaErrno(fine.Errore());
  const auto strada = ScritturaAccanto::Apri({.Destinazione = NomePrecedente(*fine), .Originale = *fine});
  if (!strada) return ErroreDaErrno(strada.Errore());
  if (EsitoPasso scritto = (*strada)->Scrivi(contenuto); !scritto) return scritto;
  if (const EsitoScrittura scritta = (*strada)->Conferma(); !scritta) return scritta.Errore();
  return {};
}

}  // namespace parvik
