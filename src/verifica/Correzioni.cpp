#include "verifica/Correzioni.h"

#include <algorithm>
#include <optional>
#include <span>
#include <utility>

#include "common/LettoreRighe.h"
#include "common/SeBastaMemoria.h"
#include "output/TrovaVar.h"
#include "template/ImmagineModello.h"
#include "tokens/Codice.h"
#include "tokens/CodiceCorsa.h"
#include "verifica/ConfrontoResa.h"

namespace parvik {
namespace {

/// A content that may take another one's place.
struct Cambio {
  std::size_t Inizio = 0;  // byte of the file
  std::size_t Lunghezza = 0;
  std::string Nuovo;
  Rilievo Da;
};

/// The places of findings, which come by line.
std::vector<Cambio> Cambi(std::string_view byte, std::vector<Rilievo> rilievi) {
  std::vector<Cambio> cambi;
  LettoreRighe righe(byte);
  std::size_t inizioRiga = 0;
  for (Rilievo& rilievo : rilievi) {
    while (righe.Numero() < rilievo.Riga) {
      inizioRiga = byte.size() - righe.Resto().size();
      righe.Prossima();
    }
    Cambio& cambio = cambi.emplace_back();
    cambio.Inizio = inizioRiga + rilievo.Colonna;  // behind the opening
    cambio.Lunghezza = rilievo.Lunghezza - 2;
    cambio.Nuovo = ContenutoDi(*rilievo.Proposta);
    cambio.Da = std::move(rilievo);
  }
  return cambi;
}

std::string Applica(std::string_view byte, std::span<const Cambio> cambi) {
  std::string nuovi;
  nuovi.reserve(byte.size());
  std::size_t fatto = 0;
  for (const Cambio& cambio : cambi) {
    nuovi.append(byte, fatto, cambio.Inizio - fatto).append(cambio.Nuovo);
    fatto = cambio.Inizio + cambio.Lunghezza;
  }
  return nuovi.append(byte, fatto);
}

bool Uguali(const Campione& uno, const Campione& altro) {
  constexpr std::size_t DaScrivere = 4096;
  if (uno == altro) return true;
  return uno.Lunghezza() == altro.Lunghezza() && uno.Lunghezza() <= DaScrivere &&
         TestoDi(uno) == TestoDi(altro);
}

/// Whether a code prints the same with either content, whatever stands around it, but for the markers that
/// styles leave in a preview.
bool StampaUguale(std::string_view vecchio, std::string_view nuovo) {
  if (Riconosci(vecchio) == TipoCodice::Flag) return FlagCorsa(vecchio) == FlagCorsa(nuovo);
  TrovaVar prima(TipoStampa::File, FlagPerStampe());
  TrovaVar dopo(TipoStampa::File, FlagPerStampe());
  return Uguali(prima(vecchio), dopo(nuovo));
}

/// Whether the other marker may be another one to the style pass.
bool AltroSegno(std::string_view vecchio, std::string_view nuovo) {
  return Riconosci(vecchio) == TipoCodice::Stile && StileCorsa(vecchio) != StileCorsa(nuovo);
}

class Correttore {
 public:
  Correttore(std::string_view byte, Verificatore& verificatore, const Catalogo& catalogo)
      : byte_(byte), verificatore_(verificatore), catalogo_(catalogo) {}

  /// Sorts out what can be made; the rest goes to `mancate`.
  std::vector<Cambio> Scegli(std::vector<Rilievo> rilievi, std::vector<CorrezioneMancata>& mancate) {
    std::vector<Rilievo> pronti;
    for (Rilievo& rilievo : rilievi) {
      if (rilievo.Cosa == Rimedio::Pronto) {
        pronti.push_back(std::move(rilievo));
      } else if (rilievo.Cosa != Rimedio::Nessuno) {
        const bool lettera = rilievo.Cosa == Rimedio::AltraLettera;
        mancate.push_back(
            {std::move(rilievo), lettera ? NonCorretto::CambiaLettera : NonCorretto::CambiaStile});
      }
    }
    std::vector<Cambio> certi;
    std::vector<Cambio> stili;
    std::vector<Cambio> cambi = Cambi(byte_, std::move(pronti));
    for (Cambio& cambio : cambi) {
      const std::string_view vecchio = byte_.substr(cambio.Inizio, cambio.Lunghezza);
      if (!StampaUguale(vecchio, cambio.Nuovo) && Stampata(cambio.Da)) {
        mancate.push_back({std::move(cambio.Da), NonCorretto::CambiaStampa});
      } else {
        const bool segno = AltroSegno(vecchio, cambio.Nuovo);
        (segno ? stili : certi).push_back(std::move(cambio));
      }
    }
    return Confronta(std::move(certi), std::move(stili), mancate);
  }

