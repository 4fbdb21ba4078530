// The pages of the manual, as one reads them. Nothing is asked of the network, and no other program is
// started.
#pragma once

#include <QDir>
#include <QImage>
#include <QTextBrowser>

#include "app/qtMenu.h"

namespace parvik {

class txtGuida final : public QTextBrowser {
  Q_OBJECT

 public:
  /// The folder of the manual; it may not be there. `menu` must outlive this.
  txtGuida(const QDir& manuale, const qtMenu& menu);

  /// A page by its way in the manual, without an ending.
  void Apri(const QString& pagina);

  /// Goes on to the next place with that text, around the end.
  void Cerca(const QString& testo);

 protected:
  QVariant loadResource(int genere, const QUrl& nome) override;

 private:
  QImage InLarghezza(const QByteArray& immagine) const;

  QDir manuale_;
  const qtMenu& menu_;
};

}  // namespace parvik
