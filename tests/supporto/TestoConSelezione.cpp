#include "supporto/TestoConSelezione.h"

#include "common/Delimitatori.h"
#include "common/Windows1252.h"

namespace parvik::prova {
namespace {

constexpr std::string_view ApreUtf8 = "\xC2\xAB";
constexpr std::string_view ChiudeUtf8 = "\xC2\xBB";

}  // namespace

ConSelezione::ConSelezione(std::string_view disegno) {
  std::string byte;
  for (std::size_t i = 0; i < disegno.size(); ++i) {
    const std::string_view qui = disegno.substr(i);
    if (qui.starts_with(ApreUtf8) || qui.starts_with(ChiudeUtf8)) {
      byte += qui.starts_with(ApreUtf8) ? DelimApertura : DelimChiusura;
      ++i;
    } else if (disegno[i] == '|' || disegno[i] == '[') {
      Selezionato.Inizio = byte.size();
    } else if (disegno[i] == ']') {
      Selezionato.Lunghezza = byte.size() - Selezionato.Inizio;
    } else if (disegno[i] == '\n') {
      byte.append(FineRiga);
    } else {
      byte += disegno[i];
    }
  }
  Testo = TestoSezione(byte);
}

std::string Scritto(const TestoSezione& testo, Selezione selezione) {
  const auto disegna = [&testo](std::size_t da, std::size_t a) {
    std::string disegno = Utf8DaAnsi(testo.Byte({.Inizio = da, .Lunghezza = a - da}));
    std::erase(disegno, FineRiga.front());
    return disegno;
  };
  const std::string prima = disegna(0, selezione.Inizio);
  const std::string dentro = disegna(selezione.Inizio, selezione.Fine());
  const std::string dopo = disegna(selezione.Fine(), testo.Dimensione());
  return selezione.Lunghezza == 0 ? prima + "|" + dopo : prima + "[" + dentro + "]" + dopo;
}

}  // namespace parvik::prova
