// The memory of a window with a template in it: bench_ingombro editor|all|bare LINES prints what the template
// took, in bytes a byte of the file, and what all takes, in MiB.
#include <unistd.h>

#include <QApplication>
#include <QMainWindow>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

#include "Dati.h"
#include "common/qtTesto.h"
#include "finestre/Banco.h"
#include "finestre/Tutto.h"

namespace parvik::bench {
namespace {

/// In bytes.
double Residente() {
  std::ifstream stato("/proc/self/statm");
  long tutte = 0;
  long residenti = 0;
  stato >> tutte >> residenti;
  return static_cast<double>(residenti) * static_cast<double>(::sysconf(_SC_PAGESIZE));
}

/// In bytes: what the template took, and all.
struct Misura {
  double Suoi = 0;
  double Tutti = 0;
};

Misura NellEditor(const std::string& modello) {
  Banco banco;
  const double prima = Residente();
  banco.Apri(modello);
  const double tutti = Residente();
  return {.Suoi = tutti - prima, .Tutti = tutti};
}

/// With all that the window can show, and while all is kept that can be.
Misura ConTutto(const std::string& modello) {
  const Casa casa;
  Banco banco(casa.Dove());
  const double prima = Residente();
  banco.Apri(modello);
  MostraTutto(banco);
  const double tutti = Residente();
  return {.Suoi = tutti - prima, .Tutti = tutti};
}

Misura NelNudo(const std::string& modello) {
  QMainWindow finestra;
  auto* nudo = new QPlainTextEdit(&finestra);
  nudo->setLineWrapMode(QPlainTextEdit::NoWrap);
  finestra.setCentralWidget(nudo);
  finestra.resize(1100, 700);
  finestra.show();
  Svuota();
  const double prima = Residente();
  nudo->setPlainText(PerSchermo(modello));
  Svuota();
  const double tutti = Residente();
  return {.Suoi = tutti - prima, .Tutti = tutti};
}

Misura Misurata(const std::string& dove, const std::string& modello) {
  if (dove == "editor") return NellEditor(modello);
  return dove == "all" ? ConTutto(modello) : NelNudo(modello);
}

}  // namespace
}  // namespace parvik::bench

int main(int argc, char** argv) {
  using namespace parvik::bench;
  if (argc != 3) {
    std::cerr << "bench_ingombro editor|all|bare LINES\n";
    return EXIT_FAILURE;
  }
  QApplication programma(argc, argv);
  const std::string modello = Modello(std::stoul(argv[2]));
  const auto [usati, residente] = Misurata(argv[1], modello);
  std::cout << usati / static_cast<double>(modello.size()) << ' ' << residente / (1024.0 * 1024.0) << '\n';
}
