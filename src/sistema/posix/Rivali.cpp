#include "sistema/posix/Rivali.h"

#include <fcntl.h>

#include <cerrno>
#include <optional>
#include <string_view>
#include <vector>

#include "sistema/CopiaPrecedente.h"
#include "sistema/LetturaFile.h"
#include "sistema/posix/NomiInCorso.h"
#include "sistema/posix/NomiProvvisori.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

bool Uguali(const fs::path& a, const fs::path& b) {
  const Esito<std::string> primo = LeggiFile(a);
  const Esito<std::string> secondo = LeggiFile(b);
  return primo && secondo && *primo == *secondo;
}

}  // namespace

struct Rivali::Altro {
  fs::path File;
  Provvisorio Genere = Provvisorio::Nuovo;
  std::optional<Scrivente> Chi;
};

Rivali::Rivali(const PostoProvvisorio& posto, const Scrivente& io, const Descrittore& cartella,
               timespec adesso)
    : posto_(posto), io_(io), cartella_(cartella), adesso_(adesso) {}

EsitoSistema<void> Rivali::Affronta() {
  const NomiProvvisori nomi(posto_.Nome);
  const std::string mio = Testo(io_);
  std::vector<Altro> altri;
  const EsitoSistema<void> letta = LeggiCartella(cartella_, [&](std::string_view nome) {
    const std::optional<NomiProvvisori::Letto> letto = nomi.Leggi(nome);
    if (!letto || (letto->Chi && Testo(*letto->Chi) == mio)) return;
    altri.push_back({.File = CartellaDi(posto_.Nome) / nome, .Genere = letto->Genere, .Chi = letto->Chi});
  });
  if (!letta) return letta;
  for (const Altro& altro : altri) {
    const Stato stato = Guarda(altro);
    if (stato == Stato::AlLavoro && MiPrecede(altro)) return EBUSY;
    if (stato != Stato::Abbandonato) continue;
    if (const auto passo = Sgombera(altro); !passo) return passo;
  }
  return {};
}

/// Of two who see each other the later one gives way, so that one goes on. Whoever lays an old content aside
/// has decided to write over the file, and has come first whenever it began.
bool Rivali::MiPrecede(const Altro& altro) const {
  if (altro.Genere == Provvisorio::Vecchio || !altro.Chi) return true;
  return Testo(*altro.Chi) < Testo(io_);
}

Rivali::Stato Rivali::Guarda(const Altro& altro) const {
  const Descrittore file = ApriFile(altro.File, O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
  if (!file && errno == ENOENT) return Stato::Sparito;
  if (!file && errno == ELOOP) return Stato::Abbandonato;  // a link: no writer makes one
  switch (file ? Blocca(file, Blocco::Condiviso) : Lucchetto::Mancante) {
    case Lucchetto::Altrui:
      return Stato::AlLavoro;
    case Lucchetto::Preso:  // whoever has just made the file and is about to lock it begins anew
      return Stato::Abbandonato;
    case Lucchetto::Mancante:
      break;
  }
  return GuardaSenzaLucchetto(altro);
}

Rivali::Stato Rivali::GuardaSenzaLucchetto(const Altro& altro) const {
  if (!altro.Chi) return GuardaEta(altro);
  // A file that this process could not take away when it was done with it.
  const bool mio = altro.Chi->Sistema == io_.Sistema && altro.Chi->Processo == io_.Processo;
  if (mio && !InCorso(Testo(*altro.Chi))) return Stato::Abbandonato;
  switch (VitaDi(*altro.Chi)) {
    case Vita::Vivo:
      return Stato::AlLavoro;
    case Vita::Morto:
      return Stato::Abbandonato;
    case Vita::Ignota:
      break;
  }
  return GuardaEta(altro);
}

/// Of another system nothing can be known but when it last wrote. Who was only slow loses its save, never the
/// file: what it would rename is gone.
Rivali::Stato Rivali::GuardaEta(const Altro& altro) const {
  constexpr time_t Pazienza = 600;  // seconds
  const EsitoSistema<struct stat> stato = StatoSenzaSeguire(altro.File);
  if (!stato) return stato.Errore() == ENOENT ? Stato::Sparito : Stato::AlLavoro;
  return adesso_.tv_sec - stato->st_mtim.tv_sec > Pazienza ? Stato::Abbandonato : Stato::AlLavoro;
}

EsitoSistema<void> Rivali::Sgombera(const Altro& altro) {
  if (altro.Genere == Provvisorio::Nuovo || Uguali(altro.File, posto_.File)) {
    static_cast<void>(Togli(altro.File));  // in nobody's way: the next save tries again
    return {};
  }
  const fs::path tenuta = NomePrecedente(posto_.Nome);
  if (const auto passo = Rinomina(altro.File, tenuta); !passo) {
    if (passo.Errore() == ENOENT) return {};  // somebody else did it
    return passo;
  }
  if (posto_.Nome != posto_.File) copiaTenuta_ = tenuta;
  return {};
}

}  // namespace parvik
