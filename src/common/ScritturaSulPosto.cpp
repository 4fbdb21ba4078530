#include "common/ScritturaSulPosto.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <new>

#include "common/CopiaDiRiserva.h"
#include "common/LetturaFile.h"
#include "common/Ripeti.h"

namespace parvik {
namespace {

/// The old bytes are cut off last: their place on the disk is kept for putting them back.
EsitoSistema<void> Sostituisci(const std::filesystem::path& destinazione, std::string_view byte) {
  Descrittore file = ApriFile(destinazione, O_WRONLY | O_NOFOLLOW);
  if (!file) return errno;
  if (const auto passo = ScriviTutto(file, byte); !passo) return passo;
  const auto lunghezza = static_cast<off_t>(byte.size());
  if (Ripeti([&] { return ::ftruncate(file.Numero(), lunghezza); }) != 0) return errno;
  if (const auto passo = Sincronizza(file); !passo) return passo;
  return Chiudi(file);
}

}  // namespace

Esito<void> ScritturaSulPosto::Scrivi(std::string_view byte) {
  try {
    nuovo_.append(byte);
  } catch (const std::bad_alloc&) {
    return NumeroErrore::MemoriaEsaurita;
  }
  return {};
}

Esito<void> ScritturaSulPosto::Conferma() {
  const Esito<std::string> vecchio = LeggiFile(destinazione_);
  if (!vecchio) return vecchio.Errore();
  Esito<CopiaDiRiserva> copia = CopiaDiRiserva::Crea(destinazione_, *vecchio);
  if (!copia) return copia.Errore();
  const EsitoSistema<void> nuovo = Sostituisci(destinazione_, nuovo_);
  if (nuovo || Sostituisci(destinazione_, *vecchio)) copia->Togli();
  return PerUtente(nuovo);
}

}  // namespace parvik
