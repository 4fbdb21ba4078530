// The editor's commands about what is wrong with the template.
#include "common/ParoleComuni.h"
#include "common/Precondizione.h"
#include "editor/CorreggiTesti.h"
#include "editor/Editore.h"

namespace parvik {

std::optional<LavoroVerifica> Editore::RinnovaVerifica() {
  PARVIK_ESIGE(VerificaDaRifare(), "what is wrong is shown, and out of date");
  std::optional<LavoroVerifica> lavoro = problemi_.Rinnova(Tipo());
  if (!lavoro) vista_.CambiatiProblemi();
  return lavoro;
}

void Editore::Consegna(LavoroVerifica::Fatto fatto) {
  problemi_.Consegna(std::move(fatto));
  vista_.CambiatiProblemi();
}

void Editore::DimenticaProblemi() {
  problemi_.Dimentica();
  vista_.CambiatiProblemi();
}

std::string Editore::DettiProblemi() const {
  if (!problemi_.Verificato()) return {};
  return ContoProblemi(problemi_.Quanti(Livello::Errore), problemi_.Quanti(Livello::Avviso));
}

void Editore::RaggiungiProblema(std::size_t quale) {
  const std::optional<Selezione> posto = problemi_.Posto(quale);
  if (!posto) return;
  const Sezione dove = *problemi_.Trovati()[quale].Dove;
  if (!InUso(dove)) return;
  vista_.Raggiungi({.Dove = dove, .Dentro = {.Ancora = posto->Inizio, .Posto = posto->Inizio}});
}

void Editore::CorreggiProblemi(std::span<const std::size_t> quali) {
  PARVIK_ESIGE(ProblemiVisibili(), "what is wrong is shown");
  std::vector<ModificaSezione> modifiche;
  for (const std::size_t quale : quali) {
    const Rilievo& rilievo = problemi_.Trovati()[quale];
    const std::optional<Selezione> posto = problemi_.Posto(quale);
    if (rilievo.Cosa != Rimedio::Pronto || !posto) continue;
    modifiche.push_back(
        {.Dove = *rilievo.Dove,
         .Quale = {.Dove = posto->Inizio, .Tolti = posto->Lunghezza, .Messi = *rilievo.Proposta}});
  }
  if (modifiche.empty()) return;
  const Esito<std::size_t> mancate = CorreggiTesti(documento_, std::move(modifiche), catalogo_, Tipo());
  if (!mancate) {
    interlocutore_.Chiedi({.Testo = TestoErrore(mancate.Errore())});
  } else if (*mancate > 0) {
    interlocutore_.Chiedi({.Testo = Quanti(*mancate, "correzione non fatta", "correzioni non fatte") +
                                    ": cambierebbe ci\u00F2 che si stampa."});
  }
}

}  // namespace parvik
