// The checker: a template, its type and the catalogue give findings (docs/verifica.md).
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "catalogue/Catalogo.h"
#include "common/ByteFile.h"
#include "common/Esito.h"
#include "common/Sezione.h"
#include "template/Marcatore.h"
#include "template/PreparaImmagine.h"
#include "verifica/EsameCodice.h"
#include "verifica/Rilievo.h"
#include "verifica/VociTipo.h"

namespace parvik {

class ImmagineInPosto;
struct EsitoImmagine;
struct RigaDelMarcatore;

/// What somebody wants to be told.
struct OpzioniVerifica {
  InsiemeRegole Regole = InsiemeRegole::Tutte();
  std::optional<std::size_t> Larghezza = {};  // characters that a printed line may have
  std::optional<std::size_t> Righe = {};      // lines that a page may have
  bool Cornici = false;
};

/// A template as it is being edited. In a type of one section only the Testata has a meaning.
struct TestiDaVerificare {
  std::array<std::string_view, MaxSezioni> Testi;  // Windows-1252, lines separated by CR LF
  ImpostazioniCorpo Corpo;
};

/// Findings by line, column and rule.
using EsitoVerifica = Esito<std::vector<Rilievo>>;

/// Checks templates of one type, any number of them, one at a time: it remembers codes that it has found in
/// order, and so belongs to one thread. A check is linear in the template, and takes memory for what it
/// finds. An error only when memory is exhausted.
class Verificatore {
 public:
  /// Both must outlive this.
  Verificatore(const Catalogo& catalogo, const TipoDoc& tipo);
  Verificatore(const Verificatore&) = delete;
  Verificatore& operator=(const Verificatore&) = delete;
  ~Verificatore() = default;

  const TipoDoc& Tipo() const { return voci_.Tipo(); }
  const VociTipo& Voci() const { return voci_; }
  /// Where there is something, the catalogue does not say what the type offers: nothing can be checked.
  const std::vector<ErroreSezione>& Errori() const { return voci_.Errori(); }

  /// A file's bytes, that `prepara`, made for the type's layout, was shown, or a beginning of them. Lines and
  /// columns are those of the file; the rules of texts in a window are not given.
  EsitoVerifica File(ByteFile byte, const PreparaImmagine& prepara, const OpzioniVerifica& opzioni);
  /// The same of a copy of them.
  EsitoVerifica File(std::string_view byte, const OpzioniVerifica& opzioni);

  /// Texts in a window. Lines are those of each section, from 1, and findings come section by section. What
  /// only a file has (the line of its marker, its line ends) is not looked at.
  EsitoVerifica Testi(const TestiDaVerificare& testi, const OpzioniVerifica& opzioni);

 private:
  struct Lavoro;

  void EsaminaFile(const ImmagineInPosto& immagine, Lavoro& lavoro);
  static void EsaminaRigheCorpo(const EsitoImmagine& letta, std::string_view byte,
                                const RigaDelMarcatore& marcatore, Lavoro& lavoro);
  void EsaminaTesti(Lavoro& lavoro);
  void EsaminaFinestra(Lavoro& lavoro) const;
  void EsaminaSezioni(Lavoro& lavoro);
  void EsaminaPagina(Lavoro& lavoro) const;

  VociTipo voci_;
  std::array<EsameCodici, MaxSezioni> perSezione_;
  std::array<EsameCodici, MaxSezioni> ovunque_;  // where it is not known which section a code belongs to
};

}  // namespace parvik
