#include "supporto/TestoConSelezione.h"

#include "common/Delimitatori.h"
#include "common/Windows1252.h"

namespace parvik::prova {
namespace {

constexpr std::string_view ApreUtf8 = "\xC2\xAB";
constexpr std::string_view ChiudeUtf8 = "\xC2\xBB";

}  // namespace

ConSelezione::ConSelezione(std::string_view disegno) {
  for (std::size_t i = 0; i < disegno.size(); ++i) {
    const std::string_view qui = disegno.substr(i);
    if (qui.starts_with(ApreUtf8) || qui.starts_with(ChiudeUtf8)) {
      Testo += qui.starts_with(ApreUtf8) ? DelimApertura : DelimChiusura;
      ++i;
    } else if (disegno[i] == '|' || disegno[i] == '[') {
      Selezionato.Inizio = Testo.size();
    } else if (disegno[i] == ']') {
      Selezionato.Lunghezza = Testo.size() - Selezionato.Inizio;
    } else {
      Testo += disegno[i];
    }
  }
}

std::string Scritto(std::string_view testo, Selezione selezione) {
  const std::string prima = Utf8DaAnsi(testo.substr(0, selezione.Inizio));
  const std::string dentro = Utf8DaAnsi(testo.substr(selezione.Inizio, selezione.Lunghezza));
  const std::string dopo = Utf8DaAnsi(testo.substr(selezione.Fine()));
  return selezione.Lunghezza == 0 ? prima + "|" + dopo : prima + "[" + dentro + "]" + dopo;
}

}  // namespace parvik::prova
