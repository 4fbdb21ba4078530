// Typing while the preview follows by itself, beside the same editor where it does not, key by key in turn.
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
constexpr double DueQuadri = 2 * 16.7;  // milliseconds
constexpr double Mezzo = 0.5;
constexpr double QuasiTutti = 0.99;

void Misura(std::size_t righe) {
  Banco ferma;
  Banco seguita;
  for (Banco* banco : {&ferma, &seguita}) {
    banco->Apri(Modello(righe));
    banco->Comanda("mnuAnte");  // opening has turned it off
    Svuota();
  }
  QWidget& destra = *seguita.Testata().window();
  destra.move(destra.width(), 0);
  seguita.Comanda("mnuAnteAuto");
  Svuota();
  Battitura spenta(ferma.Testata());
  Battitura accesa(seguita.Testata(), seguita.Anteprima().viewport());
  for (int i = 0; i < Tasti; ++i) {
    spenta.Premi(i);
    accesa.Premi(i);
  }
  const std::string cosa = "key with the automatic preview, " + std::to_string(righe) + " lines, ";
  for (const double parte : {Mezzo, QuasiTutti}) {
    std::cerr << cosa << (parte == Mezzo ? "p50" : "p99") << ": off " << spenta.Quantile(parte) << ", on "
              << accesa.Quantile(parte) << ", until the pane is painted " << accesa.QuantileAltro(parte)
              << " ms\n";
  }
  StampaAlPiu(cosa + "p99, of one without", accesa.Quantile(QuasiTutti) / spenta.Quantile(QuasiTutti),
              Sbarra);
  StampaAlPiu(cosa + "p99 from the section's painting to the pane's, ms",
              accesa.QuantileAltro(QuasiTutti) - accesa.Quantile(QuasiTutti), DueQuadri);
}

}  // namespace
}  // namespace parvik::bench

int main(int argc, char** argv) {
  const QApplication programma(argc, argv);
  parvik::bench::Misura(60);
  parvik::bench::Misura(600);
}
