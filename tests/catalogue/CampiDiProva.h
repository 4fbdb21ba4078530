// Small catalogues that stand in the tests.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "catalogue/Catalogo.h"

namespace parvik::prova {

inline std::string Righe(const std::vector<std::string>& righe) {
  std::string testo;
  for (const std::string& riga : righe) testo += riga + "\r\n";
  return testo;
}

/// The line of a document type of one section. Its Testata's variables and flags are the runs given, "1;4".
inline std::string RigaTipo(int numero, std::string_view variabili, std::string_view flag) {
  std::string riga = std::to_string(numero) + ",\"Tipo " + std::to_string(numero) + ";T*.IMG;1;";
  riga.append(variabili).append(";0;0;0;0;").append(flag).append(";0;0;0;0\"");
  return riga;
}

/// A catalogue that must load.
inline Catalogo Carica(std::string contenuto) {
  Esito<Catalogo, ErroreCatalogo> catalogo = Catalogo::CaricaCampi(std::move(contenuto));
  if (catalogo) return std::move(*catalogo);
  ADD_FAILURE() << TestoErrore(catalogo.Errore().Numero) << ", line " << catalogo.Errore().Riga;
  return std::move(*Catalogo::CaricaCampi("//fine documenti"));
}

/// A catalogue with one type in slot 0, whose Testata has these runs, and with this body.
inline Catalogo ConCorpo(std::string_view variabili, std::string_view flag,
                         const std::vector<std::string>& corpo) {
  return Carica(RigaTipo(1, variabili, flag) + "\r\n//fine documenti\r\n" + Righe(corpo));
}

inline std::vector<std::string> Descrizioni(const std::vector<const TipoDoc*>& tipi) {
  std::vector<std::string> descrizioni;
  for (const TipoDoc* tipo : tipi) descrizioni.push_back(tipo->Descrizione);
  return descrizioni;
}

inline Tabella<Variabile> VariabiliTestata(const Catalogo& catalogo) {
  return catalogo.LeggiVariabili(catalogo.TipiDoc()[0], Sezione::Testata);
}
inline Tabella<Flag> FlagTestata(const Catalogo& catalogo) {
  return catalogo.LeggiFlags(catalogo.TipiDoc()[0], Sezione::Testata);
}

}  // namespace parvik::prova
