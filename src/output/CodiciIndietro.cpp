#include "output/CodiciIndietro.h"

#include <algorithm>
#include <optional>

#include "tokens/Codice.h"
#include "tokens/CodiceCorsa.h"

namespace parvik {
namespace {

/// Times of the body that a run can tell apart.
constexpr int VolteDiverse = 3;

}  // namespace

std::optional<GiroCorsa> GiroDavanti(const GiroCorsa& giro, int ripetizioni) {
  if (giro.Dove == Sezione::Testata) return std::nullopt;
  if (giro.Dove == Sezione::Corpo && giro.Volta > 0)
    return GiroCorsa{.Dove = Sezione::Corpo, .Volta = giro.Volta - 1};
  if (giro.Dove == Sezione::Piede && ripetizioni > 0)
    return GiroCorsa{.Dove = Sezione::Corpo, .Volta = std::min(ripetizioni, VolteDiverse) - 1};
  return GiroCorsa{};
}

bool CodiciIndietro::Passa() {
  while (true) {
    const std::optional<std::size_t> chiusura = Testo().Precedente(Segno::Chiusura, qui_);
    if (!chiusura) {
      const std::optional<GiroCorsa> davanti = GiroDavanti(giro_, ripetizioni_);
      if (!davanti) return false;
      giro_ = *davanti;
      qui_ = Testo().Dimensione();
      continue;
    }
    const Pezzo pezzo = Testo().PezzoDi(*chiusura);
    qui_ = pezzo.Inizio;
    if (pezzo.Genere != GenerePezzo::Codice) continue;
    codice_ = Testo().Byte(pezzo);
    return true;
  }
}

std::string_view CodiciIndietro::Contenuto() const {
  return ContenutoDi(codice_);
}

bool MostraProssimo(CodiciIndietro qui, const StatiFlag& stati) {
  while (qui.Passa()) {
    if (Riconosci(qui.Contenuto()) != TipoCodice::Flag) return true;
    if (const auto stato = stati(FlagCorsa(qui.Contenuto()))) return *stato;
  }
  return true;
}

std::size_t UltimaLarghezza(CodiciIndietro qui, const StatiFlag& stati) {
  while (qui.Passa()) {
    const TipoCodice tipo = Riconosci(qui.Contenuto());
    if (tipo == TipoCodice::Flag || !MostraProssimo(qui, stati)) return 0;
    if (tipo == TipoCodice::Sconosciuto) continue;
    return TrovaVar(TipoStampa::File, stati)(qui.Contenuto()).Lunghezza();
  }
  return 0;
}

}  // namespace parvik
