#include "output/TracciaStampa.h"

#include <algorithm>

#include "output/LettoreVoci.h"

namespace parvik {

std::size_t TracciaStampa::Scritti() const {
  if (giri_.empty()) return 0;
  return giri_.back().Uscita + giri_.back().Volte * giri_.back().Emessi;
}

/// The first part of a time that is `finita`, from the last stage in front of `meta` on.
template <class Finita>
std::optional<VoceStampa> TracciaStampa::Segui(const GiroTraccia& giro, std::size_t meta,
                                               std::size_t TappaTraccia::*dove, Finita finita) const {
  const std::size_t ultima = &giro == &giri_.back() ? tappe_.size() : (&giro + 1)->PrimaTappa;
  const auto inizio = tappe_.begin() + static_cast<std::ptrdiff_t>(giro.PrimaTappa);
  const auto fine = tappe_.begin() + static_cast<std::ptrdiff_t>(ultima);
  const auto tappa = std::ranges::upper_bound(inizio, fine, meta, {}, dove) - 1;
  const TrovaVar trovaVar(destinazione_, dati_->Flag, tappa->Ricordo);
  LettoreVoci voci(dati_->Testi[Indice(giro.Dove)], tappa->Origine, tappa->Uscita, trovaVar);
  std::optional<VoceStampa> voce = voci.Prossima();
  while (voce && !finita(*voce)) voce = voci.Prossima();
  return voce;
}

std::optional<VoceStampa> TracciaStampa::VoceDi(const GiroTraccia& giro, std::size_t byte) const {
  const auto finita = [byte](const VoceStampa& voce) { return voce.Origine.Fine() > byte; };
  return Segui(giro, byte, &TappaTraccia::Origine, finita);
}

std::optional<VoceStampa> TracciaStampa::VoceUscita(const GiroTraccia& giro, std::size_t uscita) const {
  const auto finita = [uscita](const VoceStampa& voce) { return voce.Uscita.Fine() > uscita; };
  return Segui(giro, uscita, &TappaTraccia::Uscita, finita);
}

std::vector<LuogoStampa> TracciaStampa::LuoghiDi(Sezione sezione, std::size_t byte) const {
  std::vector<LuogoStampa> luoghi;
  for (const GiroTraccia& giro : giri_) {
    const auto voce = giro.Dove == sezione ? VoceDi(giro, byte) : std::nullopt;
    if (!voce) continue;
    Selezione uscita = voce->Uscita;
    if (voce->Cosa == VoceStampa::Genere::Testo)
      uscita = {.Inizio = uscita.Inizio + byte - voce->Origine.Inizio, .Lunghezza = 1};
    if (uscita.Lunghezza == 0 || uscita.Fine() > giro.Emessi) continue;
    luoghi.push_back({.Inizio = giro.Uscita + uscita.Inizio,
                      .Lunghezza = uscita.Lunghezza,
                      .Passo = giro.Emessi,
                      .Volte = giro.Volte});
  }
  return luoghi;
}

Selezione TracciaStampa::Mostrato(const LuogoStampa& luogo, std::size_t volta) const {
  const std::size_t scritto = luogo.Inizio + volta * luogo.Passo;
  const std::size_t inizio = DopoLoStile(scritto);
  return {.Inizio = inizio, .Lunghezza = DopoLoStile(scritto + luogo.Lunghezza) - inizio};
}

std::optional<CodiceStampato> TracciaStampa::CodiceA(Sezione sezione, std::size_t byte) const {
  const auto giro = std::ranges::find(giri_, sezione, &GiroTraccia::Dove);
  const auto voce = giro == giri_.end() ? std::nullopt : VoceDi(*giro, byte);
  if (!voce || voce->Cosa != VoceStampa::Genere::Codice) return std::nullopt;
  return CodiceStampato{.Larghezza = voce->Uscita.Lunghezza, .Nascosto = voce->Nascosto};
}

std::optional<OrigineStampa> TracciaStampa::OrigineDi(std::size_t uscito) const {
  const std::optional<PostoStampato> posto = PostoDi(uscito);
  return posto ? std::optional(posto->Da) : std::nullopt;
}

std::optional<PostoStampato> TracciaStampa::PostoDi(std::size_t uscito) const {
  const std::size_t scritto = PrimaDelloStile(uscito);
  if (scritto >= Scritti()) return std::nullopt;
  const auto giro = std::ranges::upper_bound(giri_, scritto, {}, &GiroTraccia::Uscita) - 1;
  const std::size_t volta = (scritto - giro->Uscita) / giro->Emessi;
  const std::size_t uscita = scritto - giro->Uscita - volta * giro->Emessi;
  const VoceStampa voce = VoceUscita(*giro, uscita).value();
  const std::size_t scarto = uscita - voce.Uscita.Inizio;
  PostoStampato posto{.Da = {.Dove = giro->Dove, .Parte = voce.Origine},
                      .Volta = VolteDavanti(*giro) + volta};
  if (voce.Cosa == VoceStampa::Genere::Testo) {
    posto.Da.Parte = {.Inizio = voce.Origine.Inizio + scarto, .Lunghezza = 1};
  } else {
    posto.Da.Codice = voce.Cosa == VoceStampa::Genere::Codice;
    posto.Scarto = scarto;
  }
  return posto;
}

/// How often its section was rendered before.
std::size_t TracciaStampa::VolteDavanti(const GiroTraccia& giro) const {
  std::size_t volte = 0;
  for (const GiroTraccia* altro = giri_.data(); altro != &giro; ++altro)
    if (altro->Dove == giro.Dove) volte += altro->Volte;
  return volte;
}

std::optional<std::size_t> TracciaStampa::UscitoDi(const PostoStampato& posto) const {
  const GiroTraccia* giro = nullptr;
  std::size_t volta = 0;  // of those times
  std::size_t davanti = 0;
  for (const GiroTraccia& questo : giri_) {
    if (questo.Dove != posto.Da.Dove) continue;
    giro = &questo;
    volta = std::min(posto.Volta - davanti, questo.Volte - 1);
    davanti += questo.Volte;
    if (posto.Volta < davanti) break;
  }
  if (giro == nullptr) return std::nullopt;
  const std::optional<VoceStampa> voce = VoceDi(*giro, posto.Da.Parte.Inizio);
  if (!voce) return std::nullopt;
  const bool testo = voce->Cosa == VoceStampa::Genere::Testo;
  if (posto.Da.Codice != (voce->Cosa == VoceStampa::Genere::Codice)) return std::nullopt;
  if (!testo && voce->Origine != posto.Da.Parte) return std::nullopt;
  if (voce->Uscita.Lunghezza == 0) return std::nullopt;
  const std::size_t scarto = testo ? posto.Da.Parte.Inizio - voce->Origine.Inizio
                                   : std::min(posto.Scarto, voce->Uscita.Lunghezza - 1);
  const std::size_t uscita = voce->Uscita.Inizio + scarto;
  if (uscita >= giro->Emessi) return std::nullopt;
  return DopoLoStile(giro->Uscita + volta * giro->Emessi + uscita);
}

std::size_t TracciaStampa::PrimaDelloStile(std::size_t uscito) const {
  const auto dopo = std::ranges::upper_bound(varchi_, uscito, {}, &Varco::Dove);
  return dopo == varchi_.begin() ? uscito : uscito + (dopo - 1)->Tolti;
}

/// How much of what the run wrote up to there is left.
std::size_t TracciaStampa::DopoLoStile(std::size_t scritto) const {
  const auto davanti = [](const Varco& varco) { return varco.Dove + varco.Tolti; };
  const auto dopo = std::ranges::upper_bound(varchi_, scritto, {}, davanti);
  const std::size_t rimasto = dopo == varchi_.begin() ? scritto : scritto - (dopo - 1)->Tolti;
  return dopo == varchi_.end() ? rimasto : std::min(rimasto, dopo->Dove);
}

}  // namespace parvik
