// Where a code begins and ends: the one place that decides it (docs/code-grammar.md). Outside a code the next
// « opens one, and the first » behind it closes it, whatever lies between. A delimiter that takes part in no
// code, a » outside or a « that no » closes, is a stray one.
//
// Positions are 0-based bytes. The views look at a text that must stay as it is while they are used, and cost
// time in proportion to what they have walked over.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "common/Delimitatori.h"
#include "common/TrovaByte.h"

namespace parvik {

/// The places of a code's two delimiters. Where one is missing, the size of the text.
struct ConfiniCodice {
  std::size_t Apertura = 0;
  std::size_t Chiusura = 0;

  bool operator==(const ConfiniCodice&) const = default;
};

/// The next code when no code is open at byte `da`, which is at most the size of the text. A « without its »
/// has its place all the same: what that means is for the views below to say.
inline ConfiniCodice ProssimoCodice(std::string_view testo, std::size_t da) {
  const std::size_t apertura = TrovaByte(testo, DelimApertura, da);
  return {.Apertura = apertura, .Chiusura = TrovaByte(testo, DelimChiusura, apertura)};
}

enum class GenerePezzo { Testo, Codice, Delimitatore };

/// A part of a text: literal text without delimiters, a whole code with both of its own, or a stray
/// delimiter.
struct Pezzo {
  GenerePezzo Genere = GenerePezzo::Testo;
  std::size_t Inizio = 0;
  std::size_t Fine = 0;  // behind its last byte

  /// Its bytes in the text that it is a part of.
  std::string_view In(std::string_view testo) const { return testo.substr(Inizio, Fine - Inizio); }
  bool operator==(const Pezzo&) const = default;
};

/// The pieces of a text in their order, without gaps; no two pieces of literal text side by side. This is how
/// everybody reads a text but the run and the keys.
class LettorePezzi {
 public:
  explicit LettorePezzi(std::string_view testo)
      : testo_(testo),
        codice_(ProssimoCodice(testo, 0)),
        chiusura_(TrovaByte(testo.substr(0, codice_.Apertura), DelimChiusura, 0)) {}

  /// nullopt at the end of the text.
  std::optional<Pezzo> Prossimo();

 private:
  void CercaDaQui();

  std::string_view testo_;
  std::size_t qui_ = 0;
  // The first places from qui_ on, once CercaDaQui() has been there.
  ConfiniCodice codice_;
  std::size_t chiusura_;  // of a » in front of the code; where there is none, the code's own beginning
};

/// How the run reads a text: it knows text from code by « alone. A stray » is text; a « that no » closes
/// swallows the rest of the text.
class LettoreCorsa {
 public:
  explicit LettoreCorsa(std::string_view testo) : testo_(testo) {}

  /// Moves on to the next stretch of text and the code behind it. False at the end of the text.
  bool Prossimo() {
    if (seguito_ >= testo_.size()) return false;
    inizio_ = seguito_;
    codice_ = ProssimoCodice(testo_, inizio_);
    seguito_ = codice_.Chiusura + 1;
    return true;
  }

  // Of the stretch that it stands at: the text is [InizioTesto(), FineTesto()), and may be empty.
  std::size_t InizioTesto() const { return inizio_; }
  std::size_t FineTesto() const { return codice_.Apertura; }
  /// Whether there is a code behind the text; only then it has a content.
  bool ConCodice() const { return codice_.Chiusura != testo_.size(); }
  std::string_view Contenuto() const {
    return {testo_.data() + codice_.Apertura + 1, codice_.Chiusura - codice_.Apertura - 1};
  }
  /// Behind the closing delimiter.
  std::size_t DopoIlCodice() const { return seguito_; }
  /// How many bytes lie behind the text, up to the closing delimiter or the end.
  std::size_t DopoIlTesto() const { return codice_.Chiusura - codice_.Apertura; }

 private:
  std::string_view testo_;
  std::size_t seguito_ = 0;
  std::size_t inizio_ = 0;
  ConfiniCodice codice_;
};

}  // namespace parvik
