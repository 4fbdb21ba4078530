#include "CartaStampata.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryFile>
#include <QTest>

namespace parvik::prova {
namespace {

constexpr int TempoMassimo = 30'000;  // milliseconds until a job is kept
constexpr const char* Sentinella = "sentinella";

QDir Lavori() {
  return {qEnvironmentVariable("PARVIK_LAVORI")};
}

QStringList Pronti() {
  return Lavori().entryList({"*.pdf"}, QDir::Files, QDir::Name);
}

}  // namespace

CartaStampata::CartaStampata(const QString& pdf, const QStringList& dati)
    : PdfStampato(pdf), titolo_(dati.value(0)), copie_(dati.value(1)), opzioni_(dati.value(2)) {}

CartaStampata CartaStampata::Prossima() {
  if (!QTest::qWaitFor([] { return !Pronti().isEmpty(); }, TempoMassimo)) {
    ADD_FAILURE() << "nothing was printed";
    return {{}, {}};
  }
  const QString nome = Pronti().constFirst();
  QFile dati(Lavori().filePath(QString(nome).replace(".pdf", ".txt")));
  EXPECT_TRUE(dati.open(QIODevice::ReadOnly));
  // Out of the way of the next one.
  const QString pdf = Lavori().filePath(nome + ".letto");
  EXPECT_TRUE(QFile::rename(Lavori().filePath(nome), pdf));
  return {pdf, QString::fromUtf8(dati.readAll()).split('\n')};
}

bool CartaStampata::Nessuna() {
  QTemporaryFile foglio;
  EXPECT_TRUE(foglio.open() && foglio.write(Sentinella) > 0 && foglio.flush());
  // The printer does one job after the other: had there been one, it would come first.
  EXPECT_EQ(QProcess::execute("lp", {"-d", "prova", "-o", "raw", "-t", Sentinella, foglio.fileName()}), 0);
  return Prossima().Titolo() == Sentinella;
}

}  // namespace parvik::prova
