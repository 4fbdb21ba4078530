// A regular expression as the search uses it. The core has none of its own: whoever has one hands it in.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "cerca/Criterio.h"
#include "common/Esito.h"
#include "template/Modifica.h"

namespace parvik {

enum class EsitoConfronto {
  Trovata,
  Niente,
  TroppoLunga,  // it would take longer than anybody waits
};

/// Bytes are Windows-1252, each of them one character. Used by one thread at a time.
class Espressione {
 public:
  Espressione() = default;
  Espressione(const Espressione&) = delete;
  Espressione& operator=(const Espressione&) = delete;
  virtual ~Espressione() = default;

  /// What it is matched against from now on: a line without its end, or a code's content.
  virtual void Leggi(std::string_view testo) = 0;
  /// The first match that begins at byte `da` or behind it and ends at `fine` at the latest, as if the text
  /// ended there; what stands in front of `da` is seen. 0 <= da <= fine <= the text's size.
  virtual EsitoConfronto Trova(std::size_t da, std::size_t fine) = 0;
  /// Of the match that was found: the whole of it, then its groups; one that took no part is empty.
  virtual const std::vector<Selezione>& Gruppi() const = 0;
};

/// An expression for a criterion that is one; the error is what is wrong with it, UTF-8. Any thread may call
/// it.
using CompilaEspressione =
    std::function<Esito<std::unique_ptr<Espressione>, std::string>(const Criterio& criterio)>;

}  // namespace parvik
