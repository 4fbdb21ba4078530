// Find and replace, as decisions: what is looked through, where the caret goes, what is changed
// (docs/ricerca.md).
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cerca/Sostituzione.h"
#include "common/Esito.h"
#include "editor/Ricerca.h"
#include "editor/TipoInUso.h"
#include "editor/Vista.h"
#include "template/Documento.h"

namespace parvik {

enum class Verso { Avanti, Indietro };

/// Whether the focus goes to what was found.
enum class Fuoco { Resta, Segue };

/// What the editor stands at.
struct ContestoRicerca {
  TipoInUso* Tipo = nullptr;  // nullptr while none is chosen: then nothing is looked for
  Sezione Attiva = Sezione::Testata;
};

class ComandiRicerca {
 public:
  /// All must outlive it.
  ComandiRicerca(Documento& documento, Vista& vista, std::function<ContestoRicerca()> contesto);

  const Ricerca& Trovate() const { return ricerca_; }

  /// What is looked for from now on; nullopt: nothing.
  void Cerca(std::optional<RichiestaRicerca> richiesta, CompilaEspressione compila);
  /// The preview pane holds another text.
  void CambiatoPannello() { ricerca_.CambiataAnteprima(); }
  /// Nothing is known of what was found.
  void Dimentica();

  /// Whether it is to be looked for anew.
  bool DaRifare() const;
  /// Looks for it, or gives the search that is to be made on a thread. Only when it is to be looked for.
  std::optional<LavoroRicerca> Rinnova();
  /// What has become of that search.
  void Consegna(LavoroRicerca::Fatto fatto);

  // What follows says what there is to say of it, UTF-8.

  /// How many there are, and which of them is the current one: "12 risultati", "3 di 12".
  std::string Detto() const;
  /// Selects the one behind the caret, or the one in front of it.
  std::string Trova(Verso verso, Fuoco fuoco);
  /// Puts what was written (Windows-1252) in the place of the current one, where there is one; "" when
  /// nothing speaks against going on to the next. Nothing is replaced in the preview.
  std::string SostituisciAttuale(std::string_view scritto);
  /// The same of all of them, in one step.
  std::string SostituisciTutte(std::string_view scritto);

 private:
  using PerSezione = std::array<std::vector<Selezione>, MaxSezioni>;

  /// Changes, by section, and what of them cannot be made.
  struct Piano {
    std::array<Sostituzioni, MaxSezioni> Sezioni;
    std::array<std::string, MaxSezioni> Testi;
    bool DiCodici = false;
    bool Toglie = false;
    std::size_t Fatte = 0;
    std::size_t Tagliate = 0;
    std::size_t Inadatte = 0;
  };

  std::vector<Sezione> SezioniDaCercare(const ContestoRicerca& contesto) const;
  PostoTrovato Partenza() const;
  void Seleziona(const PostoTrovato& posto, Fuoco fuoco);
  Esito<Piano, std::string> Prepara(std::string_view scritto, const PerSezione& quali) const;
  Esito<Piano, std::string> Sostituisci(std::string_view scritto, const PerSezione& quali);
  void Fai(const Piano& piano);
  static std::string Dette(const Piano& piano);

  Documento& documento_;
  Vista& vista_;
  std::function<ContestoRicerca()> contesto_;
  Ricerca ricerca_;
  CompilaEspressione compila_;
  std::optional<CursoreSezione> lasciato_;  // the caret as going to the current one has left it
};

}  // namespace parvik
