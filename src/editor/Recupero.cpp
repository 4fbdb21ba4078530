#include "editor/Recupero.h"

namespace parvik {

CopiaRecupero IstantaneaRecupero::Copia(std::int64_t quando) const {
  CopiaRecupero copia{.Tipo = Tipo, .Quando = quando, .NomeFile = NomeFile, .Corpo = Corpo};
  if (Origine) copia.Origine = ImprontaDi(*Origine);
  for (const Sezione sezione : TutteLeSezioni) copia.Testi[Indice(sezione)] = Testi[Indice(sezione)].Byte();
  return copia;
}

bool Recupero::DaScrivere() const {
  return cambiata_ || !presa_ || *presa_ != ContornoOra();
}

IstantaneaRecupero Recupero::Prendi(int tipo) {
  const StatoModello& stato = documento_.Stato();
  IstantaneaRecupero istantanea{.Tipo = tipo,
                                .NomeFile = stato.NomeFile,
                                .Corpo = stato.Corpo,
                                .Origine = stato.Origine,
                                .Testi = documento_.Testi()};
  presa_ = ContornoOra();
  cambiata_ = false;
  return istantanea;
}

Recupero::Contorno Recupero::ContornoOra() const {
  const StatoModello& stato = documento_.Stato();
  return {.NomeFile = stato.NomeFile,
          .Corpo = stato.Corpo,
          .Origine = stato.Origine ? stato.Origine->Byte : nullptr};
}

}  // namespace parvik
