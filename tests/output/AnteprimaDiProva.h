// A preview of three sections with its map.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "output/CatalogoDiProva.h"
#include "output/MappaAnteprima.h"

namespace parvik::prova {

/// Flag 1 is false, flag 2 true. The body is rendered `volte` times.
inline AnteprimaMappata Mappata(TestiSezioni testi, std::int16_t volte = 1) {
  LavoroStampa lavoro;
  lavoro.Testi = std::move(testi);
  lavoro.NumSezioni = 3;
  lavoro.RigheCorpo = volte;
  lavoro.LineeCorpo = 1;
  lavoro.Flag = FlagDi({{.Numero = 1}, {.Numero = 2, .Vero = true}});
  auto mappata = GeneraMappata(std::move(lavoro), std::stop_token());
  EXPECT_TRUE(mappata);
  return mappata ? std::move(*mappata) : AnteprimaMappata();
}

inline OrigineStampa Lettera(Sezione dove, std::size_t byte) {
  return {.Dove = dove, .Parte = {.Inizio = byte, .Lunghezza = 1}};
}

inline OrigineStampa Codice(Sezione dove, std::size_t da, std::size_t lunghezza) {
  return {.Dove = dove, .Parte = {.Inizio = da, .Lunghezza = lunghezza}, .Codice = true};
}

}  // namespace parvik::prova
