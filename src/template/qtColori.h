// The colours of the codes in a section: one for each kind.
#pragma once

#include <QColor>
#include <QSyntaxHighlighter>
#include <QTextCharFormat>
#include <array>
#include <cstddef>
#include <optional>

#include "template/txtSpecchio.h"
#include "tokens/Codice.h"
#include "tokens/Pezzi.h"

class QPalette;

namespace parvik {

/// Colours each code, over the ends of lines too; a stray delimiter is plain text. An edit costs what its
/// line costs, and the lines of the code that it is about. The toolkit's text and signals do not notice.
class qtColori final : public QSyntaxHighlighter {
  Q_OBJECT

 public:
  /// Starts with the program's palette. The document owns the highlighter, and shows the text of `specchio`,
  /// which must outlive it.
  qtColori(QTextDocument* documento, const txtSpecchio& specchio);

  /// Colours anew from a line on, as far as it makes a difference.
  void ColoraDa(int riga);

  /// Takes the colours that can be read on the palette's base, light or dark, and colours anew when they are
  /// others.
  void ImpostaTavolozza(const QPalette& tavolozza);

  /// Of a kind of code. Only tests ask for it.
  QColor Colore(TipoCodice tipo) const;

  /// The background that marks the code under the caret: every kind's colour can be read on it.
  QColor FondoCodiceAttivo() const { return fondo_; }

 protected:
  void highlightBlock(const QString& riga) override;

 private:
  std::optional<TipoCodice> CodiceAperto() const;
  bool ChiusoPiuAvanti() const;
  void Colora(std::size_t inizio, std::size_t fine, TipoCodice tipo);

  const txtSpecchio& specchio_;
  std::array<QTextCharFormat, NumTipiCodice> formati_;  // by TipoCodice
  QColor fondo_;
};

}  // namespace parvik
