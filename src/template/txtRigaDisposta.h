// Where the bytes of a line are drawn in the section's viewport, to mark them.
#pragma once

#include <QPointF>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>
#include <cstddef>
#include <optional>

#include "template/txtSpecchio.h"

namespace parvik {

class txtRigaDisposta {
 public:
  /// Of a line that is laid out at `dove` in the viewport; nullopt where there is nothing of it yet.
  static std::optional<txtRigaDisposta> Di(const QTextBlock& riga, QPointF dove,
                                           const txtSpecchio& specchio) {
    const auto numero = static_cast<std::size_t>(riga.blockNumber());
    if (numero >= specchio.Testo().Righe() || riga.layout()->lineCount() == 0) return std::nullopt;
    return txtRigaDisposta(specchio.Testo().Riga(numero), riga.layout()->lineAt(0), dove);
  }

  /// Without its line end.
  const Selezione& Byte() const { return byte_; }
  /// The left edge of a byte; of one in another line the end on its side.
  qreal X(std::size_t byte) const {
    const std::size_t colonna = std::clamp(byte, byte_.Inizio, byte_.Fine()) - byte_.Inizio;
    return dove_.x() + linea_.cursorToX(static_cast<int>(colonna));
  }
  qreal Alto() const { return dove_.y() + linea_.y(); }
  qreal Basso() const { return Alto() + linea_.height(); }

 private:
  txtRigaDisposta(const Selezione& byte, const QTextLine& linea, QPointF dove)
      : byte_(byte), linea_(linea), dove_(dove) {}

  Selezione byte_;
  QTextLine linea_;
  QPointF dove_;
};

}  // namespace parvik
