// Whether two templates of a type print alike, in a text file and in the preview with its looks, with all
// print flags true and with all of them false (docs/verifica.md).
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/Catalogo.h"
#include "output/FlagPerStampe.h"
#include "output/GeneraStampa.h"
#include "output/MettiStili.h"
#include "template/Marcatore.h"

namespace parvik {

/// What a template prints, kept so that it can be compared.
class ResaDaConfrontare {
 public:
  /// `byte` is a file. Of what prints very long the beginning is kept. Throws what memory gives up with.
  ResaDaConfrontare(std::string_view byte, const Catalogo& catalogo, const TipoDoc& tipo);
  /// Of the texts of sections.
  ResaDaConfrontare(const std::array<std::string_view, MaxSezioni>& testi, const ImpostazioniCorpo& corpo,
                    const Catalogo& catalogo, const TipoDoc& tipo);

  bool Uguale(const ResaDaConfrontare& altra) const { return viste_ == altra.viste_; }

 private:
  struct Vista {
    std::uint64_t Stampa = 0;
    std::size_t Stampati = 0;
    std::string Anteprima;
    std::vector<Tratto> Tratti;

    bool operator==(const Vista&) const = default;
  };

  void Rendi(const std::array<std::string_view, MaxSezioni>& testi, const ImpostazioniCorpo& corpo,
             const Catalogo& catalogo, const TipoDoc& tipo);
  static Vista Rendi(const DatiStampa& dati);

  std::array<Vista, 2> viste_;
};

}  // namespace parvik
