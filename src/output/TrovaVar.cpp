#include "output/TrovaVar.h"

#include <algorithm>

#include "common/Delimitatori.h"
#include "common/NumeroLeniente.h"

namespace parvik {
namespace {

constexpr std::size_t NonTrovato = std::string_view::npos;
constexpr std::size_t LunghezzaLinguaPredefinita = 10;
constexpr std::size_t LunghezzaMarcatoreStile = 4;
constexpr char SegnoCampione = '$';

/// The text from byte `da` on; nothing when it is shorter.
std::string_view Da(std::string_view testo, std::size_t da) {
  return testo.substr(std::min(da, testo.size()));
}

std::string_view SenzaUltimi(std::string_view testo, std::size_t quanti) {
  return testo.substr(0, testo.size() - std::min(quanti, testo.size()));
}

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

/// The character after the first quote; `predefinito` when there is none.
char CarattereDopoApice(std::string_view testo, char predefinito) {
  const std::size_t apice = testo.find(DelimTesto);
  return apice == NonTrovato || apice + 1 == testo.size() ? predefinito : testo[apice + 1];
}

bool Allineata(std::string_view dopoP1) {
  return dopoP1.find('R') != NonTrovato || dopoP1.find('L') == NonTrovato;
}

/// A zero with its decimals, filled up to the length; a length too short for it is a run of "#".
Campione CampioneNumerico(std::string_view formato, std::size_t lunghezza, char riempimento, bool aDestra) {
  const std::size_t virgola = formato.find(',');
  Campione campione;
  campione.Testo = virgola == NonTrovato ? "0" : "0,";
  if (virgola != NonTrovato) campione.Zeri = LunghezzaLeniente(formato.substr(virgola + 1));
  const std::size_t occupati = campione.Testo.size() + campione.Zeri;
  if (lunghezza < occupati) return Ripeti('#', lunghezza);
  campione.Riempimento = riempimento;
  (aDestra ? campione.RiempiPrima : campione.RiempiDopo) = lunghezza - occupati;
  return campione;
}

/// A variable with format options; `p1` and `p2` are its first two separators.
Campione VariabileConFormato(std::string_view codice, std::size_t p1, std::size_t p2) {
  const std::size_t lunghezza = LunghezzaLeniente(codice.substr(p1 + 1, p2 - p1 - 1));
  if (codice.find(';', p2 + 1) != NonTrovato) codice = SenzaUltimi(codice, 2);  // the euro group
  const std::string_view dopoP1 = Da(codice, p1 + 1);
  const std::string_view formato = Da(codice, p2 + 1);
  const char riempimento = CarattereDopoApice(dopoP1, ' ');
  if (formato.find('0') == NonTrovato) return Ripeti(riempimento, lunghezza);
  return CampioneNumerico(formato, lunghezza, riempimento, Allineata(dopoP1));
}

Campione VariabileSenzaFormato(std::string_view codice, std::size_t p1) {
  const std::size_t inizio = p1 == NonTrovato ? 0 : p1 + 1;
  const std::string_view dopoP1 = Da(codice, inizio);
  const char riempimento = CarattereDopoApice(dopoP1, SegnoCampione);
  if (dopoP1.find(DelimTesto) != NonTrovato) codice = SenzaUltimi(codice, 3);  // quote, fill, quote
  return Ripeti(riempimento, LunghezzaLeniente(Da(codice, inizio)));
}

/// The kind of a code for the output: its first letter, but a variable of number 0 is a constant.
char GenereDi(std::string_view codice) {
  if (codice.starts_with("V0;")) return 'C';
  return codice.empty() ? '\0' : codice.front();
}

}  // namespace

void Campione::AggiungiA(std::string& riga) const {
  riga.append(RiempiPrima, Riempimento);
  riga.append(Testo);
  riga.append(Zeri, '0');
  riga.append(RiempiDopo, Riempimento);
}

Campione ScriviLingua(std::string_view codice) {
  const std::size_t separatore = codice.find(';');
  if (separatore == NonTrovato) return Ripeti(SegnoCampione, LunghezzaLinguaPredefinita);
  return Ripeti(SegnoCampione, LunghezzaLeniente(codice.substr(separatore + 1)));
}

Campione ScriviVariabile(std::string_view codice) {
  const std::size_t p1 = codice.find(';');
  const std::size_t p2 = p1 == NonTrovato ? NonTrovato : codice.find(';', p1 + 1);
  if (p2 == NonTrovato || codice.back() == '#') return VariabileSenzaFormato(codice, p1);
  return VariabileConFormato(codice, p1, p2);
}

TrovaVar::TrovaVar(TipoStampa destinazione, const FlagPerStampe& flag) : destinazione_(destinazione) {
  for (std::size_t i = 0; i < flag.Righe().size(); ++i) {
    stati_.emplace(flag.Numero(i), flag.Vero(i));  // a number that is there already keeps its first row
  }
}

const Campione& TrovaVar::operator()(std::string_view codice) {
  const char genere = GenereDi(codice);
  if (genere == 'F') {
    ImpostaFlag(codice);
    risultato_ = {};
  } else if (!statoFlag_) {
    statoFlag_ = true;
    risultato_ = {};
  } else {
    risultato_ = Calcola(codice, genere);
  }
  return risultato_;
}

Campione TrovaVar::Calcola(std::string_view codice, char genere) {
  switch (genere) {
    case 'C':
      return Letterale(Da(SenzaUltimi(codice, 1), 4));
    case 'V':
      return ScriviVariabile(codice);
    case 'S':
      if (destinazione_ != TipoStampa::Anteprima) return {};
      return Letterale(codice.substr(0, LunghezzaMarcatoreStile));
    case 'L':
      return ScriviLingua(codice);
    case 'P':
      return Letterale(codice.substr(1));
    default:
      return risultato_;
  }
}

void TrovaVar::ImpostaFlag(std::string_view codice) {
  if (codice.ends_with('S') || codice.ends_with('N')) codice.remove_suffix(1);
  const auto stato = stati_.find(NumeroLeniente(Da(codice, 1)));
  if (stato != stati_.end()) statoFlag_ = stato->second;
}

}  // namespace parvik