 private:
  /// A body that is repeated zero times is not even read.
  bool Stampata(const Rilievo& rilievo) const {
    if (rilievo.Dove != Sezione::Corpo) return true;
    if (!ripetizioni_) {
      const Esito<ImmagineLetta> letta = LeggiImmagine(byte_, Formato::TreSezioni, ImpostazioniPredefinite());
      if (!letta) throw std::bad_alloc();
      ripetizioni_ = RipetizioniCorpo(letta->Corpo.RigheCorpo, letta->Corpo.LineeCorpo);
    }
    return *ripetizioni_ > 0;
  }

  std::vector<Cambio> Confronta(std::vector<Cambio> certi, std::vector<Cambio> stili,
                                std::vector<CorrezioneMancata>& mancate) {
    if (certi.empty() && stili.empty()) return {};
    prima_.emplace(byte_, catalogo_, verificatore_.Tipo());
    Aggiungi(std::move(certi), mancate);
    Aggiungi(std::move(stili), mancate);
    return std::move(scelti_);
  }

  /// Takes those that leave everything as it prints, besides those that were taken before.
  void Aggiungi(std::vector<Cambio> cambi, std::vector<CorrezioneMancata>& mancate) {
    if (cambi.empty()) return;
    if (confronti_-- <= 0) return Rinuncia(std::move(cambi), mancate);
    const std::vector<Cambio> tutti = ConScelti(cambi);
    const ResaDaConfrontare dopo(Applica(byte_, tutti), catalogo_, verificatore_.Tipo());
    if (prima_->Uguale(dopo)) {
      scelti_ = tutti;
    } else if (cambi.size() == 1) {
      Rinuncia(std::move(cambi), mancate);
    } else {
      const auto meta = cambi.begin() + static_cast<std::ptrdiff_t>(cambi.size() / 2);
      Aggiungi({cambi.begin(), meta}, mancate);
      Aggiungi({meta, cambi.end()}, mancate);
    }
  }

  static void Rinuncia(std::vector<Cambio> cambi, std::vector<CorrezioneMancata>& mancate) {
    for (Cambio& cambio : cambi) mancate.push_back({std::move(cambio.Da), NonCorretto::CambiaStampa});
  }

  /// In the order of the file.
  std::vector<Cambio> ConScelti(const std::vector<Cambio>& cambi) const {
    std::vector<Cambio> tutti;
    std::ranges::merge(scelti_, cambi, std::back_inserter(tutti), {}, &Cambio::Inizio, &Cambio::Inizio);
    return tutti;
  }

  static constexpr int MassimiConfronti = 64;  // each goes over the whole template

  std::string_view byte_;
  Verificatore& verificatore_;
  const Catalogo& catalogo_;
  mutable std::optional<int> ripetizioni_;
  std::optional<ResaDaConfrontare> prima_;
  std::vector<Cambio> scelti_;
  int confronti_ = MassimiConfronti;
};

}  // namespace

std::string_view Motivo(NonCorretto perche) {
  switch (perche) {
    case NonCorretto::CambiaLettera:
      return "cambierebbe l'allineamento scritto";
    case NonCorretto::CambiaStile:
      return "la parola non è l'inizio di quello stile";
    default:
      return "cambierebbe la stampa";
  }
}

Esito<FileCorretto> Correggi(std::string_view byte, Verificatore& verificatore, const Catalogo& catalogo,
                             const OpzioniVerifica& opzioni) {
  return SeBastaMemoria([&]() -> Esito<FileCorretto> {
    constexpr int MassimiGiri = 8;  // a mend seldom brings another one about
    FileCorretto corretto{.Byte = std::string(byte), .Fatte = 0, .Mancate = {}};
    for (int giro = 0; giro < MassimiGiri; ++giro) {
      EsitoVerifica rilievi = verificatore.File(corretto.Byte, opzioni);
      if (!rilievi) return rilievi.Errore();
      corretto.Mancate.clear();
      const std::vector<Cambio> cambi =
          Correttore(corretto.Byte, verificatore, catalogo).Scegli(std::move(*rilievi), corretto.Mancate);
      if (cambi.empty()) break;
      corretto.Byte = Applica(corretto.Byte, cambi);
      corretto.Fatte += cambi.size();
    }
    std::ranges::stable_sort(corretto.Mancate, {}, [](const CorrezioneMancata& mancata) {
      return std::pair(mancata.Quale.Riga, mancata.Quale.Colonna);
    });
    return corretto;
  });
}

}  // namespace parvik
