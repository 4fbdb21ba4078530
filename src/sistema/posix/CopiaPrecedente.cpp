#include "sistema/CopiaPrecedente.h"

#include "sistema/ScritturaSicura.h"
#include "sistema/posix/OperazioniFile.h"

namespace parvik {

namespace fs = std::filesystem;

fs::path NomePrecedente(const fs::path& file) {
  return CartellaDi(file) / NomeDerivato("", file.filename().string(), "~");
}

EsitoPasso ConservaPrecedente(const fs::path& file, std::string_view contenuto) {
  const EsitoSistema<fs::path> fine = SeguiCollegamenti(file);
  if (!fine) return ErroreDaErrno(fine.Errore());
  const EsitoScrittura scritta = ScriviFileCome(*fine, NomePrecedente(*fine), contenuto);
  if (!scritta) return scritta.Errore();
  return {};
}

}  // namespace parvik
