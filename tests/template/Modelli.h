// Pieces of templates, so that no test has to spell their bytes.
#pragma once

#include <string>
#include <string_view>

#include "common/Delimitatori.h"
#include "template/ImmagineModello.h"

namespace parvik::prova {

/// A code as it stands in memory.
inline std::string Codice(std::string_view testo) {
  return std::string(1, DelimApertura).append(testo) + DelimChiusura;
}

/// A code, or the section marker, as it stands in a file.
inline std::string CodiceFile(std::string_view testo) {
  return std::string(1, DelimFileApertura).append(testo) + DelimFileChiusura;
}

/// A whole marker line: its numbers and switches, such as "23;14;CS".
inline std::string Marcatore(std::string_view valori) {
  return CodiceFile(std::string("C").append(valori)) + "\r\n";
}

/// Settings that no file sets by chance.
inline ImpostazioniCorpo Precedenti() {
  return {.RigheCorpo = 77, .LineeCorpo = 66, .FlagSbarra = "C", .FlagAccorpa = "S"};
}

inline ImmagineLetta LeggiTre(std::string_view byte) {
  return *LeggiImmagine(byte, Formato::TreSezioni, Precedenti());
}
inline ImmagineLetta LeggiUna(std::string_view byte) {
  return *LeggiImmagine(byte, Formato::UnaSezione, Precedenti());
}

}  // namespace parvik::prova
