// The text of a section, with its lines and its codes (docs/document.md). Texts are Windows-1252 bytes, lines
// are separated by CR LF. Positions are 0-based bytes; lines and columns are 0-based too, a column in bytes.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "template/AlberoTesto.h"
#include "template/Modifica.h"
#include "tokens/Pezzi.h"

namespace parvik {

/// Both from 0; the column in bytes.
struct RigaColonna {
  std::size_t Riga = 0;
  std::size_t Colonna = 0;

  bool operator==(const RigaColonna&) const = default;
};

/// A value: a copy is a snapshot, costs nothing, and may be read on another thread while the original goes on
/// being edited. What is asked costs the logarithm of the text's size and what is given; so does a change. A
/// place that lies outside the text, or between the CR and the LF of a line end, is a bug of the caller.
class TestoSezione {
 public:
  TestoSezione() = default;
  /// A CR that no LF follows becomes a whole line end.
  explicit TestoSezione(std::string_view byte);

  bool operator==(const TestoSezione& altro) const;

  // --- bytes

  std::size_t Dimensione() const { return albero_.Dimensione(); }
  char operator[](std::size_t posto) const { return albero_[posto]; }
  std::string Byte() const { return Byte({.Inizio = 0, .Lunghezza = Dimensione()}); }
  std::string Byte(Selezione parte) const { return albero_.Byte(parte.Inizio, parte.Fine()); }
  std::string Byte(const Pezzo& pezzo) const { return albero_.Byte(pezzo.Inizio, pezzo.Fine); }
  bool Vale(std::string_view byte) const { return Dimensione() == byte.size() && Byte() == byte; }

  // --- lines

  /// One more than there are line ends.
  std::size_t Righe() const { return albero_.Misura().Di(Segno::FineRiga) + 1; }
  /// Without its line end.
  Selezione Riga(std::size_t riga) const;
  std::size_t RigaDi(std::size_t posto) const { return albero_.Conta(Segno::FineRiga, posto); }
  RigaColonna RigaColonnaDi(std::size_t byte) const;
  std::size_t ByteDi(RigaColonna posto) const;  // so far only tests ask

  // --- codes and what is between them

  /// The piece in which the byte at `posto` lies, which must not be the end. As LettorePezzi reads.
  Pezzo PezzoDi(std::size_t posto) const;
  /// The pieces that have bytes in a part of the text, whole and in their order. So far only tests ask.
  std::vector<Pezzo> PezziDi(Selezione parte) const;
  /// The code that opens in a line before this one and is not closed there.
  std::optional<Pezzo> CodiceAperto(std::size_t riga) const;

  /// The nearest delimiters. nullopt where there is none.
  std::optional<std::size_t> Precedente(Segno segno, std::size_t prima) const;
  std::optional<std::size_t> Seguente(Segno segno, std::size_t da) const;

  // --- changes

  /// The text after a change. What comes may hold CR only in whole line ends.
  TestoSezione Con(const Modifica& modifica) const;

 private:
  explicit TestoSezione(AlberoTesto albero) : albero_(std::move(albero)) {}

  AlberoTesto albero_;
};

/// `byte` with whole line ends only: what a section may hold.
std::string ConFiniRiga(std::string_view byte);

/// The least change that makes one text of the other, with whole line ends in both.
Modifica Differenza(std::string_view prima, std::string_view dopo);

}  // namespace parvik
