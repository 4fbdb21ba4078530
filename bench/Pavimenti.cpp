#include "Pavimenti.h"

#include <cstring>
#include <vector>

namespace parvik::bench {
namespace {

/// The first `cercato` in [da, fine), or `fine`.
const char* Trova(const char* da, const char* fine, char cercato) {
  const void* trovato = std::memchr(da, cercato, static_cast<std::size_t>(fine - da));
  return trovato == nullptr ? fine : static_cast<const char*>(trovato);
}

char* Copia(const char* da, const char* a, char* uscita) {
  const auto byte = static_cast<std::size_t>(a - da);
  std::memcpy(uscita, da, byte);
  return uscita + byte;
}

}  // namespace

char* PassataNuda(std::string_view testo, char* uscita) {
  const char* p = testo.data();
  const char* const fine = p + testo.size();
  while (p != fine) {
    const char* const apertura = Trova(p, fine, '\xAB');
    uscita = Copia(p, apertura, uscita);
    if (apertura == fine) break;
    const char* const chiusura = Trova(apertura, fine, '\xBB');
    uscita = Copia(apertura + 1, chiusura, uscita);
    if (chiusura == fine) break;
    p = chiusura + 1;
  }
  return uscita;
}

char* PassataRighe(std::string_view testo, char* uscita) {
  const char* p = testo.data();
  const char* const fine = p + testo.size();
  while (p != fine) {
    const char* termine = Trova(p, fine, '\r');
    if (termine != fine) termine += fine - termine > 1 ? 2 : 1;
    uscita = Copia(p, termine, uscita);
    p = termine;
  }
  return uscita;
}

char* Copia(std::string_view testo, char* uscita) {
  return Copia(testo.data(), testo.data() + testo.size(), uscita);
}

std::size_t DividiCampi(std::string_view testo) {
  std::size_t quanti = 0;
  std::vector<std::string_view> campi;
  const char* p = testo.data();
  const char* const fine = p + testo.size();
  while (p != fine) {
    campi.clear();
    const char* const termine = Trova(p, fine, '\r');
    while (p != termine) {
      const char* const separatore = Trova(p, termine, ';');
      campi.emplace_back(p, static_cast<std::size_t>(separatore - p));
      p = separatore == termine ? termine : separatore + 1;
    }
    quanti += campi.size();
    if (p != fine) p += fine - p > 1 ? 2 : 1;
  }
  return quanti;
}

}  // namespace parvik::bench
