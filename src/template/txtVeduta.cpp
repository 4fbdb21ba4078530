#include "template/txtVeduta.h"

#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>
#include <vector>

#include "common/Delimitatori.h"
#include "common/frmTesto.h"

namespace parvik {
namespace {

/// How a line becomes bytes.
using Lettura = std::string (*)(const QTextBlock&);

std::string Byte(const QTextBlock& riga) {
  std::string byte = DaSchermo(riga.text());
  byte.resize(static_cast<std::size_t>(riga.length() - 1), ' ');  // positions stay, whatever was in it
  return byte + '\n';
}

bool HaDelimitatori(std::string_view segni) {
  return segni.find(DelimApertura) != std::string_view::npos ||
         segni.find(DelimChiusura) != std::string_view::npos;
}

/// The lines in front of `riga`, back to the nearest one with a delimiter; nearest first.
std::vector<std::string> RigheDavanti(QTextBlock& riga, Lettura leggi) {
  std::vector<std::string> righe;
  while (riga.previous().isValid() && (righe.empty() || !HaDelimitatori(righe.back()))) {
    riga = riga.previous();
    righe.push_back(leggi(riga));
  }
  return righe;
}

Veduta Intorno(const QTextDocument& documento, int inizio, int fine, Lettura leggi) {
  QTextBlock prima = documento.findBlock(inizio);
  QTextBlock ultima = prima;
  std::string testo = leggi(prima);
  int base = prima.position();
  // The character next to the selection may be a closing delimiter itself: its opening one is wanted too.
  const int davantiFinoA = std::max(0, inizio - base - 1);
  if (!HaDelimitatori(std::string_view(testo).substr(0, static_cast<std::size_t>(davantiFinoA)))) {
    std::string davanti;
    const std::vector<std::string> righe = RigheDavanti(prima, leggi);
    for (auto riga = righe.rbegin(); riga != righe.rend(); ++riga) davanti += *riga;
    testo.insert(0, davanti);
    base = prima.position();
  }
  // A line is added only when the part after the selection is still without a closing delimiter.
  std::size_t cercato = static_cast<std::size_t>(fine - base);
  while (testo.size() <= cercato || testo.find(DelimChiusura, cercato) == std::string::npos) {
    if (!ultima.next().isValid()) break;
    cercato = std::max(cercato, testo.size());
    ultima = ultima.next();
    testo += leggi(ultima);
  }
  return {.Testo = std::move(testo), .Base = base};
}

}  // namespace

std::string Segni(const QTextBlock& riga) {
  constexpr char Altro = ' ';
  std::string segni;
  for (const QChar c : riga.text()) {
    segni += c == u'\u00AB' ? DelimApertura : c == u'\u00BB' ? DelimChiusura : Altro;
  }
  return segni + Altro;  // the line's end
}

Veduta VedutaIntorno(const QTextDocument& documento, int inizio, int fine) {
  return Intorno(documento, inizio, fine, Segni);
}

Veduta VedutaDiRiga(const QTextDocument& documento, int posizione) {
  const QTextBlock riga = documento.findBlock(posizione);
  return Intorno(documento, riga.position(), riga.position() + riga.length() - 1, Byte);
}

}  // namespace parvik
