// What the left button of the mouse is about in a section's editor while it is down.
#pragma once

#include <QPoint>
#include <optional>

#include "template/ComandiSezione.h"

namespace parvik {

/// A new one is about nothing.
class txtGesti {
 public:
  /// The button went down on the selection, at that point of the screen: the selection may be dragged.
  void Afferra(QPoint punto) { presa_ = punto; }
  /// Whether the selection stays where it is although the mouse, now there on the screen, would drag it: it
  /// cut a code, and has grown to the whole of it.
  bool Trattiene(QPoint punto, ComandiSezione& comandi);

  /// A double click selected that word: moving on selects by words.
  void IniziaAParole(Selezione parola) { parola_ = parola; }
  bool AParole() const { return parola_.has_value(); }
  /// From that word to another one, both whole. Needs AParole().
  Cursore FinoA(Selezione parola) const;

  /// What the selection has grown to instead of being dragged.
  const std::optional<Selezione>& Trattenuta() const { return trattenuta_; }

 private:
  std::optional<QPoint> presa_;
  std::optional<Selezione> trattenuta_;
  std::optional<Selezione> parola_;
};

}  // namespace parvik
