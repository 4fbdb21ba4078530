// The editor's command about a template that was not saved when the program ended.
#include "catalogue/TrovaTipo.h"
#include "common/Precondizione.h"
#include "editor/CopiaRecupero.h"
#include "editor/Editore.h"

namespace parvik {

bool Editore::Ripristina(const CopiaRecupero& copia) {
  const std::optional<std::size_t> slot = TipoPerNumero(catalogo_, copia.Tipo);
  PARVIK_ESIGE(slot.has_value(), "the type is one of the catalogue's");
  if (TipoScelto() && !comandi_.PuoProseguire(Tipo())) return false;
  if (TipoScelto()) TornaSenzaTipo();
  ScegliTipo(*slot);
  for (const Sezione sezione : TutteLeSezioni) documento_.Imposta(sezione, copia.Testi[Indice(sezione)]);
  documento_.DimenticaPassi();
  StatoModello& stato = documento_.Stato();
  stato.NomeFile = copia.NomeFile;
  stato.Modificato = true;
  stato.Corpo = copia.Corpo;
  stato.Origine = copia.Origine ? AncoraUguale(*copia.Origine) : std::nullopt;
  if (!copia.NomeFile.empty()) titolo_ = TitoloCon(copia.NomeFile);
  vista_.Aggiorna();
  vista_.CambiataMisura();
  return true;
}

}  // namespace parvik
