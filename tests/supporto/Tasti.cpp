#include "supporto/Tasti.h"

#include "common/Delimitatori.h"

namespace parvik::prova {

std::vector<std::string> Codici(const TestoSezione& testo) {
  std::vector<std::string> codici;
  for (std::size_t i = 0; i < testo.Dimensione(); ++i) {
    const auto codice = testo[i] == DelimApertura ? CodiceSotto(testo, i) : std::nullopt;
    if (codice && codice->Inizio == i) codici.push_back(testo.Byte(*codice));
  }
  return codici;
}

/// As an editor's caret moves: behind what comes where it stands.
void VedutaFinta::Modificata(const CambiamentoTesto& cambiamento) {
  if (cambiamento.Dove != sezione_) return;
  const Modifica& fatta = cambiamento.Fatta;
  const auto sposta = [&](std::size_t posto) {
    if (posto < fatta.Dove || (cambiamento.DelProgramma && posto == fatta.Dove)) return posto;
    const std::size_t dietro = posto > fatta.Dove + fatta.Tolti ? posto - fatta.Dove - fatta.Tolti : 0;
    return fatta.Dove + fatta.Messi.size() + dietro;
  };
  cursore_ = {.Ancora = sposta(cursore_.Ancora), .Posto = sposta(cursore_.Posto)};
}

void VedutaFinta::Sostituita(Sezione sezione) {
  if (sezione == sezione_) cursore_ = {};
}

BancoSezione::BancoSezione(const TestoSezione& testo, Selezione selezione) {
  documento_.Imposta(Sezione::Testata, testo.Byte());
  Seleziona(selezione);
}

}  // namespace parvik::prova
