#include "sistema/posix/ScritturaSulPosto.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "common/TestoMostrabile.h"
#include "sistema/LetturaFile.h"
#include "sistema/posix/CopiaDiRiserva.h"
#include "sistema/posix/Ripeti.h"
#include "sistema/posix/SegnaliSospesi.h"

namespace parvik {
namespace {

/// Whether the name stands for another file now.
bool Sostituito(const std::filesystem::path& destinazione, const struct stat& suo) {
  const EsitoSistema<struct stat> adesso = StatoSenzaSeguire(destinazione);
  return adesso ? !StessoFile(*adesso, suo) : adesso.Errore() == ENOENT;
}

/// The old bytes are cut off last: their place on the disk is kept for putting them back. `toccato` becomes
/// true before anything of the file can have changed.
EsitoSistema<void> Ricopri(const std::filesystem::path& destinazione, const struct stat& suo,
                           std::string_view byte, bool& toccato) {
  Descrittore file = ApriFile(destinazione, O_WRONLY | O_NOFOLLOW);
  if (!file) return errno;
  const EsitoSistema<struct stat> stato = Stato(file);
  if (!stato) return stato.Errore();
  if (!StessoFile(*stato, suo)) return EBUSY;
  toccato = true;
  if (const auto passo = ScriviTutto(file, byte); !passo) return passo;
  const auto lunghezza = static_cast<off_t>(byte.size());
  if (Ripeti([&] { return ::ftruncate(file.Numero(), lunghezza); }) != 0) return errno;
  if (const auto passo = Sincronizza(file); !passo) return passo;
  return Chiudi(file);
}

}  // namespace

EsitoPasso ScritturaSulPosto::Scrivi(std::string_view byte) {
  nuovo_.append(byte);
  return {};
}

/// Nobody else writes over the file while it is locked. Where there are no locks, the copy keeps those away
/// who can see it.
EsitoScrittura ScritturaSulPosto::Conferma() {
  const SegnaliSospesi sospesi;
  const Descrittore bloccato = ApriFile(destinazione_, O_WRONLY | O_NOFOLLOW);
  if (!bloccato) return ErroreDaErrno(errno);
  if (Blocca(bloccato, Blocco::Esclusivo) == Lucchetto::Altrui) return ErroreDaErrno(EBUSY);
  return Sostituisci(bloccato);
}

EsitoScrittura ScritturaSulPosto::Sostituisci(const Descrittore& bloccato) {
  const EsitoSistema<struct stat> suo = Stato(bloccato);
  if (!suo) return ErroreDaErrno(suo.Errore());
  const Esito<std::string> vecchio = LeggiFile(destinazione_);
  if (!vecchio) return ErroreScrittura{vecchio.Errore()};
  EsitoSistema<CopiaDiRiserva> copia = CopiaDiRiserva::Crea(destinazione_, *vecchio);
  if (!copia) return ErroreDaErrno(copia.Errore());
  bool toccato = false;
  const EsitoSistema<void> nuovo = Ricopri(destinazione_, *suo, nuovo_, toccato);
  const bool sostituito = Sostituito(destinazione_, *suo);
  if (!nuovo && toccato && !sostituito && !Ricopri(destinazione_, *suo, *vecchio, toccato)) {
    ErroreScrittura errore = ErroreDaErrno(nuovo.Errore());
    errore.Nota = "Il file può essere rimasto a metà: il contenuto di prima è intero in " +
                  Mostrabile(copia->Nome().string());
    return errore;
  }
  Scritto scritto{.CopiaTenuta = copia->CopiaTenuta()};
  copia->Togli();
  if (sostituito) return ErroreDaErrno(EBUSY);
  if (!nuovo) return ErroreDaErrno(nuovo.Errore());
  return scritto;
}

}  // namespace parvik
