#include "output/GeneraStampa.h"

#include <algorithm>
#include <optional>
#include <string>

#include "common/Delimitatori.h"
#include "common/SeBastaMemoria.h"
#include "common/TrovaByte.h"
#include "output/BloccoStampa.h"
#include "output/DiarioTraccia.h"
#include "tokens/Pezzi.h"

namespace parvik {
namespace {

/// Finds one byte again and again from growing positions; looks at every byte of the text once.
class Cercatore {
 public:
  Cercatore(std::string_view testo, char cercato)
      : testo_(testo), cercato_(cercato), trovato_(TrovaByte(testo, cercato, 0)) {}
  /// The first place at or after `da`; the text's size when there is none. `da` never goes back.
  std::size_t Da(std::size_t da) {
    if (trovato_ < da) trovato_ = TrovaByte(testo_, cercato_, da);
    return trovato_;
  }

 private:
  std::string_view testo_;
  char cercato_;
  std::size_t trovato_;
};

/// Where the last line that a section emits ends: its CR. npos when it emits none.
std::size_t UltimaFineRiga(std::string_view testo) {
  std::size_t ultima = std::string_view::npos;
  for (LettoreCorsa lettore(testo); lettore.Prossimo();) {
    const std::size_t inizio = lettore.InizioTesto();
    const std::size_t fine = testo.substr(inizio, lettore.FineTesto() - inizio).rfind('\r');
    if (fine != std::string_view::npos) ultima = inizio + fine;
  }
  return ultima;
}

/// `Diario` is told what is read, and what becomes of it.
template <class Diario>
class Corsa {
 public:
  Corsa(TipoStampa destinazione, const FlagPerStampe& flag, UscitaRighe& uscita, Diario diario)
      : trovaVar_(destinazione, flag), uscita_(uscita), diario_(diario) {}

  /// Renders a section as often as it is repeated. False when the output ended the run.
  bool Rendi(Sezione sezione, std::string_view testo, int ripetizioni) {
    if (testo.empty()) return true;
    testo_ = testo;
    ultimaFine_.reset();
    diario_.Inizia(sezione);
    for (int volta = 1; volta <= ripetizioni; ++volta) {
      const Memoria prima = trovaVar_.Ricordo();
      diario_.IniziaGiro(prima);
      const std::size_t usciti = usciti_;
      const std::size_t inizio = blocco_.Dimensione();
      if (!UnaVolta()) return false;
      diario_.FinisciGiro();
      // Begun with the same memory as it ends with, the section comes out alike from now on.
      const std::size_t scritti = blocco_.Dimensione() - inizio;
      const bool intera = usciti == usciti_ && scritti > 0 && scritti <= PezzoMassimo;
      if (intera && trovaVar_.Ricordo() == prima) {
        diario_.Replica(static_cast<std::size_t>(ripetizioni - volta));
        return Replica(inizio, ripetizioni - volta);
      }
    }
    return true;
  }

  bool Scarica() {
    usciti_ += blocco_.Dimensione();
    const bool continua = blocco_.Dimensione() == 0 || uscita_.Righe(blocco_.Testo());
    blocco_.Tronca(0);
    fineUltimaRiga_ = 0;
    RicominciaPasso();
    return continua;
  }

 private:
  static constexpr std::size_t MezzoPasso = PassoStampa / 2;
  static constexpr std::size_t PezzoMassimo = MezzoPasso / 2;
  // Less than a step of whole lines, less than two of the line under way; and one that is never needed.
  static constexpr std::size_t Spazio = 4 * PassoStampa;

  bool UnaVolta() {
    Cercatore fineRiga(testo_, '\r');
    for (LettoreCorsa lettore(testo_); lettore.Prossimo();) {
      if (!ScriviRighe(lettore.InizioTesto(), lettore.FineTesto(), fineRiga)) return false;
      Letti(lettore.DopoIlTesto());
      if (!lettore.ConCodice()) break;
      const Campione& campione = trovaVar_(lettore.Contenuto());
      diario_.Codice(lettore.DopoIlCodice(), campione.Lunghezza(), trovaVar_.Ricordo());
      if (!Scrivi(campione)) return false;
    }
    blocco_.Tronca(fineUltimaRiga_);  // a line without its end is not emitted
    return Prosegui();
  }

  /// The text of [da, a), in which no code begins. What follows the last line end waits for the code behind
  /// it to ask whether to go on.
  bool ScriviRighe(std::size_t da, std::size_t a, Cercatore& fineRiga) {
    for (std::size_t fine = fineRiga.Da(da); fine < a; fine = fineRiga.Da(da)) {
      if (!ScriviTesto(da, fine)) return false;
      da = fine + (testo_.substr(fine).starts_with(FineRiga) ? FineRiga.size() : 1);
      diario_.FineDiRiga(da, trovaVar_.Ricordo());
      blocco_.Aggiungi(FineRiga);
      if (!RigaChiusa()) return false;
    }
    return ScriviTesto(da, a);
  }

  bool RigaChiusa() {
    fineUltimaRiga_ = blocco_.Dimensione();
    return fineUltimaRiga_ < PassoStampa ? Prosegui() : Scarica();
  }

  /// What was written from `da` on, whole lines, over and over.
  bool Replica(std::size_t da, int volte) {
    const std::string righe(blocco_.Testo().substr(da));
    for (; volte > 0; --volte) {
      blocco_.Aggiungi(righe);
      if (!RigaChiusa()) return false;
    }
    return true;
  }

