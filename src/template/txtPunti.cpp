#include "template/txtPunti.h"

#include <QPlainTextEdit>

#include "template/ParoleSezione.h"
#include "template/TastiSezione.h"
#include "template/txtSpecchio.h"

namespace parvik {

/// Behind the end of a line, the line's end.
std::size_t txtPunti::CarattereA(QPoint punto) const {
  QTextCursor cursore = editor_.cursorForPosition(punto);
  // The nearest place of the caret is behind the character where its right half was hit.
  if (punto.x() < editor_.cursorRect(cursore).left() && !cursore.atBlockStart())
    cursore.movePosition(QTextCursor::PreviousCharacter);
  return specchio_.InByte(cursore.position());
}

std::optional<std::size_t> txtPunti::ByteA(QPoint punto) const {
  const std::size_t posto = CarattereA(punto);
  const TestoSezione& testo = specchio_.Testo();
  if (posto == testo.Riga(testo.RigaDi(posto)).Fine()) return std::nullopt;
  return posto;
}

std::optional<Selezione> txtPunti::CodiceA(QPoint punto) const {
  const std::optional<std::size_t> posto = ByteA(punto);
  return posto ? CodiceSotto(specchio_.Testo(), *posto) : std::nullopt;
}

Selezione txtPunti::ParolaA(QPoint punto) const {
  return ParolaSotto(specchio_.Testo(), CarattereA(punto));
}

std::size_t txtPunti::PostoFuoriA(QPoint punto) const {
  const int posizione = editor_.cursorForPosition(punto).position();
  return FuoriDaiCodici(specchio_.Testo(), specchio_.InByte(posizione));
}

}  // namespace parvik
