#include "batch/Lettura.h"

#include <new>
#include <string>

#include "batch/Messaggi.h"
#include "common/LetturaFile.h"

namespace parvik::batch {
namespace {

std::optional<ImmagineLetta> Leggi(const std::filesystem::path& file, const TipoDoc& tipo) {
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

}  // namespace

std::optional<ImmagineLetta> LeggiModello(const std::filesystem::path& file, const TipoDoc& tipo) {
  try {
    return Leggi(file, tipo);
  } catch (const std::bad_alloc&) {  // one file that is too large must not stop the others
    Segnala(file, NumeroErrore::MemoriaEsaurita);
    return std::nullopt;
  }
}

}  // namespace parvik::batch
