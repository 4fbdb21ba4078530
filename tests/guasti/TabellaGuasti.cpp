#include "guasti/TabellaGuasti.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <csignal>

#include "common/ErroreRuntime.h"
#include "sistema/posix/Errno.h"

namespace parvik::prova {
namespace {

using Elenco = std::vector<std::string>;

constexpr std::array ErroriProvati = {ENOSPC, EIO, EDQUOT, EACCES, EROFS, EINTR};

std::string Parola(Disco disco) {
  switch (disco) {
    case Disco::Nuovo:
      return "new";
    case Disco::Vecchio:
      return "old";
    case Disco::Copia:
      return "old*";
    case Disco::Perso:
      break;
  }
  ADD_FAILURE() << "nothing whole is left";
  return "lost";
}

/// That the fault came in at its call, and nowhere before.
void AttendiColpita(const EsitoSalvataggio& esito, int chiamata, const std::string& nome) {
  ASSERT_GE(esito.Chiamate.size(), static_cast<std::size_t>(chiamata));
  for (int i = 1; i < chiamata; ++i) {
    EXPECT_FALSE(esito.Chiamate[static_cast<std::size_t>(i) - 1].ends_with(" !"));
  }
  EXPECT_EQ(esito.Chiamate[static_cast<std::size_t>(chiamata) - 1], nome + " !");
}

constexpr std::string_view AvvisoDiritti =
    "avviso: Il file è salvato, ma con diritti di accesso più ristretti di prima";

/// A save that reports no error succeeded; any other reports the fault's own, and where the old bytes are if
/// they are not in the file.
std::string CellaErrore(const SalvataggioGuasto& salvataggio, const EsitoSalvataggio& esito, int errore) {
  const std::string parola = Parola(esito.Stato);
  if (esito.Programma.Stato == 0) {
    EXPECT_EQ(parola, "new");
    if (esito.Programma.Errori.empty()) return parola;
    EXPECT_EQ(esito.Programma, (Esecuzione{0, "", Detto(salvataggio.File(), AvvisoDiritti)}));
    return parola + " (rights)";
  }
  const NumeroErrore numero = DaErrno(errore);
  std::string detto = TestoErrore(numero);
  // Where nothing works any more the program cannot know that the first write changed nothing.
  const bool forse = !esito.Copia.empty() && esito.Programma.Errori.find("a metà") != std::string::npos;
  if (esito.Stato == Disco::Copia || forse) {
    detto +=
        " - Il file può essere rimasto a metà: il contenuto di prima è intero in " + esito.Copia.string();
  }
  EXPECT_EQ(esito.Programma, (Esecuzione{2, "", Detto(salvataggio.File(), detto)}));
  return parola + " " + std::to_string(static_cast<int>(numero));
}

std::string Cella(const SalvataggioGuasto& salvataggio, int chiamata, const std::string& nome, int errore) {
  Elenco celle;
  for (const bool perSempre : {false, true}) {
    const EsitoSalvataggio esito =
        salvataggio.Salva({{.Chiamata = chiamata, .Errore = errore, .PerSempre = perSempre}});
    AttendiColpita(esito, chiamata, nome);
    celle.push_back(CellaErrore(salvataggio, esito, errore));
  }
  return celle[0] == celle[1] ? celle[0] : celle[0] + " / " + celle[1];
}

std::string CellaUccisione(const SalvataggioGuasto& salvataggio, int chiamata, const std::string& nome) {
  const EsitoSalvataggio esito =
      salvataggio.Salva({{.Chiamata = chiamata, .Quale = Guasto::Genere::Uccisione}});
  AttendiColpita(esito, chiamata, nome);
  EXPECT_EQ(esito.Programma, (Esecuzione{-SIGKILL, "", ""}));
  EXPECT_EQ(esito.Chiamate.size(), static_cast<std::size_t>(chiamata));
  return Parola(esito.Stato);
}

}  // namespace

std::vector<Elenco> TabellaGuasti(Via via) {
  const SalvataggioGuasto salvataggio(via);
  const EsitoSalvataggio sano = salvataggio.Salva({});
  EXPECT_EQ(sano.Programma, (Esecuzione{0, "", ""}));
  EXPECT_EQ(sano.Stato, Disco::Nuovo);
  std::vector<Elenco> tabella;
  for (const std::string& nome : sano.Chiamate) {
    const int chiamata = static_cast<int>(tabella.size()) + 1;
    const testing::ScopedTrace dove(__FILE__, __LINE__, std::to_string(chiamata) + " " + nome);
    Elenco riga = {std::to_string(chiamata), nome};
    for (const int errore : ErroriProvati) riga.push_back(Cella(salvataggio, chiamata, nome, errore));
    riga.push_back(CellaUccisione(salvataggio, chiamata, nome));
    tabella.push_back(std::move(riga));
  }
  return tabella;
}

}  // namespace parvik::prova
