// docs/saving.md
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <map>

#include "common/ErroreRuntime.h"
#include "docs/Pagine.h"
#include "sistema/LetturaFile.h"
#include "sistema/ScritturaSicura.h"
#include "sistema/posix/Errno.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view Pagina = "saving.md";

TEST(SavingPage, TellsNumbersAndDescriptionsOfErrors) {
  const std::map<std::string, NumeroErrore, std::less<>> nomi = {
      {"ArgomentoNonValido", NumeroErrore::ArgomentoNonValido},
      {"Overflow", NumeroErrore::Overflow},
      {"MemoriaEsaurita", NumeroErrore::MemoriaEsaurita},
      {"IndiceFuoriIntervallo", NumeroErrore::IndiceFuoriIntervallo},
      {"TipoNonCorrispondente", NumeroErrore::TipoNonCorrispondente},
      {"FileNonTrovato", NumeroErrore::FileNonTrovato},
      {"ErroreDiPeriferica", NumeroErrore::ErroreDiPeriferica},
      {"DiscoPieno", NumeroErrore::DiscoPieno},
      {"InputOltreFine", NumeroErrore::InputOltreFine},
      {"AutorizzazioneNegata", NumeroErrore::AutorizzazioneNegata},
      {"AccessoPercorsoFile", NumeroErrore::AccessoPercorsoFile},
      {"PercorsoNonTrovato", NumeroErrore::PercorsoNonTrovato}};
  const auto righe = TabellaEsempi(Pagina, "errors", 3);
  EXPECT_EQ(righe.size(), nomi.size());
  for (const RigaEsempio& riga : righe) {
    const NumeroErrore errore = nomi.at(riga.Testo(1));
    EXPECT_EQ(static_cast<int>(errore), riga.Numero(0)) << riga.Posto();
    EXPECT_EQ(Descrizione(errore), riga.Testo(2)) << riga.Posto();
    EXPECT_EQ(TestoErrore(errore), "Si è verificato l'errore: " + riga.Testo(0) + " " + riga.Testo(2))
        << riga.Posto();
  }
}

TEST(SavingPage, TellsWhatTheErrorsOfTheSystemMapTo) {
  const std::map<std::string, int, std::less<>> numeri = {
      {"ENOENT", ENOENT}, {"ENOTDIR", ENOTDIR}, {"EACCES", EACCES}, {"EPERM", EPERM},
      {"EBUSY", EBUSY},   {"ENOSPC", ENOSPC},   {"EDQUOT", EDQUOT}, {"EFBIG", EFBIG},
      {"ENOMEM", ENOMEM}, {"EIO", EIO},         {"ENXIO", ENXIO},   {"EPIPE", EPIPE},
      {"EROFS", EROFS},   {"EISDIR", EISDIR},   {"ELOOP", ELOOP},   {"ENAMETOOLONG", ENAMETOOLONG}};
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "errno", 2)) {
    EXPECT_EQ(static_cast<int>(DaErrno(numeri.at(riga.Testo(0)))), riga.Numero(1)) << riga.Posto();
  }
}

/// Makes what the example names and returns its path.
fs::path Destinazione(const CartellaTemporanea& cartella, const std::string& quale) {
  const fs::path file = cartella / "file";
  const fs::path altro = cartella / "altro";
  if (quale == "a file that does not exist") return file;
  if (quale == "a file in a missing folder") return file / "dentro";
  if (quale == "a link that leads to itself") {
    fs::create_symlink(altro, altro);
    return altro;
  }
  if (quale == "a pipe that nobody reads") {
    EXPECT_EQ(::mkfifo(altro.c_str(), 0600), 0);
    return altro;
  }
  if (quale == "a folder") return cartella.Percorso();
  Crea(file, "vecchio");
  if (quale == "a regular file") return file;
  if (quale == "a file in a folder that is a file") return file / "dentro";
  if (quale == "a link to a regular file") {
    fs::create_symlink(file, altro);
    return altro;
  }
  if (quale == "a file with two names") {
    fs::create_hard_link(file, altro);
    return altro;
  }
  ADD_FAILURE() << "no such destination: " << quale;
  return file;
}

std::string Numero(NumeroErrore errore) {
  return std::to_string(static_cast<int>(errore));
}

TEST(SavingPage, TellsWhatBecomesOfEachDestination) {
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "destinations", 3)) {
    const CartellaTemporanea cartella;
    const fs::path destinazione = Destinazione(cartella, riga.Testo(0));
    const Esito<std::string> letto = LeggiFile(destinazione);
    EXPECT_EQ(letto ? "done" : Numero(letto.Errore()), riga.Testo(2)) << riga.Posto();
    const EsitoScrittura scritto = ScriviFile(destinazione, "nuovo");
    EXPECT_EQ(scritto ? "done" : Numero(scritto.Errore().Numero), riga.Testo(1)) << riga.Posto();
    if (riga.Testo(1) != "done") continue;
    EXPECT_EQ(Contenuto(destinazione), "nuovo") << riga.Posto();
    EXPECT_EQ(Contenuto(cartella / "file"), "nuovo") << riga.Posto();
  }
}

}  // namespace
}  // namespace parvik::prova
