// The preview that the pane shows: which state of the document it is of, and where its places are now
// (docs/anteprima.md).
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>

#include "catalogue/TipoDoc.h"
#include "output/FlagPerStampe.h"
#include "output/MappaAnteprima.h"
#include "output/Ricollocazione.h"
#include "output/SegniAnteprima.h"
#include "template/Documento.h"
#include "template/Spostamenti.h"

namespace parvik {

class AnteprimaMostrata final : private AscoltatoreDocumento {
 public:
  /// Both must outlive it. `tipo` is always the current document type.
  AnteprimaMostrata(Documento& documento, const FlagPerStampe& flag);

  // --- runs: each has a number, and only the one that began last counts

  using Numero = std::uint64_t;

  /// A run takes what it reads now.
  Numero Comincia(const TipoDoc& tipo);
  /// Its beginning alone is shown, for now or for good.
  void MostratoInizio(Numero numero);
  /// It is shown. Where the places of the preview before are in it; nullopt when another one has begun since:
  /// then it must not be shown.
  std::optional<Ricollocazione> Finisci(Numero numero, std::shared_ptr<const MappaAnteprima> mappa);
  /// It came to no end, because it was outdated.
  void Rinuncia(Numero numero);
  /// It came to no end, and should not begin anew before something has changed.
  void Fallisci(Numero numero);

  // --- what is shown

  /// False when something has changed since the run that is shown, or not all of it is; true while none was.
  bool Aggiornata(const TipoDoc& tipo) const;
  /// Whether a run would show something else than what is shown or under way.
  bool DaRifare(const TipoDoc& tipo) const;

  /// What the code at a caret prints, the one that follows it first, or else the character: all places of it.
  /// None where that is not certain.
  SegniAnteprima Segni(const CursoreSezione& cursore) const;
  /// Where a byte of the preview comes from: the whole code, or the place of the character. nullopt where
  /// that is not certain.
  std::optional<CursoreSezione> Origine(std::size_t byte) const;

 private:
  /// All that makes one run come out other than another.
  struct Versione {
    std::uint64_t Testi = 0;
    std::uint64_t Flag = 0;
    std::int16_t NumSezioni = 0;
    std::int16_t RigheCorpo = 0;
    std::int16_t LineeCorpo = 0;

    bool operator==(const Versione&) const = default;
  };
  struct Corsa {
    Versione Di;
    std::array<Spostamenti, MaxSezioni> Da;       // since it took what it read
    std::shared_ptr<const MappaAnteprima> Mappa;  // none while not all of it is shown
  };

  Versione Adesso(const TipoDoc& tipo) const;
  bool InCorso(Numero numero) const { return nuova_ && numero == numero_; }
  template <class Azione>
  void PerOgniCorsa(Azione azione);
  void Modificata(const CambiamentoTesto& cambiamento) override;
  void Sostituita(Sezione sezione) override;

  const Documento& documento_;
  const FlagPerStampe& flag_;
  std::uint64_t modifiche_ = 0;  // of the texts
  Numero numero_ = 0;            // of the run that began last
  std::optional<Corsa> nuova_;   // under way
  std::optional<Corsa> mostrata_;
  std::optional<Versione> fallita_;
  Documento::Ascolto ascolto_;
};

}  // namespace parvik
