#include <optional>
#include <string>

#include "batch/Catalogo.h"
#include "batch/Comandi.h"
#include "batch/Lettura.h"
#include "batch/Messaggi.h"
#include "sistema/ScritturaSicura.h"

namespace parvik::batch {
namespace {

bool NormalizzaFile(const std::filesystem::path& file, const std::filesystem::path& uscita,
                    const TipoDoc& tipo) {
  std::optional<ImmagineLetta> letta = LeggiModello(file, tipo);
  if (!letta) return false;
  if (letta->TestoNonLetto) {  // writing back what was read would lose the rest
    Segnala(file, *letta->Errore);
    return false;
  }
  const Esito<std::string> immagine = ScriviImmagine(letta->Testi, letta->Corpo, FormatoDi(tipo.NumSezioni));
  if (!immagine) {
    Segnala(file, immagine.Errore());
    return false;
  }
  return SegnalaScritto(uscita, ScriviFile(uscita, *immagine));
}

}  // namespace

Uscita Normalizza(const Opzioni& opzioni) {
  const auto catalogo = ApriCatalogo(opzioni);
  const TipoDoc* tipo = catalogo ? TrovaTipo(*catalogo, opzioni.Tipo) : nullptr;
  if (tipo == nullptr) return Uscita::NonFatto;
  Uscita esito = Uscita::Fatto;
  for (const std::filesystem::path& file : opzioni.File) {
    if (!NormalizzaFile(file, opzioni.Uscita.value_or(file), *tipo)) esito = Uscita::NonFatto;
  }
  return esito;
}

}  // namespace parvik::batch
