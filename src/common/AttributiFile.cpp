#include "common/AttributiFile.h"

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <string_view>

#include "common/OperazioniFile.h"
#include "common/Ripeti.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

constexpr const char* NomeAcl = "system.posix_acl_access";
constexpr std::size_t MaxAttributo = 65536;  // of a value, and of the list of names

constexpr mode_t TuttiIBit = 07777;
constexpr mode_t SoloDiritti = 0777;  // without the bits that lend the owner's or the group's identity
constexpr mode_t SoloProprietario = 0700;

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

Acl CopiaEstesi(const Descrittore& nuovo, const fs::path& originale, bool conAcl) {
  std::string nomi(MaxAttributo, '\0');
  const ssize_t lunghi = Ripeti([&] { return ::listxattr(originale.c_str(), nomi.data(), nomi.size()); });
  if (lunghi < 0) return SenzaAttributiEstesi(errno) ? Acl::Nessuna : Acl::Perduta;
  nomi.resize(static_cast<std::size_t>(lunghi));
  Acl acl = Acl::Nessuna;
  for (std::size_t i = 0; i < nomi.size();) {
    const std::string nome = nomi.c_str() + i;
    i += nome.size() + 1;
    if (nome == NomeAcl) {
      acl = conAcl && CopiaEsteso(nuovo, originale, NomeAcl) ? Acl::Copiata : Acl::Perduta;
    } else if (!DelContenuto(nome)) {
      CopiaEsteso(nuovo, originale, nome.c_str());  // refused: the file goes without
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

}  // namespace

void CopiaAttributi(const Descrittore& nuovo, const fs::path& originale) {
  const EsitoSistema<struct stat> vecchio = Stato(originale);
  if (!vecchio) return;
  const auto cambia = [&](uid_t utente) {
    return Ripeti([&] { return ::fchown(nuovo.Numero(), utente, vecchio->st_gid); }) == 0;
  };
  constexpr auto ComeSta = static_cast<uid_t>(-1);
  const bool stessoProprietario = cambia(vecchio->st_uid);
  const bool stessoGruppo = stessoProprietario || cambia(ComeSta);
  const Acl acl = CopiaEstesi(nuovo, originale, stessoGruppo);
  mode_t modo = vecchio->st_mode & (stessoProprietario ? TuttiIBit : SoloDiritti);
  if (!stessoGruppo) modo = PerAltroGruppo(modo);
  if (acl == Acl::Perduta) modo &= SoloProprietario;
  // Last, because a change of owner clears bits of it. Refused, the file keeps the stricter mode of its
  // making.
  static_cast<void>(Ripeti([&] { return ::fchmod(nuovo.Numero(), modo); }));
}

}  // namespace parvik
