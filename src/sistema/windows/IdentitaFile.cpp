#include "sistema/IdentitaFile.h"

#include "sistema/windows/OperazioniFile.h"

namespace parvik {

/// The volume's number and the file's own in it.
Esito<IdentitaFile> IdentitaDi(const std::filesystem::path& file) {
  const EsitoSistema<Maniglia> aperto = ApriFile(file, FILE_READ_ATTRIBUTES, Tutti, OPEN_EXISTING);
  if (!aperto) return DaErroreWin(aperto.Errore());
  if (!SuDisco(*aperto)) return NumeroErrore::AccessoPercorsoFile;
  const EsitoSistema<StatoFile> stato = Stato(*aperto);
  if (!stato) return DaErroreWin(stato.Errore());
  if (stato->Cartella()) return NumeroErrore::AccessoPercorsoFile;
  return stato->Identita;
}

}  // namespace parvik
