// Start-up: from exec to the first painted frame, and the greatest memory, of the editor and of a bare window
// in turn. bench_avvio EDITOR BARE-WINDOW
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <thread>
#include <vector>

#include "Resoconto.h"
#include "finestre/Schermo.h"

namespace parvik::bench {
namespace {

using Orologio = std::chrono::steady_clock;

constexpr int Volte = 20;
constexpr int AttesaMassima = 10'000;  // milliseconds
constexpr auto Quiete =
    std::chrono::milliseconds(150);  // what is put off until after the first frame counts too
constexpr double SbarraTempo = 1.15;
constexpr double SbarraMemoria = 6;  // MiB
constexpr double KiBPerMiB = 1024;

struct Misure {
  std::vector<double> Millisecondi;
  std::vector<double> MiB;
};

pid_t Lancia(const char* programma) {
  posix_spawn_file_actions_t azioni = {};
  ::posix_spawn_file_actions_init(&azioni);
  ::posix_spawn_file_actions_addopen(&azioni, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  std::string nome = programma;
  char* const argomenti[] = {nome.data(), nullptr};
  pid_t figlio = 0;
  const int errore = ::posix_spawn(&figlio, programma, &azioni, nullptr, argomenti, environ);
  ::posix_spawn_file_actions_destroy(&azioni);
  if (errore != 0) throw std::runtime_error("cannot start " + nome);
  return figlio;
}

double MemoriaDopoFine(pid_t figlio) {
  ::kill(figlio, SIGTERM);
  rusage uso = {};
  if (::wait4(figlio, nullptr, 0, &uso) != figlio) throw std::runtime_error("lost the program");
  return static_cast<double>(uso.ru_maxrss) / KiBPerMiB;
}

void Misura(Schermo& schermo, const char* programma, Misure& misure) {
  const auto inizio = Orologio::now();
  const pid_t figlio = Lancia(programma);
  const bool dipinta = schermo.AttendiDipinta(AttesaMassima);
  const std::chrono::duration<double, std::milli> passati = Orologio::now() - inizio;
  std::this_thread::sleep_for(Quiete);
  const double memoria = MemoriaDopoFine(figlio);
  if (!dipinta) throw std::runtime_error(std::string(programma) + " painted nothing");
  misure.Millisecondi.push_back(passati.count());
  misure.MiB.push_back(memoria);
  schermo.AttendiVuoto(AttesaMassima);
}

void Esegui(const char* editor, const char* nuda) {
  Schermo schermo;
  Misure dellEditor;
  Misure dellaNuda;
  Misure scarto;  // the first run of each brings its files into memory
  Misura(schermo, nuda, scarto);
  Misura(schermo, editor, scarto);
  std::vector<double> rapporti;
  for (int i = 0; i < Volte; ++i) {
    Misura(schermo, nuda, dellaNuda);
    Misura(schermo, editor, dellEditor);
    rapporti.push_back(dellEditor.Millisecondi.back() / dellaNuda.Millisecondi.back());
  }
  std::cerr << "editor " << Mediana(dellEditor.Millisecondi) << " ms " << Mediana(dellEditor.MiB)
            << " MiB, bare window " << Mediana(dellaNuda.Millisecondi) << " ms " << Mediana(dellaNuda.MiB)
            << " MiB\n";
  StampaAlPiu("start to the first painted frame, time of a bare window's", Mediana(rapporti), SbarraTempo);
  StampaAlPiu("start, MiB more than a bare window", Mediana(dellEditor.MiB) - Mediana(dellaNuda.MiB),
              SbarraMemoria);
}

}  // namespace
}  // namespace parvik::bench

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "bench_avvio EDITOR BARE-WINDOW\n";
    return EXIT_FAILURE;
  }
  try {
    parvik::bench::Esegui(argv[1], argv[2]);
  } catch (const std::exception& errore) {
    std::cerr << "bench_avvio: " << errore.what() << '\n';
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
