#include "catalogue/TrovaTipo.h"

#include "common/Percorsi.h"
#include "common/Windows1252.h"

namespace parvik {
namespace {

constexpr std::size_t Nessuno = std::string_view::npos;

/// How many bytes the UTF-8 character at `posto` has; a byte that begins none counts by itself.
std::size_t Lunghezza(std::string_view testo, std::size_t posto) {
  std::size_t fine = posto + 1;
  while (fine < testo.size() && (static_cast<unsigned char>(testo[fine]) & 0xC0U) == 0x80U) ++fine;
  return fine - posto;
}

}  // namespace

std::optional<std::size_t> TipoPerNumero(const Catalogo& catalogo, int numero) {
  if (numero < 1 || numero > static_cast<int>(MaxTipiDoc)) return std::nullopt;
  const auto slot = static_cast<std::size_t>(numero) - 1;
  if (catalogo.TipiDoc()[slot].Descrizione.empty()) return std::nullopt;
  return slot;
}

bool NomeCorrisponde(std::string_view nome, std::string_view modello) {
  std::size_t n = 0;
  std::size_t m = 0;
  std::size_t stella = Nessuno;  // the last "*" met, which takes one character more at each setback
  std::size_t presi = 0;
  while (n < nome.size()) {
    if (m < modello.size() && modello[m] == '*') {
      stella = m++;
      presi = n;
    } else if (m < modello.size() && modello[m] == '?') {
      n += Lunghezza(nome, n);
      ++m;
    } else if (m < modello.size() && Minuscola(modello[m]) == Minuscola(nome[n])) {
      ++n;
      ++m;
    } else if (stella != Nessuno) {
      presi += Lunghezza(nome, presi);
      n = presi;
      m = stella + 1;
    } else {
      return false;
    }
  }
  return modello.find_first_not_of('*', m) == Nessuno;
}

std::vector<std::size_t> TipiPerNome(const Catalogo& catalogo, std::string_view nome) {
  std::vector<std::size_t> slot;
  const std::vector<const TipoDoc*> tipi = catalogo.TipiElencati();
  for (std::size_t i = 0; i < tipi.size(); ++i) {
    const std::string& modello = tipi[i]->Titolo;
    const bool confronta = modello.find_first_of("*?.") != std::string::npos;
    if (confronta && NomeCorrisponde(nome, Utf8DaAnsi(modello))) slot.push_back(i);
  }
  return slot;
}

}  // namespace parvik
