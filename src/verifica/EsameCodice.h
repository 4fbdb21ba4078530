// What is wrong with one code, wherever it stands (docs/verifica.md).
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "common/Sezione.h"
#include "tokens/Codice.h"
#include "verifica/Rilievo.h"
#include "verifica/VociTipo.h"

namespace parvik {

/// A finding of a code, before it has a place.
struct Giudizio {
  Regola Quale = Regola::CodiceSconosciuto;
  std::string Testo;
  std::optional<std::string> Proposta = {};
  Rimedio Cosa = Rimedio::Nessuno;
};

struct EsitoCodice {
  TipoCodice Tipo = TipoCodice::Sconosciuto;
  bool FlagDelTipo = false;  // its number is one of the type's flags, or of the page conditions
  std::vector<Giudizio> Giudizi;

  bool Incompleto() const { return !Giudizi.empty() && Giudizi.front().Quale == Regola::CodiceIncompleto; }
};

/// Where numbers are looked up.
struct DoveCercarlo {
  Sezione Qui = Sezione::Testata;
  bool Certa =
      true;  // false: which section a code belongs to is not known, and all of the type are looked at
};

/// Looks at the codes of one section. Codes that it has met it knows again.
class EsameCodici {
 public:
  /// `voci` must outlive this.
  EsameCodici(VociTipo& voci, DoveCercarlo dove);

  /// What was said of a content before, if it is still known; nullptr otherwise.
  const EsitoCodice* Noto(std::string_view contenuto) const {
    const auto noto = noti_.find(contenuto);
    return noto == noti_.end() ? nullptr : &noto->second;
  }
  /// A whole code without its delimiters, in one line and with no opening inside. Valid until the next call.
  const EsitoCodice& operator()(std::string_view contenuto);

 private:
  struct Impasto {
    using is_transparent = void;  // NOLINT(readability-identifier-naming): containers call it so
    std::size_t operator()(std::string_view testo) const { return std::hash<std::string_view>()(testo); }
  };

  void Esamina(std::string_view contenuto);
  void EsaminaVariabile(std::string_view contenuto);
  void EsaminaFlag(std::string_view contenuto);
  void EsaminaFormato(std::string_view contenuto, std::span<const Variabile> variabili,
                      std::span<const Flag> flag);
  void EsaminaTesti(std::string_view contenuto);
  void Aggiungi(Regola regola, std::string testo) { esito_.Giudizi.push_back({regola, std::move(testo)}); }

  std::span<const Sezione> SezioniQui() const;
  template <class Voce>
  const Voce* VoceQui(std::int16_t numero) const;
  template <class Voce>
  void NonQui(std::string_view contenuto, std::optional<std::int16_t> numero);
  template <class Voce>
  const std::optional<NumeroProposto>& Proposto(std::int16_t numero);

  VociTipo& voci_;
  DoveCercarlo dove_;
  std::unordered_map<std::string, EsitoCodice, Impasto, std::equal_to<>> noti_;
  std::unordered_map<std::int16_t, std::optional<NumeroProposto>> variabiliProposte_;
  std::unordered_map<std::int16_t, std::optional<NumeroProposto>> flagProposti_;
  EsitoCodice esito_;
};

/// What a code cannot do without and has not, in words; "" when it has it all. Of known kind.
std::string Mancanza(std::string_view contenuto);

/// A content between its delimiters, for a text of a finding: cut where it is long.
std::string CodiceCitato(std::string_view contenuto);

}  // namespace parvik
