// Words that are typed among many fields: what each letter costs, beside the time of a frame.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "Resoconto.h"
#include "common/Lettere.h"
#include "editor/VociInseribili.h"

namespace parvik::bench {
namespace {

constexpr int Quante = 5'000;
constexpr double Fotogramma = 16e6;  // nanoseconds

constexpr std::array Parole = {"Ragione", "sociale", "Codice",  "Descrizione", "articolo",    "cliente",
                               "Data",    "ordine",  "Importo", "Quantit\xE0", "destinazione"};
constexpr std::array<const char*, 6> Cercati = {"", "c", "cod", "cliente codice", "105", "zzz"};

std::vector<VoceInseribile> Voci() {
  std::vector<VoceInseribile> voci;
  for (int i = 0; i < Quante; ++i) {
    const auto posto = static_cast<std::size_t>(i);
    std::string nome = Parole[posto % Parole.size()];
    for (const std::size_t passo : {3UL, 7UL, 13UL})
      nome += std::string(" ") + Parole[posto / passo % Parole.size()];
    voci.push_back({.Gruppo = GruppoVoci::Variabili,
                    .Numero = i + 1,
                    .Descrizione = nome,
                    .Nuda = InLettereNude(nome),
                    .Codice = "x"});
  }
  return voci;
}

std::string Nome(const char* cercato) {
  return "fields, \"" + std::string(cercato) + "\"";
}

int Esegui() {
  const std::vector<VoceInseribile> voci = Voci();
  for (const char* cercato : Cercati) {
    benchmark::RegisterBenchmark(Nome(cercato).c_str(), [&voci, cercato](benchmark::State& stato) {
      for (auto _ : stato) benchmark::DoNotOptimize(Filtra(voci, cercato));
    });
  }
  Resoconto resoconto;
  benchmark::RunSpecifiedBenchmarks(&resoconto);
  double peggiore = 0;
  for (const char* cercato : Cercati) peggiore = std::max(peggiore, resoconto.Tempo(Nome(cercato)));
  StampaAlPiu("words among 5,000 fields, the slowest: part of a frame of 16 ms", peggiore / Fotogramma, 1);
  return 0;
}

}  // namespace
}  // namespace parvik::bench

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  return parvik::bench::Esegui();
}
