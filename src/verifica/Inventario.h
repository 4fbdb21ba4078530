// Which fields and styles templates use, and which of those that a type offers nobody uses.
#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "catalogue/Catalogo.h"
#include "common/Sezione.h"
#include "verifica/VociTipo.h"

namespace parvik {

enum class GenereUsato { Variabile, Flag, Lingua, Stile };

/// "variabile", "flag", …
std::string_view NomeGenere(GenereUsato genere);

/// A field, an entry of the language table or a style.
struct Usato {
  GenereUsato Genere = GenereUsato::Variabile;
  int Numero = 0;    // 0 of a style
  std::string Nome;  // UTF-8: the number, or a style's word

  bool operator<(const Usato& altro) const {
    return std::tie(Genere, Numero, Nome) < std::tie(altro.Genere, altro.Numero, altro.Nome);
  }
};

/// Whether a content counts: not if it is broken, or lacks something that its kind cannot do without.
bool CodiceDaContare(std::string_view contenuto);
/// What one that counts stands for; nullopt of the other kinds, and where nobody has its number.
std::optional<Usato> UsatoDa(std::string_view contenuto);

struct Usi {
  std::size_t Volte = 0;
  std::map<std::size_t, std::size_t> PerFile;  // the file's place among those that were added, and how often
};

struct NonUsato {
  Sezione Dove = Sezione::Testata;
  GenereUsato Genere = GenereUsato::Variabile;
  int Numero = 0;
  std::string Descrizione;  // UTF-8
};

/// Takes templates, one after the other. Codes that are broken or incomplete are none.
class Inventario {
 public:
  /// `voci` must outlive this.
  explicit Inventario(const VociTipo& voci) : voci_(voci) {}

  void Aggiungi(const std::array<std::string_view, MaxSezioni>& testi);

  /// Variables, flags, language entries and styles, by number and word.
  const std::map<Usato, Usi>& Usati() const { return usati_; }
  /// What the catalogue calls it, in the first section that offers it; "" where none does. UTF-8.
  std::string Descrizione(const Usato& usato) const;
  /// What the type offers and no template uses, section by section; what several sections offer is used where
  /// one of them uses it.
  std::vector<NonUsato> NonUsati() const;

 private:
  void Conta(std::string_view contenuto);
  template <class Voce>
  void AggiungiNonUsati(Sezione sezione, GenereUsato genere, std::vector<NonUsato>& nonUsati) const;

  const VociTipo& voci_;
  std::size_t file_ = 0;
  std::map<Usato, Usi> usati_;
};

}  // namespace parvik
