// Two runs of the batch program that write one file at the same moment, hundreds of times.
#include <gtest/gtest.h>

#include <barrier>
#include <cerrno>
#include <set>
#include <thread>

#include "batch/Esecuzione.h"
#include "batch/Esempi.h"
#include "common/ErroreRuntime.h"
#include "common/FileDiProva.h"
#include "guasti/Guasti.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

class CoppieRivali : public testing::TestWithParam<int> {
 protected:
  /// Both at once, each with a template of its own for the same file.
  std::pair<Esecuzione, Esecuzione> Salva() const {
    std::pair<Esecuzione, Esecuzione> esiti;
    std::barrier via(2);
    std::jthread altro([&] {
      via.arrive_and_wait();
      esiti.second = Esegui(Argomenti(Secondo));
    });
    via.arrive_and_wait();
    esiti.first = Esegui(Argomenti(Primo));
    altro.join();
    return esiti;
  }
  std::vector<std::string> Argomenti(const fs::path& modello) const {
    return Host.Argomenti({"normalizza", "--tipo", "2", "-o", File, modello});
  }

  HostDiProva Host;
  const fs::path Primo = Host.Modello("primo.img", std::string(3000, 'p') + "\r\n");
  const fs::path Secondo = Host.Modello("secondo.img", std::string(2000, 's') + "\r\n");
  const fs::path Cartella = Host.Percorso() / "modelli";
  const fs::path File = Cartella / "a.img";
};

TEST_P(CoppieRivali, LeaveOneOfTheTwoContentsWholeAndTheLoserSaysThatTheFileIsInUse) {
  constexpr int Coppie = 500;
  const PianoGuasti piano = {.Cartelle = {}, .Guasti = {}, .SenzaLucchetti = GetParam()};
  const VariabileAmbiente libreria("LD_PRELOAD", PARVIK_LIBRERIA_GUASTI);
  const VariabileAmbiente opzioni("ASAN_OPTIONS", OpzioniAsan("verify_asan_link_order=0").c_str());
  const VariabileAmbiente conPiano("PARVIK_GUASTI", Scritto(piano).c_str());
  const Esecuzione scritto = {0, "", ""};
  const Esecuzione inUso = {2, "",
                            Detto(File, TestoErrore(NumeroErrore::AutorizzazioneNegata) +
                                            " - Il file è in uso: un altro programma lo sta salvando")};
  Crea(File, "vecchio\r\n");
  for (int i = 0; i < Coppie && !HasFailure(); ++i) {
    const auto [primo, secondo] = Salva();
    EXPECT_TRUE(primo == scritto || primo == inUso) << testing::PrintToString(primo);
    EXPECT_TRUE(secondo == scritto || secondo == inUso) << testing::PrintToString(secondo);
    std::set<std::string> possibili;
    if (primo == scritto) possibili.insert(Contenuto(Primo));
    if (secondo == scritto) possibili.insert(Contenuto(Secondo));
    EXPECT_TRUE(possibili.contains(Contenuto(File)));
    EXPECT_EQ(Nomi(Cartella), std::vector<std::string>{"a.img"});
  }
}

INSTANTIATE_TEST_SUITE_P(Casi, CoppieRivali, testing::Values(0, ENOLCK), [](const auto& caso) {
  return std::string(caso.param == 0 ? "with_locks" : "without_locks");
});

}  // namespace
}  // namespace parvik::prova
