#include "sistema/posix/ScritturaAccanto.h"

#include <cerrno>
#include <utility>

#include "sistema/posix/AttributiFile.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

constexpr mode_t ModoNuovo = 0666;  // less the umask

bool Immutato(const struct stat& prima, const struct stat& dopo) {
  return StessoFile(prima, dopo) && prima.st_size == dopo.st_size &&
         prima.st_mtim.tv_sec == dopo.st_mtim.tv_sec && prima.st_mtim.tv_nsec == dopo.st_mtim.tv_nsec;
}

}  // namespace

EsitoSistema<ScritturaAccanto::Aspetto> ScritturaAccanto::Guarda(const fs::path& destinazione) {
  const EsitoSistema<struct stat> stato = StatoSenzaSeguire(destinazione);
  if (stato) return Aspetto(*stato);
  if (stato.Errore() == ENOENT) return Aspetto();
  return stato.Errore();
}

EsitoSistema<std::unique_ptr<ScritturaAccanto>> ScritturaAccanto::Apri(Meta meta) {
  const EsitoSistema<Aspetto> prima = Guarda(meta.Destinazione);
  if (!prima) return prima.Errore();
  std::unique_ptr<ScritturaAccanto> strada(new ScritturaAccanto(std::move(meta), *prima));
  if (const auto passo = strada->Crea(); !passo) return passo.Errore();
  return strada;
}

EsitoSistema<void> ScritturaAccanto::Crea() {
  Aspetto originale;
  if (meta_.Originale == meta_.Destinazione) {
    originale = prima_;
  } else if (!meta_.Originale.empty()) {
    const EsitoSistema<struct stat> stato = Stato(meta_.Originale);
    if (!stato) return stato.Errore();
    originale = *stato;
  }
  const fs::path& nome = meta_.Destinazione;
  auto file =
      FileProvvisorio::Crea({.File = nome, .Nome = nome}, originale ? ModoIniziale(*originale) : ModoNuovo);
  if (!file) return file.Errore();
  file_ = std::move(*file);
  if (originale) diritti_ = CopiaAttributi(file_->File(), meta_.Originale, *originale);
  return {};
}

EsitoPasso ScritturaAccanto::Scrivi(std::string_view byte) {
  return PerUtente(ScriviTutto(file_->File(), byte));
}

/// Somebody may have begun when this writer's file could not be seen yet, and be done already.
EsitoSistema<void> ScritturaAccanto::Sostituisci() {
  if (const auto passo = file_->Chiudi(); !passo) return passo;
  const EsitoSistema<Aspetto> adesso = Guarda(meta_.Destinazione);
  if (!adesso) return adesso.Errore();
  if (prima_.has_value() != adesso->has_value()) return EBUSY;
  if (prima_ && !Immutato(*prima_, **adesso)) return EBUSY;
  return file_->Rinomina(meta_.Destinazione);
}

EsitoScrittura ScritturaAccanto::Conferma() {
  EsitoSistema<void> passo = Sostituisci();
  if (passo) passo = file_->SincronizzaNome();
  if (!passo) return ErroreDaErrno(passo.Errore());
  return Scritto{.Accesso = diritti_, .CopiaTenuta = file_->CopiaTenuta()};
}

}  // namespace parvik
