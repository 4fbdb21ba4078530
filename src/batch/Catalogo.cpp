#include "batch/Catalogo.h"

#include <algorithm>
#include <string>
#include <system_error>
#include <utility>

#include "batch/Messaggi.h"
#include "catalogue/TrovaTipo.h"
#include "start/Avvio.h"
#include "start/Installazione.h"

namespace parvik::batch {
namespace {

bool Manca(const std::filesystem::path& file) {
  std::error_code errore;
  return std::filesystem::status(file, errore).type() == std::filesystem::file_type::not_found;
}

bool DiAltraVersione(const ErroreSezione& errore) {
  return errore.Numero == NumeroErrore::ArgomentoNonValido;
}

/// "testata, corpo": the sections, each once, that have such an error.
template <class Quale>
std::string SezioniDove(std::span<const ErroreSezione> errori, const Quale& quale) {
  std::string nomi;
  for (const Sezione sezione : TutteLeSezioni) {
    const bool dove =
        std::ranges::any_of(errori, [&](const ErroreSezione& e) { return e.Dove == sezione && quale(e); });
    if (dove) nomi.append(nomi.empty() ? "" : ", ").append(NomiSezioni[Indice(sezione)]);
  }
  return nomi;
}

}  // namespace

std::filesystem::path FileCatalogo(const Opzioni& opzioni) {
  if (opzioni.Campi) return *opzioni.Campi;
  if (opzioni.Velkor) return Installazione::In(*opzioni.Velkor).FileCampi;
  const std::filesystem::path dirVelkor = TrovaDirVelkor(AmbienteDelProcesso(opzioni.Programma));
  if (dirVelkor.empty()) {
    Segnala("VELKOR.INI: Non sono riuscito a trovare la directory di installazione di [velkor].");
    return {};
  }
  return Installazione::In(dirVelkor).FileCampi;
}

std::optional<CatalogoScelto> ApriCatalogo(const Opzioni& opzioni) {
  std::filesystem::path file = FileCatalogo(opzioni);
  if (file.empty()) return std::nullopt;
  if (Manca(file)) {
    Segnala(file, "catalogo non trovato");
    return std::nullopt;
  }
  Esito<Catalogo, std::string> campi = LeggiCatalogo(file);
  if (!campi) {
    Segnala(campi.Errore());
    return std::nullopt;
  }
  return CatalogoScelto{std::move(file), std::move(*campi)};
}

const TipoDoc* TrovaTipo(const CatalogoScelto& catalogo, int numero) {
  if (const std::optional<std::size_t> slot = TipoPerNumero(catalogo.Campi, numero))
    return &catalogo.Campi.TipiDoc()[*slot];
  Segnala(catalogo.File, "tipo di documento " + std::to_string(numero) + " sconosciuto");
  return nullptr;
}

void SegnalaErrori(const CatalogoScelto& catalogo, std::span<const ErroreSezione> errori) {
  for (auto errore = errori.begin(); errore != errori.end(); ++errore) {
    const auto stessaRiga = [errore](const ErroreSezione& altro) {
      return altro.Riga == errore->Riga && altro.Numero == errore->Numero;
    };
    if (std::any_of(errori.begin(), errore, stessaRiga)) continue;
    Segnala(catalogo.File,
            SezioniDove(errori, stessaRiga) + ", riga " + std::to_string(errore->Riga) + ": " +
                (DiAltraVersione(*errore) ? MessaggioVersioneDiversa : TestoErrore(errore->Numero)));
  }
}

bool AltraVersione(std::span<const ErroreSezione> errori) {
  return std::ranges::any_of(errori, DiAltraVersione);
}

}  // namespace parvik::batch
