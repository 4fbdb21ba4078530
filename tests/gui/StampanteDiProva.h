// A printer whose paper is a PDF file.
#pragma once

#include <QFile>
#include <QPdfWriter>

#include "output/qtStampante.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {

/// An A4 sheet with margins of 18 points.
class StampanteDiProva final : public Stampante {
 public:
  static constexpr double Margine = 18;

  StampanteDiProva() {
    foglio_.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                      QMarginsF(Margine, Margine, Margine, Margine)));
  }

  void Intitola(const QString& nomeLavoro) override { foglio_.setTitle(nomeLavoro); }
  QPdfWriter& Foglio() override { return foglio_; }
  void Ritira() override { ++Ritirata; }

  /// Complete when the job has ended.
  QString Pdf() const { return QString::fromStdString((cartella_ / "carta.pdf").string()); }
  qsizetype Pagine() const {
    QFile file(Pdf());
    return file.open(QIODevice::ReadOnly) ? file.readAll().count("/Type /Page\n") : 0;
  }

  int Ritirata = 0;

 private:
  CartellaTemporanea cartella_;
  QPdfWriter foglio_{Pdf()};
};

}  // namespace parvik::prova
