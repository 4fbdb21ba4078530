#include "sistema/windows/CopiaDiRiserva.h"

#include <string>

#include "sistema/CopiaPrecedente.h"
#include "sistema/LetturaFile.h"
#include "sistema/windows/SegnoDiLavoro.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

EsitoSistema<void> ScriviNuovo(const fs::path& nuovo, const fs::path& file, std::string_view contenuto) {
  EsitoSistema<Maniglia> copia = ApriFile(nuovo, GENERIC_WRITE, FILE_SHARE_READ, CREATE_ALWAYS);
  if (!copia) return copia.Errore();
  if (const auto passo = CopiaDiritti(nuovo, file); !passo) return passo;
  if (const auto passo = ScriviTutto(copia->Valore(), contenuto); !passo) return passo;
  if (const auto passo = Sincronizza(*copia); !passo) return passo;
  return Chiudi(*copia);
}

}  // namespace

EsitoSistema<void> FaiCopia(const fs::path& posto, const fs::path& file, std::string_view contenuto) {
  const fs::path nuovo = NomeNuovo(posto);
  EsitoSistema<void> passo = ScriviNuovo(nuovo, file, contenuto);
  if (passo) passo = Rinomina(nuovo, NomeVecchio(posto), true);
  if (!passo) static_cast<void>(Togli(nuovo));
  return passo;
}

EsitoSistema<fs::path> ConservaInterrotta(const fs::path& posto, const fs::path& file) {
  const fs::path copia = NomeVecchio(posto);
  const Esito<std::string> vecchio = LeggiFile(copia);
  if (!vecchio && vecchio.Errore() == NumeroErrore::FileNonTrovato) return fs::path();
  const Esito<std::string> attuale = LeggiFile(file);
  if (vecchio && attuale && *vecchio == *attuale) {
    static_cast<void>(Togli(copia));  // in nobody's way: the next save tries again
    return fs::path();
  }
  fs::path tenuta = NomePrecedente(posto);
  if (const auto passo = Rinomina(copia, tenuta, true); !passo) return passo.Errore();
  return tenuta;
}

}  // namespace parvik
