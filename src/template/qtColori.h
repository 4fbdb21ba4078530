// The colours of the codes in a section: one for each kind.
#pragma once

#include <QColor>
#include <QSyntaxHighlighter>
#include <QTextBlockUserData>
#include <QTextCharFormat>
#include <array>
#include <cstddef>
#include <optional>
#include <set>
#include <string_view>

#include "template/txtSpazi.h"
#include "template/txtSpecchio.h"
#include "tokens/Codice.h"
#include "tokens/Pezzi.h"

class QPalette;

namespace parvik {

/// What the lines behind a line that is spaced depend on; kept with the line.
class LascitoNellaRiga final : public QTextBlockUserData {
 public:
  explicit LascitoNellaRiga(const LascitoRiga& lascito) : Quale(lascito) {}
  LascitoRiga Quale;
};

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

  /// From now on lines are spaced too, when they are coloured; nullptr: no longer. It must outlive this, or
  /// the next call.
  void Spazia(const txtSpazi* spazi) { spazi_ = spazi; }
  bool Spaziata(const QTextBlock& riga) const { return riga.userData() != nullptr; }
  /// After a change: spaces what depends on the lines that were coloured because of it.
  void Prosegui();

  /// Takes the colours that can be read on the palette's base, light or dark, and colours anew when they are
  /// others.
  void ImpostaTavolozza(const QPalette& tavolozza);

  /// Of a kind of code. Only tests ask for it.
  QColor Colore(TipoCodice tipo) const;

  /// The background that marks the code under the caret: every kind's colour can be read on it.
  QColor FondoCodiceAttivo() const { return fondo_; }
  /// Of a field of that kind, whose colour can be read on it.
  QColor FondoCampo(TipoCodice tipo) const { return fondiCampo_[static_cast<std::size_t>(tipo)]; }

 protected:
  void highlightBlock(const QString& riga) override;

 private:
  std::optional<TipoCodice> CodiceAperto() const;
  bool ChiusoPiuAvanti() const;
  void ColoraCodici(std::string_view byte);
  void SpaziaRiga(std::string_view byte);
  void Ricorda(const LascitoRiga& lascito);
  void Colora(std::size_t inizio, std::size_t fine, TipoCodice tipo);

  const txtSpecchio& specchio_;
  std::array<QTextCharFormat, NumTipiCodice> formati_;  // by TipoCodice
  std::array<QColor, NumTipiCodice> fondiCampo_;
  QColor fondo_;
  const txtSpazi* spazi_ = nullptr;
  std::set<int> daSeguire_;  // lines that may be spaced otherwise, after others have been coloured
};

}  // namespace parvik
