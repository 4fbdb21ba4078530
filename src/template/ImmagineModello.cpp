#include "template/ImmagineModello.h"

#include <utility>

#include "common/Delimitatori.h"
#include "common/LettoreRighe.h"
#include "common/SeBastaMemoria.h"
#include "template/CopiaRighe.h"
#include "template/RigheSezione.h"

namespace parvik {
namespace {

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

void DividiTreSezioni(std::string_view byte, const std::optional<Marcatore>& marcatore,
                      ImmagineDivisa& divisa) {
  const std::size_t fineTestata = marcatore ? marcatore->InizioRiga : byte.size();
  divisa.Righe[Indice(Sezione::Testata)] = byte.substr(0, fineTestata);
  if (!marcatore) return;
  const Esito<void> letto = LeggiMarcatore(byte, *marcatore, divisa.Corpo);
  divisa.TestoNonLetto = !letto;
  if (letto) return DividiCorpoEPiede(LettoreRighe(byte.substr(marcatore->FineRiga)), divisa);
  divisa.Errore = letto.Errore();
}

ImmagineDivisa Dividi(std::string_view byte, Formato formato, const std::optional<Marcatore>& marcatore,
                      const ImpostazioniCorpo& attuali) {
  ImmagineDivisa divisa;
  divisa.Corpo = attuali;
  if (formato == Formato::TreSezioni) {
    DividiTreSezioni(byte, marcatore, divisa);
  } else {
    divisa.Righe[Indice(Sezione::Testata)] = byte;
  }
  return divisa;
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

Esito<std::string> ScriviUnaSezione(TestiSezioni& testi, ImpostazioniCorpo& /*corpo*/) {
  const std::string& testata = testi[Indice(Sezione::Testata)];
  std::string uscita;
  uscita.reserve(testata.size() + FineRiga.size());
  uscita.resize(AggiungiVersoFile(testata, uscita));  // an unfinished last line is not written
  return uscita;
}

/// What it completes in `testi` stays when memory is exhausted; the settings are changed last.
Esito<std::string> ScriviTreSezioni(TestiSezioni& testi, ImpostazioniCorpo& corpo) {
  std::string& testoCorpo = testi[Indice(Sezione::Corpo)];
  const Esito<ConteggioRighe> conteggio = ContaRigheSezione(testoCorpo);
  if (!conteggio) return conteggio.Errore();
  if (conteggio->DaCompletare) testoCorpo.append(FineRiga);
  ImpostazioniCorpo contate = corpo;
  contate.LineeCorpo = conteggio->Righe;
  std::string uscita;
  uscita.reserve(Dimensione(testi));
  ScriviSezione(testi[Indice(Sezione::Testata)], uscita);
  uscita.append(RigaMarcatore(contate));
  ScriviSezione(testoCorpo, uscita);
  ScriviSezione(testi[Indice(Sezione::Piede)], uscita);
  corpo.LineeCorpo = contate.LineeCorpo;
  return uscita;
}

}  // namespace

ImpostazioniCorpo ImpostazioniPredefinite() {
  return {.RigheCorpo = 23, .LineeCorpo = 1, .FlagSbarra = "", .FlagAccorpa = ""};
}

Esito<ImmagineLetta> LeggiImmagine(std::string_view byte, Formato formato, const ImpostazioniCorpo& attuali) {
  return SeBastaMemoria([&]() -> Esito<ImmagineLetta> {
    const auto marcatore = formato == Formato::TreSezioni ? TrovaMarcatore(byte, 0) : std::nullopt;
    const ImmagineDivisa divisa = Dividi(byte, formato, marcatore, attuali);
    ImmagineLetta letta{divisa, {}};
    for (std::size_t i = 0; i < MaxSezioni; ++i) AggiungiDaFile(divisa.Righe[i], letta.Testi[i]);
    return letta;
  });
}

Esito<std::unique_ptr<const ImmagineInPosto>> ImmagineInPosto::Apri(ByteFile byte,
                                                                    const PreparaImmagine& prepara,
                                                                    const ImpostazioniCorpo& attuali) {
  using Aperta = std::unique_ptr<const ImmagineInPosto>;
  return SeBastaMemoria([&]() -> parvik::Esito<Aperta> {
    return Aperta(new ImmagineInPosto(std::move(byte), prepara, attuali));
  });
}

ImmagineInPosto::ImmagineInPosto(ByteFile byte, PreparaImmagine prepara, const ImpostazioniCorpo& attuali)
    : byte_(std::move(byte)) {
  prepara.Concludi(byte_);
  marcatore_ = prepara.Trovato();
  divisa_ = Dividi(Byte(), prepara.Per(), marcatore_, attuali);
  for (std::size_t i = 0; i < MaxSezioni; ++i) {
    std::string_view& righe = divisa_.Righe[i];
    if (righe.empty() || (!prepara.CrSoli() && righe.ends_with(FineRiga))) continue;
    AggiungiDaFile(righe, completati_[i]);
    righe = completati_[i];
  }
}

Esito<std::string> ScriviImmagine(TestiSezioni& testi, ImpostazioniCorpo& corpo, Formato formato) {
  const auto scrivi = formato == Formato::UnaSezione ? ScriviUnaSezione : ScriviTreSezioni;
  std::string& testoCorpo = testi[Indice(Sezione::Corpo)];
  const std::size_t corpoPrima = testoCorpo.size();
  Esito<std::string> scritta = SeBastaMemoria([&] { return scrivi(testi, corpo); });
  if (!scritta) testoCorpo.resize(corpoPrima);
  return scritta;
}

}  // namespace parvik
