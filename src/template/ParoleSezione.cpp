#include "template/ParoleSezione.h"

#include <optional>
#include <string_view>

#include "common/Delimitatori.h"
#include "common/NumeroLeniente.h"
#include "template/TastiSezione.h"

namespace parvik {
namespace {

enum class Classe { FineRiga, Spazio, Lettera, Altro };

/// The letters of Windows-1252 beyond ASCII.
constexpr bool LetteraEstesa(unsigned char byte) {
  constexpr std::string_view Sparse = "\x83\x8A\x8C\x8E\x9A\x9C\x9E\x9F\xAA\xB5\xBA";
  constexpr unsigned char Per = 0xD7;
  constexpr unsigned char Diviso = 0xF7;
  if (byte >= 0xC0) return byte != Per && byte != Diviso;
  return Sparse.find(static_cast<char>(byte)) != std::string_view::npos;
}

constexpr Classe ClasseDi(char c) {
  constexpr char SpazioUnito = '\xA0';
  if (c == FineRiga.front()) return Classe::FineRiga;
  if (c == ' ' || c == '\t' || c == SpazioUnito) return Classe::Spazio;
  const bool ascii = Cifra(c) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
  return ascii || LetteraEstesa(static_cast<unsigned char>(c)) ? Classe::Lettera : Classe::Altro;
}

constexpr bool Delimitatore(char c) {
  return c == DelimApertura || c == DelimChiusura;
}

/// Whether a place is the start of a line.
bool IniziaRiga(const TestoSezione& testo, std::size_t posto) {
  return posto == 0 ||
         (posto > 1 && testo[posto - 1] == FineRiga.back() && testo[posto - 2] == FineRiga.front());
}

bool FinisceRiga(const TestoSezione& testo, std::size_t posto) {
  return posto >= testo.Dimensione() || ClasseDi(testo[posto]) == Classe::FineRiga;
}

/// Whether `posto` continues the word of the character in front of it. Nothing goes on over a delimiter:
/// outside of codes that keeps outside, and a delimiter without its partner is a word.
bool Continua(const TestoSezione& testo, std::size_t posto) {
  if (posto >= testo.Dimensione() || IniziaRiga(testo, posto)) return false;
  const char prima = testo[posto - 1];
  const char dopo = testo[posto];
  if (Delimitatore(prima) || Delimitatore(dopo)) return false;
  return ClasseDi(dopo) != Classe::FineRiga && ClasseDi(dopo) == ClasseDi(prima);
}

std::size_t SaltaSpazi(const TestoSezione& testo, std::size_t da) {
  while (da < testo.Dimensione() && ClasseDi(testo[da]) == Classe::Spazio) ++da;
  return da;
}

}  // namespace

std::size_t ParolaSeguente(const TestoSezione& testo, std::size_t cursore) {
  if (cursore >= testo.Dimensione()) return testo.Dimensione();
  if (const auto codice = CodiceSotto(testo, cursore)) return SaltaSpazi(testo, codice->Fine());
  if (FinisceRiga(testo, cursore)) return cursore + FineRiga.size();
  do ++cursore;
  while (Continua(testo, cursore));
  return SaltaSpazi(testo, cursore);
}

std::size_t ParolaPrecedente(const TestoSezione& testo, std::size_t cursore) {
  if (const auto codice = CodiceIntorno(testo, cursore)) return codice->Inizio;
  const std::size_t partenza = cursore;
  while (!IniziaRiga(testo, cursore) && ClasseDi(testo[cursore - 1]) == Classe::Spazio) --cursore;
  if (cursore == 0) return 0;
  if (IniziaRiga(testo, cursore)) return cursore == partenza ? cursore - FineRiga.size() : cursore;
  if (const auto codice = CodiceSotto(testo, cursore - 1)) return codice->Inizio;
  do --cursore;
  while (Continua(testo, cursore));
  return cursore;
}

Selezione ParolaSotto(const TestoSezione& testo, std::size_t posto) {
  if (const auto codice = CodiceSotto(testo, posto)) return *codice;
  std::size_t inizio = posto;
  if (FinisceRiga(testo, posto)) {
    if (IniziaRiga(testo, posto) || CodiceSotto(testo, posto - 1)) return {.Inizio = posto, .Lunghezza = 0};
    --inizio;
  }
  std::size_t fine = inizio + 1;
  while (Continua(testo, inizio)) --inizio;
  while (Continua(testo, fine)) ++fine;
  return {.Inizio = inizio, .Lunghezza = fine - inizio};
}

}  // namespace parvik
