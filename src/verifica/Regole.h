// The rules by which a template is checked (docs/verifica.md): one table of them.
#pragma once

#include <bitset>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

namespace parvik {

enum class Livello { Errore, Avviso };

/// In the order of the table, which is that of findings at one place.
enum class Regola {
  TipoIncerto,
  VariabileSconosciuta,
  VariabileDiAltraSezione,
  FlagSconosciuto,
  FlagDiAltraSezione,
  CodiceSconosciuto,
  CodiceNonChiuso,
  CodiceSuPiuRighe,
  AperturaNelCodice,
  ChiusuraIsolata,
  CodiceIncompleto,
  FormatoDiverso,
  MultilineaPersa,
  LarghezzaInsufficiente,
  FlagSenzaEffetto,
  FlagSuAltraRiga,
  FlagSuStile,
  MarcatoreMancante,
  MarcatoreInPrimaRiga,
  MarcatoreMalformato,
  MarcatoreAmbiguo,
  RigheCorpo,
  CorpoNonStampato,
  TestoStile,
  FineRigaLf,
  DelimitatoreDiFile,
  RigaSenzaFine,
  RigaLunga,
  PaginaLunga,
  Cornice,
};
inline constexpr std::size_t NumRegole = static_cast<std::size_t>(Regola::Cornice) + 1;

/// A row of the table.
struct VoceRegola {
  Regola Quale;
  std::string_view Nome;  // as scripts write it
  Livello Grado;
  std::string_view Trova;  // what it finds, Italian, UTF-8
  bool Corregge = false;   // some of what it finds has one right answer
};

/// By Regola.
std::span<const VoceRegola> Regole();
const VoceRegola& VoceDi(Regola regola);
/// nullptr when no rule has that name.
const VoceRegola* RegolaDi(std::string_view nome);

/// "errore" or "avviso".
std::string_view NomeLivello(Livello livello);

/// Some of the rules.
class InsiemeRegole {
 public:
  static InsiemeRegole Tutte() {
    InsiemeRegole tutte;
    tutte.quali_.set();
    return tutte;
  }

  bool Ha(Regola regola) const { return quali_[static_cast<std::size_t>(regola)]; }
  void Metti(Regola regola) { quali_.set(static_cast<std::size_t>(regola)); }
  void TogliTutte(const InsiemeRegole& altre) { quali_ &= ~altre.quali_; }

 private:
  std::bitset<NumRegole> quali_;
};

}  // namespace parvik
