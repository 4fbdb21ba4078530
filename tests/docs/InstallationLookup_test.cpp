// docs/installation-lookup.md
#include <gtest/gtest.h>

#include <regex>

#include "common/ProfiloHost.h"
#include "docs/Pagine.h"
#include "start/Installazione.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

constexpr std::string_view Pagina = "installation-lookup.md";

/// "`a`, `b=contents`": the files of a cell.
void CreaFile(const CartellaTemporanea& cartella, const std::string& cella) {
  const std::regex voce("([^`=,][^`=]*)(=([^`]*))?(`, `|$)");
  int creati = 0;
  for (std::sregex_iterator i(cella.begin(), cella.end(), voce), fine; i != fine; ++i) {
    Crea(cartella / (*i)[1].str(), DaPagina((*i)[3].str()));
    ++creati;
  }
  EXPECT_GT(creati, 0) << cella;
}

TEST(InstallationLookupPage, TellsWhereTheHostIsFound) {
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "lookup", 2)) {
    const CartellaTemporanea cartella;
    CreaFile(cartella, riga.Testo(0));
    const Ambiente ambiente{.DirProgramma = cartella / "host/PARVIK",
                            .CartelleConfigurazione = {cartella / "casa", cartella / "etc"}};
    const std::string atteso = riga.Byte(1);
    const bool relativo = !atteso.empty() && !atteso.starts_with('/');
    EXPECT_EQ(TrovaDirVelkor(ambiente).string(), relativo ? (cartella / atteso).string() : atteso)
        << riga.Posto();
  }
}

TEST(InstallationLookupPage, TellsWhatAProfileSays) {
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "profile", 2)) {
    EXPECT_EQ(LeggiProfilo(riga.Byte(0), "AMBIENTE", "Dir velkor"), riga.Byte(1)) << riga.Posto();
  }
}

}  // namespace
}  // namespace parvik::prova
