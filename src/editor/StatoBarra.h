// What the status bar says (docs/barra-di-stato.md).
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "output/OltreFoglio.h"
#include "output/TestoAnteprima.h"
#include "template/Documento.h"

namespace parvik {

/// What of a run the preview pane shows.
struct CorsaMostrata {
  std::size_t Righe = 0;
  bool Fine = false;  // all of them, the end marker behind them

  bool operator==(const CorsaMostrata&) const = default;
};

/// nullopt when there is none.
std::optional<CorsaMostrata> CorsaDi(const TestoAnteprima& mostrato);

/// What the bar is made from.
struct DatiBarra {
  const Documento& Modello;
  CursoreSezione Dove;
  std::optional<std::size_t> ColonnaCarta = {};  // from 1
  std::string Codice = {};                       // the code at the caret in words, UTF-8
  bool Aggiornata = true;                        // the preview is that of the texts and flags
  std::optional<CorsaMostrata> Corsa = {};       // nullopt while none shows
  std::optional<MisuraFoglio> Foglio = {};       // nullopt without a sheet
  std::string Problemi = {};                     // how many there are
};

/// The bar's texts, in their order, UTF-8; "" where there is nothing to say.
struct TestiBarra {
  std::string Sezione;
  std::string ColCarta;
  std::string Codice;
  std::string Percorso;
  std::string Aggiornata;
  std::string Pagine;
  std::string Problemi;

  bool operator==(const TestiBarra&) const = default;
};

/// "2 errori, 1 avviso"; "Nessun problema".
std::string ContoProblemi(std::size_t errori, std::size_t avvisi);

TestiBarra PerBarra(const DatiBarra& dati);

/// Of the codes that the caret touches the one that the bar tells: that which it stands in, or else the one
/// behind it, or else the one in front.
std::optional<Selezione> CodiceDaDire(const TestoSezione& testo, std::size_t cursore);
/// What it has between its delimiters.
std::string ContenutoDi(const TestoSezione& testo, const Selezione& codice);

}  // namespace parvik
