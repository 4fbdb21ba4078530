#include "tokens/Codice.h"

#include "common/Delimitatori.h"

namespace parvik {

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
