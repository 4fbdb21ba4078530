// Reading, writing, rendering and the catalogue, each beside its floors in the same run.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include "Dati.h"
#include "Pavimenti.h"
#include "Resoconto.h"
#include "catalogue/Catalogo.h"
#include "output/TracciaStampa.h"
#include "template/ImmagineModello.h"

namespace parvik::bench {
namespace {

constexpr std::array<std::int64_t, 3> Righe = {60, 6'000, 600'000};
constexpr std::array<std::int64_t, 3> Volte = {327, 3'276, 32'767};
constexpr std::size_t ByteCatalogo = 10'000'000;

/// Keeps its room from run to run, as the floors of rendering do: rendering is measured, and not how the
/// machine hands out memory.
class InMemoria final : public UscitaRighe {
 public:
  bool Righe(std::string_view righe) override {
    testo_.append(righe);
    return true;
  }
  void Svuota() { testo_.clear(); }
  const std::string& Testo() const { return testo_; }

 private:
  std::string testo_;
};

/// A template on its way through the program.
struct Modelli {
  explicit Modelli(std::string file) : File(std::move(file)), Aperto(Lavoro(File)) { Prepara(); }
  explicit Modelli(std::int16_t volte) : Aperto(LavoroCorpo(volte)) { Prepara(); }

  void Rendi() {
    Uscita.Svuota();
    static_cast<void>(GeneraStampa(Aperto.Dati(), TipoStampa::File, Uscita));
  }
  void RendiTracciata() {
    Uscita.Svuota();
    TracciaStampa traccia;
    static_cast<void>(GeneraStampa(Aperto.Dati(), TipoStampa::File, Uscita, traccia));
    benchmark::DoNotOptimize(traccia);
  }
  /// The floor of rendering: the same sections as often.
  void PassaNuda() {
    char* uscita = Spazio.get();
    for (const Sezione sezione : TutteLeSezioni) {
      const int volte = sezione == Sezione::Corpo ? Aperto.RigheCorpo / Aperto.LineeCorpo : 1;
      for (int i = 0; i < volte; ++i) uscita = PassataNuda(Aperto.Testi[Indice(sezione)], uscita);
    }
    benchmark::DoNotOptimize(uscita);
  }
  void Leggi() const {
    benchmark::DoNotOptimize(LeggiImmagine(File, Formato::TreSezioni, ImpostazioniPredefinite()));
  }
  void Scrivi() {
    ImpostazioniCorpo corpo{
        .RigheCorpo = Aperto.RigheCorpo, .LineeCorpo = 1, .FlagSbarra = "", .FlagAccorpa = ""};
    benchmark::DoNotOptimize(ScriviImmagine(Aperto.Testi, corpo, Formato::TreSezioni));
  }

  std::string File;
  LavoroStampa Aperto;
  InMemoria Uscita;
  std::unique_ptr<char[]> Spazio;  // for what the floors write

