// The floor of the batch program: one pass over a whole file as somebody would write it for this one
// template, whose codes are all well formed and whose flags are all false. Links nothing of the program.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>

namespace {

const char* Trova(const char* da, const char* fine, char cercato) {
  const void* trovato = std::memchr(da, cercato, static_cast<std::size_t>(fine - da));
  return trovato == nullptr ? fine : static_cast<const char*>(trovato);
}

char* Copia(const char* da, const char* a, char* uscita) {
  std::memcpy(uscita, da, static_cast<std::size_t>(a - da));
  return uscita + (a - da);
}

char* Riempi(int volte, char carattere, char* uscita) {
  if (volte <= 0) return uscita;
  std::memset(uscita, carattere, static_cast<std::size_t>(volte));
  return uscita + volte;
}

int Numero(const char*& p, const char* fine) {
  int numero = 0;
  for (; p != fine && *p >= '0' && *p <= '9'; ++p) numero = numero * 10 + (*p - '0');
  return numero;
}

/// `p` stands behind the variable's width: alignment, fill, format, euro.
char* Formattata(const char* p, const char* fine, int larghezza, char* uscita) {
  const bool sinistra = p != fine && *p == 'L';
  if (p != fine && (*p == 'L' || *p == 'R')) ++p;
  char riempimento = '\0';
  if (fine - p > 2 && *p == '"') {
    riempimento = p[1];
    p += 3;
  }
  if (p == fine || *p != ';') return Riempi(larghezza, riempimento == '\0' ? '$' : riempimento, uscita);
  if (riempimento == '\0') riempimento = ' ';
  const char* const formato = p + 1;
  const char* const dopoFormato = Trova(formato, fine, ';');
  if (Trova(formato, dopoFormato, '0') == dopoFormato) return Riempi(larghezza, riempimento, uscita);
  const char* virgola = Trova(formato, dopoFormato, ',');
  int decimali = -1;
  if (virgola != dopoFormato) decimali = Numero(++virgola, dopoFormato);
  const int occupati = decimali < 0 ? 1 : 2 + decimali;
  if (larghezza < occupati) return Riempi(larghezza, '#', uscita);
  if (!sinistra) uscita = Riempi(larghezza - occupati, riempimento, uscita);
  *uscita++ = '0';
  if (decimali >= 0) *uscita++ = ',';
  uscita = Riempi(decimali, '0', uscita);
  return sinistra ? Riempi(larghezza - occupati, riempimento, uscita) : uscita;
}

char* Variabile(const char* p, const char* fine, char* uscita) {
  if (fine - p > 5 && p[1] == '0' && p[2] == ';') return Copia(p + 4, fine - 1, uscita);
  p = Trova(p, fine, ';');
  if (p == fine) return uscita;
  const int larghezza = Numero(++p, fine);
  return Formattata(p, fine, larghezza, uscita);
}

char* Passata(const char* p, const char* fine, char* uscita) {
  bool nascondi = false;
  while (p != fine) {
    const char* const apertura = Trova(p, fine, '\xAE');
    uscita = Copia(p, apertura, uscita);
    if (apertura == fine) break;
    const char* const codice = apertura + 1;
    const char* const chiusura = Trova(codice, fine, '\xAF');
    p = chiusura == fine ? fine : chiusura + 1;
    if (*codice == 'C') {
      p += 2;  // the marker's line end
    } else if (*codice == 'F') {
      nascondi = true;
    } else if (nascondi) {
      nascondi = false;
    } else if (*codice == 'V') {
      uscita = Variabile(codice, chiusura, uscita);
    } else if (*codice == 'P') {
      uscita = Copia(codice + 1, chiusura, uscita);
    }
  }
  return uscita;
}

bool ScriviTutto(const char* da, const char* a) {
  while (da != a) {
    const ssize_t scritti = write(STDOUT_FILENO, da, static_cast<std::size_t>(a - da));
    if (scritti < 0) return false;
    da += scritti;
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const int file = open(argv[1], O_RDONLY | O_CLOEXEC);
  struct stat stato {};
  if (file < 0 || fstat(file, &stato) != 0) return 2;
  const auto byte = static_cast<std::size_t>(stato.st_size);
  auto* const letto = static_cast<char*>(std::malloc(byte));
  auto* const reso = static_cast<char*>(std::malloc(2 * byte));  // what is not written to takes no memory
  for (std::size_t letti = 0; letti < byte;) {
    const ssize_t n = read(file, letto + letti, byte - letti);
    if (n <= 0) return 2;
    letti += static_cast<std::size_t>(n);
  }
  return ScriviTutto(reso, Passata(letto, letto + byte, reso)) ? 0 : 2;
}
