// The layout of a section's text: as the toolkit's, but a change repaints the lines that it is about.
#pragma once

#include <QPlainTextDocumentLayout>

namespace parvik {

/// The toolkit adds what went to what came when it looks for a change's last line, and repaints everything
/// when that is not its first one. Colouring a line counts as replacing it, so that each key would repaint
/// the whole editor.
class txtDisposizione final : public QPlainTextDocumentLayout {
  Q_OBJECT

 public:
  /// The document owns the layout as soon as it is set there.
  explicit txtDisposizione(QTextDocument* documento) : QPlainTextDocumentLayout(documento) {}

 protected:
  void documentChanged(int da, int tolti, int messi) override;
};

}  // namespace parvik
