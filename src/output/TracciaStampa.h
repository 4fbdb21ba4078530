// Where everything that a run writes comes from, and where all that it reads has come to (docs/rendering.md).
#pragma once

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

#include "common/Sezione.h"
#include "output/GeneraStampa.h"
#include "output/MettiStili.h"
#include "output/TrovaVar.h"
#include "template/Modifica.h"

namespace parvik {

struct VoceStampa;

/// A place of a section, outside its codes, from which the run can be followed again.
struct TappaTraccia {
  std::size_t Origine = 0;  // byte of the section
  std::size_t Uscita = 0;   // byte of what this time wrote
  Memoria Ricordo;
};

/// A time that a section was rendered, and those after it that came out alike.
struct GiroTraccia {
  Sezione Dove = Sezione::Testata;
  std::size_t Volte = 1;
  std::size_t PrimaTappa = 0;  // its stages reach up to those of the next one
  std::size_t Uscita = 0;      // byte of the output where the first time begins
  std::size_t Emessi = 0;      // bytes that each time wrote: up to its last line end
};

/// What was made of a part of a section: bytes that the run wrote, before the style pass.
struct LuogoStampa {
  std::size_t Inizio = 0;  // of the first time
  std::size_t Lunghezza = 0;
  std::size_t Passo = 0;  // from one time to the next
  std::size_t Volte = 1;

  bool operator==(const LuogoStampa&) const = default;
};

/// The part of a section that a byte of the output comes from.
struct OrigineStampa {
  Sezione Dove = Sezione::Testata;
  Selezione Parte;  // of literal text one byte; of a code all of it
  bool Codice = false;

  bool operator==(const OrigineStampa&) const = default;
};

/// A byte of the output, as it is found again in another run over the same part of a section.
struct PostoStampato {
  OrigineStampa Da;
  std::size_t Volta = 0;   // of the section, from 0
  std::size_t Scarto = 0;  // bytes in front of it that came of the same part

  bool operator==(const PostoStampato&) const = default;
};

/// What a run made of a code.
struct CodiceStampato {
  std::size_t Larghezza = 0;  // in bytes, written or not
  bool Nascosto = false;      // a false flag kept it from being shown

  bool operator==(const CodiceStampato&) const = default;
};

/// The trace of one run: stages, a few KB of the section apart, between which a question follows the run
/// again. So it takes little memory, however much was written. What the run read must stay as it is as long
/// as the trace is asked.
class TracciaStampa {
 public:
  /// Where a byte of the output comes from; nullopt behind what the run wrote. The output is that of the
  /// style pass, if there was one.
  std::optional<OrigineStampa> OrigineDi(std::size_t uscito) const;
  /// The same, and which of all that came of it.
  std::optional<PostoStampato> PostoDi(std::size_t uscito) const;
  /// The byte of the output at that place; of the last time where there were fewer, and the last byte where
  /// it came out shorter. nullopt where the run saw something else there, or wrote nothing of it.
  std::optional<std::size_t> UscitoDi(const PostoStampato& posto) const;

  /// Where the literal byte, or the code, at that place of a section has come to; those times that came out
  /// alike are one, of which there are at most three. Empty where nothing of it was written.
  std::vector<LuogoStampa> LuoghiDi(Sezione sezione, std::size_t byte) const;
  /// One of the times of a place, from 0, as it stands in the output.
  Selezione Mostrato(const LuogoStampa& luogo, std::size_t volta) const;

  /// The code at that place, as it came out for the first time. nullopt where the run saw none.
  std::optional<CodiceStampato> CodiceA(Sezione sezione, std::size_t byte) const;

  /// How many bytes the run wrote.
  std::size_t Scritti() const;
  /// What the style pass took out of it.
  void ImpostaVarchi(std::vector<Varco> varchi) { varchi_ = std::move(varchi); }

  const std::vector<TappaTraccia>& Tappe() const { return tappe_; }
  const std::vector<GiroTraccia>& Giri() const { return giri_; }

 private:
  friend class DiarioTraccia;

  template <class Finita>
  std::optional<VoceStampa> Segui(const GiroTraccia& giro, std::size_t meta, std::size_t TappaTraccia::*dove,
                                  Finita finita) const;
  std::optional<VoceStampa> VoceDi(const GiroTraccia& giro, std::size_t byte) const;
  std::size_t VolteDavanti(const GiroTraccia& giro) const;
  std::optional<VoceStampa> VoceUscita(const GiroTraccia& giro, std::size_t uscita) const;
  std::size_t PrimaDelloStile(std::size_t uscito) const;
  std::size_t DopoLoStile(std::size_t scritto) const;

  std::optional<DatiStampa> dati_;  // what the run read
  TipoStampa destinazione_ = TipoStampa::File;
  std::vector<TappaTraccia> tappe_;
  std::vector<GiroTraccia> giri_;
  std::vector<Varco> varchi_;
};

}  // namespace parvik
