// The sheet in the preview pane: where its pages end, how wide they are, and what stands outside.
#pragma once

#include <QPainter>
#include <QPalette>
#include <optional>

#include "output/Foglio.h"
#include "output/OltreFoglio.h"
#include "output/ricVeduta.h"

namespace parvik {

class ricFoglio {
 public:
  /// Whether it is another one than before. Nothing is measured without a sheet.
  bool Imposta(const Foglio& foglio, const TestoAnteprima& testo);
  /// The text is another one.
  void Misura(const TestoAnteprima& testo);

  /// nullopt without a sheet.
  const std::optional<MisuraFoglio>& Misurato() const { return misura_; }

  /// The backgrounds of what stands outside, for text in the palette's own colour.
  void DisegnaOltre(QPainter& pittore, const VedutaAnteprima& veduta, const QPalette& tavolozza) const;
  /// A line at the right edge, and one in front of each page but the first.
  void DisegnaBordi(QPainter& pittore, const VedutaAnteprima& veduta, const QPalette& tavolozza) const;

 private:
  Foglio foglio_;
  std::optional<MisuraFoglio> misura_;
};

}  // namespace parvik
