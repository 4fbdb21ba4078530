// The editor's commands about what can be inserted.
#include "common/Precondizione.h"
#include "editor/Editore.h"

namespace parvik {

const std::vector<VoceInseribile>& Editore::VociDaInserire() {
  PARVIK_ESIGE(TipoScelto(), "a document type is chosen");
  return voci_.Di(Tipo(), inserimento_.Attiva());
}

std::optional<LavoroUsi> Editore::ContaUsi() {
  PARVIK_ESIGE(UsiDaContare(), "a document type is chosen, and something has changed");
  return voci_.Conta(Tipo());
}

}  // namespace parvik
