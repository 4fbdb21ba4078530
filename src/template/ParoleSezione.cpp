#include "template/ParoleSezione.h"

#include <optional>

#include "common/Delimitatori.h"

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
  if (c == '\n') return Classe::FineRiga;
  if (c == ' ' || c == '\t' || c == SpazioUnito) return Classe::Spazio;
  const bool ascii = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
  return ascii || LetteraEstesa(static_cast<unsigned char>(c)) ? Classe::Lettera : Classe::Altro;
}

constexpr bool Delimitatore(char c) {
  return c == DelimApertura || c == DelimChiusura;
}

/// Whether `posizione` continues the word of the character in front of it. Nothing goes on over a delimiter:
/// outside of codes that keeps outside, and a delimiter without its partner is a word.
bool Continua(std::string_view testo, std::size_t posizione) {
  if (posizione == 0 || posizione >= testo.size()) return false;
  const char prima = testo[posizione - 1];
  const char dopo = testo[posizione];
  if (Delimitatore(prima) || Delimitatore(dopo)) return false;
  return ClasseDi(dopo) != Classe::FineRiga && ClasseDi(dopo) == ClasseDi(prima);
}

std::size_t SaltaSpazi(std::string_view testo, std::size_t da) {
  while (da < testo.size() && ClasseDi(testo[da]) == Classe::Spazio) ++da;
  return da;
}

std::size_t Fine(const PosizioneCodice& codice) {
  return codice.Inizio + codice.Lunghezza;
}

}  // namespace

std::size_t ParolaSeguente(std::string_view testo, std::size_t cursore) {
  if (cursore >= testo.size()) return testo.size();
  if (const auto codice = CodiceSotto(testo, cursore)) return SaltaSpazi(testo, Fine(*codice));
  if (ClasseDi(testo[cursore]) == Classe::FineRiga) return cursore + 1;
  do ++cursore;
  while (Continua(testo, cursore));
  return SaltaSpazi(testo, cursore);
}

std::size_t ParolaPrecedente(std::string_view testo, std::size_t cursore) {
  if (const auto codice = CodiceIntorno(testo, cursore)) return codice->Inizio;
  const std::size_t partenza = cursore;
  while (cursore > 0 && ClasseDi(testo[cursore - 1]) == Classe::Spazio) --cursore;
  if (cursore == 0) return 0;
  if (ClasseDi(testo[cursore - 1]) == Classe::FineRiga) return cursore == partenza ? cursore - 1 : cursore;
  if (const auto codice = CodiceSotto(testo, cursore - 1)) return codice->Inizio;
  do --cursore;
  while (Continua(testo, cursore));
  return cursore;
}

Selezione ParolaSotto(std::string_view testo, std::size_t posizione) {
  if (const auto codice = CodiceSotto(testo, posizione))
    return {.Inizio = codice->Inizio, .Lunghezza = codice->Lunghezza};
  const bool fineRiga = posizione >= testo.size() || ClasseDi(testo[posizione]) == Classe::FineRiga;
  std::size_t inizio = posizione;
  if (fineRiga) {
    const bool vuota = posizione == 0 || ClasseDi(testo[posizione - 1]) == Classe::FineRiga;
    if (vuota || CodiceSotto(testo, posizione - 1)) return {.Inizio = posizione, .Lunghezza = 0};
    --inizio;
  }
  std::size_t fine = inizio + 1;
  while (Continua(testo, inizio)) --inizio;
  while (Continua(testo, fine)) ++fine;
  return {.Inizio = inizio, .Lunghezza = fine - inizio};
}

}  // namespace parvik
