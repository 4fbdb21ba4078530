#include "editor/UsiModello.h"

#include <unordered_map>
#include <utility>
#include <vector>

#include "common/NumeroLeniente.h"
#include "common/SeBastaMemoria.h"
#include "tokens/Codice.h"
#include "tokens/CodiceCostante.h"
#include "tokens/CodicePagina.h"
#include "tokens/CodiceStile.h"
#include "tokens/Pezzi.h"
#include "verifica/Inventario.h"

namespace parvik {
namespace {

GruppoVoci GruppoDi(GenereUsato genere) {
  switch (genere) {
    case GenereUsato::Variabile:
      return GruppoVoci::Variabili;
    case GenereUsato::Flag:
      return GruppoVoci::Flag;
    case GenereUsato::Lingua:
      return GruppoVoci::Lingua;
    case GenereUsato::Stile:
      break;
  }
  return GruppoVoci::Stili;
}

std::optional<ChiaveVoce> ChiaveDi(std::string_view contenuto) {
  if (!CodiceDaContare(contenuto)) return std::nullopt;
  if (const std::optional<Usato> usato = UsatoDa(contenuto)) {
    const bool stile = usato->Genere == GenereUsato::Stile;
    return ChiaveVoce{.Gruppo = GruppoDi(usato->Genere),
                      .Numero = stile ? static_cast<int>(StileDi(usato->Nome).value()) : usato->Numero};
  }
  switch (Riconosci(contenuto)) {
    case TipoCodice::Costante:
      return ChiaveVoce{.Gruppo = GruppoVoci::Costanti, .Numero = 0, .Testo = LeggiCostante(contenuto)};
    case TipoCodice::Pagina: {
      const Esito<std::int16_t> numero = InteroLeniente(LeggiPagina(contenuto));
      if (!numero) return std::nullopt;
      return ChiaveVoce{.Gruppo = GruppoVoci::Pagina, .Numero = *numero};
    }
    default:
      return std::nullopt;
  }
}

/// Contents as they are written, in the order in which they first appear: each is read once, however often it
/// is there.
using Contenuti = std::vector<std::pair<std::string_view, UsiVoce>>;

Contenuti RaccogliContenuti(const std::array<std::string_view, MaxSezioni>& testi) {
  Contenuti contenuti;
  std::unordered_map<std::string_view, std::size_t> posti;
  for (std::size_t sezione = 0; sezione < MaxSezioni; ++sezione) {
    LettorePezzi lettore(testi[sezione]);
    while (const auto pezzo = lettore.Prossimo()) {
      if (pezzo->Genere != GenerePezzo::Codice) continue;
      const std::string_view contenuto = ContenutoDi(pezzo->In(testi[sezione]));
      const auto [posto, nuovo] = posti.try_emplace(contenuto, contenuti.size());
      if (nuovo) contenuti.push_back({contenuto, UsiVoce{}});
      ++contenuti[posto->second].second[sezione];
    }
  }
  return contenuti;
}

}  // namespace

UsiModello ContaUsi(const std::array<std::string_view, MaxSezioni>& testi) {
  UsiModello usi;
  for (const auto& [contenuto, volte] : RaccogliContenuti(testi)) {
    const std::optional<ChiaveVoce> chiave = ChiaveDi(contenuto);
    if (!chiave) continue;
    const auto [voce, nuova] = usi.try_emplace(*chiave);
    if (nuova) voce->second.Primo = contenuto;
    for (std::size_t i = 0; i < MaxSezioni; ++i) voce->second.Volte[i] += volte[i];
  }
  return usi;
}

LavoroUsi::LavoroUsi(Numero numero, const Documento& documento, bool treSezioni)
    : numero_(numero), testi_(documento.Testi()) {
  if (treSezioni) return;
  for (std::size_t i = 1; i < MaxSezioni; ++i) testi_[i] = {};
}

std::size_t LavoroUsi::Dimensione() const {
  std::size_t byte = 0;
  for (const TestoSezione& testo : testi_) byte += testo.Dimensione();
  return byte;
}

LavoroUsi::Fatto LavoroUsi::Esegui() const {
  Esito<UsiModello> usi = SeBastaMemoria([this]() -> Esito<UsiModello> {
    std::array<std::string, MaxSezioni> byte;
    std::array<std::string_view, MaxSezioni> testi;
    for (std::size_t i = 0; i < MaxSezioni; ++i) testi[i] = byte[i] = testi_[i].Byte();
    return ContaUsi(testi);
  });
  if (!usi) return {.Numero = numero_, .Usi = std::nullopt};
  return {.Numero = numero_, .Usi = std::move(*usi)};
}

}  // namespace parvik
