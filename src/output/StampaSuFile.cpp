#include "output/StampaSuFile.h"

#include <utility>

namespace parvik {

RigheSuFile::RigheSuFile(ScritturaSicura file, std::stop_token smetti)
    : file_(std::move(file)), smetti_(std::move(smetti)) {}

bool RigheSuFile::Righe(std::string_view righe) {
  if (!Continua()) return false;
  scritto_ = file_.Scrivi(righe);
  return static_cast<bool>(scritto_);
}

Esito<void> RigheSuFile::Conferma() {
  if (scritto_) scritto_ = file_.Conferma();
  return scritto_;
}

bool StampaSuFile(const std::filesystem::path& file, const DatiStampa& dati, const std::stop_token& smetti) {
  Esito<ScritturaSicura> aperto = ScritturaSicura::Apri(file);
  if (!aperto) return false;
  RigheSuFile uscita(std::move(*aperto), smetti);
  return GeneraStampa(dati, TipoStampa::File, uscita) && uscita.Conferma();
}

}  // namespace parvik
