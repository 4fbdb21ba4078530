// The words of the toolkit's print dialog that its own Italian translation lacks.
#pragma once

#include <QTranslator>

namespace parvik {

class qtTestiStampa final : public QTranslator {
 public:
  using QTranslator::QTranslator;

  bool isEmpty() const override { return false; }
  QString translate(const char* contesto, const char* testo, const char* senso, int numero) const override;
};

}  // namespace parvik
