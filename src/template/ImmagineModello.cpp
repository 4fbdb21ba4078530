#include "template/ImmagineModello.h"

#include <algorithm>
#include <utility>

#include "common/Delimitatori.h"
#include "common/LettoreRighe.h"
#include "common/NumeroLeniente.h"
#include "template/CopiaRighe.h"
#include "template/RigheSezione.h"

namespace parvik {
namespace {

constexpr std::size_t NonTrovato = std::string_view::npos;

// In two pieces: in one literal the C would belong to the escape.
constexpr std::string_view InizioMarcatore =
    "\xAE"
    "C";

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

/// The line of the marker, which is never looked for in the first line; nullopt when the file has none.
struct Marcatore {
  std::size_t InizioRiga = 0;
  std::size_t Posto = 0;  // where the two bytes that it is known by stand
};
std::optional<Marcatore> TrovaMarcatore(std::string_view byte) {
  LettoreRighe prima(byte);
  prima.Prossima();
  const std::size_t posto = TrovaCoppia(byte, InizioMarcatore, byte.size() - prima.Resto().size());
  if (posto == NonTrovato) return std::nullopt;
  const std::size_t inizio = byte.rfind('\r', posto) + 1;  // another line lies before this one
  return Marcatore{.InizioRiga = inizio + (byte[inizio] == '\n' ? 1 : 0), .Posto = posto};
}

void DividiCorpoEPiede(LettoreRighe righe, ImmagineDivisa& divisa) {
  const std::string_view corpo = righe.Resto();
  int lette = 0;
  while (lette < divisa.Corpo.LineeCorpo && righe.Prossima()) ++lette;
  divisa.Righe[Indice(Sezione::Corpo)] = corpo.substr(0, corpo.size() - righe.Resto().size());
  divisa.Righe[Indice(Sezione::Piede)] = righe.Resto();
  divisa.CorpoIncompleto = lette < divisa.Corpo.LineeCorpo;
  // Right after the marker the end is no error.
  if (divisa.CorpoIncompleto && lette > 0) divisa.Errore = NumeroErrore::InputOltreFine;
}

void DividiTreSezioni(std::string_view byte, ImmagineDivisa& divisa) {
  const auto marcatore = TrovaMarcatore(byte);
  const std::size_t fineTestata = marcatore ? marcatore->InizioRiga : byte.size();
  divisa.Righe[Indice(Sezione::Testata)] = byte.substr(0, fineTestata);
  if (!marcatore) return;
  LettoreRighe righe(byte.substr(fineTestata));
  const std::string_view riga = righe.Prossima().value_or("");
  divisa.Errore = LeggiMarcatore(riga, marcatore->Posto - fineTestata, divisa.Corpo);
  divisa.TestoNonLetto = divisa.Errore.has_value();
  if (!divisa.Errore) DividiCorpoEPiede(righe, divisa);
}

/// A section of the three-section layout: an unfinished last line is written with its own line end and one
/// more.
void ScriviSezione(std::string_view testo, std::string& uscita) {
  const std::size_t resto = AggiungiVersoFile(testo, uscita);
  if (HaTesto(std::string_view(uscita).substr(resto))) {
    uscita.append(FineRiga).append(FineRiga);
  } else {
    uscita.resize(resto);
  }
}

/// Enough for a file of three sections, unless a section has line ends of one byte.
std::size_t Dimensione(const TestiSezioni& testi) {
  constexpr std::size_t MarcatoreEFiniRiga = 64;
  std::size_t dimensione = MarcatoreEFiniRiga;
  for (const std::string& testo : testi) dimensione += testo.size();
  return dimensione;
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

ImmagineDivisa DividiImmagine(std::string_view byte, Formato formato, const ImpostazioniCorpo& attuali) {
  ImmagineDivisa divisa;
  divisa.Corpo = attuali;
  if (formato == Formato::TreSezioni) {
    DividiTreSezioni(byte, divisa);
  } else {
    divisa.Righe[Indice(Sezione::Testata)] = byte;
  }
  return divisa;
}

ImmagineLetta LeggiImmagine(std::string_view byte, Formato formato, const ImpostazioniCorpo& attuali) {
  const ImmagineDivisa divisa = DividiImmagine(byte, formato, attuali);
  ImmagineLetta letta{divisa, {}};
  for (std::size_t i = 0; i < MaxSezioni; ++i) AggiungiDaFile(divisa.Righe[i], letta.Testi[i]);
  return letta;
}

ImmagineInPosto::ImmagineInPosto(std::string byte, Formato formato, const ImpostazioniCorpo& attuali)
    : byte_(std::move(byte)), divisa_(DividiImmagine(byte_, formato, attuali)) {
  for (std::size_t i = 0; i < MaxSezioni; ++i) {
    std::string_view& righe = divisa_.Righe[i];
    if (righe.empty()) continue;
    const auto inizio = static_cast<std::size_t>(righe.data() - byte_.data());
    if (RendiSezione(std::span(byte_).subspan(inizio, righe.size()))) continue;
    AggiungiDaFile(righe, completati_[i]);
    righe = completati_[i];
  }
}

Esito<std::string> ScriviImmagine(TestiSezioni& testi, ImpostazioniCorpo& corpo, Formato formato) {
  std::string uscita;
  if (formato == Formato::UnaSezione) {
    const std::string& testata = testi[Indice(Sezione::Testata)];
    uscita.reserve(testata.size() + FineRiga.size());
    uscita.resize(AggiungiVersoFile(testata, uscita));  // an unfinished last line is not written
    return uscita;
  }
  std::string& testoCorpo = testi[Indice(Sezione::Corpo)];
  const Esito<ConteggioRighe> conteggio = ContaRigheSezione(testoCorpo);
  if (!conteggio) return conteggio.Errore();
  if (conteggio->DaCompletare) testoCorpo.append(FineRiga);
  corpo.LineeCorpo = conteggio->Righe;
  uscita.reserve(Dimensione(testi));
  ScriviSezione(testi[Indice(Sezione::Testata)], uscita);
  uscita.append(RigaMarcatore(corpo));
  ScriviSezione(testoCorpo, uscita);
  ScriviSezione(testi[Indice(Sezione::Piede)], uscita);
  return uscita;
}

}  // namespace parvik
