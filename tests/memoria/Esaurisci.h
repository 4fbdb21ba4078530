// What a piece of work comes to when its memory runs out at every one of the places where it can.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "common/ErroreRuntime.h"
#include "common/Esito.h"
#include "common/EsitoScrittura.h"

namespace parvik::prova {

/// What came of one try: nullopt when it was done.
using Errore = std::optional<NumeroErrore>;

template <class T>
Errore ErroreDi(const Esito<T>& esito) {
  if (esito) return std::nullopt;
  return esito.Errore();
}

template <class T>
Errore ErroreDi(const Esito<T, ErroreScrittura>& esito) {
  if (esito) return std::nullopt;
  return esito.Errore().Numero;
}

/// What may come of a try that was denied memory. A save can go on without some of what it asks for.
enum class Allora { SoloErrore, ErroreOFatto };

/// Tries it with ever more memory until there is enough, and gives how often there was not. Each time it must
/// say so, and `dopo` must hold, which is told whether it was done all the same.
int Esaurisci(
    const std::function<Errore()>& prova, const std::function<void(bool fatto)>& dopo = [](bool) {},
    Allora allora = Allora::SoloErrore);

/// Texts of some length, with codes, styles, and lines of one byte's end.
std::string Testo();

}  // namespace parvik::prova
