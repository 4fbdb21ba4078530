// Edits of a section, keys in it, and snapshots of it: what they cost wherever it happens. Nothing is drawn.
#include <benchmark/benchmark.h>

#include <array>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "Dati.h"
#include "Resoconto.h"
#include "template/ComandiSezione.h"

namespace parvik::bench {
namespace {

constexpr std::array<std::int64_t, 3> Righe = {60, 6'000, 600'000};
constexpr int CodiciInRiga = 200'000;

/// Follows a caret, as an editor does, and asks for the codes that it touches.
class Veduta final : public VedutaSezione, private AscoltatoreDocumento {
 public:
  explicit Veduta(Documento& documento) : ascolto_(documento.Ascolta(*this)) {}
  Cursore CursoreAttuale() const override { return cursore_; }
  void Poni(Cursore cursore) override { cursore_ = cursore; }
  void ApriDialogo(const std::string& /*contenuto*/) override {}
  void ApriVariabile() override {}

 private:
  void Modificata(const CambiamentoTesto& cambiamento) override {
    const std::size_t posto = cambiamento.Fatta.Dove + cambiamento.Fatta.Messi.size();
    cursore_ = {.Ancora = posto, .Posto = posto};
  }
  void Sostituita(Sezione /*sezione*/) override {}

  Cursore cursore_;
  Documento::Ascolto ascolto_;
};

/// A section with the caret in the middle of one of its lines, in which one types.
struct Banco {
  explicit Banco(std::string_view testo, std::optional<std::size_t> quale = {}) {
    Modello.Imposta(Sezione::Testata, testo);
    const TestoSezione& intero = Modello.Testo(Sezione::Testata);
    const Selezione riga = intero.Riga(quale.value_or(intero.Righe() / 2));
    const std::size_t meta = riga.Inizio + riga.Lunghezza / 2;
    const std::size_t posto = FuoriDaiCodici(intero, meta);
    Vista.Poni({.Ancora = posto, .Posto = posto});
  }
  void Batti() {
    Comandi.Scrivi("a", Pressione::Prima);
    benchmark::DoNotOptimize(CodiciAlCursore(Comandi.Testo(), Vista.CursoreAttuale().Posto));
    Comandi.Premi(TastoSezione::Backspace, Pressione::Prima);
    Modello.DimenticaPassi();
  }
  void Modifica() {
    const TestoSezione& testo = Comandi.Testo();
    const std::size_t posto = Vista.CursoreAttuale().Posto;
    benchmark::DoNotOptimize(testo.Con({.Dove = posto, .Tolti = 0, .Messi = "a"}));
  }
  void Fotografa() {
    const std::array testi = Modello.Testi();
    benchmark::DoNotOptimize(testi);
  }

  Documento Modello;
  Veduta Vista{Modello};
  ComandiSezione Comandi{Modello, Sezione::Testata, Vista};
};

void Registra(const std::string& nome, Banco& banco, void (Banco::*azione)()) {
  benchmark::RegisterBenchmark(nome.c_str(), [&banco, azione](benchmark::State& stato) {
    for (auto _ : stato) (banco.*azione)();
  });
}

/// A line of codes, and an empty one.
std::string RigaDiCodici() {
  std::string riga;
  for (int i = 0; i < CodiciInRiga; ++i) riga += "\xABV1;5R\xBB ";
  return riga + "\r\n";
}

std::string NomeModifica(std::int64_t righe) {
  return "edit, " + std::to_string(righe) + " lines";
}

int Esegui() {
  std::map<std::int64_t, std::unique_ptr<Banco>> banchi;
  for (const std::int64_t righe : Righe) {
    banchi[righe] = std::make_unique<Banco>(Lavoro(Modello(static_cast<std::size_t>(righe))).Testi[0]);
    Registra(NomeModifica(righe), *banchi[righe], &Banco::Modifica);
  }
  Banco vuota(RigaDiCodici(), 1);
  Banco piena(RigaDiCodici(), 0);
  Registra("key, empty line", vuota, &Banco::Batti);
  Registra("key, full line", piena, &Banco::Batti);
  Registra("snapshot", *banchi.rbegin()->second, &Banco::Fotografa);

  Resoconto resoconto;
  benchmark::RunSpecifiedBenchmarks(&resoconto);
  const double base = resoconto.Tempo(NomeModifica(Righe.front()));
  for (const std::int64_t righe : Righe)
    StampaRiga(NomeModifica(righe) + ": times that in " + std::to_string(Righe.front()),
               ConDecimali(resoconto.Tempo(NomeModifica(righe)) / base), "", "");
  StampaAlPiu("key in a line of 200,000 codes, nothing drawn: times that in an empty one",
              resoconto.Tempo("key, full line") / resoconto.Tempo("key, empty line"), 3);
  StampaRiga("snapshot of a document of 600,000 lines: times an edit of it",
             ConDecimali(resoconto.Tempo("snapshot") / resoconto.Tempo(NomeModifica(Righe.back()))), "", "");
  return 0;
}

}  // namespace
}  // namespace parvik::bench

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  return parvik::bench::Esegui();
}
