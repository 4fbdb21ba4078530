// One pass over the pieces of a section (docs/verifica.md).
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "verifica/EsameCodice.h"
#include "verifica/EsameFlag.h"
#include "verifica/Rilievo.h"

namespace parvik {

/// How lines of a section that are whole markers are taken.
enum class MarcatoriNelTesto {
  Codici,      // as codes like any others
  UnaSezione,  // as codes, in a type that knows no marker
  Ambigui,     // as markers beside the one that was taken
};

class EsameSezione {
 public:
  /// All must outlive this.
  EsameSezione(Sezione sezione, std::string_view testo, EsameCodici& codici, std::vector<Rilievo>& rilievi)
      : sezione_(sezione),
        testo_(testo),
        codici_(codici),
        rilievi_(rilievi),
        flag_(sezione, testo, rilievi) {}

  /// From byte `da` on, the beginning of a line. `daFinestra`: the text may hold delimiters of files. Linear
  /// in the text.
  void Esegui(std::size_t da, MarcatoriNelTesto marcatori, bool daFinestra);

 private:
  void Testo(Selezione dove);
  void DelimitatoriDiFile(Selezione dove);
  bool Marcatore(Selezione dove);
  void Codice(Selezione dove);
  void Conta(Selezione dove, const EsitoCodice& esito);
  void Rotto(Selezione dove, Regola regola, std::string_view perche);
  bool RigaIntera(Selezione dove) const;
  Rilievo& Aggiungi(Regola regola, Selezione dove, std::string testo);

  Sezione sezione_;
  std::string_view testo_;
  EsameCodici& codici_;
  std::vector<Rilievo>& rilievi_;
  EsameFlag flag_;
  MarcatoriNelTesto marcatori_ = MarcatoriNelTesto::Codici;
  bool daFinestra_ = false;
};

}  // namespace parvik
