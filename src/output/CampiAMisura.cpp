#include "output/CampiAMisura.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "output/GeneraStampa.h"
#include "tokens/Pezzi.h"

namespace parvik {
namespace {

/// The same without looking at any code.
Memoria SoloLarghezze(const Memoria& memoria) {
  Memoria sole{.MostraProssimo = memoria.MostraProssimo, .Ultimo = {}};
  sole.Ultimo.RiempiPrima = memoria.Ultimo.Lunghezza();
  return sole;
}

LascitoRiga Lascito(const Memoria& memoria) {
  return {.MostraProssimo = memoria.MostraProssimo, .Ultima = memoria.Ultimo.Lunghezza()};
}

/// Behind the code in which the line begins; the line's beginning without one.
std::size_t FineDelCodiceAperto(const TestoSezione& testo, std::size_t riga) {
  const std::optional<Pezzo> aperto = testo.CodiceAperto(riga);
  return aperto ? aperto->Fine : testo.Riga(riga).Inizio;
}

/// The pieces of one line, from its first byte to its last.
class Riparto {
 public:
  Riparto(std::string_view byte, TrovaVar& trovaVar) : byte_(byte), trovaVar_(trovaVar) {}

  /// Up to that byte of the line.
  void Testo(std::size_t a) {
    if (a > qui_) Metti({.Parte = Fino(a), .Codice = {}, .Larghezza = a - qui_, .Mostrato = true});
  }

  /// All of the line that follows. Whether a code is left open at its end.
  bool Resto() {
    while (true) {
      const ConfiniCodice codice = ProssimoCodice(byte_, qui_);
      const bool intero = codice.Chiusura < byte_.size();
      Testo(intero ? codice.Apertura : byte_.size());
      if (!intero) return codice.Apertura < byte_.size();
      Codice(codice.Chiusura + 1);
    }
  }

  std::vector<PezzoMisurato> Pezzi() && { return std::move(pezzi_); }

 private:
  Selezione Fino(std::size_t a) const { return {.Inizio = qui_, .Lunghezza = a - qui_}; }

  void Metti(const PezzoMisurato& pezzo) {
    qui_ = pezzo.Parte.Fine();
    pezzi_.push_back(pezzo);
  }

  void Codice(std::size_t a) {
    const std::string_view contenuto = ContenutoDi(byte_.substr(qui_, a - qui_));
    const TipoCodice tipo = Riconosci(contenuto);
    const bool mostra = trovaVar_.Ricordo().MostraProssimo;
    const std::size_t larghezza = trovaVar_(contenuto).Lunghezza();
    const bool mostrato = tipo == TipoCodice::Flag ? trovaVar_.Ricordo().MostraProssimo : mostra;
    Metti({.Parte = Fino(a), .Codice = tipo, .Larghezza = larghezza, .Mostrato = mostrato});
  }

