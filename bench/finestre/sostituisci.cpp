// How long the window stands still while something is replaced in a section of 60,000 lines.
#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <iostream>
#include <stdexcept>
#include <string>

#include "Resoconto.h"
#include "finestre/Banco.h"

namespace parvik::bench {
namespace {

constexpr std::size_t Righe = 60'000;
constexpr int Volte = 5;
constexpr double Sbarra = 1000;  // milliseconds

struct Prova {
  std::string Nome;
  const char* Opzione;  // the check box that is checked; "" for none
  QString Cercato;
  QString Sostituto;
};

std::string Modello() {
  std::string testo;
  for (std::size_t i = 0; i < Righe; ++i) testo += "cliente \xABV4;29L\xBB\r\n";
  return testo;
}

class Finestra {
 public:
  explicit Finestra(const Prova& prova) {
    banco_.Apri(Modello());
    banco_.Comanda("mnuSostituisci");
    Svuota();
    if (*prova.Opzione != '\0') Trova<QCheckBox>(prova.Opzione).click();
    Trova<QLineEdit>("txtCerca").setText(prova.Cercato);
    Trova<QLineEdit>("txtSost").setText(prova.Sostituto);
    auto& tutte = Trova<QPushButton>("cmdSostTutto");
    while (!tutte.isEnabled()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    Svuota();
  }

  /// Milliseconds until the window is painted again.
  double Sostituisci() {
    QElapsedTimer orologio;
    orologio.start();
    Trova<QPushButton>("cmdSostTutto").click();
    QCoreApplication::processEvents();
    const auto passati = static_cast<double>(orologio.nsecsElapsed()) / 1e6;
    const QString esito = Trova<QLabel>("lblEsito").text();
    if (!esito.startsWith(QString::number(Righe))) throw std::runtime_error(esito.toStdString());
    return passati;
  }

 private:
  template <typename Controllo>
  Controllo& Trova(const char* nome) {
    return *banco_.Finestra().findChild<Controllo*>(nome);
  }

  Banco banco_;
};

void Misura(const Prova& prova) {
  std::vector<double> tempi;
  for (int i = 0; i < Volte; ++i) tempi.push_back(Finestra(prova).Sostituisci());
  StampaAlPiu("replace all, 60,000 " + prova.Nome + ", ms until it is painted", Quantile(tempi, 1), Sbarra);
}

}  // namespace
}  // namespace parvik::bench

int main(int argc, char** argv) {
  const QApplication programma(argc, argv);
  using parvik::bench::Misura;
  Misura({.Nome = "texts", .Opzione = "", .Cercato = "cliente", .Sostituto = "fornitore"});
  Misura({.Nome = "expressions", .Opzione = "chkRegex", .Cercato = "cl(i)ent", .Sostituto = "\\1\\1"});
  Misura({.Nome = "codes", .Opzione = "chkCodici", .Cercato = "4", .Sostituto = "larghezza 29 -> 32"});
}
