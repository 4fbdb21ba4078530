#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "batch/Catalogo.h"
#include "batch/Comandi.h"
#include "batch/Lettura.h"
#include "batch/Messaggi.h"
#include "output/GeneraStampa.h"
#include "output/StampaSuFile.h"

namespace parvik::batch {
namespace {

class SuUscitaStandard final : public UscitaRighe {
 public:
  bool Righe(std::string_view righe) override { return Stampa(righe); }
};

enum class FlagCaricati { Tutti, InParte, NonCaricabili };

/// Says what is wrong with the sections that could not be loaded whole.
FlagCaricati CaricaFlag(const CatalogoScelto& catalogo, const TipoDoc& tipo, FlagPerStampe& flag) {
  const std::vector<ErroreSezione> errori = flag.Carica(catalogo.Campi, tipo);
  SegnalaErrori(catalogo, errori);
  if (AltraVersione(errori)) return FlagCaricati::NonCaricabili;
  return errori.empty() ? FlagCaricati::Tutti : FlagCaricati::InParte;
}

void ImpostaVeri(const std::vector<int>& veri, const std::filesystem::path& catalogo, FlagPerStampe& flag) {
  for (const int numero : std::set<int>(veri.begin(), veri.end())) {
    if (flag.SettaNumero(numero, true)) continue;
    Segnala(catalogo, "avviso: il tipo di documento non ha il flag " + std::to_string(numero) + ": ignorato");
  }
}

enum class Reso { Si, NonLetto, UscitaInterrotta };

Reso Rendi(const std::filesystem::path& file, const TipoDoc& tipo, const FlagPerStampe& flag,
           UscitaRighe& uscita) {
  const auto modello = ApriModello(file, tipo);
  if (!modello) return Reso::NonLetto;
  const EsitoImmagine& letto = modello->Esito();
  if (letto.TestoNonLetto) Segnala(file, "avviso: lettura interrotta: " + TestoErrore(*letto.Errore));
  const DatiStampa dati{.Testi = modello->Testi(),
                        .NumSezioni = tipo.NumSezioni,
                        .RigheCorpo = letto.Corpo.RigheCorpo,
                        .LineeCorpo = letto.Corpo.LineeCorpo,
                        .Flag = flag};
  return GeneraStampa(dati, TipoStampa::File, uscita) ? Reso::Si : Reso::UscitaInterrotta;
}

/// How many files were rendered; nullopt when the output failed.
std::optional<std::size_t> RendiTutti(const Opzioni& opzioni, const TipoDoc& tipo, const FlagPerStampe& flag,
                                      UscitaRighe& uscita) {
  std::size_t resi = 0;
  for (const std::filesystem::path& file : opzioni.File) {
    const Reso reso = Rendi(file, tipo, flag, uscita);
    if (reso == Reso::UscitaInterrotta) return std::nullopt;
    if (reso == Reso::Si) ++resi;
  }
  return resi;
}

bool StampaSuFile(const Opzioni& opzioni, const TipoDoc& tipo, const FlagPerStampe& flag) {
  auto file = ScritturaSicura::Apri(*opzioni.Uscita);
  if (!file) {
    Segnala(*opzioni.Uscita, TestoErrore(file.Errore()));
    return false;
  }
  RigheSuFile uscita(std::move(*file));
  const std::optional<std::size_t> resi = RendiTutti(opzioni, tipo, flag, uscita);
  // Where nothing at all could be rendered, the old file is not replaced by an empty one.
  if (resi == 0) return false;
  return SegnalaScritto(*opzioni.Uscita, uscita.Conferma()) && resi == opzioni.File.size();
}

bool StampaSuUscitaStandard(const Opzioni& opzioni, const TipoDoc& tipo, const FlagPerStampe& flag) {
  SuUscitaStandard uscita;
  return RendiTutti(opzioni, tipo, flag, uscita) == opzioni.File.size();
}

}  // namespace

Uscita Stampa(const Opzioni& opzioni) {
  const auto catalogo = ApriCatalogo(opzioni);
  const TipoDoc* tipo = catalogo ? TrovaTipo(*catalogo, opzioni.Tipo) : nullptr;
  if (tipo == nullptr) return Uscita::NonFatto;
  FlagPerStampe flag;
  const FlagCaricati caricati = CaricaFlag(*catalogo, *tipo, flag);
  if (caricati == FlagCaricati::NonCaricabili) return Uscita::NonFatto;
  ImpostaVeri(opzioni.Veri, catalogo->File, flag);
  const bool riuscita =
      opzioni.Uscita ? StampaSuFile(opzioni, *tipo, flag) : StampaSuUscitaStandard(opzioni, *tipo, flag);
  return riuscita && caricati == FlagCaricati::Tutti ? Uscita::Fatto : Uscita::NonFatto;
}

}  // namespace parvik::batch
