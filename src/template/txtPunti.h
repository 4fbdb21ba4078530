// What a section's editor shows at a point.
#pragma once

#include <QPoint>
#include <cstddef>
#include <optional>

#include "template/TestoSezione.h"

class QPlainTextEdit;

namespace parvik {

class txtSpecchio;

/// Points are the viewport's, places bytes of the section. To be asked at once: editor and text must stay.
class txtPunti {
 public:
  txtPunti(const QPlainTextEdit& editor, const txtSpecchio& specchio)
      : editor_(editor), specchio_(specchio) {}

  /// The place of the character drawn there, where there is one.
  std::optional<std::size_t> ByteA(QPoint punto) const;
  /// The code there.
  std::optional<Selezione> CodiceA(QPoint punto) const;
  Selezione ParolaA(QPoint punto) const;
  /// The place of the caret nearest to it that is outside the codes.
  std::size_t PostoFuoriA(QPoint punto) const;

 private:
  std::size_t CarattereA(QPoint punto) const;

  const QPlainTextEdit& editor_;
  const txtSpecchio& specchio_;
};

}  // namespace parvik
