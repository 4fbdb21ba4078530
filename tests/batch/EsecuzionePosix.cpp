#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>

#include "batch/Esecuzione.h"
#include "sistema/posix/Descrittore.h"

namespace parvik::prova {
namespace {

struct Tubo {
  Tubo() {
    std::array<int, 2> capi = {-1, -1};
    if (::pipe2(capi.data(), O_CLOEXEC) != 0) ADD_FAILURE() << "no pipe";
    Lettura = Descrittore(capi[0]);
    Scrittura = Descrittore(capi[1]);
  }
  Descrittore Lettura;
  Descrittore Scrittura;
};

class Azioni {
 public:
  Azioni() { posix_spawn_file_actions_init(&azioni_); }
  Azioni(const Azioni&) = delete;
  Azioni& operator=(const Azioni&) = delete;
  ~Azioni() { posix_spawn_file_actions_destroy(&azioni_); }

  void Indirizza(int numero, const Tubo& tubo) {
    posix_spawn_file_actions_adddup2(&azioni_, tubo.Scrittura.Numero(), numero);
  }
  void Apri(int numero, const char* file) {
    posix_spawn_file_actions_addopen(&azioni_, numero, file, O_RDWR, 0);
  }
  void Cambia(const std::filesystem::path& cartella) {
    posix_spawn_file_actions_addchdir_np(&azioni_, cartella.c_str());
  }
  void Chiudi(int numero) { posix_spawn_file_actions_addclose(&azioni_, numero); }
  const posix_spawn_file_actions_t* Puntatore() const { return &azioni_; }

