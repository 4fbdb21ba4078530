// A printed document, read back.
#pragma once

#include <QImage>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <vector>

namespace parvik::prova {

/// A word of a page and where it stands, in points from the page's top left corner.
struct Parola {
  QString Testo;
  double X = 0;
  double Y = 0;
  double Destra = 0;
  double Fondo = 0;
};

class PdfStampato {
 public:
  explicit PdfStampato(QString pdf) : pdf_(std::move(pdf)) {}

  /// Lines of each page as they stand on it, without blanks at their ends and without empty lines around.
  std::vector<QStringList> Pagine() const;
  /// The words of each page, with their places.
  std::vector<std::vector<Parola>> Parole() const;
  /// The size of the first page, in points.
  QSizeF Dimensione() const;
  /// The names of the fonts in the document.
  QStringList Caratteri() const;
  /// Whether the document brings all of them.
  bool CaratteriIncorporati() const;
  /// What the document says of itself, by the name that it has in an ordinary list ("Title").
  QString Detto(const QString& nome) const;

  // What a word of the first page looks like.

  bool ConLineaSotto(const Parola& parola) const;
  /// The darkest grey in it, from 0 (black) to 255.
  int PiuScuro(const Parola& parola) const;

 private:
  QImage Foto(const Parola& parola) const;

  QString pdf_;
};

}  // namespace parvik::prova