  std::string_view byte_;
  TrovaVar& trovaVar_;
  std::size_t qui_ = 0;
  std::vector<PezzoMisurato> pezzi_;
};

}  // namespace

CampiAMisura::CampiAMisura(Documento& documento, const FlagPerStampe& flag)
    : documento_(documento), flag_(flag), stati_(flag), ascolto_(documento.Ascolta(*this)) {}

void CampiAMisura::AggiornaFlag(bool tuttiVeri) {
  stati_ = tuttiVeri ? StatiFlag::TuttiVeri(flag_) : StatiFlag(flag_);
  segnalibro_.reset();
}

void CampiAMisura::Modificata(const CambiamentoTesto& cambiamento) {
  segnalibro_.reset();
  auto& stili = stili_[Indice(cambiamento.Dove)];
  if (stili) stili->Segui(cambiamento.Fatta, documento_.Testo(cambiamento.Dove));
}

void CampiAMisura::Sostituita(Sezione sezione) {
  segnalibro_.reset();
  stili_[Indice(sezione)].reset();
}

int CampiAMisura::Ripetizioni() const {
  const ImpostazioniCorpo& corpo = documento_.Stato().Corpo;
  return RipetizioniCorpo(corpo.RigheCorpo, corpo.LineeCorpo);
}

Memoria CampiAMisura::RicordoA(Sezione sezione, std::size_t byte) const {
  const CodiciIndietro qui(documento_.Testi(), Ripetizioni(), {.Dove = sezione}, byte);
  Memoria memoria{.MostraProssimo = MostraProssimo(qui, stati_), .Ultimo = {}};
  memoria.Ultimo.RiempiPrima = UltimaLarghezza(qui, stati_);
  return memoria;
}

bool CampiAMisura::Segnata(Sezione sezione, std::size_t riga) const {
  return segnalibro_ && segnalibro_->Dove == sezione && segnalibro_->Riga == riga &&
         segnalibro_->Ripetizioni == Ripetizioni();
}

LascitoRiga CampiAMisura::Ingresso(Sezione sezione) const {
  return Lascito(RicordoA(sezione, 0));
}

RigaMisurata CampiAMisura::Riga(Sezione sezione, std::size_t riga) const {
  const TestoSezione& testo = documento_.Testo(sezione);
  const Selezione dove = testo.Riga(riga);
  const std::string byte = testo.Byte(dove);
  const bool segnata = Segnata(sezione, riga);
  const std::size_t fineAperto = segnata ? dove.Inizio : FineDelCodiceAperto(testo, riga);
  const std::size_t chiuso = std::min(fineAperto, dove.Fine());
  TrovaVar trovaVar(TipoStampa::File, stati_, segnata ? segnalibro_->Ricordo : RicordoA(sezione, chiuso));
  Riparto riparto(byte, trovaVar);
  riparto.Testo(chiuso - dove.Inizio);
  const bool sospeso = riparto.Resto() || fineAperto > dove.Fine();
  segnalibro_.reset();
  if (!sospeso) {
    segnalibro_ = {.Dove = sezione,
                   .Riga = riga + 1,
                   .Ripetizioni = Ripetizioni(),
                   .Ricordo = SoloLarghezze(trovaVar.Ricordo())};
  }
  return {.Pezzi = std::move(riparto).Pezzi(), .Lascito = Lascito(trovaVar.Ricordo())};
}

std::size_t CampiAMisura::Colonna(Sezione sezione, std::size_t byte) const {
  const RigaColonna posto = documento_.Testo(sezione).RigaColonnaDi(byte);
  std::size_t colonna = 0;
  for (const PezzoMisurato& pezzo : Riga(sezione, posto.Riga).Pezzi) {
    if (pezzo.Parte.Fine() > posto.Colonna)
      return colonna + (pezzo.Codice ? 0 : posto.Colonna - pezzo.Parte.Inizio);
    colonna += pezzo.Larghezza;
  }
  return colonna;
}

const StiliSezione& CampiAMisura::Stili(Sezione sezione) const {
  auto& stili = stili_[Indice(sezione)];
  if (!stili) stili.emplace(documento_.Testo(sezione));
  return *stili;
}

Aspetto CampiAMisura::AspettoA(Sezione sezione, std::size_t byte) const {
  const int ripetizioni = Ripetizioni();
  GiroCorsa giro{.Dove = sezione};
  std::size_t davanti = Stili(sezione).Davanti(byte);
  while (true) {
    for (; davanti > 0; --davanti) {
      const StiliSezione::Voce& voce = Stili(giro.Dove).Voci()[davanti - 1];
      const CodiciIndietro qui(documento_.Testi(), ripetizioni, giro, voce.Inizio);
      if (!MostraProssimo(qui, stati_)) continue;
      Aspetto aspetto = Aspetto().Con(voce.Quale);
      aspetto.Corpo = CorpoCarattere::Disegno;
      return aspetto;
    }
    const std::optional<GiroCorsa> prima = GiroDavanti(giro, ripetizioni);
    if (!prima) return {};
    giro = *prima;
    davanti = Stili(giro.Dove).Voci().size();
  }
}

}  // namespace parvik
