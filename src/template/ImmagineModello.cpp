#include "template/ImmagineModello.h"

#include <algorithm>

#include "common/Delimitatori.h"
#include "common/LettoreRighe.h"
#include "common/NumeroLeniente.h"
#include "template/RigheSezione.h"

namespace parvik {
namespace {

constexpr std::size_t NonTrovato = std::string_view::npos;

// In two pieces: in one literal the C would belong to the escape.
constexpr std::string_view InizioMarcatore =
    "\xAE"
    "C";

void AggiungiRiga(std::string& sezione, std::string_view riga) {
  sezione.append(riga);
  sezione.append(FineRiga);
}

/// The text from byte `da` on; nothing when there is no such byte.
std::string_view Da(std::string_view testo, std::size_t da) {
  return testo.substr(std::min(da, testo.size()));
}

/// Looks for ";" from byte `da` on and gives the position after it, or 0: without a separator, what should
/// follow it is looked for from the start of the line.
std::size_t DopoSeparatore(std::string_view riga, std::size_t da) {
  const std::size_t trovato = riga.find(';', da);
  return trovato == NonTrovato ? 0 : trovato + 1;
}

void LeggiInterruttori(std::string_view testo, ImpostazioniCorpo& corpo) {
  const std::string_view primo = testo.substr(0, 1);
  const std::string_view secondo = Da(testo, 1).substr(0, 1);
  if (primo == std::string_view(&DelimFileChiusura, 1)) {
    corpo.FlagSbarra.clear();
    corpo.FlagAccorpa.clear();
    return;
  }
  if (primo == "C" || primo == "S") {
    corpo.FlagSbarra = primo == "C" ? "C" : "";
    corpo.FlagAccorpa = primo == "S" ? "S" : "";
  }
  if (secondo != std::string_view(&DelimFileChiusura, 1)) corpo.FlagAccorpa = secondo;
}

/// `inizio` is where the marker's two first bytes stand in the line. What was set before an error stays set.
std::optional<NumeroErrore> LeggiMarcatore(std::string_view riga, std::size_t inizio,
                                           ImpostazioniCorpo& corpo) {
  const Esito<std::int16_t> righe = InteroLeniente(Da(riga, inizio + InizioMarcatore.size()));
  if (!righe) return righe.Errore();
  corpo.RigheCorpo = *righe;
  const std::size_t dopoPrimo = DopoSeparatore(riga, inizio);
  const Esito<std::int16_t> linee = InteroLeniente(Da(riga, dopoPrimo));
  if (!linee) return linee.Errore();
  corpo.LineeCorpo = *linee;
  LeggiInterruttori(Da(riga, DopoSeparatore(riga, dopoPrimo)), corpo);
  return std::nullopt;
}

/// Reads lines into the Testata up to the marker, which is never looked for in the first line. The marker's
/// line and its place in it; nullopt when the file has none.
struct Marcatore {
  std::string_view Riga;
  std::size_t Inizio;
};
std::optional<Marcatore> LeggiTestata(LettoreRighe& righe, std::string& testata) {
  if (const auto prima = righe.Prossima()) AggiungiRiga(testata, *prima);
  while (const auto riga = righe.Prossima()) {
    const std::size_t inizio = riga->find(InizioMarcatore);
    if (inizio != NonTrovato) return Marcatore{*riga, inizio};
    AggiungiRiga(testata, *riga);
  }
  return std::nullopt;
}

void LeggiCorpoEPiede(LettoreRighe& righe, ImmagineLetta& letta) {
  for (int i = 0; i < letta.Corpo.LineeCorpo; ++i) {
    const auto riga = righe.Prossima();
    if (!riga) {
      letta.CorpoIncompleto = true;
      if (i > 0) letta.Errore = NumeroErrore::InputOltreFine;  // right after the marker the end is no error
      return;
    }
    AggiungiRiga(letta.Testi[Indice(Sezione::Corpo)], *riga);
  }
  while (const auto riga = righe.Prossima()) AggiungiRiga(letta.Testi[Indice(Sezione::Piede)], *riga);
}

void LeggiTreSezioni(LettoreRighe& righe, ImmagineLetta& letta) {
  const auto marcatore = LeggiTestata(righe, letta.Testi[Indice(Sezione::Testata)]);
  if (!marcatore) return;
  letta.Errore = LeggiMarcatore(marcatore->Riga, marcatore->Inizio, letta.Corpo);
  if (!letta.Errore) LeggiCorpoEPiede(righe, letta);
}

/// Writes a section's lines: whatever follows a CR is skipped, it is taken to be the LF of the pair. What the
/// last CR leaves over is returned.
std::string_view ScriviRighe(std::string_view testo, std::string& uscita) {
  std::size_t inizio = 0;
  for (std::size_t cr = testo.find('\r'); cr != NonTrovato; cr = testo.find('\r', inizio)) {
    uscita.append(testo, inizio, cr - inizio);
    uscita.append(FineRiga);
    inizio = std::min(cr + 2, testo.size());
  }
  return testo.substr(inizio);
}

/// A section of the three-section layout: an unfinished last line is written with its own line end and one
/// more.
void ScriviSezione(std::string_view testo, std::string& uscita) {
  const std::size_t inizio = uscita.size();
  const std::string_view resto = ScriviRighe(testo, uscita);
  if (HaTesto(resto)) uscita.append(resto).append(FineRiga).append(FineRiga);
  DelimitatoriVersoFile(std::span(uscita).subspan(inizio));
}

std::string RigaMarcatore(const ImpostazioniCorpo& corpo) {
  std::string riga(InizioMarcatore);
  riga += std::to_string(corpo.RigheCorpo) + ";" + std::to_string(corpo.LineeCorpo) + ";";
  riga += corpo.FlagSbarra + corpo.FlagAccorpa;
  riga += DelimFileChiusura;
  return riga.append(FineRiga);
}

}  // namespace

ImpostazioniCorpo ImpostazioniPredefinite() {
  return {.RigheCorpo = 23, .LineeCorpo = 1, .FlagSbarra = "", .FlagAccorpa = ""};
}

void DelimitatoriVersoEditor(std::span<char> testo) {
  std::ranges::replace(testo, DelimFileApertura, DelimApertura);
  std::ranges::replace(testo, DelimFileChiusura, DelimChiusura);
}

void DelimitatoriVersoFile(std::span<char> testo) {
  std::ranges::replace(testo, DelimApertura, DelimFileApertura);
  std::ranges::replace(testo, DelimChiusura, DelimFileChiusura);
}

ImmagineLetta LeggiImmagine(std::string_view byte, Formato formato, const ImpostazioniCorpo& attuali) {
  ImmagineLetta letta;
  letta.Corpo = attuali;
  LettoreRighe righe(byte);
  if (formato == Formato::TreSezioni) {
    LeggiTreSezioni(righe, letta);
  } else {
    while (const auto riga = righe.Prossima()) AggiungiRiga(letta.Testi[Indice(Sezione::Testata)], *riga);
  }
  // An error in the marker leaves the marker itself unread, whatever follows it.
  letta.TestoNonLetto = !righe.Fine() || letta.Errore == NumeroErrore::Overflow;
  for (std::string& testo : letta.Testi) DelimitatoriVersoEditor(testo);
  return letta;
}

Esito<std::string> ScriviImmagine(TestiSezioni& testi, ImpostazioniCorpo& corpo, Formato formato) {
  std::string uscita;
  if (formato == Formato::UnaSezione) {
    ScriviRighe(testi[Indice(Sezione::Testata)], uscita);  // an unfinished last line is not written
    DelimitatoriVersoFile(uscita);
    return uscita;
  }
  std::string& testoCorpo = testi[Indice(Sezione::Corpo)];
  const Esito<ConteggioRighe> conteggio = ContaRigheSezione(testoCorpo);
  if (!conteggio) return conteggio.Errore();
  if (conteggio->DaCompletare) testoCorpo.append(FineRiga);
  corpo.LineeCorpo = conteggio->Righe;
  ScriviSezione(testi[Indice(Sezione::Testata)], uscita);
  uscita.append(RigaMarcatore(corpo));
  ScriviSezione(testoCorpo, uscita);
  ScriviSezione(testi[Indice(Sezione::Piede)], uscita);
  return uscita;
}

}  // namespace parvik
