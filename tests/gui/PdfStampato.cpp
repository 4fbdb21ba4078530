#include "PdfStampato.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>

namespace parvik::prova {
namespace {

QString Esegui(const QString& programma, const QStringList& argomenti) {
  QProcess processo;
  processo.start(programma, argomenti);
  EXPECT_TRUE(processo.waitForFinished());
  EXPECT_EQ(processo.exitCode(), 0) << processo.readAllStandardError().toStdString();
  return QString::fromUtf8(processo.readAllStandardOutput());
}

QString SenzaCoda(QString riga) {
  while (riga.endsWith(' ')) riga.chop(1);
  return riga;
}

QString DaHtml(QString testo) {
  return testo.replace("&lt;", "<")
      .replace("&gt;", ">")
      .replace("&quot;", "\"")
      .replace("&apos;", "'")
      .replace("&amp;", "&");
}

}  // namespace

std::vector<QStringList> PdfStampato::Pagine() const {
  std::vector<QStringList> pagine;
  QStringList fogli = Esegui("pdftotext", {"-layout", pdf_, "-"}).split('\f');
  fogli.removeLast();  // a form feed ends each page
  for (const QString& foglio : fogli) {
    QStringList righe;
    for (const QString& riga : foglio.split('\n')) righe += SenzaCoda(riga);
    while (!righe.isEmpty() && righe.constLast().isEmpty()) righe.removeLast();
    while (!righe.isEmpty() && righe.constFirst().isEmpty()) righe.removeFirst();
    pagine.push_back(righe);
  }
  return pagine;
}

QSizeF PdfStampato::Dimensione() const {
  static const QRegularExpression pagina(R"re(<page width="([0-9.]+)" height="([0-9.]+)">)re");
  const QRegularExpressionMatch trovata = pagina.match(Esegui("pdftotext", {"-bbox", pdf_, "-"}));
  return {trovata.captured(1).toDouble(), trovata.captured(2).toDouble()};
}

std::vector<std::vector<Parola>> PdfStampato::Parole() const {
  static const QRegularExpression elemento(
      R"re(<page |<word xMin="([0-9.]+)" yMin="([0-9.]+)" xMax="([0-9.]+)" yMax="([0-9.]+)">(.*)</word>)re");
  std::vector<std::vector<Parola>> pagine;
  auto trovati = elemento.globalMatch(Esegui("pdftotext", {"-bbox", pdf_, "-"}));
  while (trovati.hasNext()) {
    const QRegularExpressionMatch trovato = trovati.next();
    if (trovato.capturedLength(1) == 0) {
      pagine.emplace_back();
    } else {
      pagine.back().push_back({.Testo = DaHtml(trovato.captured(5)),
                               .X = trovato.captured(1).toDouble(),
                               .Y = trovato.captured(2).toDouble(),
                               .Destra = trovato.captured(3).toDouble(),
                               .Fondo = trovato.captured(4).toDouble()});
    }
  }
  return pagine;
}

QStringList PdfStampato::Caratteri() const {
  static const QRegularExpression prefisso("^[A-Z]{6}\\+");  // of a font of which a part is embedded
  QStringList nomi;
  const QStringList righe = Esegui("pdffonts", {pdf_}).split('\n', Qt::SkipEmptyParts);
  for (const QString& riga : righe.mid(2)) nomi += riga.section(' ', 0, 0).remove(prefisso);
  nomi.sort();
  return nomi;
}

bool PdfStampato::CaratteriIncorporati() const {
  static const QRegularExpression incorporato(R"re(\syes +(yes|no) +(yes|no) +\d+ +\d+$)re");
  const QStringList righe = Esegui("pdffonts", {pdf_}).split('\n', Qt::SkipEmptyParts).mid(2);
  return !righe.isEmpty() && righe.filter(incorporato).size() == righe.size();
}

QString PdfStampato::Detto(const QString& nome) const {
  const QStringList righe =
      Esegui("pdfinfo", {pdf_}).split('\n').filter(QRegularExpression('^' + nome + ':'));
  return righe.value(0).section(':', 1).trimmed();
}

QImage PdfStampato::Foto(const Parola& parola) const {
  const QString immagine = pdf_ + ".foto";
  Esegui("pdftoppm", {"-r", "144", "-gray", "-f", "1", "-l", "1", "-singlefile", pdf_, immagine});
  const QImage pagina(immagine + ".pgm");
  EXPECT_FALSE(pagina.isNull());
  constexpr double PixelPerPunto = 2;
  const QRectF posto(QPointF(parola.X, parola.Y), QPointF(parola.Destra, parola.Fondo));
  return pagina.copy(QRectF(posto.topLeft() * PixelPerPunto, posto.size() * PixelPerPunto).toAlignedRect());
}

/// A row that is dark from one end to the other.
bool PdfStampato::ConLineaSotto(const Parola& parola) const {
  const QImage foto = Foto(parola);
  constexpr int Margine = 2;  // pixels that belong to the neighbours
  for (int y = 0; y < foto.height(); ++y) {
    bool intera = true;
    for (int x = Margine; x < foto.width() - Margine; ++x) intera = intera && qGray(foto.pixel(x, y)) < 160;
    if (intera) return true;
  }
  return false;
}

int PdfStampato::PiuScuro(const Parola& parola) const {
  const QImage foto = Foto(parola);
  int minimo = 255;
  for (int y = 0; y < foto.height(); ++y) {
    for (int x = 0; x < foto.width(); ++x) minimo = std::min(minimo, qGray(foto.pixel(x, y)));
  }
  return minimo;
}

}  // namespace parvik::prova
