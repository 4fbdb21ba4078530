// What came out of the printer: the jobs that the print server's last step has kept.
#pragma once

#include <QImage>
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

class CartaStampata {
 public:
  /// Waits for the next job; fails the test when none comes.
  static CartaStampata Prossima();
  /// Whether no job is there, and none comes within a moment.
  static bool Nessuna();

  const QString& Titolo() const { return titolo_; }
  const QString& Copie() const { return copie_; }
  const QString& Opzioni() const { return opzioni_; }

  /// Lines of each page as they stand on it, without blanks at their ends and without empty lines around.
  std::vector<QStringList> Pagine() const;
  /// The words of each page, with their places.
  std::vector<std::vector<Parola>> Parole() const;
  /// The names of the fonts in the document.
  QStringList Caratteri() const;

  // What a word of the first page looks like.

  bool ConLineaSotto(const Parola& parola) const;
  /// The darkest grey in it, from 0 (black) to 255.
  int PiuScuro(const Parola& parola) const;

 private:
  CartaStampata(QString pdf, const QStringList& dati);
  QImage Foto(const Parola& parola) const;

  QString pdf_;
  QString titolo_;
  QString copie_;
  QString opzioni_;
};

}  // namespace parvik::prova
