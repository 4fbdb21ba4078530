#include "sistema/posix/CopiaDiRiserva.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string>
#include <utility>

#include "common/SeBastaMemoria.h"
#include "sistema/posix/AttributiFile.h"
#include "sistema/posix/CartellaPropria.h"
#include "sistema/posix/Ripeti.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

fs::path CartellaTemporanea() {
  const char* scelta = std::getenv("TMPDIR");
  const std::string nome = "parvik32-" + std::to_string(::geteuid());
  return fs::path(scelta == nullptr || *scelta == '\0' ? "/tmp" : scelta) / nome;
}

/// The name stands for one file of the system, whichever way leads to it.
EsitoSistema<PostoProvvisorio> PostoTemporaneo(const fs::path& originale) {
  const EsitoSistema<struct stat> stato = Stato(originale);
  if (!stato) return stato.Errore();
  // The temporary folder is everybody's.
  const fs::path cartella = CartellaTemporanea();
  if (const auto propria = PreparaCartellaPropria(cartella); !propria) return propria.Errore();
  const std::string numeri = std::to_string(stato->st_dev) + "-" + std::to_string(stato->st_ino) + "-";
  return PostoProvvisorio{.File = originale,
                          .Nome = cartella / NomeDerivato(numeri, originale.filename().string(), "")};
}

}  // namespace

EsitoSistema<void> CopiaDiRiserva::Scrivi(std::string_view contenuto) {
  const EsitoSistema<struct stat> originale = Stato(posto_.File);
  if (!originale) return originale.Errore();
  auto file = FileProvvisorio::Crea(posto_, ModoIniziale(*originale));
  if (!file) return file.Errore();
  file_ = std::move(*file);
  CopiaAttributi(file_->File(), posto_.File, *originale);
  if (const auto passo = ScriviTutto(file_->File(), contenuto); !passo) return passo;
  if (const auto passo = file_->Chiudi(); !passo) return passo;
  if (const auto passo = file_->Rinomina(Nome()); !passo) return passo;
  if (const auto passo = file_->SincronizzaNome(); !passo) return passo;
  // Where there are no locks, whoever did not see this copy in time may be as far.
  return file_->AffrontaRivali();
}

EsitoSistema<CopiaDiRiserva> CopiaDiRiserva::CreaIn(PostoProvvisorio posto, std::string_view contenuto) {
  CopiaDiRiserva copia(std::move(posto));
  const EsitoSistema<void> passo = SeBastaMemoria([&] { return copia.Scrivi(contenuto); }, ENOMEM);
  if (passo) return copia;
  copia.Togli();
  return passo.Errore();
}

EsitoSistema<CopiaDiRiserva> CopiaDiRiserva::Crea(const fs::path& originale, std::string_view contenuto) {
  EsitoSistema<CopiaDiRiserva> accanto = CreaIn({.File = originale, .Nome = originale}, contenuto);
  if (accanto || !NonPrendeFile(accanto.Errore())) return accanto;
  return CreaAltrove(originale, contenuto);
}

/// Another save of this user may find the folder empty, and take it away, at any moment.
EsitoSistema<CopiaDiRiserva> CopiaDiRiserva::CreaAltrove(const fs::path& originale,
                                                         std::string_view contenuto) {
  constexpr int MaxTentativi = 10;
  for (int i = 0; i < MaxTentativi; ++i) {
    const EsitoSistema<PostoProvvisorio> posto = PostoTemporaneo(originale);
    if (!posto && posto.Errore() != ENOENT) return posto.Errore();
    if (!posto) continue;
    EsitoSistema<CopiaDiRiserva> altrove = CreaIn(*posto, contenuto);
    if (altrove || altrove.Errore() != ENOENT) return altrove;
  }
  return ENOTDIR;  // there is no temporary folder
}

/// First the copy, then its lock: nobody finds one without the other.
void CopiaDiRiserva::Togli() {
  if (file_) static_cast<void>(parvik::Togli(Nome()));
  file_.reset();  // and with it the provisional file, when it got no further
  if (posto_.Nome != posto_.File) TogliCartella(CartellaDi(posto_.Nome));
}

}  // namespace parvik
