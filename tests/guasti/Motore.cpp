#include "guasti/Motore.h"

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>

namespace parvik::prova {
namespace {

bool Dentro(std::string_view percorso, std::string_view cartella) {
  if (!percorso.starts_with(cartella)) return false;
  return percorso.size() == cartella.size() || percorso[cartella.size()] == '/';
}

std::string_view UltimoNome(std::string_view percorso) {
  return percorso.substr(percorso.rfind('/') + 1);
}

}  // namespace

Motore& Motore::Unico() {
  static Motore motore;
  return motore;
}

/// Its own files are opened and written past the replaced functions.
Motore::Motore() {
  if (const char* piano = std::getenv("PARVIK_GUASTI")) piano_ = DaScritto(piano);
  const char* diario = std::getenv("PARVIK_GUASTI_DIARIO");
  if (diario == nullptr) return;
  diario_ = static_cast<int>(
      ::syscall(SYS_openat, AT_FDCWD, diario, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600));
}

void Motore::Pianifica(PianoGuasti piano) {
  const std::lock_guard chiuso(porta_);
  piano_ = std::move(piano);
  chiamate_.clear();
  ++piani_;
  cambiato_.notify_all();
}

std::vector<std::string> Motore::Chiamate() const {
  const std::lock_guard chiuso(porta_);
  return chiamate_;
}

bool Motore::Sorvegliato(std::string_view percorso) const {
  for (const std::string& cartella : piano_.Cartelle) {
    if (Dentro(percorso, cartella)) return true;
  }
  return false;
}

bool Motore::Chiuso(std::string_view percorso) const {
  const std::lock_guard chiuso(porta_);
  return !piano_.Chiusa.empty() && Dentro(percorso, piano_.Chiusa);
}

bool Motore::SenzaLucchetti() const {
  const std::lock_guard chiuso(porta_);
  if (piano_.SenzaLucchetti == 0) return false;
  errno = piano_.SenzaLucchetti;
  return true;
}

void Motore::Chiuso(int numero) {
  const std::lock_guard chiuso(porta_);
  aperti_.erase(numero);
}

void Motore::Aperto(int numero, std::string_view percorso) {
  const std::lock_guard chiuso(porta_);
  if (numero >= 0 && Sorvegliato(percorso)) aperti_[numero] = percorso;
}

void Motore::Doppio(int numero, int originale) {
  const std::lock_guard chiuso(porta_);
  const auto quello = aperti_.find(originale);
  if (numero >= 0 && quello != aperti_.end()) aperti_[numero] = quello->second;
}

Motore::Esito Motore::PerPercorso(const char* chiamata, std::string_view percorso) {
  const std::lock_guard chiuso(porta_);
  return Sorvegliato(percorso) ? Attesa(Conta(chiamata, percorso)) : Esito::Estraneo;
}

Motore::Esito Motore::PerDescrittore(const char* chiamata, int numero) {
  const std::lock_guard chiuso(porta_);
  const auto quello = aperti_.find(numero);
  return quello == aperti_.end() ? Esito::Estraneo : Attesa(Conta(chiamata, quello->second));
}

/// The caller holds the door, which others may use meanwhile.
Motore::Esito Motore::Attesa(Esito esito) {
  if (esito != Esito::Attendi) return esito;
  cambiato_.wait(porta_, [this, mio = piani_] { return piani_ != mio; });
  return Esito::Prosegui;
}

Motore::Esito Motore::Conta(const char* chiamata, std::string_view percorso) {
  const int numero = static_cast<int>(chiamate_.size()) + 1;
  const Guasto* colto = nullptr;
  for (const Guasto& guasto : piano_.Guasti) {
    if (numero == guasto.Chiamata || (guasto.PerSempre && numero > guasto.Chiamata)) colto = &guasto;
  }
  Annota(std::string(chiamata) + " " + std::string(UltimoNome(percorso)) + (colto == nullptr ? "" : " !"));
  if (colto == nullptr) return Esito::Prosegui;
  switch (colto->Quale) {
    case Guasto::Genere::Errore:
      errno = colto->Errore;
      return Esito::Fallisci;
    case Guasto::Genere::ScritturaCorta:
      return Esito::Accorcia;
    case Guasto::Genere::Attesa:
      return Esito::Attendi;
    case Guasto::Genere::Uccisione:
      ::kill(::getpid(), SIGKILL);
      break;
    case Guasto::Genere::Fermata:
      ::kill(::getpid(), SIGSTOP);
      break;
    case Guasto::Genere::Segnale:
      ::kill(::getpid(), colto->Errore);
      break;
  }
  return Esito::Prosegui;
}

void Motore::Annota(const std::string& riga) {
  chiamate_.push_back(riga);
  if (diario_ < 0) return;
  const std::string conFine = riga + "\n";
  if (::syscall(SYS_write, diario_, conFine.data(), conFine.size()) < 0) std::abort();
}

GuastiInCorso::GuastiInCorso(PianoGuasti piano) {
  Motore::Unico().Pianifica(std::move(piano));
}

GuastiInCorso::~GuastiInCorso() {
  Motore::Unico().Pianifica({});
}

std::vector<std::string> GuastiInCorso::Chiamate() {
  return Motore::Unico().Chiamate();
}

}  // namespace parvik::prova
