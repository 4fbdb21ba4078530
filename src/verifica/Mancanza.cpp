// What codes of each kind cannot do without.
#include "common/Delimitatori.h"
#include "common/NumeroLeniente.h"
#include "tokens/CodiceCorsa.h"
#include "tokens/CodiceStile.h"
#include "tokens/Gruppi.h"
#include "verifica/EsameCodice.h"

namespace parvik {
namespace {

constexpr const char* SenzaLarghezza = "manca la larghezza";
constexpr const char* LarghezzaZero = "la larghezza è 0";

std::string MancanzaVariabile(std::string_view contenuto) {
  const GruppiVariabile gruppi = GruppiDiVariabile(contenuto);
  if (!HaNumero(gruppi.Numero.Testo)) return "manca il numero della variabile";
  if (!HaNumero(gruppi.Larghezza.Testo)) return SenzaLarghezza;
  if (!InteroLeniente(gruppi.Larghezza.Testo)) return "la larghezza è oltre 16 bit, e si legge 0";
  return QuantitaDi(gruppi.Larghezza) == 0 ? LarghezzaZero : "";
}

std::string MancanzaCostante(std::string_view contenuto) {
  constexpr std::size_t PrimaDellApice = 2;
  constexpr std::string_view Inizio = ";\"";
  if (contenuto.substr(0, PrimaDellApice + Inizio.size()).size() != PrimaDellApice + Inizio.size() ||
      contenuto.substr(PrimaDellApice, Inizio.size()) != Inizio || contenuto.back() != DelimTesto) {
    return "il testo della costante non è fra virgolette";
  }
  return CostanteCorsa(contenuto).empty() ? "manca il testo della costante" : "";
}

std::string MancanzaFlag(std::string_view contenuto) {
  const GruppiFlag gruppi = GruppiDiFlag(contenuto);
  if (!HaNumero(gruppi.Numero.Testo)) return "manca il numero del flag";
  const bool noto =
      !gruppi.Interruttore || gruppi.Interruttore->Testo == "S" || gruppi.Interruttore->Testo == "N";
  return noto ? "" : "l'interruttore del flag non è S né N";
}

std::string MancanzaStile(std::string_view contenuto) {
  if (contenuto.find(';') == std::string_view::npos) return "manca lo stile";
  return StileDi(GruppiDiStile(contenuto).Parola.Testo) ? "" : "nessuno stile comincia così";
}

std::string MancanzaLingua(std::string_view contenuto) {
  const GruppiLingua gruppi = GruppiDiLingua(contenuto);
  if (!HaNumero(gruppi.Indice.Testo)) return "manca l'indice della tabella lingue";
  if (!gruppi.Larghezza) return "";
  if (!HaNumero(gruppi.Larghezza->Testo)) return SenzaLarghezza;
  return LunghezzaLeniente(gruppi.Larghezza->Testo) == 0 ? LarghezzaZero : "";
}

}  // namespace

std::string Mancanza(std::string_view contenuto) {
  switch (Riconosci(contenuto)) {
    case TipoCodice::Variabile:
      return MancanzaVariabile(contenuto);
    case TipoCodice::Costante:
      return MancanzaCostante(contenuto);
    case TipoCodice::Flag:
      return MancanzaFlag(contenuto);
    case TipoCodice::Stile:
      return MancanzaStile(contenuto);
    case TipoCodice::Lingua:
      return MancanzaLingua(contenuto);
    case TipoCodice::Pagina:
      return HaNumero(GruppiDiPagina(contenuto).Numero.Testo) ? "" : "manca il numero di pagina";
    case TipoCodice::Sconosciuto:
      break;
  }
  return "";
}

}  // namespace parvik
