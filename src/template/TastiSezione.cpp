#include "template/TastiSezione.h"

#include <algorithm>

#include "common/Delimitatori.h"

namespace parvik {
namespace {

constexpr std::size_t NonTrovato = std::string_view::npos;

/// Whole codes, or whole codes at both ends: may be deleted as it is.
bool CodiciInteri(std::string_view selezionato) {
  return !selezionato.empty() && selezionato.front() == DelimApertura && selezionato.back() == DelimChiusura;
}

/// The code that ends right in front of the caret.
std::optional<PosizioneCodice> CodicePrima(std::string_view testo, std::size_t cursore) {
  if (cursore < 2 || testo[cursore - 1] != DelimChiusura) return std::nullopt;
  return CodiceIntorno(testo, cursore - 1);
}

/// The code that begins right behind the caret.
std::optional<PosizioneCodice> CodiceDopo(std::string_view testo, std::size_t cursore) {
  if (cursore >= testo.size() || testo[cursore] != DelimApertura) return std::nullopt;
  return CodiceIntorno(testo, cursore + 1);
}

/// The code at the caret, as the key looks for it.
std::optional<PosizioneCodice> CercaCodice(std::string_view testo, std::size_t cursore, TastoSezione tasto) {
  if (auto codice = CodiceIntorno(testo, cursore)) return codice;
  if (tasto == TastoSezione::Backspace) return CodicePrima(testo, cursore);
  if (tasto == TastoSezione::Canc) return CodiceDopo(testo, cursore);
  return std::nullopt;
}

Selezione SelezioneDi(const PosizioneCodice& codice) {
  return {.Inizio = codice.Inizio, .Lunghezza = codice.Lunghezza};
}

/// The selection with the whole of the codes that its two ends stand in.
Selezione ConCodiciInteri(std::string_view testo, Selezione selezione) {
  std::size_t inizio = selezione.Inizio;
  std::size_t fine = selezione.Fine();
  if (const auto codice = CodiceIntorno(testo, inizio)) inizio = codice->Inizio;
  if (const auto codice = CodiceIntorno(testo, fine)) fine = codice->Inizio + codice->Lunghezza;
  return {.Inizio = inizio, .Lunghezza = fine - inizio};
}

/// A selection that cuts a code is not taken away: it grows.
EsitoTasto Togli(std::string_view testo, Selezione selezione) {
  if (CodiciInteri(testo.substr(selezione.Inizio, selezione.Lunghezza))) return {};
  const Selezione intera = ConCodiciInteri(testo, selezione);
  if (selezione.Lunghezza > 0 && intera != selezione)
    return {.Azione = AzioneTasto::Allarga, .Nuova = intera};
  return {};
}

EsitoTasto Cancella(std::string_view testo, Selezione selezione, TastoSezione tasto) {
  if (CodiciInteri(testo.substr(selezione.Inizio, selezione.Lunghezza))) return {};
  if (tasto == TastoSezione::Backspace && selezione.Inizio == 0)
    return {.Azione = AzioneTasto::Nessuna, .Nuova = {}};
  if (const auto codice = CercaCodice(testo, selezione.Inizio, tasto)) {
    return {.Azione = AzioneTasto::ApriCodice, .Nuova = SelezioneDi(*codice)};
  }
  return Togli(testo, selezione);
}

EsitoTasto ApriOTogli(std::string_view testo, Selezione selezione, TastoSezione tasto) {
  if (const auto codice = CodiceIntorno(testo, selezione.Inizio))
    return {.Azione = AzioneTasto::ApriCodice, .Nuova = SelezioneDi(*codice)};
  if (tasto == TastoSezione::F4) return {.Azione = AzioneTasto::ApriVariabile, .Nuova = {}};
  return Togli(testo, selezione);
}

EsitoTasto PremiDaVicino(std::string_view testo, Selezione selezione, TastoSezione tasto) {
  switch (tasto) {
    case TastoSezione::Backspace:
    case TastoSezione::Canc:
      return Cancella(testo, selezione, tasto);
    case TastoSezione::Togli:
      return Togli(testo, selezione);
    default:
      return ApriOTogli(testo, selezione, tasto);
  }
}

bool ApreDialogo(const EsitoTasto& esito) {
  return esito.Azione == AzioneTasto::ApriCodice || esito.Azione == AzioneTasto::ApriVariabile;
}

}  // namespace

std::optional<PosizioneCodice> CodiceIntorno(std::string_view testo, std::size_t cursore) {
  const std::string_view prima = testo.substr(0, cursore);
  const std::size_t delimitatore = prima.find_last_of(std::string_view("\xAB\xBB"));
  if (delimitatore == NonTrovato || prima[delimitatore] != DelimApertura) return std::nullopt;
  const std::size_t chiusura = testo.find(DelimChiusura, cursore);
  if (chiusura == NonTrovato) return std::nullopt;
  return PosizioneCodice{.Inizio = delimitatore, .Lunghezza = chiusura - delimitatore + 1};
}

std::optional<PosizioneCodice> CodiceSotto(std::string_view testo, std::size_t posizione) {
  if (posizione >= testo.size()) return std::nullopt;
  return CodiceIntorno(testo, testo[posizione] == DelimApertura ? posizione + 1 : posizione);
}

std::vector<PosizioneCodice> CodiciAlCursore(std::string_view testo, std::size_t cursore) {
  if (const auto codice = CodiceIntorno(testo, cursore)) return {*codice};
  std::vector<PosizioneCodice> codici;
  if (const auto prima = CodicePrima(testo, cursore)) codici.push_back(*prima);
  if (const auto dopo = CodiceDopo(testo, cursore)) codici.push_back(*dopo);
  return codici;
}

std::size_t FuoriDaiCodici(std::string_view testo, std::size_t cursore) {
  const auto codice = CodiceIntorno(testo, cursore);
  return codice ? codice->Inizio + codice->Lunghezza : cursore;
}

EsitoTasto PremiTasto(std::string_view testo, Selezione selezione, TastoSezione tasto, Pressione pressione) {
  constexpr EsitoTasto Niente = {.Azione = AzioneTasto::Nessuna, .Nuova = {}};
  if (pressione == Pressione::Ripetuta && selezione.Lunghezza > 0) return Niente;
  const EsitoTasto esito = PremiDaVicino(testo, selezione, tasto);
  return pressione != Pressione::Prima && ApreDialogo(esito) ? Niente : esito;
}

}  // namespace parvik
