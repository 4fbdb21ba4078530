#include "Dati.h"

#include <stdexcept>
#include <utility>
#include <vector>

#include "catalogue/Catalogo.h"
#include "common/LettoreRighe.h"
#include "sistema/LetturaFile.h"
#include "template/ImmagineModello.h"

namespace parvik::bench {
namespace {

constexpr std::int16_t TreSezioni = 3;

std::string Esempio(const char* nome) {
  auto contenuto = LeggiFile(std::filesystem::path(PARVIK_ESEMPIO) / "D_IMG" / nome);
  if (!contenuto) throw std::runtime_error(nome);
  return std::move(*contenuto);
}

ImmagineLetta Fattura() {
  return *LeggiImmagine(Esempio("FATT01.IMG"), Formato::TreSezioni, ImpostazioniPredefinite());
}

/// Every line of the invoice with its line end, but for the marker; in memory, not in the file.
std::vector<std::string> RigheFattura(const ImmagineLetta& fattura) {
  std::vector<std::string> righe;
  for (const std::string& testo : fattura.Testi) {
    LettoreRighe lettore(testo);
    while (const auto riga = lettore.Prossima()) righe.push_back(std::string(*riga) + "\r\n");
  }
  return righe;
}

/// What is not Corpo goes half before it and half behind it; `finito` says of lines and bytes when there is
/// enough.
template <class Finito>
std::string ModelloFinche(Finito finito) {
  ImmagineLetta fattura = Fattura();
  const std::vector<std::string> righe = RigheFattura(fattura);
  std::string& testata = fattura.Testi[Indice(Sezione::Testata)];
  std::string& piede = fattura.Testi[Indice(Sezione::Piede)];
  testata.clear();
  piede.clear();
  std::size_t fatte = static_cast<std::size_t>(fattura.Corpo.LineeCorpo);
  std::size_t byte = fattura.Testi[Indice(Sezione::Corpo)].size();
  for (std::size_t i = 0; !finito(fatte, byte); ++i, ++fatte) {
    const std::string& riga = righe[i % righe.size()];
    (finito(2 * fatte, 2 * byte) ? piede : testata).append(riga);
    byte += riga.size();
  }
  fattura.Corpo.RigheCorpo = fattura.Corpo.LineeCorpo;
  return *ScriviImmagine(fattura.Testi, fattura.Corpo, Formato::TreSezioni);
}

FlagPerStampe FlagFattura() {
  const auto catalogo = Catalogo::CaricaCampi(Esempio("CAMPI.TXT"));
  FlagPerStampe flag;
  flag.Carica(*catalogo, catalogo->TipiDoc()[0]);
  return flag;
}

}  // namespace

std::string Modello(std::size_t righe) {
  return ModelloFinche([righe](std::size_t fatte, std::size_t) { return fatte >= righe; });
}

std::string ModelloDiByte(std::size_t byte) {
  return ModelloFinche([byte](std::size_t, std::size_t fatti) { return fatti >= byte; });
}

std::string ModelloInOrdine(std::size_t righe, std::size_t byte) {
  ImmagineLetta fattura = Fattura();
  std::string& testata = fattura.Testi[Indice(Sezione::Testata)];
  const std::string prima = testata;
  const auto conta = [](const std::string& testo) {
    return static_cast<std::size_t>(std::ranges::count(testo, '\r'));
  };
  std::size_t fatte = 0;
  for (const std::string& testo : fattura.Testi) fatte += conta(testo);
  for (std::size_t inizio = 0; fatte < righe || testata.size() < byte; ++fatte) {
    const std::size_t fine = prima.find("\r\n", inizio) + 2;
    testata.append(prima, inizio, fine - inizio);
    inizio = fine == prima.size() ? 0 : fine;
  }
  return *ScriviImmagine(fattura.Testi, fattura.Corpo, Formato::TreSezioni);
}

std::string FileCatalogo(std::size_t byte) {
  constexpr std::string_view FineDocumenti = "//fine documenti";
  const std::string esempio = Esempio("CAMPI.TXT");
  const std::size_t corpo = esempio.find(FineDocumenti) + FineDocumenti.size();
  std::string catalogo = esempio;
  while (catalogo.size() < byte) catalogo.append(esempio, corpo);
  return catalogo;
}

LavoroStampa Lavoro(std::string_view modello) {
  ImmagineLetta letta = *LeggiImmagine(modello, Formato::TreSezioni, ImpostazioniPredefinite());
  return {.Testi = std::move(letta.Testi),
          .NumSezioni = TreSezioni,
          .RigheCorpo = letta.Corpo.RigheCorpo,
          .LineeCorpo = letta.Corpo.LineeCorpo,
          .Flag = FlagFattura()};
}

LavoroStampa LavoroCorpo(std::int16_t volte) {
  LavoroStampa lavoro;
  lavoro.Testi[Indice(Sezione::Corpo)] = Fattura().Testi[Indice(Sezione::Corpo)];
  lavoro.NumSezioni = TreSezioni;
  lavoro.RigheCorpo = volte;
  lavoro.LineeCorpo = 1;
  lavoro.Flag = FlagFattura();
  return lavoro;
}

}  // namespace parvik::bench
