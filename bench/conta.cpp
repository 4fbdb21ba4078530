// A fixed piece of work for counting instructions (bench/soglie.sh): `bench_conta read`, `write` or `render`.
// Only what Misurata does is counted; getting ready is not.
#include <functional>
#include <iostream>
#include <string>
#include <string_view>

#include "Dati.h"
#include "template/ImmagineModello.h"

namespace parvik::bench {

/// The name that the counting is switched on and off by.
[[gnu::noinline]] std::size_t Misurata(const std::function<std::size_t()>& lavoro) {
  return lavoro();
}

namespace {

constexpr std::size_t Righe = 6'000;

class Lunghezza final : public UscitaRighe {
 public:
  bool Righe(std::string_view righe) override {
    Totale += righe.size();
    return true;
  }
  std::size_t Totale = 0;
};

/// How many bytes came out; 0 when there is no such work.
std::size_t Conta(std::string_view cosa) {
  const std::string file = Modello(Righe);
  LavoroStampa aperto = Lavoro(file);
  if (cosa == "read") {
    return Misurata(
        [&] { return LeggiImmagine(file, Formato::TreSezioni, ImpostazioniPredefinite())->Testi[0].size(); });
  }
  if (cosa == "write") {
    ImpostazioniCorpo corpo = ImpostazioniPredefinite();
    return Misurata([&] { return ScriviImmagine(aperto.Testi, corpo, Formato::TreSezioni)->size(); });
  }
  if (cosa == "render") {
    return Misurata([&] {
      Lunghezza uscita;
      static_cast<void>(GeneraStampa(aperto.Dati(), TipoStampa::File, uscita));
      return uscita.Totale;
    });
  }
  return 0;
}

}  // namespace
}  // namespace parvik::bench

int main(int argc, char** argv) {
  const std::size_t byte = argc == 2 ? parvik::bench::Conta(argv[1]) : 0;
  if (byte == 0) {
    std::cerr << "bench_conta read|write|render\n";
    return 2;
  }
  std::cout << byte << '\n';
  return 0;
}
