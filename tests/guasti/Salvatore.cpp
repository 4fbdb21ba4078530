#include "guasti/Salvatore.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "sistema/ScritturaSicura.h"

namespace parvik::prova {
namespace {

Salvatore::Stato Salva(const std::filesystem::path& file, const std::string& byte, const PianoGuasti& piano) {
  const GuastiInCorso inCorso(piano);
  const EsitoScrittura esito = ScriviFile(file, byte);
  if (esito) return Salvatore::Stato::Scritto;
  const bool inUso = esito.Errore().Numero == NumeroErrore::AutorizzazioneNegata &&
                     esito.Errore().Nota.find("in uso") != std::string::npos;
  return inUso ? Salvatore::Stato::InUso : Salvatore::Stato::AltroErrore;
}

}  // namespace

Salvatore::Salvatore(const std::filesystem::path& file, const std::string& byte, const PianoGuasti& piano)
    : figlio_(::fork()) {
  if (figlio_ == 0) ::_exit(static_cast<int>(Salva(file, byte, piano)));
  if (figlio_ < 0) ADD_FAILURE() << "no process";
  Attendi();
}

Salvatore::~Salvatore() {
  if (Fermo()) Uccidi();
}

void Salvatore::Avanza() {
  if (!Fermo()) return;
  ::kill(figlio_, SIGCONT);
  Attendi();
}

void Salvatore::Prosegui() {
  Avanza();
  EXPECT_FALSE(Fermo());
}

void Salvatore::Uccidi() {
  if (!Fermo()) return;
  ::kill(figlio_, SIGKILL);
  Attendi();
}

void Salvatore::Attendi() {
  int stato = 0;
  while (::waitpid(figlio_, &stato, WUNTRACED) < 0 && errno == EINTR) {
  }
  if (WIFSTOPPED(stato)) {
    stato_ = Stato::Fermo;
  } else {
    stato_ = WIFEXITED(stato) ? static_cast<Stato>(WEXITSTATUS(stato)) : Stato::Ucciso;
  }
}

}  // namespace parvik::prova
