#include "tokens/CodiceVariabile.h"

#include <algorithm>

#include "common/Delimitatori.h"
#include "tokens/Codice.h"
#include "tokens/Gruppi.h"

namespace parvik {
namespace {

constexpr std::int16_t ASinistra = 1;
constexpr std::int16_t ADestra = 0;
constexpr std::int16_t Acceso = 1;

bool Numerica(const Variabile& variabile) {
  return variabile.Intero4 != 0;
}

std::string ScriviNumerico(const Variabile& variabile) {
  std::string gruppo = ";";
  if (variabile.Intero8 == Acceso) gruppo += '.';
  gruppo += variabile.Intero7 == Acceso ? '0' : '#';
  if (!variabile.Testo2.empty() && variabile.Testo2 != "0") gruppo += "," + variabile.Testo2;
  if (variabile.Intero6 == Acceso) gruppo += '-';
  return gruppo + ";" + variabile.Testo3;
}

void LeggiMisura(const GruppiVariabile& gruppi, Variabile& formato) {
  formato.Intero2 = QuantitaDi(gruppi.Larghezza);
  formato.Intero3 = Numerica(formato) ? ADestra : ASinistra;
  if (gruppi.Allineamento) formato.Intero3 = gruppi.Allineamento->Testo == "L" ? ASinistra : ADestra;
  formato.Testo1 = gruppi.Riempimento ? gruppi.Riempimento->Testo : std::string_view();
}

std::int16_t Interruttore(bool acceso) {
  return acceso ? Acceso : std::int16_t{0};
}

void LeggiNumerico(const GruppoNumerico& numerico, Variabile& formato) {
  formato.Intero8 = Interruttore(numerico.Migliaia);
  formato.Intero7 = Interruttore(numerico.ZeroVisibile);
  formato.Intero6 = Interruttore(numerico.SegnoADestra);
  if (numerico.Decimali) formato.Testo2 = numerico.Decimali->Testo;
  formato.Intero5 = 0;  // a numeric variable has no lines
}

}  // namespace

std::string CostruisciVariabile(const Variabile& variabile) {
  std::string contenuto = "V" + std::to_string(variabile.Intero1);
  if (variabile.Intero5 != 0) contenuto += "," + std::to_string(variabile.Intero5);
  contenuto += ";" + std::to_string(variabile.Intero2);
  contenuto += variabile.Intero3 == ASinistra ? 'L' : 'R';
  if (!variabile.Testo1.empty()) contenuto += DelimTesto + variabile.Testo1 + DelimTesto;
  if (Numerica(variabile)) contenuto += ScriviNumerico(variabile);
  return ConDelimitatori(contenuto);
}

VariabileLetta LeggiVariabile(std::string_view contenuto, std::span<const Variabile> variabili) {
  const GruppiVariabile gruppi = GruppiDiVariabile(contenuto);
  VariabileLetta letta;
  Variabile& formato = letta.Formato;
  formato.Intero1 = NumeroDi(gruppi.Numero);
  formato.Intero5 = gruppi.Righe ? QuantitaDi(*gruppi.Righe) : std::int16_t{0};
  const auto voce = std::ranges::find(variabili, formato.Intero1, &Variabile::Intero1);
  if (voce != variabili.end()) {
    letta.Voce = static_cast<std::size_t>(voce - variabili.begin());
    formato.Intero4 = voce->Intero4;
    formato.Descrizione = voce->Descrizione;
  }
  LeggiMisura(gruppi, formato);
  formato.Testo2 = "0";
  formato.Testo3 = "0";
  if (Numerica(formato)) {
    LeggiNumerico(gruppi.Numerico.value_or(GruppoNumerico()), formato);
    formato.Testo3 = gruppi.Euro ? std::string(gruppi.Euro->Testo) : voce->Testo3;
  }
  return letta;
}

}  // namespace parvik
