// Whole processes beside one another: processor time and peak memory of the batch program and of floors that
// are programs of their own, in turns.
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

extern char** environ;

namespace {

using Comando = std::vector<std::string>;

struct Consumo {
  double Secondi = 0;  // of processor, in the program and in the system for it
  double Byte = 0;     // resident at most
};

/// Runs a command with its standard output in a file.
Consumo Esegui(const Comando& comando, const std::string& uscita) {
  std::vector<char*> argomenti;
  for (const std::string& parola : comando) argomenti.push_back(const_cast<char*>(parola.c_str()));
  argomenti.push_back(nullptr);
  posix_spawn_file_actions_t azioni;
  posix_spawn_file_actions_init(&azioni);
  posix_spawn_file_actions_addopen(&azioni, 1, uscita.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
  pid_t processo = 0;
  const int errore = posix_spawn(&processo, argomenti[0], &azioni, nullptr, argomenti.data(), environ);
  posix_spawn_file_actions_destroy(&azioni);
  if (errore != 0) throw std::runtime_error("cannot run " + comando[0]);
  int stato = 0;
  rusage uso{};
  wait4(processo, &stato, 0, &uso);
  if (!WIFEXITED(stato) || WEXITSTATUS(stato) != 0) throw std::runtime_error(comando[0] + " failed");
  const auto secondi = [](const timeval& tempo) {
    return static_cast<double>(tempo.tv_sec) + 1e-6 * static_cast<double>(tempo.tv_usec);
  };
  return {secondi(uso.ru_utime) + secondi(uso.ru_stime), 1024.0 * static_cast<double>(uso.ru_maxrss)};
}

double Mediana(std::vector<double> valori) {
  std::ranges::sort(valori);
  return valori[valori.size() / 2];
}

/// The first command beside the second one, `volte` runs of each in turns: medians of the ratios of
/// neighbours, and of the first one's memory.
struct Confronto {
  double Rapporto = 0;
  double Byte = 0;
};
Confronto Confronta(const Comando& primo, const Comando& secondo, const std::string& uscita, int volte) {
  std::vector<double> rapporti;
  std::vector<double> byte;
  Esegui(primo, uscita);
  Esegui(secondo, uscita);
  for (int i = 0; i < volte; ++i) {
    const Consumo a = Esegui(primo, uscita);
    const Consumo b = Esegui(secondo, uscita);
    rapporti.push_back(a.Secondi / b.Secondi);
    byte.push_back(a.Byte);
  }
  return {Mediana(rapporti), Mediana(byte)};
}

void Stampa(const char* cosa, double misura, double sbarra) {
  if (sbarra == 0) {
    std::printf("%s\t%.2f\t\t\n", cosa, misura);
  } else {
    std::printf("%s\t%.2f\tat most %.2f\t%s\n", cosa, misura, sbarra, misura <= sbarra ? "yes" : "no");
  }
}

double Dimensione(const std::string& file) {
  struct stat stato {};
  if (stat(file.c_str(), &stato) != 0) throw std::runtime_error("cannot find " + file);
  return static_cast<double>(stato.st_size);
}

/// The checker beside the run, over templates with which nothing is wrong, and over one full of findings.
void MisuraVerifica(const std::string& batch, const std::string& dati) {
  const std::string uscita = dati + "/uscita.txt";
  const auto comando = [&](const char* nome, const std::vector<std::string>& file) {
    Comando tutto{batch, "--campi", dati + "/CAMPI.TXT", nome, "--tipo", "1"};
    tutto.insert(tutto.end(), file.begin(), file.end());
    return tutto;
  };
  std::vector<std::string> molti;
  for (int i = 0; i < 10'000; ++i) molti.push_back(dati + "/molti/" + std::to_string(i) + ".img");
  const auto confronta = [&](const std::vector<std::string>& file, int volte) {
    return Confronta(comando("verifica", file), comando("stampa", file), uscita, volte);
  };
  constexpr int Volte = 21;
  Stampa("verifica of 10,000 templates of 60 lines: times the CPU of stampa",
         confronta(molti, Volte).Rapporto, 1.5);
  const std::string ordine = dati + "/10mb-in-ordine.img";
  const Confronto dieci = confronta({ordine}, Volte);
  Stampa("verifica of 10 MB: times the CPU of stampa", dieci.Rapporto, 4);
  Stampa("verifica of 10 MB: peak memory, times the file", dieci.Byte / Dimensione(ordine), 3);
  Stampa("verifica of 10 MB with 140,000 findings: times the CPU of stampa",
         confronta({dati + "/10mb.img"}, 5).Rapporto, 0);
}

void Misura(const std::string& batch, const std::string& pavimenti, const std::string& dati) {
  const std::string uscita = dati + "/uscita.txt";
  const auto stampa = [&](const char* nome) {
    return Comando{batch, "--campi", dati + "/CAMPI.TXT", "stampa", "--tipo", "1", dati + "/" + nome};
  };
  const auto pavimento = [&](const char* programma, const char* nome) {
    return Comando{pavimenti + "/" + programma, dati + "/" + nome};
  };
  constexpr int Molte = 201;
  constexpr int Poche = 41;
  const double vuota = Esegui({pavimenti + "/bench_memoria", "1"}, uscita).Byte;
  const double piena = Esegui({pavimenti + "/bench_memoria", "32767"}, uscita).Byte;
  double resi = 0;
  if (!(std::ifstream(uscita) >> resi)) throw std::runtime_error("bench_memoria says nothing");
  Stampa("body of 32,767 rows in the preview: peak memory, times the rendered text", (piena - vuota) / resi,
         2);
  const Confronto dieci =
      Confronta(stampa("10mb.img"), pavimento("bench_passata", "10mb.img"), uscita, Poche);
  Stampa("stampa of 10 MB, whole process: times the CPU of a pass over the whole file", dieci.Rapporto, 1);
  Stampa("stampa of 10 MB: peak memory, times the file", dieci.Byte / Dimensione(dati + "/10mb.img"), 3);
  const Confronto lungo =
      Confronta(stampa("600000.img"), pavimento("bench_passata", "600000.img"), uscita, 5);
  Stampa("stampa of 600,000 lines: times the CPU of a pass over the whole file", lungo.Rapporto, 0);
  Stampa("stampa of 600,000 lines: peak memory, times the file",
         lungo.Byte / Dimensione(dati + "/600000.img"), 3);
  const Confronto breve = Confronta(stampa("60.img"), pavimento("bench_copia", "60.img"), uscita, Molte);
  Stampa("stampa of 60 lines, whole process: times the CPU of read, copy and write", breve.Rapporto, 2);
  MisuraVerifica(batch, dati);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::cerr << "bench_processi PARVIK32-BATCH FLOORS DATA\n";
    return 2;
  }
  try {
    Misura(argv[1], argv[2], argv[3]);
  } catch (const std::exception& errore) {
    std::cerr << "bench_processi: " << errore.what() << '\n';
    return 2;
  }
  return 0;
}
