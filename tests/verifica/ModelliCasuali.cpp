#include "verifica/ModelliCasuali.h"

#include <rapidcheck.h>

#include <string_view>

#include "common/Sezione.h"
#include "verifica/DiProva.h"

namespace parvik::prova {
namespace {

using Parole = std::vector<std::string>;

/// What a section may hold in a line of its own: each leaves no flag open.
const Parole& Puliti(std::size_t sezione) {
  static const std::array<Parole, 3> puliti = {
      Parole{"", "testo", "+----+", "a | b", "s; x", "<V1;30L>", "<V2;12R;.0,2;1>", "<F3N><V1;5L>",
             "<F4S> <V3,3;40L\".\">", "<F97N><P1>"},
      Parole{"", "riga", "<V11;16L>", "<V12;10R;0,2;0>", "<F14N><V11;3L>", "<F98S>x<P1>"},
      Parole{"", "fine", "<V21;12R;#;0>", "<V22;12L>", "<F15N><V22;3L>", "<F99N><P2>"}};
  return puliti[sezione];
}
const Parole Comuni = {" ",          "x",  "<P1>",          "<L5>",        "<L5;20>", "<V0;\"Totale\">",
                       "<V0;\" \">", "\n", "<S;GRASSETTO>", "<S;NORMALE>", "caff\xE8"};

struct Pianta {
  Regola Quale;
  const char* Scritto;  // ^ in front of the place
};

/// What is wrong wherever it stands, and leaves what follows as it was.
const std::vector<Pianta>& Piante() {
  static const std::vector<Pianta> piante = {{Regola::VariabileSconosciuta, "^<V99;3L>"},
                                             {Regola::VariabileSconosciuta, "^<V40000;3L>"},
                                             {Regola::FlagSconosciuto, "^<F55N><P1>"},
                                             {Regola::CodiceSconosciuto, "^<X>"},
                                             {Regola::CodiceSconosciuto, "^<>"},
                                             {Regola::CodiceSuPiuRighe, "^<P¶1>"},
                                             {Regola::AperturaNelCodice, "^<P1<P1>"},
                                             {Regola::ChiusuraIsolata, "^> "},
                                             {Regola::CodiceIncompleto, "^<P>"},
                                             {Regola::CodiceIncompleto, "^<V1>"},
                                             {Regola::CodiceIncompleto, "^<S;FIRMA>"},
                                             {Regola::CodiceIncompleto, "^<L5;0>"},
                                             {Regola::CodiceIncompleto, "^<V0;\"\">"},
                                             {Regola::FormatoDiverso, "^<S;it>"},
                                             {Regola::FormatoDiverso, "^<F97><P1>"},
                                             {Regola::FlagSenzaEffetto, "^<F97N><F98N><P1>"},
                                             {Regola::FlagSuAltraRiga, "^<F97N>¶<P1>"},
                                             {Regola::FlagSuStile, "^<F97N><S;ITALICO>"},
                                             {Regola::TestoStile, "GLAS^S;x"},
                                             {Regola::TestoStile, "^<V0;\"S;\">"}};
  return piante;
}
/// What only a section makes wrong.
const std::vector<Pianta>& PianteDi(std::size_t sezione) {
  static const std::array<std::vector<Pianta>, 3> piante = {
      std::vector<Pianta>{{Regola::VariabileDiAltraSezione, "^<V11;16L>"},
                          {Regola::FlagDiAltraSezione, "^<F14N><P1>"},
                          {Regola::FormatoDiverso, "^<V01;3L>"},
                          {Regola::MultilineaPersa, "^<V2,3;12R;#;1>"},
                          {Regola::LarghezzaInsufficiente, "^<V2;3R;0,2;1>"}},
      std::vector<Pianta>{{Regola::VariabileDiAltraSezione, "^<V1;16L>"},
                          {Regola::FlagDiAltraSezione, "^<F3N><P1>"},
                          {Regola::FormatoDiverso, "^<V12;9R;#>"}},
      std::vector<Pianta>{{Regola::VariabileDiAltraSezione, "^<V12;16L>"},
                          {Regola::FlagDiAltraSezione, "^<F14N><P1>"},
                          {Regola::FormatoDiverso, "^<V22;3>"}}};
  return piante[sezione];
}
/// What swallows the rest of its section, or wants nothing behind it.
const std::vector<Pianta> Ultime = {{Regola::CodiceNonChiuso, "^<V1 x"},
                                    {Regola::FlagSenzaEffetto, "^<F97N> "}};

template <class Cosa>
Cosa Una(const std::vector<Cosa>& cose) {
  return cose[*rc::gen::inRange<std::size_t>(0, cose.size())];
}

std::string RigaPulita(std::size_t sezione) {
  std::string riga;
  for (int parti = *rc::gen::inRange(0, 4); parti > 0; --parti)
    riga += *rc::gen::inRange(0, 2) == 0 ? Una(Puliti(sezione)) : Una(Comuni);
  return riga;
}

/// In front of the line, behind it, or between two of its pieces.
std::size_t PostoNellaRiga(const std::string& riga) {
  std::vector<std::size_t> posti = {0, riga.size()};
  for (std::size_t i = 0; i < riga.size(); ++i) {
    const bool fuori = riga.find('>', i) == std::string::npos || riga.find('<', i) < riga.find('>', i);
    const bool dopoFlag = riga.find("<F") != std::string::npos;  // nothing between a flag and its code
    if (fuori && !dopoFlag) posti.push_back(i);
  }
  return Una(posti);
}

constexpr char Segno = '\x01';  // in the text: a fault's place; the next byte says whose

void Metti(std::string& riga, std::size_t posto, const Pianta& pianta) {
  std::string scritto = pianta.Scritto;
  const std::size_t dove = scritto.find('^');
  scritto.replace(dove, 1, std::string(1, Segno) + static_cast<char>('A' + static_cast<int>(pianta.Quale)));
  riga.insert(posto, scritto);
}

/// Takes the marks out, and gives the places at which they were.
std::vector<Guasto> TogliSegni(ModelloCasuale& modello) {
  const std::string tutto = modello.Scritto();
  std::vector<Guasto> guasti;
  std::size_t riga = 1;
  std::size_t colonna = 1;
  const std::string byte = DelFile(tutto);
  for (std::size_t i = 0; i < byte.size(); ++i) {
    if (byte[i] == Segno) {
      guasti.push_back({static_cast<Regola>(byte[++i] - 'A'), riga, colonna});
    } else if (byte[i] == '\r') {
      ++riga;
      colonna = 0;
    } else {
      ++colonna;
    }
  }
  for (Parole& righe : modello.Sezioni) {
    for (std::string& una : righe)
      for (std::size_t s = una.find(Segno); s != std::string::npos; s = una.find(Segno)) una.erase(s, 2);
  }
  return guasti;
}

}  // namespace

std::string ModelloCasuale::Scritto() const {
  std::size_t righeCorpo = 0;
  std::string corpo;
  for (const std::string& riga : Sezioni[1]) {
    corpo += riga + "¶";
    righeCorpo += riga.find("¶") == std::string::npos ? 1U : 2U;
  }
  std::string scritto;
  for (const std::string& riga : Sezioni[0]) scritto += riga + "¶";
  scritto += "<C90;" + std::to_string(righeCorpo) + ";>¶" + corpo;
  for (const std::string& riga : Sezioni[2]) scritto += riga + "¶";
  return scritto;
}

ModelloCasuale ModelloPulito() {
  ModelloCasuale modello;
  for (std::size_t sezione = 0; sezione < MaxSezioni; ++sezione) {
    const int righe = *rc::gen::inRange(sezione == 0 ? 1 : 0, 8);
    for (int i = 0; i < righe; ++i) modello.Sezioni[sezione].push_back(RigaPulita(sezione));
  }
  return modello;
}

std::vector<Guasto> Guasta(ModelloCasuale& modello) {
  for (std::size_t sezione = 0; sezione < MaxSezioni; ++sezione) {
    Parole& righe = modello.Sezioni[sezione];
    for (std::string& riga : righe) {
      if (*rc::gen::inRange(0, 2) == 0) continue;
      const bool sua = *rc::gen::inRange(0, 3) == 0;
      Metti(riga, PostoNellaRiga(riga), Una(sua ? PianteDi(sezione) : Piante()));
    }
    if (!righe.empty() && *rc::gen::inRange(0, 3) == 0) Metti(righe.back(), righe.back().size(), Una(Ultime));
  }
  return TogliSegni(modello);
}

std::string FileCasuale() {
  static const Parole parti = {"<V1;30>",
                               "<V01;30L>",
                               "<V2,3;12R;0;x>",
                               "<V2;8>",
                               "<V1;R12>",
                               "<V1;30LR>",
                               "<F3>",
                               "<F03S>",
                               "<F97>",
                               "<F55>",
                               "<S;it>",
                               "<S;Corsivo>",
                               "<S;normal>",
                               "<SX;GR>",
                               "<C0;\"x\">",
                               "<V0;\"S;\">",
                               "<X>",
                               "<>",
                               "S;",
                               "S",
                               ";",
                               "a",
                               " ",
                               "¶",
                               "¶",
                               "\r",
                               "\n",
                               ">",
                               "<V1;3L\"ab\">",
                               "<V1;3L\">",
                               "<V2;9R;0,*;0>",
                               "<V2;09R;.0,2-;1>",
                               "<V11;16>",
                               "<V12;010R;0;0>",
                               "<V22;12L;#;0>",
                               "<L05;3>",
                               "<P1>",
                               "¶<C4;2;>¶",
                               "\xAB"
                               "V01;3L\xBB",
                               "<V1;3L\";\">",
                               "<V2;5R\"0\";0;0>"};
  std::string scritto;
  for (int quante = *rc::gen::inRange(0, 25); quante > 0; --quante) scritto += Una(parti);
  if (*rc::gen::inRange(0, 20) == 0) scritto += "<V1;3L";
  return DelFile(scritto);
}

}  // namespace parvik::prova
