#include "output/StampaSuFile.h"

#include <utility>

namespace parvik {

RigheSuFile::RigheSuFile(ScritturaSicura file, std::stop_token smetti)
    : file_(std::move(file)), smetti_(std::move(smetti)) {}

/// The question comes last, so that it is asked after the last lines too: nobody asks again before Conferma.
bool RigheSuFile::Righe(std::string_view righe) {
  scritto_ = file_.Scrivi(righe);
  return scritto_ && Continua();
}

EsitoScrittura RigheSuFile::Conferma() {
  if (!scritto_) return scritto_.Errore();
  return file_.Conferma();
}

std::optional<Scritto> StampaSuFile(const std::filesystem::path& file, const DatiStampa& dati,
                                    const std::stop_token& smetti) {
  auto aperto = ScritturaSicura::Apri(file);
  if (!aperto) return std::nullopt;
  RigheSuFile uscita(std::move(*aperto), smetti);
  if (!GeneraStampa(dati, TipoStampa::File, uscita)) return std::nullopt;
  EsitoScrittura scritto = uscita.Conferma();
  if (!scritto) return std::nullopt;
  return std::move(*scritto);
}

}  // namespace parvik
