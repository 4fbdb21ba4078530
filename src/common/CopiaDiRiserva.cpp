#include "common/CopiaDiRiserva.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string>
#include <utility>

#include "common/CopiaPrecedente.h"
#include "common/LetturaFile.h"
#include "common/Ripeti.h"
#include "common/ScritturaAccanto.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

fs::path NomeRiserva(const fs::path& file) {
  return CartellaDi(file) / NomeDerivato(".", file.filename().string(), ".vecchio~");
}

fs::path CartellaTemporanea() {
  const char* scelta = std::getenv("TMPDIR");
  return scelta == nullptr || *scelta == '\0' ? "/tmp" : scelta;
}

/// Nobody else may put anything into it, or see what is there: the temporary folder is everybody's.
EsitoSistema<fs::path> CartellaPropria() {
  const fs::path cartella = CartellaTemporanea() / ("parvik32-" + std::to_string(::geteuid()));
  if (Ripeti([&] { return ::mkdir(cartella.c_str(), 0700); }) != 0 && errno != EEXIST) return errno;
  const EsitoSistema<struct stat> stato = StatoSenzaSeguire(cartella);
  if (!stato) return stato.Errore();
  const bool propria =
      S_ISDIR(stato->st_mode) && stato->st_uid == ::geteuid() && (stato->st_mode & 077U) == 0;
  if (!propria) return EACCES;
  return cartella;
}

bool Uguali(const fs::path& a, const fs::path& b) {
  const Esito<std::string> primo = LeggiFile(a);
  const Esito<std::string> secondo = LeggiFile(b);
  return primo && secondo && *primo == *secondo;
}

EsitoSistema<void> Conserva(const fs::path& nome, const fs::path& file) {
  const fs::path riserva = NomeRiserva(nome);
  const EsitoSistema<struct stat> stato = StatoSenzaSeguire(riserva);
  if (!stato && stato.Errore() == ENOENT) return {};
  if (!stato) return stato.Errore();
  const Descrittore copia = ApriFile(riserva, O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
  if (copia && !Blocca(copia)) return EBUSY;
  if (S_ISREG(stato->st_mode) && !Uguali(riserva, file)) return Rinomina(riserva, NomePrecedente(nome));
  return parvik::Togli(riserva);
}

}  // namespace

/// The name stands for one file of the system, whichever way leads to it.
EsitoSistema<CopiaDiRiserva::Posto> CopiaDiRiserva::PostoTemporaneo(const fs::path& originale) {
  const EsitoSistema<struct stat> stato = Stato(originale);
  if (!stato) return stato.Errore();
  const EsitoSistema<fs::path> cartella = CartellaPropria();
  if (!cartella) return cartella.Errore();
  const std::string numeri = std::to_string(stato->st_dev) + "-" + std::to_string(stato->st_ino) + "-";
  Posto posto = {.Nome = *cartella / NomeDerivato(numeri, originale.filename().string(), ""),
                 .Temporanea = *cartella};
  return posto;
}

EsitoSistema<void> CopiaDiRiserva::Apri(const fs::path& originale) {
  if (const auto passo = Conserva(posto_.Nome, originale); !passo) return passo;
  auto strada = ScritturaAccanto::Apri({.Destinazione = NomeRiserva(posto_.Nome),
                                        .Provvisorio = NomeProvvisorio(posto_.Nome),
                                        .Originale = originale});
  if (!strada) return strada.Errore();
  strada_ = std::move(*strada);
  return {};
}

Esito<CopiaDiRiserva> CopiaDiRiserva::Crea(const fs::path& originale, std::string_view contenuto) {
  CopiaDiRiserva copia({.Nome = originale});
  EsitoSistema<void> aperta = copia.Apri(originale);
  if (!aperta && NonPrendeFile(aperta.Errore())) {
    EsitoSistema<Posto> posto = PostoTemporaneo(originale);
    if (!posto) return DaErrno(posto.Errore());
    copia.posto_ = std::move(*posto);
    aperta = copia.Apri(originale);
  }
  if (!aperta) {
    copia.TogliCartella();
    return DaErrno(aperta.Errore());
  }
  Esito<void> scritta = copia.strada_->Scrivi(contenuto);
  if (scritta) scritta = copia.strada_->Conferma();
  if (scritta) return copia;
  copia.Togli();
  return scritta.Errore();
}

void CopiaDiRiserva::Togli() {
  strada_.reset();  // and with it its provisional file, when it got no further
  static_cast<void>(parvik::Togli(NomeRiserva(posto_.Nome)));
  TogliCartella();
}

void CopiaDiRiserva::TogliCartella() const {
  if (!posto_.Temporanea.empty()) ::rmdir(posto_.Temporanea.c_str());  // unless something else is in it
}

EsitoSistema<void> ConservaCopiaInterrotta(const fs::path& file) {
  return Conserva(file, file);
}

}  // namespace parvik
