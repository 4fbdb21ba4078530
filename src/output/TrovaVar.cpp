#include "output/TrovaVar.h"

#include "tokens/Codice.h"

namespace parvik {
namespace {

Campione Ripeti(char carattere, std::size_t volte) {
  Campione campione;
  campione.RiempiPrima = volte;
  campione.Riempimento = carattere;
  return campione;
}

Campione Letterale(std::string_view testo) {
  Campione campione;
  campione.Testo = testo;
  return campione;
}

constexpr std::string_view ZeroIntero = "0";
constexpr std::string_view ZeroDecimale = "0,";

/// What a zero takes without any fill.
std::size_t Occupati(const CampoCorsa& campo) {
  return campo.Decimali ? ZeroDecimale.size() + *campo.Decimali : ZeroIntero.size();
}

/// A zero with its decimals, filled up to the width; a width too short for it is a run of "#".
Campione CampioneNumerico(const CampoCorsa& campo) {
  Campione campione;
  campione.Testo = campo.Decimali ? ZeroDecimale : ZeroIntero;
  campione.Zeri = campo.Decimali.value_or(0);
  const std::size_t occupati = campione.Testo.size() + campione.Zeri;
  if (campo.Larghezza < occupati) return Ripeti('#', campo.Larghezza);
  campione.Riempimento = campo.Riempimento;
  (campo.ADestra ? campione.RiempiPrima : campione.RiempiDopo) = campo.Larghezza - occupati;
  return campione;
}

Campione CampioneDi(const CampoCorsa& campo) {
  return campo.Zero ? CampioneNumerico(campo) : Ripeti(campo.Riempimento, campo.Larghezza);
}

}  // namespace

std::string TestoDi(const Campione& campione) {
  std::string testo(campione.RiempiPrima, campione.Riempimento);
  testo.append(campione.Testo).append(campione.Zeri, '0');
  return testo.append(campione.RiempiDopo, campione.Riempimento);
}

bool NonCiSta(const CampoCorsa& campo) {
  return campo.Zero && campo.Larghezza < Occupati(campo);
}

StatiFlag::StatiFlag(const FlagPerStampe& flag) {
  for (std::size_t i = flag.Righe().size(); i > 0; --i) {  // the first row of a number comes last, and stays
    const auto numero = static_cast<int>(flag.Numero(i - 1));
    stati_[static_cast<std::size_t>(numero - Minimo)] = flag.Vero(i - 1);
  }
}

StatiFlag StatiFlag::TuttiVeri(const FlagPerStampe& flag) {
  StatiFlag veri(flag);
  for (std::optional<bool>& stato : veri.stati_)
    if (stato) stato = true;
  return veri;
}

std::optional<bool> StatiFlag::operator()(double numero) const {
  if (numero < Minimo || numero > Massimo) return std::nullopt;
  const auto intero = static_cast<int>(numero);
  if (intero != numero) return std::nullopt;
  return stati_[static_cast<std::size_t>(intero - Minimo)];
}

TrovaVar::TrovaVar(TipoStampa destinazione, const StatiFlag& stati, const Memoria& memoria)
    : destinazione_(destinazione), stati_(stati), memoria_(memoria) {}

const Campione& TrovaVar::operator()(std::string_view codice) {
  const TipoCodice tipo = Riconosci(codice);
  if (!memoria_.MostraProssimo && tipo != TipoCodice::Flag) {
    memoria_ = {};
    return memoria_.Ultimo;
  }
  switch (tipo) {
    case TipoCodice::Flag:
      ImpostaFlag(codice);
      memoria_.Ultimo = {};
      break;
    case TipoCodice::Costante:
      memoria_.Ultimo = Letterale(CostanteCorsa(codice));
      break;
    case TipoCodice::Variabile:
      memoria_.Ultimo = CampioneDi(VariabileCorsa(codice));
      break;
    case TipoCodice::Stile:
      memoria_.Ultimo = {};
      if (destinazione_ == TipoStampa::Anteprima) memoria_.Ultimo.Testo = StileCorsa(codice);
      break;
    case TipoCodice::Lingua:
      memoria_.Ultimo = CampioneDi(LinguaCorsa(codice));
      break;
    case TipoCodice::Pagina:
      memoria_.Ultimo = Letterale(PaginaCorsa(codice));
      break;
    case TipoCodice::Sconosciuto:  // the text of the code before stays
      break;
  }
  return memoria_.Ultimo;
}

void TrovaVar::ImpostaFlag(std::string_view codice) {
  memoria_.MostraProssimo = stati_(FlagCorsa(codice)).value_or(memoria_.MostraProssimo);
}

}  // namespace parvik
