#include "verifica/ConfrontoResa.h"

#include <new>

#include "common/Impronta.h"
#include "template/ImmagineModello.h"

namespace parvik {
namespace {

// Of what prints longer, the beginning is compared: a template of a few lines may print without end.
constexpr std::size_t MassimoStampa = 32UL * 1024UL * 1024UL;
constexpr std::size_t MassimaAnteprima = 8UL * 1024UL * 1024UL;

/// Reads a run without keeping it.
class Impronte final : public UscitaRighe {
 public:
  bool Righe(std::string_view righe) override {
    Numero = Numero * Passo + Impronta(righe);
    Quanti += righe.size();
    return Quanti < MassimoStampa;
  }

  std::uint64_t Numero = 0;
  std::size_t Quanti = 0;

 private:
  static constexpr std::uint64_t Passo = 0x100000001B3;
};

}  // namespace

ResaDaConfrontare::ResaDaConfrontare(std::string_view byte, const Catalogo& catalogo, const TipoDoc& tipo) {
  const Formato formato = FormatoDi(tipo.NumSezioni);
  const Esito<ImmagineLetta> letta = LeggiImmagine(
      byte, formato, formato == Formato::TreSezioni ? ImpostazioniPredefinite() : ImpostazioniCorpo());
  if (!letta) throw std::bad_alloc();
  Rendi({letta->Testi[0], letta->Testi[1], letta->Testi[2]}, letta->Corpo, catalogo, tipo);
}

ResaDaConfrontare::ResaDaConfrontare(const std::array<std::string_view, MaxSezioni>& testi,
                                     const ImpostazioniCorpo& corpo, const Catalogo& catalogo,
                                     const TipoDoc& tipo) {
  Rendi(testi, corpo, catalogo, tipo);
}

void ResaDaConfrontare::Rendi(const std::array<std::string_view, MaxSezioni>& testi,
                              const ImpostazioniCorpo& corpo, const Catalogo& catalogo, const TipoDoc& tipo) {
  FlagPerStampe flag;
  static_cast<void>(flag.Carica(catalogo, tipo));  // nothing is mended where its lines are wrong
  const DatiStampa dati{.Testi = testi,
                        .NumSezioni = tipo.NumSezioni,
                        .RigheCorpo = corpo.RigheCorpo,
                        .LineeCorpo = corpo.LineeCorpo,
                        .Flag = flag};
  viste_[0] = Rendi(dati);
  for (std::size_t riga = 0; riga < flag.Righe().size(); ++riga) flag.SettaFlag(riga, true);
  viste_[1] = Rendi(dati);
}

ResaDaConfrontare::Vista ResaDaConfrontare::Rendi(const DatiStampa& dati) {
  Impronte impronte;
  const auto corsa = GeneraStampa(dati, TipoStampa::File, impronte);
  if (!corsa && corsa.Errore() == Interruzione::MemoriaEsaurita) throw std::bad_alloc();
  Esito<InizioAnteprima> inizio = GeneraInizioAnteprima(dati, MassimaAnteprima);
  if (!inizio) throw std::bad_alloc();
  return {.Stampa = impronte.Numero,
          .Stampati = impronte.Quanti,
          .Anteprima = std::move(inizio->Testo.Testo),
          .Tratti = std::move(inizio->Testo.Tratti)};
}

}  // namespace parvik
