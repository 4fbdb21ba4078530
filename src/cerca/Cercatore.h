// Looks for a criterion in texts (docs/ricerca.md).
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "cerca/Criterio.h"
#include "cerca/Espressione.h"
#include "cerca/SensoCodice.h"
#include "template/Modifica.h"

namespace parvik {

class Cercatore {
 public:
  /// Asked now and then; true ends the search.
  using Basta = std::function<bool()>;

  /// `espressione` is what `criterio` was compiled to; nullptr for one that is no expression.
  Cercatore(Criterio criterio, std::unique_ptr<Espressione> espressione, Basta basta);

  /// Places in `testo`, in their order, apart from each other. Only an expression finds places without bytes,
  /// two of them never at one place. Nothing is found of an empty criterion. Linear in the text where the
  /// criterion is no expression.
  std::vector<Selezione> Cerca(std::string_view testo, const VociDiSezione& voci);

  /// Whether a search has ended before its time: what it has found until then is there.
  bool Interrotta() const { return interrotta_; }

 private:
  using Posti = std::vector<Selezione>;
  /// Of a line that the expression has read: where it is to be found.
  struct Tratto {
    Selezione Riga;
    std::size_t Da = 0;
    std::size_t A = 0;
  };

  void CercaParole(std::string_view testo, const Selezione& dove, Posti& trovate);
  void CercaEspressione(std::string_view testo, Posti& trovate);
  std::vector<Selezione> DoveCercarla(std::string_view testo) const;
  EsitoConfronto ProssimaNellaRiga(std::size_t da, std::size_t a, std::size_t fineRiga);
  void CercaNellaRiga(const Tratto& tratto, Posti& trovate);
  void CercaCodici(std::string_view testo, const VociDiSezione& voci, Posti& trovate);
  bool EdaTrovare(std::string_view contenuto, const VociDiSezione& voci);
  bool IntornoNonParola(std::string_view testo, const Selezione& posto) const;
  bool DaSmettere();

  Criterio criterio_;
  std::unique_ptr<Espressione> espressione_;
  Basta basta_;
  SensoCodice senso_;
  std::string cercato_;  // as it is compared
  bool interrotta_ = false;
};

}  // namespace parvik
