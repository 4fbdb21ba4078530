// The marks in the preview pane: what stands at the caret of a section, wherever it was printed.
#pragma once

#include <QPainter>
#include <QPalette>
#include <QRectF>
#include <cstddef>
#include <optional>
#include <vector>

#include "output/SegniAnteprima.h"
#include "output/ricVeduta.h"
#include "template/qtTrovati.h"

namespace parvik {

class ricLuoghi {
 public:
  const SegniAnteprima& Segni() const { return segni_; }
  /// They must be those of the text that is shown.
  void Imposta(SegniAnteprima segni) { segni_ = std::move(segni); }

  /// The places of what shows of them, in the window's coordinates. Only what shows is looked for.
  std::vector<QRectF> Rettangoli(const VedutaAnteprima& veduta) const;
  /// Their backgrounds, for text in the palette's own colour.
  void Disegna(QPainter& pittore, const VedutaAnteprima& veduta, const QPalette& tavolozza,
               QPalette::ColorGroup gruppo) const;

  /// The one to scroll to, where none shows whole.
  std::optional<Selezione> DaRivelare(const VedutaAnteprima& veduta) const;

 private:
  SegniAnteprima segni_;
};

/// Marks what of it shows was found, over the text.
void DisegnaTrovati(QPainter& pittore, const VedutaAnteprima& veduta, const LettoreTrovati& trovati,
                    const QPalette& tavolozza);

}  // namespace parvik
