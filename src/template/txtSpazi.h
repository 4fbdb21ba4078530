// How much wider or narrower than it is each character of a line has to be, so that codes take the cells that
// they print and everything else one cell a byte (docs/campi.md).
#pragma once

#include <QFont>
#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "common/Sezione.h"
#include "output/CampiAMisura.h"

namespace parvik {

/// Characters of a line, from 0, with room added behind each of them. In 64ths of a pixel, which is what the
/// toolkit counts in; negative room takes some away.
struct TrattoSpaziato {
  int Inizio = 0;
  int Quanti = 0;
  int Spazio = 0;
};

inline constexpr int ParticellePerPixel = 64;

class txtSpazi {
 public:
  struct Riga {
    std::vector<TrattoSpaziato> Tratti;
    LascitoRiga Lascito;
  };

  /// `campi` must outlive this. The font is one of fixed pitch.
  txtSpazi(const CampiAMisura& campi, Sezione sezione, const QFont& carattere);

  /// The width of a cell.
  int Cella() const { return cella_; }

  /// `byte` are those of the line, which is one of the section's.
  Riga Per(std::size_t riga, std::string_view byte) const;

 private:
  int AvanzamentoDi(char byte) const;
  void SpaziaCodice(const PezzoMisurato& pezzo, std::string_view byte,
                    std::vector<TrattoSpaziato>& tratti) const;
  void SpaziaTesto(const PezzoMisurato& pezzo, std::string_view byte,
                   std::vector<TrattoSpaziato>& tratti) const;

  const CampiAMisura& campi_;
  Sezione sezione_;
  QFont carattere_;
  int cella_;
  mutable std::array<std::optional<int>, 256> avanzamenti_;  // by byte; measured when first asked for
};

}  // namespace parvik
