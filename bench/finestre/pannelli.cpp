// Typing while panels and bars are shown, beside the same editor where none is, key by key in turn.
#include <QApplication>
#include <functional>
#include <iostream>
#include <string>

#include "Dati.h"
#include "Resoconto.h"
#include "finestre/Banco.h"
#include "finestre/Battitura.h"
#include "finestre/Tutto.h"

namespace parvik::bench {
namespace {

constexpr int Tasti = 600;  // in each editor
constexpr double Sbarra = 1.25;
constexpr double QuasiTutti = 0.99;

void Misura(const std::string& che, std::size_t righe, Banco& aperto, const std::function<void()>& mostra) {
  Banco chiuso;
  for (Banco* banco : {&chiuso, &aperto}) {
    banco->Apri(Modello(righe));
    Svuota();
  }
  aperto.Finestra().move(aperto.Finestra().width(), 0);
  mostra();
  Svuota();
  Battitura senza(chiuso.Testata());
  Battitura con(aperto.Testata());
  for (int i = 0; i < Tasti; ++i) {
    senza.Premi(i);
    con.Premi(i);
  }
  StampaAlPiu("key with " + che + ", " + std::to_string(righe) + " lines, p99, of one without",
              con.Quantile(QuasiTutti) / senza.Quantile(QuasiTutti), Sbarra);
}

void MisuraPannello(const char* comando, const std::string& pannello, std::size_t righe) {
  Banco aperto;
  Misura("the " + pannello + " shown", righe, aperto, [&] { aperto.Comanda(comando); });
}

void MisuraTutto(std::size_t righe) {
  const Casa casa;
  Banco aperto(casa.Dove());
  Misura("panel, bars and recovery", righe, aperto, [&] { MostraTutto(aperto); });
}

}  // namespace
}  // namespace parvik::bench

int main(int argc, char** argv) {
  const QApplication programma(argc, argv);
  for (const std::size_t righe : {60UL, 6'000UL}) {
    parvik::bench::MisuraPannello("mnuProblemi", "problems", righe);
    parvik::bench::MisuraPannello("mnuPannelloCampi", "fields", righe);
    parvik::bench::MisuraTutto(righe);
  }
}
