#include "app/qtMaschere.h"

#include "output/frmFoglio.h"
#include "output/ricCelle.h"
#include "template/frmComando.h"
#include "tokens/frmCostante.h"
#include "tokens/frmFlag.h"
#include "tokens/frmLingua.h"
#include "tokens/frmPagina.h"
#include "tokens/frmStile.h"
#include "tokens/frmVar.h"

namespace parvik {

void qtMaschere::ApriForm(TipoCodice genere, const std::string& contenuto) {
  editore_.PreparaInserimento();
  const auto maschera = Crea(genere);
  if (!maschera) return;
  if (!contenuto.empty()) maschera->Mostra(contenuto);
  Esegui(*maschera);
}

void qtMaschere::ApriMaschera(const std::string& contenuto) {
  const auto maschera = Crea(Riconosci(contenuto));
  if (!maschera) return;
  maschera->Mostra(contenuto);
  Esegui(*maschera);
}

void qtMaschere::ApriComando() {
  const std::optional<std::int16_t> linee = editore_.ContaRighe(Sezione::Corpo);
  if (!linee) return;
  frmComando comando(editore_.Modello().Stato().Corpo, *linee, &finestra_);
  if (comando.exec() == QDialog::Accepted) editore_.ImpostaCorpo(comando.Scelte());
}

void qtMaschere::ApriFoglio() {
  frmFoglio foglio(editore_.FoglioInUso(), CellaSuCarta(), &finestra_);
  if (foglio.exec() == QDialog::Accepted) editore_.ImpostaFoglio(foglio.Scelto());
}

std::unique_ptr<frmCodice> qtMaschere::Crea(TipoCodice genere) {
  switch (genere) {
    case TipoCodice::Variabile:
      return std::make_unique<frmVar>(
          editore_.VariabiliDaOffrire(), [this](QWidget* padre) { return ChiediFlag(padre); }, &finestra_);
    case TipoCodice::Flag:
      return std::make_unique<frmFlag>(editore_.FlagDaOffrire(), &finestra_);
    case TipoCodice::Stile:
      return std::make_unique<frmStile>(&finestra_);
    case TipoCodice::Lingua:
      return std::make_unique<frmLingua>(&finestra_);
    case TipoCodice::Pagina:
      return std::make_unique<frmPagina>(&finestra_);
    case TipoCodice::Costante:
      return std::make_unique<frmCostante>(&finestra_);
    case TipoCodice::Sconosciuto:
      break;
  }
  return nullptr;
}

void qtMaschere::Esegui(frmCodice& maschera) {
  maschera.exec();
  editore_.InserisciCodici(maschera.Codici());
}

std::string qtMaschere::ChiediFlag(QWidget* padre) {
  frmFlag maschera(editore_.FlagDaOffrire(), padre);
  maschera.exec();
  const std::vector<std::string> codici = maschera.Codici();
  return codici.empty() ? std::string() : codici.front();
}

}  // namespace parvik
