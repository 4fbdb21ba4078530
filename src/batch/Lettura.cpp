#include "batch/Lettura.h"

#include <string>

#include "batch/Messaggi.h"
#include "common/LetturaFile.h"

namespace parvik::batch {

std::optional<ImmagineLetta> LeggiModello(const std::filesystem::path& file, const TipoDoc& tipo) {
  const Esito<std::string> byte = LeggiFile(file);
  if (!byte) {
    Segnala(file, byte.Errore());
    return std::nullopt;
  }
  const Formato formato = FormatoDi(tipo.NumSezioni);
  const ImpostazioniCorpo iniziali =
      formato == Formato::TreSezioni ? ImpostazioniPredefinite() : ImpostazioniCorpo();
  ImmagineLetta letta = LeggiImmagine(*byte, formato, iniziali);
  if (letta.CorpoIncompleto) {
    Segnala(file, "avviso: il file ha meno delle " + std::to_string(letta.Corpo.LineeCorpo) +
                      " righe di corpo che il marcatore promette");
  }
  return letta;
}

}  // namespace parvik::batch
