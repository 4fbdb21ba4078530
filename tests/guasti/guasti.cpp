// The C library's functions on files, defined anew: each asks the Motore, then calls the real one. The names
// and types are the library's; those that begin with two underscores are what its headers call instead in an
// optimised build.
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>

#include "guasti/Motore.h"

namespace {

using parvik::prova::Motore;
using Esito = parvik::prova::Motore::Esito;

template <class F>
F* Vera(const char* nome, F* /*tipo*/) {
  return reinterpret_cast<F*>(::dlsym(RTLD_NEXT, nome));
}
// The real function of the same name.
#define VERA(funzione) Vera(#funzione, &::funzione)

bool Passa(const char* chiamata, const char* percorso) {
  return Motore::Unico().PerPercorso(chiamata, percorso) != Esito::Fallisci;
}
bool Passa(const char* chiamata, int numero) {
  return Motore::Unico().PerDescrittore(chiamata, numero) != Esito::Fallisci;
}

/// Whether a call that makes or takes away a name is let through.
bool PassaNome(const char* chiamata, const char* percorso) {
  if (!Passa(chiamata, percorso)) return false;
  if (!Motore::Unico().Chiuso(percorso)) return true;
  errno = EACCES;
  return false;
}

int Apri(const char* percorso, int opzioni, mode_t modo) {
  const bool passa = (opzioni & O_CREAT) != 0 ? PassaNome("open", percorso) : Passa("open", percorso);
  if (!passa) return -1;
  const int numero = VERA(open)(percorso, opzioni, modo);
  Motore::Unico().Aperto(numero, percorso);
  return numero;
}

}  // namespace

extern "C" {

int open(const char* percorso, int opzioni, ...) {
  mode_t modo = 0;
  if ((opzioni & O_CREAT) != 0) {
    va_list altri;
    va_start(altri, opzioni);
    modo = va_arg(altri, mode_t);
    va_end(altri);
  }
  return Apri(percorso, opzioni, modo);
}

int __open_2(const char* percorso, int opzioni) {
  return Apri(percorso, opzioni, 0);
}

int close(int numero) {
  const bool passa = Passa("close", numero);
  const int errore = errno;
  Motore::Unico().Chiuso(numero);
  const int esito = VERA(close)(numero);
  if (passa) return esito;
  errno = errore;
  return -1;
}

ssize_t read(int numero, void* dove, size_t quanti) {
  return Passa("read", numero) ? VERA(read)(numero, dove, quanti) : -1;
}

ssize_t __read_chk(int numero, void* dove, size_t quanti, size_t /*spazio*/) {
  return read(numero, dove, quanti);
}

ssize_t write(int numero, const void* byte, size_t quanti) {
  const Esito esito = Motore::Unico().PerDescrittore("write", numero);
  if (esito == Esito::Fallisci) return -1;
  return VERA(write)(numero, byte, esito == Esito::Accorcia ? (quanti + 1) / 2 : quanti);
}

/// What is in the folders is looked at and thrown away: waiting for the disk would prove nothing.
int fsync(int numero) {
  const Esito esito = Motore::Unico().PerDescrittore("fsync", numero);
  if (esito == Esito::Estraneo) return VERA(fsync)(numero);
  return esito == Esito::Fallisci ? -1 : 0;
}

int ftruncate(int numero, off_t lunghezza) noexcept {
  return Passa("ftruncate", numero) ? VERA(ftruncate)(numero, lunghezza) : -1;
}

int fchown(int numero, uid_t utente, gid_t gruppo) noexcept {
  return Passa("fchown", numero) ? VERA(fchown)(numero, utente, gruppo) : -1;
}

int fchmod(int numero, mode_t modo) noexcept {
  return Passa("fchmod", numero) ? VERA(fchmod)(numero, modo) : -1;
}

int flock(int numero, int operazione) noexcept {
  if (!Passa("flock", numero) || Motore::Unico().SenzaLucchetti()) return -1;
  return VERA(flock)(numero, operazione);
}

ssize_t getdents64(int numero, void* dove, size_t spazio) noexcept {
  return Passa("getdents64", numero) ? VERA(getdents64)(numero, dove, spazio) : -1;
}

int fcntl(int numero, int comando, ...) {
  va_list altri;
  va_start(altri, comando);
  void* const altro = va_arg(altri, void*);  // an int fits into it
  va_end(altri);
  if (!Passa("fcntl", numero)) return -1;
  const int esito = VERA(fcntl)(numero, comando, altro);
  if (comando == F_DUPFD_CLOEXEC || comando == F_DUPFD) Motore::Unico().Doppio(esito, numero);
  return esito;
}

int stat(const char* percorso, struct stat* stato) noexcept {
  return Passa("stat", percorso) ? VERA(stat)(percorso, stato) : -1;
}

int lstat(const char* percorso, struct stat* stato) noexcept {
  return Passa("lstat", percorso) ? VERA(lstat)(percorso, stato) : -1;
}

int fstat(int numero, struct stat* stato) noexcept {
  return Passa("fstat", numero) ? VERA(fstat)(numero, stato) : -1;
}

int faccessat(int cartella, const char* percorso, int modo, int opzioni) noexcept {
  return Passa("faccessat", percorso) ? VERA(faccessat)(cartella, percorso, modo, opzioni) : -1;
}

ssize_t readlink(const char* percorso, char* dove, size_t spazio) noexcept {
  return Passa("readlink", percorso) ? VERA(readlink)(percorso, dove, spazio) : -1;
}

ssize_t __readlink_chk(const char* percorso, char* dove, size_t quanti, size_t /*spazio*/) {
  return readlink(percorso, dove, quanti);
}

ssize_t listxattr(const char* percorso, char* nomi, size_t spazio) noexcept {
  return Passa("listxattr", percorso) ? VERA(listxattr)(percorso, nomi, spazio) : -1;
}

ssize_t getxattr(const char* percorso, const char* nome, void* valore, size_t spazio) noexcept {
  return Passa("getxattr", percorso) ? VERA(getxattr)(percorso, nome, valore, spazio) : -1;
}

int fsetxattr(int numero, const char* nome, const void* valore, size_t lungo, int opzioni) noexcept {
  return Passa("fsetxattr", numero) ? VERA(fsetxattr)(numero, nome, valore, lungo, opzioni) : -1;
}

int fremovexattr(int numero, const char* nome) noexcept {
  return Passa("fremovexattr", numero) ? VERA(fremovexattr)(numero, nome) : -1;
}

int rename(const char* da, const char* a) noexcept {
  return PassaNome("rename", da) ? VERA(rename)(da, a) : -1;
}

int unlink(const char* percorso) noexcept {
  return PassaNome("unlink", percorso) ? VERA(unlink)(percorso) : -1;
}

int mkdir(const char* percorso, mode_t modo) noexcept {
  return PassaNome("mkdir", percorso) ? VERA(mkdir)(percorso, modo) : -1;
}

int rmdir(const char* percorso) noexcept {
  return PassaNome("rmdir", percorso) ? VERA(rmdir)(percorso) : -1;
}
}
