// The checker and its mends; the check of a catalogue.
#include <algorithm>
#include <string>
#include <tuple>

#include "Bersaglio.h"
#include "common/Delimitatori.h"
#include "template/ImmagineModello.h"
#include "tokens/Pezzi.h"
#include "verifica/Correzioni.h"
#include "verifica/RegoleCatalogo.h"

namespace parvik::fuzz {
namespace {

constexpr std::string_view Campi =
    "1,\"Uno;U*.IMG;3;1;2;3;4;5;6;7;8;9;10;11;12\"\r\n"
    "2,\"Due;D*.IMG;1;13;14;0;0;0;0;15;16;0;0;0;0\"\r\n"
    "//fine documenti\r\n"
    "0001,\"Cliente;1;30;;1;0;0;0;0;0;0\r\n0002,\"Importo;8;12;;0;1;0;0;1;1;2;1\r\n"
    "0003,\"Articolo;102;16;;1;0;0;0;0;0;0\r\n0004,\"Prezzo;111;11;;0;1;0;0;1;1;4;1\r\n"
    "0005,\"Totale;227;16;;0;1;0;1;1;1;2;1\r\n0006,\"Note;251;70;;1;0;3;0;0;0;0\r\n"
    "0007,\"Estero;3;N\r\n0008,\"Agente;4;S\r\n0009,\"Lotto;24;S\r\n0010,\"Omaggio;28;S\r\n"
    "0011,\"Acconto;41;N\r\n0012,\"Vettore;48;S\r\n"
    "0013,\"Cliente;501;30;;1;0;0;0;0;0;0\r\n0014,\"Prezzo;502;8;;0;1;0;0;0;0;0;0\r\n"
    "0015,\"Estero;5;N\r\n0016,\"Barre;6;N\r\n";

const Catalogo& CatalogoFisso() {
  static const Esito<Catalogo, ErroreCatalogo> catalogo = Catalogo::CaricaCampi(std::string(Campi));
  return *catalogo;
}

OpzioniVerifica TutteLeOpzioni(unsigned char scelta) {
  OpzioniVerifica opzioni;
  opzioni.Larghezza = scelta;
  opzioni.Righe = scelta;
  opzioni.Cornici = true;
  return opzioni;
}

void ProvaRilievi(std::string_view byte, Verificatore& verificatore, const OpzioniVerifica& opzioni) {
  const std::vector<Rilievo> rilievi = *verificatore.File(byte, opzioni);
  const auto posto = [](const Rilievo& r) { return std::tuple(r.Riga, r.Colonna, r.Quale); };
  Esigi(std::ranges::is_sorted(rilievi, {}, posto), "findings come in the order of the file");
  const ImmagineLetta letta =
      *LeggiImmagine(byte, FormatoDi(verificatore.Tipo().NumSezioni), ImpostazioniPredefinite());
  for (const Rilievo& rilievo : rilievi) {
    Esigi(rilievo.Riga > 0 && rilievo.Colonna > 0 && rilievo.Riga + rilievo.Colonna <= byte.size() + 2,
          "a place lies in the file");
    Esigi(!rilievo.Testo.empty() && rilievo.Testo.find('\n') == std::string::npos,
          "a finding is told on one line");
    if (!rilievo.Dove) continue;
    const std::string& testo = letta.Testi[Indice(*rilievo.Dove)];
    Esigi(rilievo.Inizio + rilievo.Lunghezza <= testo.size(), "a place lies in its section");
  }
}

/// The text without the contents of its codes.
std::string SenzaContenuti(std::string byte) {
  std::ranges::replace(byte, DelimFileApertura, DelimApertura);
  std::ranges::replace(byte, DelimFileChiusura, DelimChiusura);
  std::string resto;
  LettorePezzi lettore(byte);
  while (const auto pezzo = lettore.Prossimo()) {
    if (pezzo->Genere == GenerePezzo::Codice) {
      resto += "<>";
    } else {
      resto += pezzo->In(byte);
    }
  }
  return resto;
}

void ProvaCorrezioni(std::string_view byte, Verificatore& verificatore) {
  const FileCorretto corretto = *Correggi(byte, verificatore, CatalogoFisso(), {});
  Esigi((corretto.Fatte == 0) == (corretto.Byte == byte), "what is mended is another file");
  Esigi(SenzaContenuti(std::string(byte)) == SenzaContenuti(corretto.Byte),
        "only contents of codes are mended");
  Esigi(Correggi(corretto.Byte, verificatore, CatalogoFisso(), {})->Byte == corretto.Byte,
        "a mended file has nothing left to mend");
}

void ProvaCatalogo(std::string_view byte) {
  const auto rilievi = *VerificaCatalogo(byte);
  const auto posto = [](const RilievoCatalogo& r) { return std::tuple(r.Riga, r.Colonna, r.Quale); };
  Esigi(std::ranges::is_sorted(rilievi, {}, posto), "findings of a catalogue come in its order");
  const bool errori = std::ranges::any_of(
      rilievi, [](const RilievoCatalogo& r) { return VoceDi(r.Quale).Grado == Livello::Errore; });
  Esigi(errori || static_cast<bool>(Catalogo::CaricaCampi(std::string(byte))),
        "a catalogue without errors can be loaded");
}

}  // namespace
}  // namespace parvik::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t dimensione) {
  using namespace parvik;
  fuzz::Ingresso ingresso(dati, dimensione);
  const unsigned char scelta = ingresso.Byte();
  const TipoDoc& tipo = fuzz::CatalogoFisso().TipiDoc()[scelta % 2];
  Verificatore verificatore(fuzz::CatalogoFisso(), tipo);
  fuzz::ProvaRilievi(ingresso.Resto(), verificatore, fuzz::TutteLeOpzioni(scelta));
  fuzz::ProvaCorrezioni(ingresso.Resto(), verificatore);
  fuzz::ProvaCatalogo(ingresso.Resto());
  return 0;
}
