#include "verifica/Verifica.h"

#include <algorithm>
#include <string>
#include <tuple>
#include <utility>

#include "common/Delimitatori.h"
#include "common/LettoreRighe.h"
#include "common/SeBastaMemoria.h"
#include "output/GeneraStampa.h"
#include "template/ImmagineModello.h"
#include "template/RigheSezione.h"
#include "verifica/EsameMarcatore.h"
#include "verifica/EsamePagina.h"
#include "verifica/EsameSezione.h"
#include "verifica/Ordina.h"

namespace parvik {
namespace {

constexpr Sezione Testata = Sezione::Testata;
constexpr Sezione Corpo = Sezione::Corpo;
constexpr Sezione Piede = Sezione::Piede;

using Viste = std::array<std::string_view, MaxSezioni>;

std::size_t FiniRiga(std::string_view testo) {
  return static_cast<std::size_t>(std::ranges::count(testo, '\r'));
}

std::size_t DopoFineRiga(std::string_view testo, std::size_t fineRiga) {
  return fineRiga == std::string_view::npos ? testo.size() : fineRiga + FineRiga.size();
}

/// What no line end follows.
std::string_view UltimaRiga(std::string_view testo) {
  const std::size_t fine = testo.rfind(FineRiga);
  return fine == std::string_view::npos ? testo : testo.substr(DopoFineRiga(testo, fine));
}

/// A line that is more than spaces.
bool HaRigheScritte(std::string_view testo) {
  LettoreRighe righe(testo);
  while (const auto riga = righe.Prossima())
    if (riga->find_first_not_of(' ') != std::string_view::npos) return true;
  return false;
}

/// Lines of a section as saving counts them.
std::size_t Righe(std::string_view testo) {
  return FiniRiga(testo) + (HaTesto(UltimaRiga(testo)) ? 1 : 0);
}

/// Whether the body says something, and is repeated zero times.
bool CorpoMuto(std::string_view corpo, const ImpostazioniCorpo& impostazioni) {
  return RipetizioniCorpo(impostazioni.RigheCorpo, impostazioni.LineeCorpo) == 0 && HaRigheScritte(corpo);
}

std::string DettoCorpoMuto(const ImpostazioniCorpo& impostazioni) {
  return "il corpo non si stampa: in " + std::to_string(impostazioni.RigheCorpo) + " righe una da " +
         std::to_string(impostazioni.LineeCorpo) + " non sta nemmeno una volta";
}

bool FineRigaLf(std::string_view byte) {
  return byte.find('\r') == std::string_view::npos && byte.find('\n') != std::string_view::npos;
}

}  // namespace

/// One check under way.
struct Verificatore::Lavoro {
  const OpzioniVerifica& Opzioni;
  Viste Testi = {};
  ImpostazioniCorpo Impostazioni = {};
  PrimeRighe Prime = {1, 1, 1};
  bool Finestra = false;
  bool Certa = true;            // it is known where the sections begin
  bool PrimaRigaDetta = false;  // the first line of the Testata is told as a marker
  bool AltriMarcatori = false;  // further lines that are markers are told
  bool TuttoLetto = true;
  std::vector<Rilievo> Rilievi = {};

