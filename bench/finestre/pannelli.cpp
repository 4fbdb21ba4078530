// Typing while a panel is open, beside the same editor where it is not, key by key in turn.
#include <QApplication>
#include <iostream>
#include <string>

#include "Dati.h"
#include "Resoconto.h"
#include "finestre/Banco.h"
#include "finestre/Battitura.h"

namespace parvik::bench {
namespace {

constexpr int Tasti = 600;  // in each editor
constexpr double Sbarra = 1.25;
constexpr double QuasiTutti = 0.99;

void Misura(const char* comando, const std::string& pannello, std::size_t righe) {
  Banco chiuso;
  Banco aperto;
  for (Banco* banco : {&chiuso, &aperto}) {
    banco->Apri(Modello(righe));
    Svuota();
  }
  QWidget& destra = *aperto.Testata().window();
  destra.move(destra.width(), 0);
  aperto.Comanda(comando);
  Svuota();
  Battitura senza(chiuso.Testata());
  Battitura con(aperto.Testata());
  for (int i = 0; i < Tasti; ++i) {
    senza.Premi(i);
    con.Premi(i);
  }
  StampaAlPiu("key with the " + pannello + " shown, " + std::to_string(righe) + " lines, p99, of one without",
              con.Quantile(QuasiTutti) / senza.Quantile(QuasiTutti), Sbarra);
}

}  // namespace
}  // namespace parvik::bench

int main(int argc, char** argv) {
  const QApplication programma(argc, argv);
  for (const std::size_t righe : {60UL, 6'000UL}) {
    parvik::bench::Misura("mnuProblemi", "problems", righe);
    parvik::bench::Misura("mnuPannelloCampi", "fields", righe);
  }
}
