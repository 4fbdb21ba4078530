#include "batch/TipiInEsame.h"

#include "catalogue/TrovaTipo.h"
#include "common/TestoPercorso.h"
#include "common/Windows1252.h"

namespace parvik::batch {

Verificatore* TipiInEsame::Per(const TipoDoc& tipo) {
  const auto [posto, nuovo] = tipi_.try_emplace(tipo.Indice);
  std::unique_ptr<Verificatore>& verificatore = posto->second;
  if (nuovo) {
    verificatore = std::make_unique<Verificatore>(catalogo_.Campi, tipo);
    SegnalaErrori(catalogo_, verificatore->Errori());
  }
  return verificatore->Errori().empty() ? verificatore.get() : nullptr;
}

std::vector<const TipoDoc*> TipiInEsame::PerNome(const std::filesystem::path& file) const {
  std::vector<const TipoDoc*> tipi;
  for (const std::size_t slot : TipiPerNome(catalogo_.Campi, TestoPercorso(file.filename())))
    tipi.push_back(&catalogo_.Campi.TipiDoc()[slot]);
  return tipi;
}

Rilievo TipoIncerto(const std::vector<const TipoDoc*>& corrispondono) {
  std::string testo = corrispondono.empty() ? "nessun tipo di documento corrisponde al nome del file"
                                            : "al nome del file corrispondono più tipi:";
  for (const TipoDoc* tipo : corrispondono) {
    testo += (tipo == corrispondono.front() ? " " : ", ") + std::to_string(tipo->Indice + 1) + " " +
             Utf8SenzaControlli(tipo->Descrizione);
  }
  return {.Quale = Regola::TipoIncerto, .Dove = {}, .Testo = std::move(testo)};
}

}  // namespace parvik::batch
