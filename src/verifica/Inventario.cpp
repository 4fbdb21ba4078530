#include "verifica/Inventario.h"

#include <algorithm>

#include "common/Delimitatori.h"
#include "common/NumeroLeniente.h"
#include "common/Windows1252.h"
#include "tokens/Codice.h"
#include "tokens/CodiceStile.h"
#include "tokens/Gruppi.h"
#include "tokens/Pezzi.h"
#include "verifica/EsameCodice.h"

namespace parvik {
namespace {

bool Rotto(std::string_view contenuto) {
  return contenuto.find(DelimApertura) != std::string_view::npos ||
         contenuto.find('\r') != std::string_view::npos;
}

/// nullopt beyond 16 bits: nobody has such a number.
std::optional<Usato> ConNumero(GenereUsato genere, std::string_view scritto) {
  const Esito<std::int16_t> numero = InteroLeniente(scritto);
  if (!numero) return std::nullopt;
  return Usato{.Genere = genere, .Numero = *numero, .Nome = std::to_string(*numero)};
}

template <class Voce>
std::string DescrizioneIn(const VociTipo& voci, int numero) {
  for (const Sezione sezione : voci.Sezioni()) {
    const Voce* voce = voci.Di<Voce>(sezione).ConNumero(static_cast<std::int16_t>(numero));
    if (voce != nullptr) return Utf8SenzaControlli(voce->Descrizione);
  }
  return {};
}

}  // namespace

bool CodiceDaContare(std::string_view contenuto) {
  return !Rotto(contenuto) && Mancanza(contenuto).empty();
}

std::optional<Usato> UsatoDa(std::string_view contenuto) {
  switch (Riconosci(contenuto)) {
    case TipoCodice::Variabile:
      return ConNumero(GenereUsato::Variabile, GruppiDiVariabile(contenuto).Numero.Testo);
    case TipoCodice::Flag:
      return ConNumero(GenereUsato::Flag, GruppiDiFlag(contenuto).Numero.Testo);
    case TipoCodice::Lingua:
      return ConNumero(GenereUsato::Lingua, GruppiDiLingua(contenuto).Indice.Testo);
    case TipoCodice::Stile:
      return Usato{.Genere = GenereUsato::Stile,
                   .Numero = 0,
                   .Nome = std::string(ParolaStile(StileDi(LeggiStile(contenuto)).value_or(Stile::Normale)))};
    default:
      return std::nullopt;
  }
}

std::string_view NomeGenere(GenereUsato genere) {
  constexpr std::array<std::string_view, 4> Nomi = {"variabile", "flag", "lingua", "stile"};
  return Nomi[static_cast<std::size_t>(genere)];
}

void Inventario::Aggiungi(const std::array<std::string_view, MaxSezioni>& testi) {
  for (const Sezione sezione : voci_.Sezioni()) {
    const std::string_view testo = testi[Indice(sezione)];
    LettorePezzi lettore(testo);
    while (const auto pezzo = lettore.Prossimo())
      if (pezzo->Genere == GenerePezzo::Codice) Conta(ContenutoDi(pezzo->In(testo)));
  }
  ++file_;
}

void Inventario::Conta(std::string_view contenuto) {
  if (!CodiceDaContare(contenuto)) return;
  const std::optional<Usato> usato = UsatoDa(contenuto);
  if (!usato) return;
  Usi& usi = usati_[*usato];
  ++usi.Volte;
  ++usi.PerFile[file_];
}

std::string Inventario::Descrizione(const Usato& usato) const {
  if (usato.Genere == GenereUsato::Variabile) return DescrizioneIn<Variabile>(voci_, usato.Numero);
  if (usato.Genere != GenereUsato::Flag) return {};
  const auto condizione = std::ranges::find(CondPagina(), usato.Numero, &Flag::Codice);
  return condizione == CondPagina().end() ? DescrizioneIn<Flag>(voci_, usato.Numero)
                                          : Utf8SenzaControlli(condizione->Descrizione);
}

std::vector<NonUsato> Inventario::NonUsati() const {
  std::vector<NonUsato> nonUsati;
  for (const Sezione sezione : voci_.Sezioni()) {
    AggiungiNonUsati<Variabile>(sezione, GenereUsato::Variabile, nonUsati);
    AggiungiNonUsati<Flag>(sezione, GenereUsato::Flag, nonUsati);
  }
  return nonUsati;
}

template <class Voce>
void Inventario::AggiungiNonUsati(Sezione sezione, GenereUsato genere,
                                  std::vector<NonUsato>& nonUsati) const {
  for (const Voce& voce : voci_.Di<Voce>(sezione).Voci()) {
    const int numero = NumeroDiVoce(voce);
    if (usati_.contains({.Genere = genere, .Numero = numero, .Nome = std::to_string(numero)})) continue;
    nonUsati.push_back({.Dove = sezione,
                        .Genere = genere,
                        .Numero = numero,
                        .Descrizione = Utf8SenzaControlli(voce.Descrizione)});
  }
}

}  // namespace parvik
