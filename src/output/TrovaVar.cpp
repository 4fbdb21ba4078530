#include "output/TrovaVar.h"

#include "common/Delimitatori.h"
#include "common/NumeroLeniente.h"
#include "common/Ritagli.h"

namespace parvik {
namespace {

constexpr std::size_t NonTrovato = std::string_view::npos;
constexpr std::size_t LunghezzaLinguaPredefinita = 10;
constexpr std::size_t LunghezzaMarcatoreStile = 4;
constexpr char SegnoCampione = '$';

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

/// The character after the first quote of a code's options; `predefinito` when there is none.
char Riempimento(std::string_view opzioni, char predefinito) {
  const std::size_t apice = opzioni.find(DelimTesto);
  return apice == NonTrovato || apice + 1 == opzioni.size() ? predefinito : opzioni[apice + 1];
}

bool Allineata(std::string_view opzioni) {
  return opzioni.find('R') != NonTrovato || opzioni.find('L') == NonTrovato;
}

/// The width where it is all that the options say, as those of most variables do: a few digits, and L or R.
/// nullopt for any others, which may have a width all the same.
std::optional<std::size_t> SolaLarghezza(std::string_view opzioni) {
  constexpr std::size_t MaxCifre = 5;
  if (opzioni.ends_with('L') || opzioni.ends_with('R')) opzioni.remove_suffix(1);
  if (opzioni.empty() || opzioni.size() > MaxCifre) return std::nullopt;
  std::size_t larghezza = 0;
  for (const char c : opzioni) {
    if (!Cifra(c)) return std::nullopt;
    larghezza = larghezza * 10 + static_cast<std::size_t>(c - '0');
  }
  return larghezza;
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

/// Whether a third separator follows the second one, at `p2`. It nearly always stands where the euro group
/// begins.
bool HaEuro(std::string_view opzioni, std::size_t p2) {
  return (opzioni.size() > p2 + 2 && opzioni[opzioni.size() - 2] == ';') ||
         opzioni.find(';', p2 + 1) != NonTrovato;
}

/// A variable with a format behind its second separator, which stands at `p2` of the options.
Campione VariabileConFormato(std::string_view opzioni, std::size_t p2) {
  const std::size_t lunghezza = LunghezzaLeniente(opzioni.substr(0, p2));
  if (HaEuro(opzioni, p2)) opzioni.remove_suffix(2);
  const std::string_view formato = Da(opzioni, p2 + 1);
  const char riempimento = Riempimento(opzioni, ' ');
  if (formato.find('0') == NonTrovato) return Ripeti(riempimento, lunghezza);
  return CampioneNumerico(formato, lunghezza, riempimento, Allineata(opzioni));
}

Campione VariabileSenzaFormato(std::string_view opzioni) {
  const std::size_t apice = opzioni.find(DelimTesto);
  const char riempimento = Riempimento(opzioni, SegnoCampione);
  if (apice != NonTrovato) opzioni = SenzaUltimi(opzioni, 3);  // quote, fill, quote
  return Ripeti(riempimento, LunghezzaLeniente(opzioni));
}

/// Sample of a language code: "$" as often as the code's width says, 10 times without one.
Campione ScriviLingua(std::string_view codice) {
  const std::size_t separatore = codice.find(';');
  if (separatore == NonTrovato) return Ripeti(SegnoCampione, LunghezzaLinguaPredefinita);
  return Ripeti(SegnoCampione, LunghezzaLeniente(codice.substr(separatore + 1)));
}

/// Sample of a variable code. Its options are what follows the first separator.
Campione ScriviVariabile(std::string_view codice) {
  const std::size_t p1 = codice.find(';');
  if (p1 == NonTrovato) return VariabileSenzaFormato(codice);
  const std::string_view opzioni = codice.substr(p1 + 1);
  if (const auto larghezza = SolaLarghezza(opzioni)) return Ripeti(SegnoCampione, *larghezza);
  const std::size_t p2 = opzioni.find(';');
  if (p2 == NonTrovato || opzioni.ends_with('#')) return VariabileSenzaFormato(opzioni);
  return VariabileConFormato(opzioni, p2);
}

/// The kind of a code for the output: its first letter, but a variable of number 0 is a constant.
char GenereDi(std::string_view codice) {
  if (codice.starts_with("V0;")) return 'C';
  return codice.empty() ? '\0' : codice.front();
}

}  // namespace

StatiFlag::StatiFlag(const FlagPerStampe& flag) {
  for (std::size_t i = flag.Righe().size(); i > 0; --i) {  // the first row of a number comes last, and stays
    const auto numero = static_cast<int>(flag.Numero(i - 1));
    stati_[static_cast<std::size_t>(numero - Minimo)] = flag.Vero(i - 1);
  }
}

std::optional<bool> StatiFlag::operator()(double numero) const {
  if (numero < Minimo || numero > Massimo) return std::nullopt;
  const auto intero = static_cast<int>(numero);
  if (intero != numero) return std::nullopt;
  return stati_[static_cast<std::size_t>(intero - Minimo)];
}

TrovaVar::TrovaVar(TipoStampa destinazione, const FlagPerStampe& flag)
    : destinazione_(destinazione), stati_(flag) {}

const Campione& TrovaVar::operator()(std::string_view codice) {
  const char genere = GenereDi(codice);
  if (!memoria_.MostraProssimo && genere != 'F') {
    memoria_ = {};
    return memoria_.Ultimo;
  }
  switch (genere) {
    case 'F':
      ImpostaFlag(codice);
      memoria_.Ultimo = {};
      break;
    case 'C':
      memoria_.Ultimo = Letterale(Da(SenzaUltimi(codice, 1), 4));
      break;
    case 'V':
      memoria_.Ultimo = ScriviVariabile(codice);
      break;
    case 'S':
      memoria_.Ultimo = {};
      if (destinazione_ == TipoStampa::Anteprima)
        memoria_.Ultimo.Testo = codice.substr(0, LunghezzaMarcatoreStile);
      break;
    case 'L':
      memoria_.Ultimo = ScriviLingua(codice);
      break;
    case 'P':
      memoria_.Ultimo = Letterale(codice.substr(1));
      break;
    default:  // the text of the code before stays
      break;
  }
  return memoria_.Ultimo;
}

void TrovaVar::ImpostaFlag(std::string_view codice) {
  if (codice.ends_with('S') || codice.ends_with('N')) codice.remove_suffix(1);
  memoria_.MostraProssimo = stati_(NumeroLeniente(Da(codice, 1))).value_or(memoria_.MostraProssimo);
}

}  // namespace parvik