 private:
  posix_spawn_file_actions_t azioni_ = {};
};

std::vector<char*> Puntatori(std::vector<std::string>& testi) {
  std::vector<char*> puntatori;
  for (std::string& testo : testi) puntatori.push_back(testo.data());
  puntatori.push_back(nullptr);
  return puntatori;
}

/// The test's own variables, but no place where somebody may keep a profile.
std::vector<std::string> Ambiente(const std::filesystem::path& casa) {
  const std::string dove = casa.empty() ? "/nonexistent" : casa.string();
  std::vector<std::string> ambiente = {"HOME=" + dove, "XDG_CONFIG_HOME=" + dove,
                                       "XDG_CONFIG_DIRS=/nonexistent"};
  for (char** v = environ; *v != nullptr; ++v) {
    const std::string_view variabile = *v;
    if (!variabile.starts_with("HOME=") && !variabile.starts_with("XDG_CONFIG"))
      ambiente.emplace_back(variabile);
  }
  return ambiente;
}

/// What to put before the program while the test acts as another user: the program is then wholly that
/// user's. As a mixture of both it might not be looked into, which the leak detector does.
std::vector<std::string> ComeAltroUtente() {
  if (::getuid() == ::geteuid()) return {};
  return {"/usr/bin/setpriv", "--reuid=" + std::to_string(::geteuid()),
          "--regid=" + std::to_string(::getegid()), "--keep-groups"};
}

pid_t Lancia(const std::vector<std::string>& argomenti, const Avvio& avvio, const Azioni& azioni) {
  std::vector<std::string> parole = ComeAltroUtente();
  if (avvio.Memoria > 0) {
    parole.insert(parole.end(), {"/usr/bin/prlimit", "--as=" + std::to_string(avvio.Memoria)});
  }
  if (avvio.LunghezzaFile) {
    parole.insert(parole.end(), {"/usr/bin/prlimit", "--fsize=" + std::to_string(*avvio.LunghezzaFile)});
  }
  parole.push_back(avvio.Programma.string());
  parole.insert(parole.end(), argomenti.begin(), argomenti.end());
  std::vector<std::string> ambiente = Ambiente(avvio.Casa);
  pid_t figlio = -1;
  const std::string programma = parole.front();
  const int errore = ::posix_spawn(&figlio, programma.c_str(), azioni.Puntatore(), nullptr,
                                   Puntatori(parole).data(), Puntatori(ambiente).data());
  if (errore != 0) ADD_FAILURE() << "cannot run " << programma;
  return errore == 0 ? figlio : -1;
}

/// Takes what can be read now; false at the end.
bool LeggiPezzo(const Descrittore& tubo, std::string& testo) {
  std::array<char, 65536> pezzo;
  const ssize_t n = ::read(tubo.Numero(), pezzo.data(), pezzo.size());
  if (n > 0) testo.append(pezzo.data(), static_cast<std::size_t>(n));
  return n > 0 || (n < 0 && errno == EINTR);
}

/// Reads both until both are at their end. False when that takes too long.
bool Raccogli(const Descrittore& uscita, const Descrittore& errori, Esecuzione& esecuzione) {
  const auto scadenza = std::chrono::steady_clock::now() + std::chrono::seconds(30);
  std::array<pollfd, 2> attese = {pollfd{.fd = uscita.Numero(), .events = POLLIN, .revents = 0},
                                  pollfd{.fd = errori.Numero(), .events = POLLIN, .revents = 0}};
  while (attese[0].fd >= 0 || attese[1].fd >= 0) {
    if (std::chrono::steady_clock::now() > scadenza) return false;
    if (::poll(attese.data(), attese.size(), 1000) <= 0) continue;
    if (attese[0].revents != 0 && !LeggiPezzo(uscita, esecuzione.Uscita)) attese[0].fd = -1;
    if (attese[1].revents != 0 && !LeggiPezzo(errori, esecuzione.Errori)) attese[1].fd = -1;
  }
  return true;
}

int Attendi(pid_t figlio) {
  int stato = 0;
  while (::waitpid(figlio, &stato, 0) < 0 && errno == EINTR) {
  }
  return WIFEXITED(stato) ? WEXITSTATUS(stato) : -WTERMSIG(stato);
}

void IndirizzaUscita(UscitaStandard dove, Tubo& tubo, Azioni& azioni) {
  switch (dove) {
    case UscitaStandard::Raccolta:
      azioni.Indirizza(STDOUT_FILENO, tubo);
      break;
    case UscitaStandard::Chiusa:
      azioni.Chiudi(STDOUT_FILENO);
      break;
    case UscitaStandard::DiscoPieno:
      azioni.Apri(STDOUT_FILENO, "/dev/full");
      break;
    case UscitaStandard::NessunoLegge:
      azioni.Indirizza(STDOUT_FILENO, tubo);
      tubo.Lettura = Descrittore();
      break;
  }
}

}  // namespace

bool MemoriaLimitabile() {
#ifdef __SANITIZE_ADDRESS__
  return false;
#else
  return true;
#endif
}

std::string_view PercheSenzaLimite() {
  return "a program under the address sanitizer has no limit of memory";
}

bool DispositivoPieno() {
  return std::filesystem::exists("/dev/full");
}

Esecuzione Esegui(const std::vector<std::string>& argomenti, const Avvio& avvio) {
  Tubo uscita;
  Tubo errori;
  Azioni azioni;
  IndirizzaUscita(avvio.Uscita, uscita, azioni);
  azioni.Indirizza(STDERR_FILENO, errori);
  if (avvio.ErroriChiusi) azioni.Chiudi(STDERR_FILENO);
  azioni.Apri(STDIN_FILENO, "/dev/null");
  if (!avvio.Cartella.empty()) azioni.Cambia(avvio.Cartella);
  Esecuzione esecuzione;
  const pid_t figlio = Lancia(argomenti, avvio, azioni);
  if (figlio < 0) return esecuzione;
  uscita.Scrittura = Descrittore();
  errori.Scrittura = Descrittore();
  if (!Raccogli(uscita.Lettura, errori.Lettura, esecuzione)) {
    ADD_FAILURE() << "the program does not end";
    ::kill(figlio, SIGKILL);
  }
  esecuzione.Stato = Attendi(figlio);
  return esecuzione;
}

}  // namespace parvik::prova
