// The colours of the codes in a section: one for each kind.
#pragma once

#include <QColor>
#include <QSyntaxHighlighter>
#include <QTextCharFormat>
#include <array>
#include <cstddef>

#include "tokens/Codice.h"

class QPalette;

namespace parvik {

/// Colours each code that opens and closes on the same line; a delimiter without its partner there is plain
/// text. Each line is coloured by itself: an edit costs what its line costs. The document's text, undo
/// history and signals do not notice.
class frmColori final : public QSyntaxHighlighter {
  Q_OBJECT

 public:
  /// Starts with the program's palette. The document owns the highlighter.
  explicit frmColori(QTextDocument* documento);

  /// Takes the colours that can be read on the palette's base, light or dark, and colours anew when they are
  /// others.
  void ImpostaTavolozza(const QPalette& tavolozza);

  QColor Colore(TipoCodice tipo) const;

  /// The background that marks the code under the caret: every kind's colour can be read on it.
  QColor FondoCodiceAttivo() const { return fondo_; }

 protected:
  void highlightBlock(const QString& riga) override;

 private:
  void ColoraRiga(QStringView riga, int inizio);

  static constexpr std::size_t NumTipi = static_cast<std::size_t>(TipoCodice::Pagina) + 1;

  std::array<QTextCharFormat, NumTipi> formati_;  // by TipoCodice
  QColor fondo_;
};

}  // namespace parvik