  void TogliNonChiesti() {
    std::erase_if(Rilievi, [this](const Rilievo& r) { return !Opzioni.Regole.Ha(r.Quale); });
  }
};

Verificatore::Verificatore(const Catalogo& catalogo, const TipoDoc& tipo)
    : voci_(catalogo, tipo),
      perSezione_{EsameCodici(voci_, {Testata}), EsameCodici(voci_, {Corpo}), EsameCodici(voci_, {Piede})},
      ovunque_{EsameCodici(voci_, {Testata, false}), EsameCodici(voci_, {Corpo, false}),
               EsameCodici(voci_, {Piede, false})} {}

EsitoVerifica Verificatore::File(std::string_view byte, const OpzioniVerifica& opzioni) {
  return SeBastaMemoria([&]() -> EsitoVerifica {
    const Formato formato = FormatoDi(voci_.Tipo().NumSezioni);
    return File(ByteFile(byte.begin(), byte.end()), PreparaImmagine(formato), opzioni);
  });
}

EsitoVerifica Verificatore::File(ByteFile byte, const PreparaImmagine& prepara,
                                 const OpzioniVerifica& opzioni) {
  const bool tre = voci_.TreSezioni();
  const auto immagine =
      ImmagineInPosto::Apri(std::move(byte), prepara, tre ? ImpostazioniPredefinite() : ImpostazioniCorpo());
  if (!immagine) return immagine.Errore();
  return SeBastaMemoria([&]() -> EsitoVerifica {
    Lavoro lavoro{.Opzioni = opzioni};
    if (FineRigaLf((*immagine)->Byte())) {
      lavoro.Rilievi.push_back(
          {.Quale = Regola::FineRigaLf,
           .Dove = {},
           .Testo = "le righe finiscono con LF e non con CR LF: il file è una riga sola"});
    } else if (!(*immagine)->Byte().empty()) {
      EsaminaFile(**immagine, lavoro);
    }
    lavoro.TogliNonChiesti();
    const auto posto = [](const Rilievo& r) { return std::tuple(r.Riga, r.Colonna, r.Quale); };
    if (!std::ranges::is_sorted(lavoro.Rilievi, {}, posto))
      std::ranges::stable_sort(lavoro.Rilievi, {}, posto);
    return std::move(lavoro.Rilievi);
  });
}

EsitoVerifica Verificatore::Testi(const TestiDaVerificare& testi, const OpzioniVerifica& opzioni) {
  return SeBastaMemoria([&]() -> EsitoVerifica {
    Lavoro lavoro{.Opzioni = opzioni, .Testi = testi.Testi, .Impostazioni = testi.Corpo, .Finestra = true};
    if (!voci_.TreSezioni()) lavoro.Testi[Indice(Corpo)] = lavoro.Testi[Indice(Piede)] = {};
    if (voci_.TreSezioni() && MarcatoreNellaPrimaRiga(lavoro.Testi[Indice(Testata)])) {
      lavoro.PrimaRigaDetta = true;
      lavoro.Certa = false;
      const std::size_t lunga = LettoreRighe(lavoro.Testi[Indice(Testata)]).Prossima()->size();
      lavoro.Rilievi.push_back(
          {.Quale = Regola::MarcatoreInPrimaRiga,
           .Dove = Testata,
           .Lunghezza = lunga,
           .Testo = "il marcatore è nella prima riga, dove nessuno lo cerca: la testata è vuota"});
    }
    EsaminaTesti(lavoro);
    MettiPosti(lavoro.Testi, lavoro.Prime, lavoro.Rilievi);
    lavoro.TogliNonChiesti();
    return std::move(lavoro.Rilievi);
  });
}

void Verificatore::EsaminaFile(const ImmagineInPosto& immagine, Lavoro& lavoro) {
  const std::string_view byte = immagine.Byte();
  lavoro.Testi = immagine.Testi();
  lavoro.Impostazioni = immagine.Esito().Corpo;
  lavoro.TuttoLetto = !immagine.Esito().TestoNonLetto;
  MarcatoreEsaminato marcatore;
  if (voci_.TreSezioni()) {
    marcatore = EsaminaMarcatore(byte, immagine.RigaDelMarcatore(), lavoro.Rilievi);
    lavoro.Certa = marcatore.Certo();
    lavoro.PrimaRigaDetta = marcatore.InPrimaRiga;
    if (marcatore.Preso) {
      lavoro.AltriMarcatori = marcatore.Preso->Solo || !marcatore.Preso->Intero;
      EsaminaRigheCorpo(immagine.Esito(), byte, *marcatore.Preso, lavoro);
    }
  }
  EsaminaTesti(lavoro);
  if (lavoro.Rilievi.empty()) return;  // nobody asks for lines
  if (marcatore.Preso) {
    lavoro.Prime[Indice(Corpo)] = QuanteRighe(byte.substr(0, marcatore.Preso->InizioRiga)) + 2;
    lavoro.Prime[Indice(Piede)] = lavoro.Prime[Indice(Corpo)] + FiniRiga(lavoro.Testi[Indice(Corpo)]);
  }
  MettiPosti(lavoro.Testi, lavoro.Prime, lavoro.Rilievi);
}

/// What the marker promises, and what comes of it.
void Verificatore::EsaminaRigheCorpo(const EsitoImmagine& letta, std::string_view byte,
                                     const RigaDelMarcatore& marcatore, Lavoro& lavoro) {
  const auto aggiungi = [&](Regola regola, std::string testo) {
    lavoro.Rilievi.push_back(DelMarcatore(regola, byte, marcatore, std::move(testo)));
  };
  const std::string_view corpo = lavoro.Testi[Indice(Corpo)];
  if (letta.TestoNonLetto) {
    aggiungi(Regola::RigheCorpo, "un numero del marcatore è oltre 16 bit: ciò che lo segue non si legge");
  } else if (lavoro.Certa && letta.CorpoIncompleto) {
    aggiungi(Regola::RigheCorpo, "il marcatore promette " + std::to_string(letta.Corpo.LineeCorpo) +
                                     " righe di corpo, e ne seguono " + std::to_string(FiniRiga(corpo)));
  } else if (lavoro.Certa && CorpoMuto(corpo, letta.Corpo)) {
    aggiungi(Regola::CorpoNonStampato, DettoCorpoMuto(letta.Corpo));
  }
}

void Verificatore::EsaminaTesti(Lavoro& lavoro) {
  if (lavoro.Finestra) EsaminaFinestra(lavoro);
  EsaminaSezioni(lavoro);
  EsaminaPagina(lavoro);
}

/// What only texts in a window can have.
void Verificatore::EsaminaFinestra(Lavoro& lavoro) const {
  const std::string_view corpo = lavoro.Testi[Indice(Corpo)];
  if (voci_.TreSezioni() && lavoro.Certa && CorpoMuto(corpo, lavoro.Impostazioni)) {
    lavoro.Rilievi.push_back(
        {.Quale = Regola::CorpoNonStampato, .Dove = Corpo, .Testo = DettoCorpoMuto(lavoro.Impostazioni)});
  }
  for (const Sezione sezione : {Testata, Piede}) {  // the Corpo is completed, and loses nothing
    const std::string_view testo = lavoro.Testi[Indice(sezione)];
    const std::string_view resto = UltimaRiga(testo);
    if (!HaTesto(resto)) continue;
    lavoro.Rilievi.push_back({.Quale = Regola::RigaSenzaFine,
                              .Dove = sezione,
                              .Inizio = testo.size() - resto.size(),
                              .Lunghezza = resto.size(),
                              .Testo = voci_.TreSezioni()
                                           ? "l'ultima riga non è finita: salvando la segue una riga vuota"
                                           : "l'ultima riga non è finita: salvando va persa"});
  }
}

void Verificatore::EsaminaSezioni(Lavoro& lavoro) {
  for (const Sezione sezione : voci_.Sezioni()) {
    const std::string_view testo = lavoro.Testi[Indice(sezione)];
    std::size_t da = 0;
    MarcatoriNelTesto marcatori =
        voci_.TreSezioni() ? MarcatoriNelTesto::Codici : MarcatoriNelTesto::UnaSezione;
    if (sezione == Testata) {
      if (lavoro.PrimaRigaDetta) da = DopoFineRiga(testo, testo.find(FineRiga));
    } else if (lavoro.AltriMarcatori) {
      marcatori = MarcatoriNelTesto::Ambigui;
    }
    EsameCodici& codici = (lavoro.Certa ? perSezione_ : ovunque_)[Indice(sezione)];
    EsameSezione(sezione, testo, codici, lavoro.Rilievi).Esegui(da, marcatori, lavoro.Finestra);
  }
}

void Verificatore::EsaminaPagina(Lavoro& lavoro) const {
  const OpzioniVerifica& opzioni = lavoro.Opzioni;
  if (opzioni.Larghezza) EsaminaLunghezze(lavoro.Testi, *opzioni.Larghezza, lavoro.Rilievi);
  if (opzioni.Cornici) EsaminaCornici(lavoro.Testi, lavoro.Rilievi);
  if (!opzioni.Righe || !lavoro.TuttoLetto) return;
  std::size_t righe = Righe(lavoro.Testi[Indice(Testata)]);
  if (voci_.TreSezioni()) {
    righe += static_cast<std::size_t>(std::max<std::int16_t>(0, lavoro.Impostazioni.RigheCorpo));
    righe += Righe(lavoro.Testi[Indice(Piede)]);
  }
  if (righe <= *opzioni.Righe) return;
  lavoro.Rilievi.push_back({.Quale = Regola::PaginaLunga,
                            .Dove = {},
                            .Testo = "la pagina prende " + std::to_string(righe) + " righe, più di " +
                                     std::to_string(*opzioni.Righe)});
}

}  // namespace parvik
