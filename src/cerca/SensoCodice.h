// Whether a code is what somebody looks for, by what it means: its kind, its number, what the catalogue calls
// it, how it is printed (docs/ricerca.md).
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/TipoDoc.h"
#include "cerca/Criterio.h"
#include "tokens/Codice.h"

namespace parvik {

/// What the codes of a section are read against; looks at what it was made from.
struct VociDiSezione {
  std::span<const Variabile> Variabili;
  std::span<const parvik::Flag> Flag;
};

/// The words of a search for codes. A code is found when it has all of them.
class SensoCodice {
 public:
  explicit SensoCodice(const Criterio& criterio);

  /// Of no words nothing is found.
  bool Trova(std::string_view contenuto, const VociDiSezione& voci) const;

 private:
  /// "105", "V105", "larghezza 29", or any other word.
  struct Termine {
    enum class Cosa { Parola, Numero, Larghezza, Decimali, Righe } Genere = Cosa::Parola;
    std::string Testo;                    // a word, as it is compared
    std::int32_t Numero = 0;              // any other
    std::optional<TipoCodice> Tipo = {};  // of a number with its letter
  };

  std::string PerConfronto(std::string_view testo) const;
  std::string InParole(std::string_view contenuto, const VociDiSezione& voci) const;
  bool Contiene(std::string_view testo, std::string_view parola) const;
  bool HaNumero(std::string_view contenuto, const Termine& termine) const;
  static bool HaMisura(std::string_view contenuto, const Termine& termine, const VociDiSezione& voci);

  bool maiuscole_;
  bool parola_;
  std::vector<Termine> termini_;
};

}  // namespace parvik
