#include "batch/Catalogo.h"

#include <string>
#include <utility>

#include "app/Avvio.h"
#include "app/Installazione.h"
#include "batch/Messaggi.h"

namespace parvik::batch {
namespace {

/// Empty after a message.
std::filesystem::path FileCatalogo(const Opzioni& opzioni) {
  if (opzioni.Campi) return *opzioni.Campi;
  if (opzioni.Velkor) return Installazione::In(*opzioni.Velkor).FileCampi;
  const std::filesystem::path dirVelkor = TrovaDirVelkor(AmbienteDelProcesso(opzioni.Programma.c_str()));
  if (dirVelkor.empty()) {
    Segnala("VELKOR.INI: Non sono riuscito a trovare la directory di installazione di [velkor].");
    return {};
  }
  return Installazione::In(dirVelkor).FileCampi;
}

}  // namespace

std::optional<CatalogoScelto> ApriCatalogo(const Opzioni& opzioni) {
  std::filesystem::path file = FileCatalogo(opzioni);
  if (file.empty()) return std::nullopt;
  Esito<Catalogo, std::string> campi = LeggiCatalogo(file);
  if (!campi) {
    Segnala(campi.Errore());
    return std::nullopt;
  }
  return CatalogoScelto{std::move(file), std::move(*campi)};
}

const TipoDoc* TrovaTipo(const CatalogoScelto& catalogo, int numero) {
  const auto& tipi = catalogo.Campi.TipiDoc();
  const bool nellaTabella = numero >= 1 && numero <= static_cast<int>(tipi.size());
  const TipoDoc* tipo = nellaTabella ? &tipi[static_cast<std::size_t>(numero) - 1] : nullptr;
  if (tipo != nullptr && !tipo->Descrizione.empty()) return tipo;
  Segnala(catalogo.File, "tipo di documento " + std::to_string(numero) + " sconosciuto");
  return nullptr;
}

bool SegnalaErroreSezione(const CatalogoScelto& catalogo, NumeroErrore errore) {
  const bool altraVersione = errore == NumeroErrore::ArgomentoNonValido;
  Segnala(catalogo.File, altraVersione ? MessaggioVersioneDiversa : TestoErrore(errore));
  return altraVersione;
}

}  // namespace parvik::batch
