// The output run to a file and to the preview, held against the literal one.
#include <array>
#include <optional>
#include <utility>

#include "Aspetti.h"
#include "Traccia.h"
#include "catalogue/Catalogo.h"
#include "output/GeneraStampa.h"
#include "supporto/RiferimentoStampa.h"
#include "supporto/RiferimentoStili.h"

namespace parvik::fuzz {
namespace {

/// Codes of ten bytes may ask for a million characters: a run that writes more than this is given up.
constexpr std::size_t MassimoScritto = 70'000;
/// The literal run and the literal style pass are slow.
constexpr std::size_t MassimoPerRiferimento = 1'000;
constexpr std::size_t MassimoPerStili = 256;

class Raccolta final : public UscitaRighe {
 public:
  bool Righe(std::string_view righe) override {
    Esigi(righe.ends_with("\r\n") || righe.size() >= PassoStampa, "only of a long line there are pieces");
    Testo += righe;
    return Continua();
  }
  bool Continua() override {
    ++Domande;
    return Testo.size() <= MassimoScritto && Domande <= 2 * MassimoScritto / PassoStampa;
  }
  std::string Testo;
  std::size_t Domande = 0;
};

constexpr std::size_t Flags = 6;

/// Flags 1, 2 and 14 and the page conditions, in all the ways in which they can be true.
using TuttiIFlag = std::array<FlagPerStampe, 1U << Flags>;
TuttiIFlag CaricaFlag() {
  const auto catalogo = Catalogo::CaricaCampi(
      "1,\"a;b;1;0;0;0;0;0;0;1;3;0;0;0;0\"\r\n//fine documenti\r\n"
      "1,\"x;1;N\r\n2,\"x;2;N\r\n3,\"x;14;N\r\n");
  TuttiIFlag tutti;
  for (std::size_t veri = 0; veri < tutti.size(); ++veri) {
    tutti[veri].Carica(*catalogo, catalogo->TipiDoc()[0]);
    for (std::size_t i = 0; i < Flags; ++i) tutti[veri].SettaFlag(i, (veri >> i & 1U) != 0);
  }
  return tutti;
}

const FlagPerStampe& FlagDi(unsigned veri) {
  static const TuttiIFlag tutti = CaricaFlag();
  return tutti[veri % tutti.size()];
}

class Prova {
 public:
  explicit Prova(Ingresso ingresso)
      : righe_(static_cast<std::int16_t>(ingresso.Byte() % 64 - 16)),
        linee_(static_cast<std::int16_t>(ingresso.Byte() % 8 - 1)),
        sezioni_(static_cast<std::int16_t>(ingresso.Byte() % 6 - 1)),
        conInizio_(ingresso.Byte() % 4 == 0),
        flag_(FlagDi(ingresso.Byte())) {
    for (std::string& testo : testi_) testo = ingresso.Testo();
  }

  void Esegui() const {
    const auto perFile = Stampa(TipoStampa::File);
    const auto perAnteprima = Stampa(TipoStampa::Anteprima);
    if (perFile) ProvaFile(*perFile);
    if (perFile) ProvaTraccia(*perFile);
    if (perAnteprima) ProvaAnteprima(*perAnteprima);
  }

 private:
  DatiStampa Dati() const {
    return {.Testi = {testi_[0], testi_[1], testi_[2]},
            .NumSezioni = sezioni_,
            .RigheCorpo = righe_,
            .LineeCorpo = linee_,
            .Flag = flag_};
  }

  /// nullopt when there is too much of it.
  std::optional<std::string> Stampa(TipoStampa destinazione) const {
    Raccolta raccolta;
    if (!GeneraStampa(Dati(), destinazione, raccolta)) return std::nullopt;
    Esigi(raccolta.Testo.empty() || raccolta.Testo.ends_with("\r\n"), "what is begun is ended");
    return std::move(raccolta.Testo);
  }

  std::string Riferimento(TipoStampa destinazione) const {
    return prova::StampaDiRiferimento({.Testi = testi_,
                                       .NumSezioni = sezioni_,
                                       .RigheCorpo = righe_,
                                       .LineeCorpo = linee_,
                                       .RigheFlag = flag_.Righe()},
                                      static_cast<int>(destinazione));
  }

  void ProvaFile(const std::string& reso) const {
    if (reso.size() > MassimoPerRiferimento || !Confrontabile()) return;
    Esigi(reso == Riferimento(TipoStampa::File), "the file is the one that the rules give word for word");
  }

  void ProvaTraccia(const std::string& reso) const {
    if (reso.size() > MassimoPerRiferimento) return;
    Raccolta raccolta;
    TracciaStampa traccia;
    const bool finita = bool{GeneraStampa(Dati(), TipoStampa::File, raccolta, traccia)};
    Esigi(finita && raccolta.Testo == reso, "a traced run writes the same");
    EsigiTraccia(traccia, Dati(), reso);
  }

  void ProvaAnteprima(const std::string& reso) const {
    const Anteprima anteprima = GeneraAnteprima(Dati());
    EsigiTrattiInteri(anteprima.Testo, anteprima.Tratti);
    if (conInizio_) ProvaInizio(reso, anteprima);
    if (reso.size() > MassimoPerStili || !Confrontabile()) return;
    const prova::TestoConAspetti riferimento = prova::StiliDiRiferimento(Riferimento(TipoStampa::Anteprima));
    Esigi(anteprima.Testo == riferimento.Testo, "the preview is the one that the rules give word for word");
    EsigiAspetti(anteprima.Tratti, riferimento.Aspetti);
  }

  void ProvaInizio(const std::string& reso, const Anteprima& anteprima) const {
    const InizioAnteprima tutta = *GeneraInizioAnteprima(Dati(), 2 * MassimoScritto);
    Esigi(tutta.Intera && tutta.Testo.Testo == anteprima.Testo && tutta.Testo.Tratti == anteprima.Tratti,
          "a beginning that holds all is the preview");
    const InizioAnteprima meta = *GeneraInizioAnteprima(Dati(), reso.size() / 2);
    // Even of nothing the beginning may not be all: a long line without its end had to be gone over.
    Esigi(!meta.Intera || reso.empty(), "half of it is not all");
    EsigiTrattiInteri(meta.Testo.Testo, meta.Testo.Tratti);
  }

  /// A long line that is dropped at the end of its section shows in no output, but the literal run writes it.
  bool Confrontabile() const {
    Raccolta raccolta;
    const std::string unite = testi_[0] + "\xBB\r" + testi_[1] + "\xBB\r" + testi_[2] + "\xBB\r";
    return GeneraStampa({.Testi = {unite}, .NumSezioni = 1, .Flag = flag_}, TipoStampa::File, raccolta) &&
           raccolta.Testo.size() <= MassimoPerRiferimento;
  }

  std::int16_t righe_;
  std::int16_t linee_;
  std::int16_t sezioni_;
  bool conInizio_;
  const FlagPerStampe& flag_;
  std::array<std::string, MaxSezioni> testi_;
};

}  // namespace
}  // namespace parvik::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t dimensione) {
  parvik::fuzz::Prova(parvik::fuzz::Ingresso(dati, dimensione)).Esegui();
  return 0;
}
