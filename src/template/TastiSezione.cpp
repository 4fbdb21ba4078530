#include "template/TastiSezione.h"

#include "common/Delimitatori.h"

namespace parvik {
namespace {

/// Whole codes, or whole codes at both ends: may be deleted as it is.
bool CodiciInteri(const TestoSezione& testo, Selezione selezione) {
  return selezione.Lunghezza > 0 && testo[selezione.Inizio] == DelimApertura &&
         testo[selezione.Fine() - 1] == DelimChiusura;
}

/// The code that ends right in front of the caret.
std::optional<Selezione> CodicePrima(const TestoSezione& testo, std::size_t cursore) {
  if (cursore < 2 || testo[cursore - 1] != DelimChiusura) return std::nullopt;
  return CodiceIntorno(testo, cursore - 1);
}

/// The code that begins right behind the caret.
std::optional<Selezione> CodiceDopo(const TestoSezione& testo, std::size_t cursore) {
  if (cursore >= testo.Dimensione() || testo[cursore] != DelimApertura) return std::nullopt;
  return CodiceIntorno(testo, cursore + 1);
}

/// The code at the caret, as the key looks for it.
std::optional<Selezione> CercaCodice(const TestoSezione& testo, std::size_t cursore, TastoSezione tasto) {
  if (auto codice = CodiceIntorno(testo, cursore)) return codice;
  if (tasto == TastoSezione::Backspace) return CodicePrima(testo, cursore);
  if (tasto == TastoSezione::Canc) return CodiceDopo(testo, cursore);
  return std::nullopt;
}

/// A selection that cuts a code is not taken away: it grows.
EsitoTasto Togli(const TestoSezione& testo, Selezione selezione) {
  if (CodiciInteri(testo, selezione)) return {};
  const Selezione intera = ConCodiciInteri(testo, selezione);
  if (selezione.Lunghezza > 0 && intera != selezione)
    return {.Azione = AzioneTasto::Allarga, .Nuova = intera};
  return {};
}

EsitoTasto Cancella(const TestoSezione& testo, Selezione selezione, TastoSezione tasto) {
  if (CodiciInteri(testo, selezione)) return {};
  if (tasto == TastoSezione::Backspace && selezione.Inizio == 0)
    return {.Azione = AzioneTasto::Nessuna, .Nuova = {}};
  if (const auto codice = CercaCodice(testo, selezione.Inizio, tasto)) {
    return {.Azione = AzioneTasto::ApriCodice, .Nuova = *codice};
  }
  return Togli(testo, selezione);
}

EsitoTasto ApriOTogli(const TestoSezione& testo, Selezione selezione, TastoSezione tasto) {
  if (const auto codice = CodiceIntorno(testo, selezione.Inizio))
    return {.Azione = AzioneTasto::ApriCodice, .Nuova = *codice};
  if (tasto == TastoSezione::F4) return {.Azione = AzioneTasto::ApriVariabile, .Nuova = {}};
  return Togli(testo, selezione);
}

EsitoTasto PremiDaVicino(const TestoSezione& testo, Selezione selezione, TastoSezione tasto) {
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

std::optional<Selezione> CodiceIntorno(const TestoSezione& testo, std::size_t cursore) {
  const auto apertura = testo.Precedente(Segno::Apertura, cursore);
  if (!apertura || testo.Precedente(Segno::Chiusura, cursore) > apertura) return std::nullopt;
  const auto chiusura = testo.Seguente(Segno::Chiusura, cursore);
  if (!chiusura) return std::nullopt;
  return Selezione{.Inizio = *apertura, .Lunghezza = *chiusura - *apertura + 1};
}

std::optional<Selezione> CodiceSotto(const TestoSezione& testo, std::size_t posto) {
  if (posto >= testo.Dimensione()) return std::nullopt;
  return CodiceIntorno(testo, testo[posto] == DelimApertura ? posto + 1 : posto);
}

Selezione ConCodiciInteri(const TestoSezione& testo, Selezione selezione) {
  std::size_t inizio = selezione.Inizio;
  std::size_t fine = selezione.Fine();
  if (const auto codice = CodiceIntorno(testo, inizio)) inizio = codice->Inizio;
  if (const auto codice = CodiceIntorno(testo, fine)) fine = codice->Fine();
  return {.Inizio = inizio, .Lunghezza = fine - inizio};
}

std::vector<Selezione> CodiciAlCursore(const TestoSezione& testo, std::size_t cursore) {
  if (const auto codice = CodiceIntorno(testo, cursore)) return {*codice};
  std::vector<Selezione> codici;
  if (const auto prima = CodicePrima(testo, cursore)) codici.push_back(*prima);
  if (const auto dopo = CodiceDopo(testo, cursore)) codici.push_back(*dopo);
  return codici;
}

std::size_t FuoriDaiCodici(const TestoSezione& testo, std::size_t cursore) {
  const auto codice = CodiceIntorno(testo, cursore);
  return codice ? codice->Fine() : cursore;
}

EsitoTasto PremiTasto(const TestoSezione& testo, Selezione selezione, TastoSezione tasto,
                      Pressione pressione) {
  constexpr EsitoTasto Niente = {.Azione = AzioneTasto::Nessuna, .Nuova = {}};
  if (pressione == Pressione::Ripetuta && selezione.Lunghezza > 0) return Niente;
  const EsitoTasto esito = PremiDaVicino(testo, selezione, tasto);
  return pressione != Pressione::Prima && ApreDialogo(esito) ? Niente : esito;
}

}  // namespace parvik
