#include "cerca/SensoCodice.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "common/Lettere.h"
#include "common/NumeroLeniente.h"
#include "common/Ritagli.h"
#include "common/Windows1252.h"
#include "tokens/CodiceVariabile.h"
#include "tokens/DescriviCodice.h"
#include "tokens/Gruppi.h"

namespace parvik {
namespace {

bool DiCifre(std::string_view testo) {
  return !testo.empty() && std::ranges::all_of(testo, Cifra);
}

/// More digits than a number has are one that no code has.
std::int32_t NumeroScritto(std::string_view cifre) {
  constexpr std::size_t CifreMassime = 6;
  if (cifre.size() > CifreMassime) return -1;
  std::int32_t numero = 0;
  for (const char cifra : cifre) numero = numero * 10 + (cifra - '0');
  return numero;
}

/// Of a letter in any case that begins the codes of a numbered kind.
std::optional<TipoCodice> TipoNumerato(char lettera) {
  switch (LetteraPiccola(lettera)) {
    case 'v':
      return TipoCodice::Variabile;
    case 'f':
      return TipoCodice::Flag;
    case 'l':
      return TipoCodice::Lingua;
    case 'p':
      return TipoCodice::Pagina;
    default:
      return std::nullopt;
  }
}

/// nullopt of a code that has none.
std::optional<Gruppo> GruppoNumero(std::string_view contenuto) {
  switch (Riconosci(contenuto)) {
    case TipoCodice::Variabile:
      return GruppiDiVariabile(contenuto).Numero;
    case TipoCodice::Flag:
      return GruppiDiFlag(contenuto).Numero;
    case TipoCodice::Lingua:
      return GruppiDiLingua(contenuto).Indice;
    case TipoCodice::Pagina:
      return GruppiDiPagina(contenuto).Numero;
    default:
      return std::nullopt;
  }
}

}  // namespace

SensoCodice::SensoCodice(const Criterio& criterio)
    : maiuscole_(criterio.Maiuscole), parola_(criterio.Parola) {
  if (criterio.Dove != DoveCercare::SoloCodici || criterio.Espressione) return;
  using enum Termine::Cosa;
  constexpr std::pair<std::string_view, Termine::Cosa> Misure[] = {
      {"larghezza", Larghezza}, {"decimali", Decimali}, {"righe", Righe}};
  const std::vector<std::string_view> parole = ParoleDi(criterio.Testo);
  for (std::size_t i = 0; i < parole.size(); ++i) {
    const std::string_view parola = parole[i];
    const auto* const misura =
        std::ranges::find(Misure, InMinuscolo(parola), [](const auto& m) { return std::string(m.first); });
    if (misura != std::end(Misure) && i + 1 < parole.size() && DiCifre(parole[i + 1])) {
      termini_.push_back({.Genere = misura->second, .Testo = {}, .Numero = NumeroScritto(parole[++i])});
    } else if (DiCifre(parola)) {
      termini_.push_back({.Genere = Numero, .Testo = std::string(parola), .Numero = NumeroScritto(parola)});
    } else if (TipoNumerato(parola.front()) && DiCifre(parola.substr(1))) {
      termini_.push_back({.Genere = Numero,
                          .Testo = {},
                          .Numero = NumeroScritto(parola.substr(1)),
                          .Tipo = TipoNumerato(parola.front())});
    } else {
      termini_.push_back({.Genere = Parola, .Testo = PerConfronto(parola)});
    }
  }
}

std::string SensoCodice::PerConfronto(std::string_view testo) const {
  return maiuscole_ ? std::string(testo) : InLettereNude(testo);
}

bool SensoCodice::Contiene(std::string_view testo, std::string_view parola) const {
  for (std::size_t qui = testo.find(parola); qui != std::string_view::npos;
       qui = testo.find(parola, qui + 1)) {
    const std::size_t fine = qui + parola.size();
    const bool intera =
        (qui == 0 || !LetteraOCifra(testo[qui - 1])) && (fine == testo.size() || !LetteraOCifra(testo[fine]));
    if (intera || !parola_) return true;
  }
  return false;
}

/// A number in a constant or in a style is a word of it.
bool SensoCodice::HaNumero(std::string_view contenuto, const Termine& termine) const {
  const std::optional<Gruppo> gruppo = GruppoNumero(contenuto);
  if (!gruppo) return !termine.Tipo && Contiene(PerConfronto(contenuto), termine.Testo);
  if (termine.Tipo && termine.Tipo != Riconosci(contenuto)) return false;
  return DiCifre(gruppo->Testo) && NumeroScritto(gruppo->Testo) == termine.Numero;
}

bool SensoCodice::HaMisura(std::string_view contenuto, const Termine& termine, const VociDiSezione& voci) {
  const TipoCodice tipo = Riconosci(contenuto);
  if (tipo == TipoCodice::Lingua && termine.Genere == Termine::Cosa::Larghezza) {
    const std::optional<Gruppo> larghezza = GruppiDiLingua(contenuto).Larghezza;
    return larghezza && DiCifre(larghezza->Testo) && NumeroScritto(larghezza->Testo) == termine.Numero;
  }
  if (tipo != TipoCodice::Variabile) return false;
  const Variabile formato = LeggiVariabile(contenuto, voci.Variabili).Formato;
  switch (termine.Genere) {
    case Termine::Cosa::Larghezza:
      return formato.Intero2 == termine.Numero;
    case Termine::Cosa::Righe:
      return formato.Intero5 == termine.Numero;
    default:
      return formato.Testo2 == std::to_string(termine.Numero);
  }
}

/// What it is, and on a second line how it is written.
std::string SensoCodice::InParole(std::string_view contenuto, const VociDiSezione& voci) const {
  const std::string frase = AnsiDaUtf8(DescriviInFrase(contenuto, voci.Variabili, voci.Flag));
  return PerConfronto(frase) + "\n" + PerConfronto(contenuto);
}

bool SensoCodice::Trova(std::string_view contenuto, const VociDiSezione& voci) const {
  std::string detto;  // made when a word asks for it
  const auto vale = [&](const Termine& termine) {
    switch (termine.Genere) {
      case Termine::Cosa::Numero:
        return HaNumero(contenuto, termine);
      case Termine::Cosa::Parola:
        if (detto.empty()) detto = InParole(contenuto, voci);
        return Contiene(detto, termine.Testo);
      default:
        return HaMisura(contenuto, termine, voci);
    }
  };
  return !termini_.empty() && std::ranges::all_of(termini_, vale);
}

}  // namespace parvik
