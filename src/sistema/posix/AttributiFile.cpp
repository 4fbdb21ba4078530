#include "sistema/posix/AttributiFile.h"

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string>
#include <string_view>

#include "sistema/posix/OperazioniFile.h"
#include "sistema/posix/Ripeti.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

constexpr const char* NomeAcl = "system.posix_acl_access";
/// Access lists that the mode is no part of.
constexpr std::array<std::string_view, 2> AltreAcl = {"system.nfs4_acl", "system.richacl"};
constexpr std::size_t MaxAttributo = 65536;  // of a value, and of the list of names

constexpr mode_t TuttiIBit = 07777;
constexpr mode_t SoloDiritti = 0777;  // without the bits that lend the owner's or the group's identity
constexpr mode_t SoloProprietario = 0700;
constexpr mode_t LetturaScrittura = 0600;

enum class Acl { Nessuna, Copiata, Perduta };

bool SenzaAttributiEstesi(int errore) {
  return errore == ENOTSUP || errore == ENOSYS;
}

/// Those that speak of the bytes of one file: untrue of any other.
bool DelContenuto(std::string_view nome) {
  return nome == "security.ima" || nome == "security.evm" || nome == "security.capability";
}

bool CopiaEsteso(const Descrittore& nuovo, const fs::path& originale, const char* nome) {
  std::string valore(MaxAttributo, '\0');
  const ssize_t lungo =
      Ripeti([&] { return ::getxattr(originale.c_str(), nome, valore.data(), valore.size()); });
  if (lungo < 0) return false;
  return Ripeti([&] {
           return ::fsetxattr(nuovo.Numero(), nome, valore.data(), static_cast<std::size_t>(lungo), 0);
         }) == 0;
}

/// A new file may have inherited an access list from its folder: what the mode gives to the group, that list
/// would give to those whom it names.
Acl TogliEreditata(const Descrittore& nuovo) {
  const int tolta = Ripeti([&] { return ::fremovexattr(nuovo.Numero(), NomeAcl); });
  return tolta == 0 || errno == ENODATA || SenzaAttributiEstesi(errno) ? Acl::Nessuna : Acl::Perduta;
}

/// A file whose attributes cannot be listed has no access list where there are none; a system that takes one
/// away has them.
Acl SenzaElenco(const Descrittore& nuovo, int errore) {
  if (!SenzaAttributiEstesi(errore)) return Acl::Perduta;
  const int tolta = Ripeti([&] { return ::fremovexattr(nuovo.Numero(), NomeAcl); });
  return tolta != 0 && SenzaAttributiEstesi(errno) ? Acl::Nessuna : Acl::Perduta;
}

Acl CopiaEstesi(const Descrittore& nuovo, const fs::path& originale, bool conAcl) {
  std::string nomi(MaxAttributo, '\0');
  const ssize_t lunghi = Ripeti([&] { return ::listxattr(originale.c_str(), nomi.data(), nomi.size()); });
  if (lunghi < 0) return SenzaElenco(nuovo, errno);
  nomi.resize(static_cast<std::size_t>(lunghi));
  Acl acl = Acl::Nessuna;
  for (std::size_t i = 0; i < nomi.size();) {
    const std::string nome = nomi.c_str() + i;
    i += nome.size() + 1;
    if (nome == NomeAcl) {
      const bool copiata = conAcl && CopiaEsteso(nuovo, originale, NomeAcl);
      acl = copiata && acl != Acl::Perduta ? Acl::Copiata : Acl::Perduta;
    } else if (!DelContenuto(nome) && !CopiaEsteso(nuovo, originale, nome.c_str())) {
      // Refused: the file goes without it.
      if (std::ranges::find(AltreAcl, nome) != AltreAcl.end()) acl = Acl::Perduta;
    }
  }
  return acl == Acl::Nessuna ? TogliEreditata(nuovo) : acl;
}

/// The mode for a file whose group is another one: who was in one of the two groups may be among the others
/// now, or the other way round.
mode_t PerAltroGruppo(mode_t modo) {
  const mode_t comuni = (modo >> 3U) & modo & 07U;
  return (modo & SoloProprietario) | comuni << 3U | comuni;
}

struct Appartenenza {
  bool Proprietario = false;
  bool Gruppo = false;
};

/// Whose the new file is as before, after all that could be done.
Appartenenza DaiAppartenenza(const Descrittore& nuovo, const struct stat& vecchio) {
  constexpr auto ComeSta = static_cast<uid_t>(-1);
  const auto cambia = [&](uid_t utente) {
    return Ripeti([&] { return ::fchown(nuovo.Numero(), utente, vecchio.st_gid); }) == 0;
  };
  if (cambia(vecchio.st_uid)) return {.Proprietario = true, .Gruppo = true};
  const bool gruppo = cambia(ComeSta);
  const EsitoSistema<struct stat> attuale = Stato(nuovo);  // what could not be given it may have all the same
  return {.Proprietario = attuale && attuale->st_uid == vecchio.st_uid,
          .Gruppo = gruppo || (attuale && attuale->st_gid == vecchio.st_gid)};
}

/// The mode that the file got: refused, it has the stricter one of its making, or what its system gives to
/// all.
mode_t DaiModo(const Descrittore& nuovo, mode_t modo) {
  if (Ripeti([&] { return ::fchmod(nuovo.Numero(), modo); }) == 0) return modo;
  const EsitoSistema<struct stat> attuale = Stato(nuovo);
  return attuale ? attuale->st_mode : 0;
}

}  // namespace

mode_t ModoIniziale(const struct stat& originale) {
  return originale.st_mode & LetturaScrittura;
}

Diritti CopiaAttributi(const Descrittore& nuovo, const fs::path& originale, const struct stat& vecchio) {
  const Appartenenza sua = DaiAppartenenza(nuovo, vecchio);
  const Acl acl = CopiaEstesi(nuovo, originale, sua.Gruppo);
  mode_t modo = vecchio.st_mode & (sua.Proprietario ? TuttiIBit : SoloDiritti);
  if (!sua.Gruppo) modo = PerAltroGruppo(modo);
  if (acl == Acl::Perduta) modo &= SoloProprietario;
  // Last, because a change of owner clears bits of it.
  modo = DaiModo(nuovo, modo);
  const bool meno = (vecchio.st_mode & SoloDiritti & ~modo) != 0;
  const bool menoAlPrimo = !sua.Proprietario && (vecchio.st_mode & SoloProprietario & ~(modo << 3U)) != 0;
  return meno || menoAlPrimo ? Diritti::Ridotti : Diritti::Conservati;
}

}  // namespace parvik
