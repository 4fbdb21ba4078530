#include "output/StampaCasuale.h"

namespace parvik::prova {
namespace {

rc::Gen<std::string> Concatenati(std::vector<std::string> pezzi) {
  return rc::gen::map(rc::gen::container<std::vector<std::string>>(rc::gen::elementOf(std::move(pezzi))),
                      [](const std::vector<std::string>& scelti) {
                        std::string testo;
                        for (const std::string& pezzo : scelti) testo += pezzo;
                        return testo;
                      });
}

const std::vector<std::string> Lettere = {"\xAB",
                                          "\xAB",
                                          "\xBB",
                                          "\xBB",
                                          ";",
                                          ";",
                                          "\"",
                                          "S",
                                          "V",
                                          "F",
                                          "L",
                                          "P",
                                          "R",
                                          "C",
                                          "N",
                                          "X",
                                          "0",
                                          "1",
                                          "2",
                                          "3",
                                          ",",
                                          ".",
                                          "-",
                                          "#",
                                          "*",
                                          " ",
                                          "\r\n",
                                          "\r\n",
                                          "\r",
                                          "\n",
                                          "a",
                                          "\xE0",
                                          "\xAB"
                                          "V",
                                          "\xAB"
                                          "F",
                                          "V0;"};

const std::vector<std::string> Codici = {
    "\xAB"
    "F1N\xBB",
    "\xAB"
    "F2S\xBB",
    "\xAB"
    "F3\xBB",
    "\xAB"
    "F97N\xBB",
    "\xAB"
    "F50N\xBB",
    "\xAB"
    "V12;4L\xBB",
    "\xAB"
    "V1;7R\"*\";.0,2-;1\xBB",
    "\xAB"
    "V1;3R;0,2;0\xBB",
    "\xAB"
    "V1;5L;#;0\xBB",
    "\xAB"
    "V1;5R;#\xBB",
    "\xAB"
    "V0;\"testo\"\xBB",
    "\xAB"
    "L5;3\xBB",
    "\xAB"
    "L5\xBB",
    "\xAB"
    "P1\xBB",
    "\xAB"
    "S;GRASSETTO\xBB",
    "\xAB"
    "S;NORMALE\xBB",
    "\xAB"
    "S;G\xBB",
    "\xAB"
    "X\xBB",
    "\xAB\xBB",
    "\xAB"
    "Cabcdef\xBB",
    "S;",
    "S",
    ";",
    "x",
    " ",
    "\r\n",
    "\r\n",
    "\r",
    "\n",
    "\xAB",
    "\xBB"};

/// Numbers that rows have, have twice, and have cut.
std::vector<FlagDiProva> Flag() {
  std::vector<FlagDiProva> flag;
  for (const int numero : {1, 2, 3, 2, 123, -5, 0})
    flag.push_back({.Numero = numero, .Vero = *rc::gen::arbitrary<bool>()});
  return flag;
}

}  // namespace

rc::Gen<std::string> TestoCasuale() {
  return rc::gen::oneOf(rc::gen::just(std::string("\r\n")), Concatenati(Lettere), Concatenati(Codici),
                        Variabili());
}

rc::Gen<std::string> Variabili() {
  const auto gruppo =
      Concatenati({"0", "1", "2", "5", ",", ".", "#", "-", "L", "R", "\"*\"", "\"", ";", ";", " "});
  return rc::gen::map(rc::gen::container<std::vector<std::string>>(gruppo),
                      [](const std::vector<std::string>& gruppi) {
                        std::string testo;
                        for (const std::string& g : gruppi)
                          testo +=
                              "\xAB"
                              "V1;" +
                              g +
                              "\xBB"
                              "|\r\n";
                        return testo;
                      });
}

ProvaStampa ProvaCasuale() {
  ProvaStampa prova;
  for (std::string& testo : prova.Riferimento.Testi) testo = *TestoCasuale();
  prova.Riferimento.NumSezioni =
      *rc::gen::weightedElement<int>({{6, 3}, {3, 1}, {1, 2}, {1, 0}, {1, 7}, {1, -1}});
  prova.Riferimento.RigheCorpo = *rc::gen::inRange(-3, 9);
  prova.Riferimento.LineeCorpo = *rc::gen::inRange(-1, 5);
  prova.Flag = FlagDi(Flag());
  prova.Riferimento.RigheFlag = prova.Flag.Righe();
  return prova;
}

}  // namespace parvik::prova
