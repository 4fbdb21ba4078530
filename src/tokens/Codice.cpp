#include "tokens/Codice.h"

#include "common/Delimitatori.h"

namespace parvik {

TipoCodice Riconosci(std::string_view contenuto) {
  if (contenuto.starts_with("V0;")) return TipoCodice::Costante;
  if (contenuto.empty()) return TipoCodice::Sconosciuto;
  switch (contenuto.front()) {
    case 'V':
      return TipoCodice::Variabile;
    case 'C':
      return TipoCodice::Costante;
    case 'F':
      return TipoCodice::Flag;
    case 'S':
      return TipoCodice::Stile;
    case 'L':
      return TipoCodice::Lingua;
    case 'P':
      return TipoCodice::Pagina;
    default:
      return TipoCodice::Sconosciuto;
  }
}

std::string_view ContenutoDi(std::string_view codice) {
  return codice.substr(1, codice.size() - 2);
}

std::string ConDelimitatori(std::string_view contenuto) {
  std::string codice;
  codice.reserve(contenuto.size() + 2);
  codice += DelimApertura;
  codice += contenuto;
  codice += DelimChiusura;
  return codice;
}

}  // namespace parvik
