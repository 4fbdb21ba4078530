// What is looked for in the open template, while somebody looks for it: where it was found, and where that is
// now (docs/ricerca.md).
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cerca/Cercatore.h"
#include "common/Sezione.h"
#include "editor/TipoInUso.h"
#include "output/SelezioneAnteprima.h"
#include "template/Documento.h"
#include "template/Spostamenti.h"

namespace parvik {

/// The texts that are looked through: the sections, and what the preview pane holds.
enum class LuogoRicerca { Testata, Corpo, Piede, Anteprima };
inline constexpr std::size_t NumLuoghi = 4;

constexpr std::size_t Indice(LuogoRicerca luogo) {
  return static_cast<std::size_t>(luogo);
}
constexpr LuogoRicerca LuogoDi(Sezione sezione) {
  return static_cast<LuogoRicerca>(Indice(sezione));
}
/// Of any but the preview.
constexpr Sezione SezioneDi(LuogoRicerca luogo) {
  return static_cast<Sezione>(luogo);
}

enum class Ambito { SezioneAttiva, Tutte, Anteprima };

struct RichiestaRicerca {
  Criterio Cosa;
  Ambito Dove = Ambito::SezioneAttiva;

  bool operator==(const RichiestaRicerca&) const = default;
};

/// What is looked through now, and what its codes are read against.
struct DoveSiCerca {
  std::vector<Sezione> Sezioni;
  std::array<std::shared_ptr<const TabelleSezione>, MaxSezioni> Tabelle = {};
  std::optional<SelezioneAnteprima> Anteprima = {};
};

/// A search, to be made on any thread.
class LavoroRicerca {
 public:
  using Numero = std::uint64_t;
  using Posti = std::array<std::vector<Selezione>, NumLuoghi>;

  LavoroRicerca(Numero numero, Criterio cosa, CompilaEspressione compila, const Documento& documento,
                DoveSiCerca dove);

  struct Trovato {
    LavoroRicerca::Posti Posti;  // in their order, apart
    bool Interrotta = false;     // it took longer than anybody waits
    std::string Errore;          // what is wrong with the expression, UTF-8
  };
  struct Fatto {
    LavoroRicerca::Numero Numero = 0;
    std::optional<Trovato> Trovati;  // nullopt where memory was exhausted
  };
  /// Ends after a second or so.
  Fatto Esegui() const;

  /// Whether it takes no longer than a key does by itself.
  bool Breve() const;

 private:
  Trovato Cerca() const;

  Numero numero_;
  Criterio cosa_;
  CompilaEspressione compila_;
  std::array<TestoSezione, MaxSezioni> testi_;
  DoveSiCerca dove_;
};

/// A place that was found.
struct PostoTrovato {
  LuogoRicerca Dove = LuogoRicerca::Testata;
  Selezione Posto;

  bool operator==(const PostoTrovato&) const = default;
};

class Ricerca final : private AscoltatoreDocumento {
 public:
  /// Must outlive it.
  explicit Ricerca(Documento& documento);

  /// What is looked for from now on; nullopt: nothing.
  void Imposta(std::optional<RichiestaRicerca> richiesta, CompilaEspressione compila);
  const std::optional<RichiestaRicerca>& Richiesta() const { return richiesta_; }
  /// There is something to look for.
  bool InCorso() const { return richiesta_ && !richiesta_->Cosa.Testo.empty(); }
  /// The preview pane holds another text.
  void CambiataAnteprima();
  /// Nothing is known of what was found.
  void Dimentica();

  // --- searches: each has a number, and only the one that began last counts

  /// Whether something has changed since the search that is told or under way.
  bool DaRifare(const std::vector<Sezione>& sezioni) const;
  /// Searches: at once where that is quick, or else the search that there is to make, whose result is to be
  /// handed in.
  std::optional<LavoroRicerca> Rinnova(DoveSiCerca dove);
  void Consegna(LavoroRicerca::Fatto fatto);

  // --- what was found

  /// Whether there was a search.
  bool Cercato() const { return mostrata_.has_value(); }
  bool Interrotta() const { return interrotta_; }
  const std::string& Errore() const { return errore_; }
  const std::vector<Selezione>& In(LuogoRicerca luogo) const { return posti_[Indice(luogo)]; }
  /// Those that share a byte with a part of a text, or lie in it without bytes, its end included.
  std::vector<Selezione> In(LuogoRicerca luogo, const Selezione& parte) const;
  std::size_t Quante() const;

  /// The one that was gone to last, as long as nothing has touched it.
  const std::optional<PostoTrovato>& Attuale() const { return attuale_; }
  void ImpostaAttuale(const PostoTrovato& posto) { attuale_ = posto; }
  /// Which of all it is, from 1; nullopt when it is none any more.
  std::optional<std::size_t> NumeroAttuale() const;

  struct Prossimo {
    PostoTrovato Quale;
    bool Ripreso = false;  // behind the end comes the beginning again, and the other way round
  };
  /// The one behind `da`, or in front of it. nullopt where there is none.
  std::optional<Prossimo> Dopo(const PostoTrovato& da) const;
  std::optional<Prossimo> Prima(const PostoTrovato& da) const;

 private:
  /// All that makes one search come out other than another.
  struct Versione {
    RichiestaRicerca Cosa;
    std::vector<Sezione> Sezioni;
    std::uint64_t Testi = 0;
    std::uint64_t Anteprime = 0;

    bool operator==(const Versione&) const = default;
  };
  struct Corsa {
    LavoroRicerca::Numero Numero = 0;
    Versione Di;
    std::array<Spostamenti, MaxSezioni> Da;  // since it took what it reads
  };

  Versione Adesso(std::vector<Sezione> sezioni) const;
  void MettiPosti(LavoroRicerca::Trovato trovato);
  bool EAttuale(LuogoRicerca luogo, const Selezione& posto) const {
    return attuale_ == PostoTrovato{.Dove = luogo, .Posto = posto};
  }
  std::optional<Selezione> PrimaDa(LuogoRicerca luogo, std::size_t da) const;
  std::optional<Selezione> UltimaFinoA(LuogoRicerca luogo, std::size_t a) const;
  void Modificata(const CambiamentoTesto& cambiamento) override;
  void Sostituita(Sezione sezione) override;

  const Documento& documento_;
  std::optional<RichiestaRicerca> richiesta_;
  CompilaEspressione compila_;
  std::uint64_t modifiche_ = 0;  // of the texts
  std::uint64_t anteprime_ = 0;  // and of the pane's
  LavoroRicerca::Numero numero_ = 0;
  std::optional<Corsa> nuova_;  // under way
  std::optional<Versione> mostrata_;
  LavoroRicerca::Posti posti_;  // where they are now
  bool interrotta_ = false;
  std::string errore_;
  std::optional<PostoTrovato> attuale_;
  Documento::Ascolto ascolto_;
};

}  // namespace parvik