  bool Scrivi(const Campione& campione) {
    if (campione.Lunghezza() > PezzoMassimo) [[unlikely]] {
      return Ripeti(campione.RiempiPrima, campione.Riempimento) && Spezza(campione.Testo) &&
             Ripeti(campione.Zeri, '0') && Ripeti(campione.RiempiDopo, campione.Riempimento);
    }
    blocco_.Aggiungi(campione);
    return Prosegui();
  }
  bool ScriviTesto(std::size_t da, std::size_t a) {
    diario_.Testo(a - da);
    posto_ = da;
    if (a - da > PezzoMassimo) [[unlikely]] {
      return Spezza(testo_.substr(da, a - da));
    }
    blocco_.Aggiungi(testo_, da, a);
    return true;
  }

  // What is too long to be added at once.
  bool Ripeti(std::size_t volte, char carattere) {
    for (; volte > PezzoMassimo; volte -= PezzoMassimo) {
      blocco_.Aggiungi(PezzoMassimo, carattere);
      if (!Prosegui()) return false;
    }
    blocco_.Aggiungi(volte, carattere);
    return Prosegui();
  }
  bool Spezza(std::string_view testo) {
    for (; testo.size() > PezzoMassimo; testo.remove_prefix(PezzoMassimo)) {
      blocco_.Aggiungi(testo, 0, PezzoMassimo);
      if (!Prosegui()) return false;
    }
    blocco_.Aggiungi(testo);
    return Prosegui();
  }

  /// Turns to the output when half a step is done. What is added in between, a text and a code at most, is no
  /// longer than the other half.
  bool Prosegui() {
    if (static_cast<std::ptrdiff_t>(blocco_.Dimensione()) < prossimaDomanda_) [[likely]] {
      return true;
    }
    return Chiedi();
  }
  bool Chiedi() {
    if (blocco_.Dimensione() - fineUltimaRiga_ >= PassoStampa) {
      if (RigaFinisce()) return Scarica();
      blocco_.Tronca(fineUltimaRiga_);
    }
    RicominciaPasso();
    return uscita_.Continua();
  }
  /// Codes that are read bring the next question nearer, as text does that is written.
  void Letti(std::size_t byte) { prossimaDomanda_ -= static_cast<std::ptrdiff_t>(byte); }
  void RicominciaPasso() {
    prossimaDomanda_ = static_cast<std::ptrdiff_t>(blocco_.Dimensione() + MezzoPasso);
  }

  /// Whether the line under way will be emitted. Only a line that is too long to be kept needs to know.
  bool RigaFinisce() {
    if (!ultimaFine_) ultimaFine_ = UltimaFineRiga(testo_);
    return *ultimaFine_ != std::string_view::npos && posto_ <= *ultimaFine_;
  }

  TrovaVar trovaVar_;
  UscitaRighe& uscita_;
  Diario diario_;
  std::string_view testo_;                       // the section
  std::size_t posto_ = 0;                        // how far it was rendered
  std::optional<std::size_t> ultimaFine_;        // UltimaFineRiga() of the section, once it was asked for
  BloccoStampa blocco_{Spazio};                  // whole lines, and the line under way or what is left of it
  std::size_t fineUltimaRiga_ = 0;               // where the line under way begins
  std::ptrdiff_t prossimaDomanda_ = MezzoPasso;  // how long the block is then
  std::size_t usciti_ = 0;                       // bytes that were handed out
};

/// How often a section is rendered.
int Ripetizioni(Sezione sezione, const DatiStampa& dati) {
  return sezione == Sezione::Corpo ? RipetizioniCorpo(dati.RigheCorpo, dati.LineeCorpo) : 1;
}

/// False when the output ended it.
template <class Diario>
bool Corri(const DatiStampa& dati, TipoStampa destinazione, UscitaRighe& uscita, Diario diario) {
  Corsa corsa(destinazione, dati.Flag, uscita, diario);
  for (const Sezione sezione : TutteLeSezioni) {
    if (static_cast<int>(sezione) >= dati.NumSezioni) break;
    const std::string_view testo = dati.Testi[Indice(sezione)];
    if (testo == FineRiga) continue;
    if (!corsa.Rendi(sezione, testo, Ripetizioni(sezione, dati))) return false;
  }
  return corsa.Scarica();
}

template <class Diario>
Esito<void, Interruzione> Genera(const DatiStampa& dati, TipoStampa destinazione, UscitaRighe& uscita,
                                 Diario diario) {
  const auto corri = [&]() -> Esito<void, Interruzione> {
    if (!Corri(dati, destinazione, uscita, diario)) return Interruzione::Chiesta;
    return {};
  };
  return SeBastaMemoria(corri, Interruzione::MemoriaEsaurita);
}

}  // namespace

int RipetizioniCorpo(std::int16_t righeCorpo, std::int16_t lineeCorpo) {
  if (lineeCorpo <= 0) return 0;
  return std::max(righeCorpo / lineeCorpo, 0);
}

Esito<void, Interruzione> GeneraStampa(const DatiStampa& dati, TipoStampa destinazione, UscitaRighe& uscita) {
  return Genera(dati, destinazione, uscita, SenzaDiario());
}

Esito<void, Interruzione> GeneraStampa(const DatiStampa& dati, TipoStampa destinazione, UscitaRighe& uscita,
                                       TracciaStampa& traccia) {
  return Genera(dati, destinazione, uscita, DiarioTraccia(traccia, dati, destinazione));
}

}  // namespace parvik
