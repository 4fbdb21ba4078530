// What the property tests of codes draw from.
#pragma once

#include <rapidcheck.h>

#include <string>
#include <vector>

namespace parvik::prova {

/// Any of the 256 values.
inline rc::Gen<char> QualunqueByte() {
  return rc::gen::map(rc::gen::inRange(0, 256),
                      [](int v) { return static_cast<char>(static_cast<unsigned char>(v)); });
}

inline rc::Gen<std::string> QualunqueTesto() {
  return rc::gen::container<std::string>(QualunqueByte());
}

/// Digits without a leading zero, as the number boxes of the windows give them: `da` up to but not `a`.
inline rc::Gen<std::string> Cifre(int da, int a) {
  return rc::gen::map(rc::gen::inRange(da, a), [](int v) { return std::to_string(v); });
}

/// Contents rich in what the grammar gives a meaning to.
inline rc::Gen<std::string> ContenutoSimile() {
  const auto pezzo = rc::gen::elementOf(std::vector<std::string>{"V",
                                                                 "V0;",
                                                                 "F",
                                                                 "S;",
                                                                 "L",
                                                                 "P",
                                                                 "C",
                                                                 "R",
                                                                 ";",
                                                                 ";",
                                                                 ",",
                                                                 "\"",
                                                                 "\"",
                                                                 ".",
                                                                 "-",
                                                                 "#",
                                                                 "*",
                                                                 "0",
                                                                 "1",
                                                                 "7",
                                                                 "12",
                                                                 "99999",
                                                                 "GR",
                                                                 "no",
                                                                 " ",
                                                                 "\r",
                                                                 "\n",
                                                                 "\xAB",
                                                                 "\xBB",
                                                                 "\xE0",
                                                                 std::string(1, '\0')});
  return rc::gen::map(rc::gen::container<std::vector<std::string>>(pezzo),
                      [](const std::vector<std::string>& pezzi) {
                        std::string testo;
                        for (const std::string& p : pezzi) testo += p;
                        return testo;
                      });
}

}  // namespace parvik::prova
