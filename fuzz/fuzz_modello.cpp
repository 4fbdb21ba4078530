// Template files: read, written, read again.
#include <algorithm>

#include "Bersaglio.h"
#include "common/Delimitatori.h"
#include "template/ImmagineModello.h"

namespace parvik::fuzz {
namespace {

bool Contiene(std::string_view testo, std::string_view cercato) {
  return testo.find(cercato) != std::string_view::npos;
}

void ProvaLettura(const ImmagineLetta& letta) {
  for (const std::string& testo : letta.Testi) {
    Esigi(testo.empty() || testo.ends_with(FineRiga), "a section that was read ends with CR LF");
    Esigi(testo.find_first_of("\xAE\xAF") == std::string::npos, "no section has the delimiters of files");
  }
  Esigi(letta.Corpo.FlagSbarra.empty() || letta.Corpo.FlagSbarra == "C", "FlagSbarra is C or nothing");
  Esigi(letta.Corpo.FlagAccorpa.size() <= 1, "FlagAccorpa is one byte or nothing");
  Esigi(!letta.TestoNonLetto || letta.Errore.has_value(), "text is left unread for a reason");
}

void ProvaFile(std::string_view byte, Formato formato) {
  ImmagineLetta prima = *LeggiImmagine(byte, formato, ImpostazioniPredefinite());
  ProvaLettura(prima);
  // The editor's own delimiters become those of files, and may then make a marker; no line at all becomes
  // one.
  if (byte.empty() || byte.find_first_of("\xAB\xBB") != std::string_view::npos) return;
  const Esito<std::string> unaVolta = ScriviImmagine(prima.Testi, prima.Corpo, formato);
  Esigi(static_cast<bool>(unaVolta), "what was read can be written");
  ImmagineLetta dopo = *LeggiImmagine(*unaVolta, formato, prima.Corpo);
  ProvaLettura(dopo);
  Esigi(!dopo.Errore && !dopo.TestoNonLetto && !dopo.CorpoIncompleto, "what was written can be read");
  const Esito<std::string> dueVolte = ScriviImmagine(dopo.Testi, dopo.Corpo, formato);
  Esigi(static_cast<bool>(dueVolte) && *dueVolte == *unaVolta, "the second writing gives the same bytes");
}

/// As a file arrives, in pieces.
void ProvaAPezzi(std::string_view byte, Formato formato, std::size_t pezzo) {
  PreparaImmagine prepara(formato);
  ByteFile finora;
  while (finora.size() < byte.size()) {
    const std::string_view nuovi = byte.substr(finora.size(), pezzo);
    finora.insert(finora.end(), nuovi.begin(), nuovi.end());
    prepara.Prosegui(finora);
  }
  const ImmagineLetta letta = *LeggiImmagine(byte, formato, ImpostazioniPredefinite());
  const auto inPosto = ImmagineInPosto::Apri(std::move(finora), prepara, ImpostazioniPredefinite());
  const EsitoImmagine& esito = (*inPosto)->Esito();
  Esigi(std::ranges::equal((*inPosto)->Testi(), letta.Testi), "in pieces the same texts are read");
  Esigi(esito.Corpo == letta.Corpo && esito.Errore == letta.Errore &&
            esito.TestoNonLetto == letta.TestoNonLetto && esito.CorpoIncompleto == letta.CorpoIncompleto,
        "in pieces the same is said of it");
}

bool SoloRigheIntere(std::string_view testo) {
  if (!testo.empty() && !testo.ends_with(FineRiga)) return false;
  for (std::size_t cr = testo.find('\r'); cr != std::string_view::npos; cr = testo.find('\r', cr + 1)) {
    if (!testo.substr(cr).starts_with(FineRiga)) return false;
  }
  return testo.find_first_of("\xAE\xAF") == std::string_view::npos;
}

/// Whether a three-section file gives these texts back: whole lines, a line before the marker, and nothing in
/// the Testata that reads as one.
bool Riproducibili(const TestiSezioni& testi) {
  const std::string& testata = testi[Indice(Sezione::Testata)];
  if (!std::ranges::all_of(testi, SoloRigheIntere) || testata.empty()) return false;
  return !Contiene(std::string_view(testata).substr(testata.find(FineRiga)),
                   "\xAB"
                   "C");
}

void ProvaSezioni(const TestiSezioni& originali, std::uint8_t righe) {
  TestiSezioni testi = originali;
  ImpostazioniCorpo corpo = ImpostazioniPredefinite();
  corpo.RigheCorpo = static_cast<std::int16_t>(righe * 257 - 32768);
  const Esito<std::string> file = ScriviImmagine(testi, corpo, Formato::TreSezioni);
  Esigi(static_cast<bool>(file), "a short text can be written");
  if (!Riproducibili(originali)) return;
  Esigi(testi == originali, "whole lines need no completion");
  const ImmagineLetta letta = *LeggiImmagine(*file, Formato::TreSezioni, ImpostazioniPredefinite());
  Esigi(letta.Testi == originali && letta.Corpo == corpo && !letta.Errore,
        "what was written is read as it was");
}

}  // namespace
}  // namespace parvik::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t dimensione) {
  using namespace parvik;
  fuzz::Ingresso ingresso(dati, dimensione);
  const unsigned char scelta = ingresso.Byte();
  fuzz::ProvaFile(ingresso.Resto(), Formato::UnaSezione);
  fuzz::ProvaFile(ingresso.Resto(), Formato::TreSezioni);
  fuzz::ProvaAPezzi(ingresso.Resto(), FormatoDi(scelta % 2 == 0 ? 3 : 1), 1 + scelta / 2);
  TestiSezioni testi;
  for (std::string& testo : testi) testo = ingresso.Testo();
  fuzz::ProvaSezioni(testi, scelta);
  return 0;
}
