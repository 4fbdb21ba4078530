#include "editor/SguardoFile.h"

#include "common/Impronta.h"
#include "sistema/LetturaFile.h"
#include "template/ComandiFile.h"

namespace parvik {
namespace {

/// Of a file that was not read.
std::uint64_t ImprontaDi(const IdentitaFile& identita) {
  return Impronta(std::to_string(identita.Dimensione) + " " + std::to_string(identita.Secondi) + " " +
                  std::to_string(identita.Nanosecondi));
}

FileTrovato SenzaFile(NumeroErrore errore) {
  const bool manca = errore == NumeroErrore::FileNonTrovato || errore == NumeroErrore::PercorsoNonTrovato;
  return manca ? FileTrovato::Sparito : FileTrovato::Ignoto;
}

}  // namespace

/// The identity is that of before the reading: a file that is written meanwhile is read once more next time.
SguardoFile LavoroSguardo::Esegui() const {
  const Esito<IdentitaFile> identita = IdentitaDi(File);
  if (!identita) return {.Trovato = SenzaFile(identita.Errore()), .Origine = Origine};
  if (Prima && Prima->Identita == *identita) return *Prima;
  SguardoFile sguardo{.Trovato = FileTrovato::Altro, .Origine = Origine, .Identita = *identita};
  if (identita->Dimensione > MassimoModello) {  // not worth reading: it could not be opened
    sguardo.Contenuto = ImprontaDi(*identita);
    return sguardo;
  }
  const Esito<std::string> byte = LeggiFile(File);
  if (!byte) return {.Trovato = SenzaFile(byte.Errore()), .Origine = Origine};
  if (*byte == *Origine) {
    sguardo.Trovato = FileTrovato::Suo;
  } else {
    sguardo.Contenuto = Impronta(*byte);
  }
  return sguardo;
}

}  // namespace parvik
