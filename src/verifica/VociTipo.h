// What a document type offers, as the checker looks it up: by number, section by section.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "catalogue/Catalogo.h"
#include "common/Sezione.h"

namespace parvik {

constexpr std::int16_t NumeroDiVoce(const Variabile& voce) {
  return voce.Intero1;
}
constexpr std::int16_t NumeroDiVoce(const Flag& voce) {
  return voce.Codice;
}

/// Records of a section; of those with one number the first one counts.
template <class Voce>
class ElencoVoci {
 public:
  ElencoVoci() = default;
  explicit ElencoVoci(std::vector<Voce> voci) : voci_(std::move(voci)) {
    for (std::size_t i = 0; i < voci_.size(); ++i) {
      perNumero_.try_emplace(NumeroDiVoce(voci_[i]), i);
      perDescrizione_.try_emplace(voci_[i].Descrizione, i);
    }
  }

  const std::vector<Voce>& Voci() const { return voci_; }
  /// nullptr when there is none.
  const Voce* ConNumero(std::int16_t numero) const { return Di(perNumero_, numero); }
  const Voce* ConDescrizione(const std::string& descrizione) const {
    return Di(perDescrizione_, descrizione);
  }

 private:
  template <class Chiave>
  const Voce* Di(const std::unordered_map<Chiave, std::size_t>& indice, const Chiave& chiave) const {
    const auto trovata = indice.find(chiave);
    return trovata == indice.end() ? nullptr : &voci_[trovata->second];
  }

  std::vector<Voce> voci_;
  std::unordered_map<std::int16_t, std::size_t> perNumero_;
  std::unordered_map<std::string, std::size_t> perDescrizione_;
};

template <class Voce>
using VociSezioni = std::array<ElencoVoci<Voce>, MaxSezioni>;

/// A number of this type that may be meant by one that it does not have.
struct NumeroProposto {
  std::int16_t Numero = 0;
  const TipoDoc* Altro = nullptr;  // who calls the unknown number so
  std::string Descrizione;
};

class VociTipo {
 public:
  /// Both must outlive this.
  VociTipo(const Catalogo& catalogo, const TipoDoc& tipo);

  const TipoDoc& Tipo() const { return tipo_; }
  bool TreSezioni() const { return HaTreSezioni(tipo_.NumSezioni); }
  std::span<const Sezione> Sezioni() const;

  /// What is wrong with the lines of its sections: where there is something, nothing can be checked.
  const std::vector<ErroreSezione>& Errori() const { return errori_; }

  template <class Voce>
  const ElencoVoci<Voce>& Di(Sezione sezione) const {
    return Tabelle(static_cast<const Voce*>(nullptr))[Indice(sezione)];
  }
  /// The sections that offer a number.
  template <class Voce>
  std::vector<Sezione> ConNumero(std::int16_t numero) const {
    std::vector<Sezione> sezioni;
    for (const Sezione sezione : Sezioni())
      if (Di<Voce>(sezione).ConNumero(numero) != nullptr) sezioni.push_back(sezione);
    return sezioni;
  }

  /// Of a number that no section offers: the number of that entry of one of `qui` which another type's entry
  /// of the number has the description of. The first one in the order of the catalogue's types.
  template <class Voce>
  std::optional<NumeroProposto> Proponi(std::int16_t numero, std::span<const Sezione> qui);

 private:
  /// An entry of another type.
  struct VoceAltrui {
    const TipoDoc* Di;
    std::string Descrizione;
  };
  /// By number; made when it is first asked for. Lines that cannot be read are ignored.
  using Altrui = std::unordered_map<std::int16_t, std::vector<VoceAltrui>>;

  const VociSezioni<Variabile>& Tabelle(const Variabile* /*quali*/) const { return variabili_; }
  const VociSezioni<Flag>& Tabelle(const Flag* /*quali*/) const { return flag_; }
  template <class Voce>
  Altrui LeggiAltrui() const;
  template <class Voce>
  const Altrui& DegliAltri();

  const Catalogo& catalogo_;
  const TipoDoc& tipo_;
  VociSezioni<Variabile> variabili_;
  VociSezioni<Flag> flag_;
  std::vector<ErroreSezione> errori_;
  std::optional<Altrui> variabiliAltrui_;
  std::optional<Altrui> flagAltrui_;
};

}  // namespace parvik
