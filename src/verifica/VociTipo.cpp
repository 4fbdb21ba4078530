#include "verifica/VociTipo.h"

#include <type_traits>
#include <utility>

namespace parvik {
namespace {

std::span<const Sezione> SezioniDi(const TipoDoc& tipo) {
  return std::span(TutteLeSezioni).first(HaTreSezioni(tipo.NumSezioni) ? MaxSezioni : 1);
}

Tabella<Variabile> Leggi(const Catalogo& catalogo, const TipoDoc& tipo, Sezione sezione,
                         const Variabile* /*quali*/) {
  return catalogo.LeggiVariabili(tipo, sezione);
}
Tabella<Flag> Leggi(const Catalogo& catalogo, const TipoDoc& tipo, Sezione sezione, const Flag* /*quali*/) {
  return catalogo.LeggiFlags(tipo, sezione);
}

template <class Voce>
void Carica(const Catalogo& catalogo, const TipoDoc& tipo, VociSezioni<Voce>& tabelle,
            std::vector<ErroreSezione>& errori) {
  for (const Sezione sezione : SezioniDi(tipo)) {
    Tabella<Voce> tabella = Leggi(catalogo, tipo, sezione, static_cast<const Voce*>(nullptr));
    if (tabella.Errore) errori.push_back({sezione, *tabella.Errore, tabella.RigaErrore});
    tabelle[Indice(sezione)] = ElencoVoci<Voce>(std::move(tabella.Voci));
  }
}

}  // namespace

VociTipo::VociTipo(const Catalogo& catalogo, const TipoDoc& tipo) : catalogo_(catalogo), tipo_(tipo) {
  Carica(catalogo, tipo, variabili_, errori_);
  Carica(catalogo, tipo, flag_, errori_);
}

std::span<const Sezione> VociTipo::Sezioni() const {
  return SezioniDi(tipo_);
}

template <class Voce>
VociTipo::Altrui VociTipo::LeggiAltrui() const {
  Altrui altrui;
  for (const TipoDoc& altro : catalogo_.TipiDoc()) {
    if (altro.Descrizione.empty() || altro.Indice == tipo_.Indice) continue;
    for (const Sezione sezione : SezioniDi(altro)) {
      Tabella<Voce> tabella = Leggi(catalogo_, altro, sezione, static_cast<const Voce*>(nullptr));
      for (Voce& voce : tabella.Voci) {
        if (voce.Descrizione.empty()) continue;  // equal to nothing
        altrui[NumeroDiVoce(voce)].push_back({&altro, std::move(voce.Descrizione)});
      }
    }
  }
  return altrui;
}

template <class Voce>
const VociTipo::Altrui& VociTipo::DegliAltri() {
  std::optional<Altrui>& altrui = std::is_same_v<Voce, Flag> ? flagAltrui_ : variabiliAltrui_;
  if (!altrui) altrui = LeggiAltrui<Voce>();
  return *altrui;
}

template <class Voce>
std::optional<NumeroProposto> VociTipo::Proponi(std::int16_t numero, std::span<const Sezione> qui) {
  const Altrui& altrui = DegliAltri<Voce>();
  const auto candidate = altrui.find(numero);
  if (candidate == altrui.end()) return std::nullopt;
  for (const VoceAltrui& candidata : candidate->second) {
    for (const Sezione sezione : qui) {
      const Voce* voce = Di<Voce>(sezione).ConDescrizione(candidata.Descrizione);
      if (voce != nullptr) return NumeroProposto{NumeroDiVoce(*voce), candidata.Di, candidata.Descrizione};
    }
  }
  return std::nullopt;
}

template std::optional<NumeroProposto> VociTipo::Proponi<Variabile>(std::int16_t, std::span<const Sezione>);
template std::optional<NumeroProposto> VociTipo::Proponi<Flag>(std::int16_t, std::span<const Sezione>);

}  // namespace parvik
