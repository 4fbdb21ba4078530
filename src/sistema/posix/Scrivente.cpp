#include "sistema/posix/Scrivente.h"

#include <sys/utsname.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <chrono>
#include <csignal>

#include "common/Impronta.h"
#include "sistema/LetturaFile.h"
#include "sistema/posix/OperazioniFile.h"

namespace parvik {
namespace {

constexpr unsigned int CifreInizio = 16;
constexpr unsigned int CifreNumero = 8;
constexpr unsigned int CifreNascita = 12;
constexpr std::uint64_t MassimaNascita = (1ULL << (CifreNascita * 4)) - 1;

/// The number of the system's run. Processes that do not see each other's numbers count as of two systems.
std::uint32_t SistemaInCorso() {
  struct utsname nomi = {};
  ::uname(&nomi);
  std::string testo = nomi.nodename;
  if (const Esito<std::string> avvio = LeggiFile("/proc/sys/kernel/random/boot_id")) testo += *avvio;
  if (const auto numeri = Stato(std::filesystem::path("/proc/self/ns/pid")))
    testo += std::to_string(numeri->st_ino);
  return static_cast<std::uint32_t>(Impronta(testo));
}

struct StatoProcesso {
  char Lettera = '?';
  std::uint64_t Nascita = 0;
};

/// What the system tells of a process; nothing where it does not.
StatoProcesso LeggiStato(const std::string& processo) {
  constexpr int CampiTraLetteraENascita = 19;
  const Esito<std::string> riga = LeggiFile("/proc/" + processo + "/stat");
  if (!riga) return {};
  // The second field is a name in brackets with anything in it; the letter follows, and the birth is
  // field 22.
  std::size_t i = riga->rfind(')');
  if (i == std::string::npos || i + 2 >= riga->size()) return {};
  i += 2;
  StatoProcesso stato{.Lettera = (*riga)[i]};
  for (int campo = 0; campo < CampiTraLetteraENascita && i != std::string::npos; ++campo) {
    i = riga->find(' ', i + 1);
  }
  if (i == std::string::npos) return stato;
  std::from_chars(riga->data() + i + 1, riga->data() + riga->size(), stato.Nascita);
  stato.Nascita &= MassimaNascita;
  return stato;
}

template <class Numero>
bool Leggi(std::string_view& testo, unsigned int cifre, Numero& numero) {
  const std::string_view parte = testo.substr(0, cifre);
  // The writing is one: no sign, no capitals.
  if (parte.size() != cifre || parte.find_first_not_of("0123456789abcdef") != std::string_view::npos)
    return false;
  std::from_chars(parte.data(), parte.data() + parte.size(), numero, 16);
  testo.remove_prefix(cifre);
  return true;
}

bool Trattino(std::string_view& testo) {
  if (!testo.starts_with('-')) return false;
  testo.remove_prefix(1);
  return true;
}

}  // namespace

Scrivente Scrivente::Questo() {
  const auto adesso = std::chrono::system_clock::now().time_since_epoch();
  const auto inizio = std::chrono::duration_cast<std::chrono::nanoseconds>(adesso).count();
  return {.Inizio = static_cast<std::uint64_t>(inizio),
          .Sistema = SistemaInCorso(),
          .Processo = static_cast<std::uint32_t>(::getpid()),
          .Nascita = LeggiStato("self").Nascita};
}

std::string Testo(const Scrivente& chi) {
  return Esadecimale(chi.Inizio, CifreInizio) + "-" + Esadecimale(chi.Sistema, CifreNumero) + "-" +
         Esadecimale(chi.Processo, CifreNumero) + "-" + Esadecimale(chi.Nascita, CifreNascita);
}

std::optional<Scrivente> LeggiScrivente(std::string_view testo) {
  Scrivente chi;
  const bool letto = Leggi(testo, CifreInizio, chi.Inizio) && Trattino(testo) &&
                     Leggi(testo, CifreNumero, chi.Sistema) && Trattino(testo) &&
                     Leggi(testo, CifreNumero, chi.Processo) && Trattino(testo) &&
                     Leggi(testo, CifreNascita, chi.Nascita) && testo.empty();
  return letto ? std::optional(chi) : std::nullopt;
}

Vita VitaDi(const Scrivente& chi) {
  if (chi.Sistema != SistemaInCorso()) return Vita::Ignota;
  const auto numero = static_cast<pid_t>(chi.Processo);
  if (numero <= 0 || (::kill(numero, 0) != 0 && errno == ESRCH)) return Vita::Morto;
  const StatoProcesso stato = LeggiStato(std::to_string(numero));
  if (stato.Lettera == 'Z' || stato.Lettera == 'X') return Vita::Morto;  // it only waits to be buried
  // The number may have been given to another process since.
  const bool altro = stato.Nascita != 0 && chi.Nascita != 0 && stato.Nascita != chi.Nascita;
  return altro ? Vita::Morto : Vita::Vivo;
}

}  // namespace parvik
