#include "output/StiliSezione.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "tokens/Codice.h"
#include "tokens/CodiceCorsa.h"
#include "tokens/Pezzi.h"

namespace parvik {
namespace {

/// What its marker would make of a preview.
std::optional<Stile> Letto(std::string_view contenuto) {
  constexpr std::string_view Marcatore = "S;";
  const std::string_view lasciato = StileCorsa(contenuto);
  if (!lasciato.starts_with(Marcatore)) return std::nullopt;
  return StileDi(lasciato.substr(Marcatore.size()));
}

/// The style codes of a part of a text that begins and ends outside its codes.
std::vector<StiliSezione::Voce> Leggi(const TestoSezione& testo, const Selezione& parte) {
  std::vector<StiliSezione::Voce> voci;
  const std::string byte = testo.Byte(parte);
  LettorePezzi lettore(byte);
  while (const auto pezzo = lettore.Prossimo()) {
    if (pezzo->Genere != GenerePezzo::Codice) continue;
    if (const auto stile = Letto(ContenutoDi(pezzo->In(byte))))
      voci.push_back({.Inizio = parte.Inizio + pezzo->Inizio, .Quale = *stile});
  }
  return voci;
}

}  // namespace

StiliSezione::StiliSezione(const TestoSezione& testo)
    : voci_(Leggi(testo, {.Inizio = 0, .Lunghezza = testo.Dimensione()})) {}

/// Behind a » both texts read alike, whatever stood in front of it: what changes lies between the last one in
/// front of the change and the first one behind it.
void StiliSezione::Segui(const Modifica& modifica, const TestoSezione& dopo) {
  const auto chiusa = dopo.Precedente(Segno::Chiusura, modifica.Dove);
  const std::size_t inizio = chiusa ? *chiusa + 1 : 0;
  const std::size_t fineModifica = modifica.Dove + modifica.Messi.size();
  const auto chiusura = dopo.Seguente(Segno::Chiusura, fineModifica);
  const std::size_t fine = chiusura ? *chiusura + 1 : dopo.Dimensione();
  const std::size_t finePrima = fine - modifica.Messi.size() + modifica.Tolti;

  const auto prima = voci_.begin() + static_cast<std::ptrdiff_t>(Davanti(inizio));
  const auto seguito = voci_.begin() + static_cast<std::ptrdiff_t>(Davanti(finePrima));
  for (auto voce = seguito; voce != voci_.end(); ++voce) voce->Inizio = voce->Inizio - finePrima + fine;
  const std::vector<Voce> nuove = Leggi(dopo, {.Inizio = inizio, .Lunghezza = fine - inizio});
  voci_.insert(voci_.erase(prima, seguito), nuove.begin(), nuove.end());
}

std::size_t StiliSezione::Davanti(std::size_t byte) const {
  const auto dopo = std::ranges::lower_bound(voci_, byte, {}, &Voce::Inizio);
  return static_cast<std::size_t>(dopo - voci_.begin());
}

}  // namespace parvik
