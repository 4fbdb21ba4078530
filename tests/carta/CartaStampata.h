// What came out of the printer: the jobs that the print server's last step has kept.
#pragma once

#include "PdfStampato.h"

namespace parvik::prova {

class CartaStampata : public PdfStampato {
 public:
  /// Waits for the next job; fails the test when none comes.
  static CartaStampata Prossima();
  /// Whether nothing was printed since the last one.
  static bool Nessuna();

  const QString& Titolo() const { return titolo_; }
  const QString& Copie() const { return copie_; }
  const QString& Opzioni() const { return opzioni_; }

 private:
  CartaStampata(const QString& pdf, const QStringList& dati);

  QString titolo_;
  QString copie_;
  QString opzioni_;
};

}  // namespace parvik::prova
