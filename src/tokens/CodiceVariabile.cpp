#include "tokens/CodiceVariabile.h"

#include <algorithm>

#include "common/Delimitatori.h"
#include "common/NumeroLeniente.h"
#include "tokens/Codice.h"

namespace parvik {
namespace {

constexpr std::int16_t ASinistra = 1;
constexpr std::int16_t ADestra = 0;
constexpr std::int16_t Acceso = 1;
constexpr std::string_view::size_type NonTrovato = std::string_view::npos;

bool Numerica(const Variabile& variabile) {
  return variabile.Intero4 != 0;
}

std::string GruppoNumerico(const Variabile& variabile) {
  std::string gruppo = ";";
  if (variabile.Intero8 == Acceso) gruppo += '.';
  gruppo += variabile.Intero7 == Acceso ? '0' : '#';
  if (!variabile.Testo2.empty() && variabile.Testo2 != "0") gruppo += "," + variabile.Testo2;
  if (variabile.Intero6 == Acceso) gruppo += '-';
  return gruppo + ";" + variabile.Testo3;
}

/// The content of a code, cut at its separators.
struct Gruppi {
  std::string_view Testa;
  std::string_view Larghezza;
  std::string_view Numerico;
  std::optional<std::string_view> Euro;  // nullopt: the code does not say
};

Gruppi Dividi(std::string_view contenuto) {
  Gruppi gruppi;
  const std::size_t p1 = contenuto.find(';');
  gruppi.Testa = contenuto.substr(0, p1);
  if (p1 == NonTrovato) return gruppi;
  const std::size_t p2 = contenuto.find(';', p1 + 1);
  gruppi.Larghezza = contenuto.substr(p1 + 1, p2 == NonTrovato ? NonTrovato : p2 - p1 - 1);
  if (p2 == NonTrovato) return gruppi;
  const std::size_t p3 = contenuto.find(';', p2 + 1);
  gruppi.Numerico = contenuto.substr(p2 + 1, p3 == NonTrovato ? NonTrovato : p3 - p2 - 1);
  if (p3 != NonTrovato) gruppi.Euro = contenuto.substr(contenuto.size() - 1);
  return gruppi;
}

std::int16_t NumeroDelCodice(std::string_view testo) {
  const Esito<std::int16_t> numero = InteroLeniente(testo);
  return numero ? *numero : std::int16_t{0};
}

/// Widths and line counts: a negative one is none.
std::int16_t QuantitaDelCodice(std::string_view testo) {
  return std::max<std::int16_t>(0, NumeroDelCodice(testo));
}

void LeggiTesta(std::string_view testa, Variabile& formato) {
  if (!testa.empty()) testa.remove_prefix(1);
  const std::size_t virgola = testa.find(',');
  formato.Intero1 = NumeroDelCodice(testa.substr(0, virgola));
  formato.Intero5 = virgola == NonTrovato ? std::int16_t{0} : QuantitaDelCodice(testa.substr(virgola + 1));
}

/// Width and alignment: "12R", "R12", or a bare number, which leaves the alignment to the type.
void LeggiLarghezza(std::string_view gruppo, Variabile& formato) {
  const std::size_t apice = gruppo.find(DelimTesto);
  formato.Testo1 = apice == NonTrovato ? std::string_view() : gruppo.substr(apice + 1, 1);
  gruppo = gruppo.substr(0, apice);
  formato.Intero3 = Numerica(formato) ? ADestra : ASinistra;
  if (gruppo.empty() || EUnNumero(gruppo)) {
    formato.Intero2 = QuantitaDelCodice(gruppo);
    return;
  }
  const bool cifraDavanti = gruppo.front() >= '0' && gruppo.front() <= '9';
  const char lettera = cifraDavanti ? gruppo.back() : gruppo.front();
  formato.Intero3 = lettera == 'L' ? ASinistra : ADestra;
  formato.Intero2 = QuantitaDelCodice(cifraDavanti ? gruppo.substr(0, gruppo.size() - 1) : gruppo.substr(1));
}

void LeggiNumerico(std::string_view gruppo, Variabile& formato) {
  const bool separatore = gruppo.find('.') != NonTrovato;
  const std::size_t posizioneZero = separatore ? 1 : 0;
  const std::size_t virgola = gruppo.find(',');
  formato.Intero8 = separatore ? Acceso : std::int16_t{0};
  formato.Intero7 = gruppo.size() > posizioneZero && gruppo[posizioneZero] == '0' ? Acceso : std::int16_t{0};
  formato.Intero6 = gruppo.find('-') != NonTrovato ? Acceso : std::int16_t{0};
  const std::string_view decimali = virgola == NonTrovato ? "0" : gruppo.substr(virgola + 1, 1);
  formato.Testo2 = decimali.empty() ? "0" : decimali;
  formato.Intero5 = 0;  // a numeric variable has no lines
}

}  // namespace

std::string CostruisciVariabile(const Variabile& variabile) {
  std::string contenuto = "V" + std::to_string(variabile.Intero1);
  if (variabile.Intero5 != 0) contenuto += "," + std::to_string(variabile.Intero5);
  contenuto += ";" + std::to_string(variabile.Intero2);
  contenuto += variabile.Intero3 == ASinistra ? 'L' : 'R';
  if (!variabile.Testo1.empty()) contenuto += DelimTesto + variabile.Testo1 + DelimTesto;
  if (Numerica(variabile)) contenuto += GruppoNumerico(variabile);
  return ConDelimitatori(contenuto);
}

VariabileLetta LeggiVariabile(std::string_view contenuto, std::span<const Variabile> variabili) {
  const Gruppi gruppi = Dividi(contenuto);
  VariabileLetta letta;
  Variabile& formato = letta.Formato;
  LeggiTesta(gruppi.Testa, formato);
  const auto voce = std::ranges::find(variabili, formato.Intero1, &Variabile::Intero1);
  if (voce != variabili.end()) {
    letta.Voce = static_cast<std::size_t>(voce - variabili.begin());
    formato.Intero4 = voce->Intero4;
    formato.Descrizione = voce->Descrizione;
  }
  LeggiLarghezza(gruppi.Larghezza, formato);
  formato.Testo2 = "0";
  formato.Testo3 = "0";
  if (Numerica(formato)) {
    LeggiNumerico(gruppi.Numerico, formato);
    formato.Testo3 = gruppi.Euro ? std::string(*gruppi.Euro) : voce->Testo3;
  }
  return letta;
}

}  // namespace parvik