 private:
  void Prepara() {
    Rendi();
    Spazio = std::make_unique<char[]>(std::max(Dimensione(), Uscita.Testo().size()));
  }
  std::size_t Dimensione() const {
    const auto& testi = Aperto.Testi;
    const auto volte = static_cast<std::size_t>(Aperto.RigheCorpo / Aperto.LineeCorpo);
    return testi[0].size() + testi[1].size() * volte + testi[2].size();
  }
};

using PerMisura = std::map<std::int64_t, std::unique_ptr<Modelli>>;
using Azione = std::function<void(Modelli&)>;

void Registra(const std::string& nome, const PerMisura& modelli, const Azione& azione) {
  auto* famiglia = benchmark::RegisterBenchmark(nome.c_str(), [&modelli, azione](benchmark::State& stato) {
    Modelli& modello = *modelli.at(stato.range(0));
    for (auto _ : stato) azione(modello);
    stato.SetComplexityN(stato.range(0));
  });
  for (const auto& [misura, modello] : modelli) famiglia->Arg(misura);
  famiglia->Complexity(benchmark::oN);
}

using Passata = char* (*)(std::string_view, char*);

/// A floor of reading and writing: into new memory, as the program does.
Azione InNuovaMemoria(Passata passata) {
  return [passata](Modelli& m) {
    const auto spazio = std::make_unique_for_overwrite<char[]>(m.File.size());
    benchmark::DoNotOptimize(passata(m.File, spazio.get()));
  };
}

void RegistraModelli(const PerMisura& modelli) {
  Registra("read", modelli, [](Modelli& m) { m.Leggi(); });
  Registra("write", modelli, [](Modelli& m) { m.Scrivi(); });
  for (const std::string nome : {"read", "write"}) {
    Registra(nome + ": line walk", modelli, InNuovaMemoria(PassataRighe));
    Registra(nome + ": memcpy", modelli, InNuovaMemoria(Copia));
  }
}

void RegistraResa(const std::string& nome, const PerMisura& modelli, const Azione& azione) {
  Registra(nome, modelli, azione);
  Registra(nome + ": bare pass", modelli, [](Modelli& m) { m.PassaNuda(); });
  Registra(nome + ": memcpy", modelli,
           [](Modelli& m) { benchmark::DoNotOptimize(Copia(m.Uscita.Testo(), m.Spazio.get())); });
}

void RegistraCatalogo(const std::string& file) {
  benchmark::RegisterBenchmark("catalogue", [&file](benchmark::State& stato) {
    for (auto _ : stato) {
      stato.PauseTiming();
      std::string copia = file;
      stato.ResumeTiming();
      const auto catalogo = Catalogo::CaricaCampi(std::move(copia));
      for (const Sezione sezione : TutteLeSezioni) {
        benchmark::DoNotOptimize(catalogo->CaricaVariabili(catalogo->TipiDoc()[0], sezione));
        benchmark::DoNotOptimize(catalogo->CaricaFlag(catalogo->TipiDoc()[0], sezione));
      }
    }
  });
  benchmark::RegisterBenchmark("catalogue: splitting pass", [&file](benchmark::State& stato) {
    for (auto _ : stato) benchmark::DoNotOptimize(DividiCampi(file));
  });
}

/// How often the floor's time fits into the program's.
double VolteIl(const Resoconto& resoconto, const std::string& cosa, const std::string& pavimento,
               const std::string& misura) {
  const double base = resoconto.Tempo(cosa + ": " + pavimento + misura);
  return base == 0 ? 0 : resoconto.Tempo(cosa + misura) / base;
}

/// Throughput beside the floor at every size, with a bar at the largest one; and whether time grows as lines
/// do.
void StampaFamiglia(const Resoconto& resoconto, const std::string& cosa, const std::string& pavimento,
                    const PerMisura& modelli, double sbarra) {
  for (const auto& [misura, modello] : modelli) {
    const std::string argomento = "/" + std::to_string(misura);
    const std::string riga = cosa + ", " + std::to_string(misura) + " lines: throughput, part of the ";
    const double volte = VolteIl(resoconto, cosa, pavimento, argomento);
    if (sbarra > 0 && misura == modelli.rbegin()->first) {
      StampaAlmeno(riga + pavimento, volte == 0 ? 0 : 1 / volte, sbarra);
    } else {
      StampaRiga(riga + pavimento, ConDecimali(volte == 0 ? 0 : 1 / volte), "", "");
    }
    StampaRiga(cosa + ", " + std::to_string(misura) + " lines: times memcpy",
               ConDecimali(VolteIl(resoconto, cosa, "memcpy", argomento)), "", "");
  }
  const Resoconto::Retta retta = resoconto.RettaDi(cosa);
  StampaRiga(cosa + ": linear fit, ns a line (deviation)",
             ConDecimali(retta.PerRiga) + " (" + ConDecimali(100 * retta.Scarto) + " %)", "", "");
}

}  // namespace

int Esegui() {
  PerMisura modelli;
  for (const std::int64_t righe : Righe) {
    modelli[righe] = std::make_unique<Modelli>(Modello(static_cast<std::size_t>(righe)));
  }
  PerMisura corpi;
  for (const std::int64_t volte : Volte)
    corpi[volte] = std::make_unique<Modelli>(static_cast<std::int16_t>(volte));
  const std::string catalogo = FileCatalogo(ByteCatalogo);

  RegistraModelli(modelli);
  RegistraResa("render", modelli, [](Modelli& m) { m.Rendi(); });
  Registra("render: traced", modelli, [](Modelli& m) { m.RendiTracciata(); });
  RegistraResa("preview", modelli,
               [](Modelli& m) { benchmark::DoNotOptimize(GeneraAnteprima(m.Aperto.Dati())); });
  RegistraResa("body", corpi, [](Modelli& m) { m.Rendi(); });
  RegistraCatalogo(catalogo);

  Resoconto resoconto;
  benchmark::RunSpecifiedBenchmarks(&resoconto);
  StampaFamiglia(resoconto, "read", "line walk", modelli, 0.5);
  StampaFamiglia(resoconto, "write", "line walk", modelli, 0.5);
  StampaFamiglia(resoconto, "render", "bare pass", modelli, 0.5);
  for (const auto& [misura, modello] : modelli) {
    const std::string argomento = "/" + std::to_string(misura);
    StampaAlPiu("render traced, " + std::to_string(misura) + " lines: times the run without a trace",
                resoconto.Tempo("render: traced" + argomento) / resoconto.Tempo("render" + argomento), 1.5);
  }
  StampaFamiglia(resoconto, "preview", "bare pass", modelli, 0);
  StampaFamiglia(resoconto, "body", "bare pass", corpi, 0.5);
  StampaAlPiu("catalogue of 10 MB: times the splitting pass",
              VolteIl(resoconto, "catalogue", "splitting pass", ""), 3);
  return 0;
}

}  // namespace parvik::bench

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  return parvik::bench::Esegui();
}
