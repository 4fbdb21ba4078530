#include "sistema/posix/FileProvvisorio.h"

#include <fcntl.h>

#include <cerrno>
#include <utility>

#include "sistema/posix/Ripeti.h"

namespace parvik {

namespace fs = std::filesystem;

FileProvvisorio::FileProvvisorio(PostoProvvisorio posto, const Scrivente& chi)
    : posto_(std::move(posto)),
      chi_(chi),
      nome_(NomeProvvisorio(posto_.Nome, chi_, Provvisorio::Nuovo)),
      inCorso_(nome_) {}

FileProvvisorio::~FileProvvisorio() {
  if (daTogliere_) static_cast<void>(Togli(nome_));
}

/// Between the making of a file and its locking somebody may take it for an abandoned one, and away: EAGAIN.
EsitoSistema<void> FileProvvisorio::Apri(mode_t modo) {
  file_ = ApriFile(nome_, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, modo);
  if (!file_) return errno == EEXIST ? EAGAIN : errno;
  daTogliere_ = true;
  if (Blocca(file_, Blocco::Esclusivo) == Lucchetto::Altrui) return EAGAIN;
  const EsitoSistema<struct stat> stato = Stato(file_);
  if (!stato) return stato.Errore();
  if (stato->st_nlink == 0) return EAGAIN;
  stato_ = *stato;
  lucchetto_ = Descrittore(Ripeti([&] { return ::fcntl(file_.Numero(), F_DUPFD_CLOEXEC, 0); }));
  EsitoSistema<Descrittore> cartella = ApriCartella(CartellaDi(nome_));
  if (!cartella) return cartella.Errore();
  cartella_ = std::move(*cartella);
  return {};
}

EsitoSistema<std::unique_ptr<FileProvvisorio>> FileProvvisorio::Crea(const PostoProvvisorio& posto,
                                                                     mode_t modo) {
  constexpr int MaxTentativi = 10;
  for (int i = 0; i < MaxTentativi; ++i) {
    std::unique_ptr<FileProvvisorio> file(new FileProvvisorio(posto, Scrivente::Questo()));
    EsitoSistema<void> passo = file->Apri(modo);
    if (passo) passo = file->AffrontaRivali();
    if (passo) return file;
    if (passo.Errore() != EAGAIN) return passo.Errore();
  }
  return EBUSY;
}

fs::path FileProvvisorio::NomeVecchio() const {
  return NomeProvvisorio(posto_.Nome, chi_, Provvisorio::Vecchio);
}

EsitoSistema<void> FileProvvisorio::AffrontaRivali() {
  if (!cartella_) return {};
  Rivali rivali(posto_, chi_, cartella_, stato_.st_mtim);
  EsitoSistema<void> passo = rivali.Affronta();
  if (!rivali.CopiaTenuta().empty()) copiaTenuta_ = rivali.CopiaTenuta();
  return passo;
}

EsitoSistema<void> FileProvvisorio::Chiudi() {
  if (const auto passo = Sincronizza(file_); !passo) return passo;
  return parvik::Chiudi(file_);
}

EsitoSistema<void> FileProvvisorio::Rinomina(const fs::path& nome) {
  const EsitoSistema<struct stat> attuale = StatoSenzaSeguire(nome_);
  if (!attuale && attuale.Errore() == ENOENT) return Stato(CartellaDi(nome_)) ? EBUSY : ENOTDIR;
  if (!attuale) return attuale.Errore();
  if (!StessoFile(*attuale, stato_)) return EBUSY;
  if (const auto passo = parvik::Rinomina(nome_, nome); !passo)
    return passo.Errore() == ENOENT ? EBUSY : passo.Errore();
  daTogliere_ = false;
  return {};
}

EsitoSistema<void> FileProvvisorio::SincronizzaNome() {
  if (!cartella_) return {};
  return SincronizzaCartella(cartella_);
}

}  // namespace parvik
