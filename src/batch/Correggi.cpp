#include "batch/Correggi.h"

#include <utility>

#include "batch/Diff.h"
#include "batch/Messaggi.h"
#include "common/TestoMostrabile.h"
#include "common/TestoPercorso.h"
#include "sistema/CopiaPrecedente.h"
#include "sistema/LetturaFile.h"
#include "sistema/ScritturaSicura.h"
#include "verifica/Correzioni.h"

namespace parvik::batch {
namespace {

/// The copy is made when the new bytes stand ready: on a full disk no older copy is given up for nothing.
EsitoScrittura Sostituisci(const std::filesystem::path& file, std::string_view vecchi,
                           std::string_view nuovi) {
  auto scrittura = ScritturaSicura::Apri(file);
  if (!scrittura) return scrittura.Errore();
  if (const EsitoPasso scritto = scrittura->Scrivi(nuovi); !scritto) return scritto.Errore();
  if (const EsitoPasso tenuto = ConservaPrecedente(file, vecchi); !tenuto) return tenuto.Errore();
  return scrittura->Conferma();
}

void SegnalaMancate(const std::filesystem::path& file, const FileCorretto& corretto) {
  for (const CorrezioneMancata& mancata : corretto.Mancate) {
    const Rilievo& rilievo = mancata.Quale;
    Segnala(Mostrabile(TestoPercorso(file)) + ":" + std::to_string(rilievo.Riga) + ":" +
            std::to_string(rilievo.Colonna) + ": avviso: non corretto, " +
            std::string(Motivo(mancata.Perche)) + " [" + std::string(VoceDi(rilievo.Quale).Nome) + "]");
  }
}

}  // namespace

std::optional<std::string> CorreggiFile(const std::filesystem::path& file, Verificatore& verificatore,
                                        const Catalogo& catalogo, const ComeVerificare& come) {
  const Esito<std::string> byte = LeggiFile(file);
  if (!byte) {
    Segnala(file, byte.Errore());
    return std::nullopt;
  }
  Esito<FileCorretto> corretto = Correggi(*byte, verificatore, catalogo, come.Opzioni);
  if (!corretto) {
    Segnala(file, corretto.Errore());
    return std::nullopt;
  }
  SegnalaMancate(file, *corretto);
  const bool cambia = corretto->Byte != *byte;
  if (cambia && come.Prova) {
    if (!Stampa(DiffUnificato(file, *byte, corretto->Byte))) return std::nullopt;
  } else if (cambia && !SegnalaScritto(file, Sostituisci(file, *byte, corretto->Byte))) {
    return std::nullopt;
  }
  return std::move(corretto->Byte);
}

}  // namespace parvik::batch
