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

class RigheSuUscitaStandard final : public UscitaRighe {
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

/// Whether the file could be read, and was rendered.
Esito<bool, Interruzione> Rendi(const std::filesystem::path& file, const TipoDoc& tipo,
                                const FlagPerStampe& flag, UscitaRighe& uscita) {
  const auto modello = ApriModello(file, tipo);
  if (!modello) return false;
  const EsitoImmagine& letto = modello->Esito();
  if (letto.TestoNonLetto) Segnala(file, "avviso: lettura interrotta: " + TestoErrore(*letto.Errore));
  const DatiStampa dati{.Testi = modello->Testi(),
                        .NumSezioni = tipo.NumSezioni,
                        .RigheCorpo = letto.Corpo.RigheCorpo,
                        .LineeCorpo = letto.Corpo.LineeCorpo,
                        .Flag = flag};
  const auto corsa = GeneraStampa(dati, TipoStampa::File, uscita);
  if (corsa) return true;
  if (corsa.Errore() == Interruzione::MemoriaEsaurita) Segnala(file, NumeroErrore::MemoriaEsaurita);
  return corsa.Errore();
}

/// How many files were rendered. What ends one run ends all: half of a file may be in the output by then.
Esito<std::size_t, Interruzione> RendiTutti(const Opzioni& opzioni, const TipoDoc& tipo,
                                            const FlagPerStampe& flag, UscitaRighe& uscita) {
  std::size_t resi = 0;
  for (const std::filesystem::path& file : opzioni.File) {
    const Esito<bool, Interruzione> reso = Rendi(file, tipo, flag, uscita);
    if (!reso) return reso.Errore();
    if (*reso) ++resi;
  }
  return resi;
}

bool SuFile(const Opzioni& opzioni, const TipoDoc& tipo, const FlagPerStampe& flag) {
  auto file = ScritturaSicura::Apri(*opzioni.Uscita);
  if (!file) {
    Segnala(*opzioni.Uscita, TestoErrore(file.Errore()));
    return false;
  }
  RigheSuFile uscita(std::move(*file));
  const auto resi = RendiTutti(opzioni, tipo, flag, uscita);
  // Where nothing at all could be rendered, the old file is not replaced by an empty one, nor by half of what
  // there is to render.
  const bool daTenere = resi ? *resi == 0 : resi.Errore() == Interruzione::MemoriaEsaurita;
  if (daTenere) return false;
  return SegnalaScritto(*opzioni.Uscita, uscita.Conferma()) && resi && *resi == opzioni.File.size();
}

bool SuUscitaStandard(const Opzioni& opzioni, const TipoDoc& tipo, const FlagPerStampe& flag) {
  RigheSuUscitaStandard uscita;
  const auto resi = RendiTutti(opzioni, tipo, flag, uscita);
  return resi && *resi == opzioni.File.size();
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
      opzioni.Uscita ? SuFile(opzioni, *tipo, flag) : SuUscitaStandard(opzioni, *tipo, flag);
  return riuscita && caricati == FlagCaricati::Tutti ? Uscita::Fatto : Uscita::NonFatto;
}

}  // namespace parvik::batch
