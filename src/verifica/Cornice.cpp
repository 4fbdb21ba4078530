// Frames: bars between ruling lines, and the crosses where they should meet.
#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "verifica/EsamePagina.h"
#include "verifica/RigheStampate.h"

namespace parvik {
namespace {

/// Columns from 0, side by side; `A` is behind the last one.
struct Colonne {
  std::size_t Da = 0;
  std::size_t A = 0;
};

/// In their order, with a gap between any two.
using Gruppi = std::vector<Colonne>;

void Aggiungi(Colonne colonne, Gruppi& gruppi) {
  if (!gruppi.empty() && gruppi.back().A == colonne.Da) {
    gruppi.back().A = colonne.A;
  } else {
    gruppi.push_back(colonne);
  }
}

/// Calls `trovate` with the columns of a line that have a character, from the left, until it says false.
template <class Trovate>
bool OgniColonna(const RigaStampata& riga, char carattere, Trovate trovate) {
  std::size_t colonna = 0;
  for (const ParteStampata& parte : riga.Parti) {
    if (parte.Volte > 0) {
      if (parte.Carattere == carattere && !trovate(Colonne{colonna, colonna + parte.Volte})) return false;
    } else {
      const std::string_view testo = parte.Testo;
      for (std::size_t da = testo.find(carattere); da != std::string_view::npos;) {
        const std::size_t a = std::min(testo.find_first_not_of(carattere, da), testo.size());
        if (!trovate(Colonne{colonna + da, colonna + a})) return false;
        da = testo.find(carattere, a);
      }
    }
    colonna += parte.Lunghezza();
  }
  return true;
}

Gruppi ColonneDi(const RigaStampata& riga, char carattere) {
  Gruppi gruppi;
  OgniColonna(riga, carattere, [&gruppi](Colonne colonne) {
    Aggiungi(colonne, gruppi);
    return true;
  });
  return gruppi;
}

/// The crosses of a ruling line: only +, -, = and spaces, and at least two +. nullopt of any other line.
std::optional<Gruppi> Croci(const RigaStampata& riga) {
  constexpr std::string_view DiCornice = "+-= ";
  for (const ParteStampata& parte : riga.Parti) {
    const std::string_view caratteri = parte.Volte > 0 ? std::string_view(&parte.Carattere, 1) : parte.Testo;
    if (caratteri.find_first_not_of(DiCornice) != std::string_view::npos) return std::nullopt;
  }
  Gruppi croci = ColonneDi(riga, '+');
  const bool due = croci.size() > 1 || (croci.size() == 1 && croci.front().A - croci.front().Da > 1);
  if (!due) return std::nullopt;
  return croci;
}

/// The columns of either.
Gruppi Unione(const Gruppi& uni, const Gruppi& altri) {
  Gruppi tutti;
  std::ranges::merge(uni, altri, std::back_inserter(tutti), {}, &Colonne::Da, &Colonne::Da);
  Gruppi unione;
  for (const Colonne& colonne : tutti) {
    if (!unione.empty() && colonne.Da <= unione.back().A) {
      unione.back().A = std::max(unione.back().A, colonne.A);
    } else {
      unione.push_back(colonne);
    }
  }
  return unione;
}

/// The columns of both.
Gruppi Comuni(const Gruppi& uni, const Gruppi& altri) {
  Gruppi comuni;
  for (auto uno = uni.begin(), altro = altri.begin(); uno != uni.end() && altro != altri.end();) {
    const Colonne tratto{std::max(uno->Da, altro->Da), std::min(uno->A, altro->A)};
    if (tratto.Da < tratto.A) comuni.push_back(tratto);
    ++(uno->A < altro->A ? uno : altro);
  }
  return comuni;
}

/// The first column of `colonne` that is not among them; nullopt when all are.
std::optional<std::size_t> Fuori(Colonne colonne, const Gruppi& gruppi) {
  const auto dopo = std::ranges::upper_bound(gruppi, colonne.Da, {}, &Colonne::Da);
  if (dopo == gruppi.begin() || std::prev(dopo)->A <= colonne.Da) return colonne.Da;
  const std::size_t fine = std::prev(dopo)->A;
  if (fine < colonne.A) return fine;
  return std::nullopt;
}

/// A line between two ruling lines.
class Controllo {
 public:
  Controllo(const Gruppi& sopra, const Gruppi& sotto)
      : ammesse_(Unione(sopra, sotto)), dovute_(Comuni(sopra, sotto)) {}

  /// What is wrong with the line, "" when nothing is.
  std::string operator()(const RigaStampata& riga) const {
    std::optional<std::size_t> inPiu;
    std::optional<std::size_t> inMeno;
    std::size_t viste = 0;  // bytes of the line in which every due column has its bar
    bool barre = false;
    OgniColonna(riga, '|', [&](Colonne colonne) {
      barre = true;
      inPiu = Fuori(colonne, ammesse_);
      if (!inMeno) inMeno = PrimaDovuta(viste, colonne.Da);
      viste = colonne.A;
      return !inPiu;
    });
    if (!barre) return {};
    if (inPiu) return Detto("una barra", *inPiu, ", dove né la riga sopra né quella sotto hanno un +");
    if (!inMeno) inMeno = PrimaDovuta(viste, std::string_view::npos);
    if (inMeno) return Detto("manca la barra", *inMeno, ", dove la riga sopra e quella sotto hanno un +");
    return {};
  }

 private:
  static std::string Detto(std::string_view che, std::size_t colonna, std::string_view dove) {
    return std::string(che) + " a colonna " + std::to_string(colonna + 1) + std::string(dove);
  }

  /// The first due column from `da` on, in front of `a`.
  std::optional<std::size_t> PrimaDovuta(std::size_t da, std::size_t a) const {
    if (da >= a) return std::nullopt;
    const auto prima =
        std::ranges::upper_bound(dovute_, da, {}, &Colonne::A);  // the first that ends behind it
    if (prima == dovute_.end()) return std::nullopt;
    const std::size_t colonna = std::max(prima->Da, da);
    if (colonna >= a) return std::nullopt;
    return colonna;
  }

  Gruppi ammesse_;  // a bar may stand there
  Gruppi dovute_;   // a bar must
};

/// Moves on to the next ruling line; its crosses, or nullopt when there is none.
std::optional<Gruppi> ProssimaCornice(RigheStampate& righe) {
  for (RigaStampata riga; righe.Prossima(riga);)
    if (std::optional<Gruppi> croci = Croci(riga)) return croci;
  return std::nullopt;
}

}  // namespace

void EsaminaCornici(const std::array<std::string_view, MaxSezioni>& testi, std::vector<Rilievo>& rilievi) {
  RigheStampate sotto(testi);
  std::optional<Gruppi> croci = ProssimaCornice(sotto);
  while (croci) {
    RigheStampate fra = sotto;  // what lies between is gone over again when both ends are known
    std::optional<Gruppi> seguente = ProssimaCornice(sotto);
    if (!seguente) return;
    const Controllo controllo(*croci, *seguente);
    for (RigaStampata riga; fra.Prossima(riga) && !Croci(riga);) {
      std::string detto = controllo(riga);
      if (detto.empty()) continue;
      rilievi.push_back({.Quale = Regola::Cornice,
                         .Dove = riga.Dove,
                         .Inizio = riga.Inizio,
                         .Lunghezza = riga.Fine - riga.Inizio,
                         .Testo = std::move(detto)});
    }
    croci = std::move(seguente);
  }
}

}  // namespace parvik
