// docs/key-rules.md

#include <gtest/gtest.h>

#include "common/Windows1252.h"
#include "docs/Pagine.h"
#include "supporto/TestoConSelezione.h"
#include "template/ParoleSezione.h"
#include "template/TastiSezione.h"

namespace parvik::prova {
namespace {

std::string ConFineRiga(std::string testo) {
  constexpr std::string_view Segno = "⏎";
  for (std::size_t i = testo.find(Segno); i != std::string::npos; i = testo.find(Segno, i)) {
    testo.replace(i, Segno.size(), "\n");
  }
  return testo;
}

/// A code span of a table's cell as it is drawn: the bar is written with a backslash there.
std::string Disegno(std::string testo) {
  std::erase(testo, '\\');
  std::erase(testo, '`');
  return ConFineRiga(std::move(testo));
}

constexpr std::string_view Tenuto = "held ";

Pressione PressioneDi(const std::string& nome) {
  return nome.starts_with(Tenuto) ? Pressione::Ripetuta : Pressione::Prima;
}

TastoSezione Tasto(std::string_view nome) {
  if (nome.starts_with(Tenuto)) nome.remove_prefix(Tenuto.size());
  if (nome == "removal") return TastoSezione::Togli;
  if (nome == "Backspace") return TastoSezione::Backspace;
  if (nome == "Delete") return TastoSezione::Canc;
  if (nome == "F4") return TastoSezione::F4;
  EXPECT_EQ(nome, "Space");
  return TastoSezione::Spazio;
}

std::string Detto(const TestoSezione& testo, const EsitoTasto& esito) {
  switch (esito.Azione) {
    case AzioneTasto::Consueta:
      return "usual";
    case AzioneTasto::Nessuna:
      return "discarded";
    case AzioneTasto::Allarga:
      return "selects " + Scritto(testo, esito.Nuova);
    case AzioneTasto::ApriCodice:
      return "opens " + Scritto(testo, esito.Nuova);
    case AzioneTasto::ApriVariabile:
      return "new variable";
  }
  return "";
}

TEST(KeyRulesPage, TellsWhatTheKeysDo) {
  for (const RigaEsempio& riga : TabellaEsempi("key-rules.md", "keys", 3)) {
    const ConSelezione caso(Disegno(riga.Testo(0)));
    const EsitoTasto esito =
        PremiTasto(caso.Testo, caso.Selezionato, Tasto(riga.Testo(1)), PressioneDi(riga.Testo(1)));
    EXPECT_EQ(Detto(caso.Testo, esito), Disegno(riga.Testo(2))) << riga.Posto();
  }
}

Selezione DiParola(const TestoSezione& testo, std::size_t cursore, const std::string& tasto) {
  if (tasto == "Ctrl+Right") return {.Inizio = ParolaSeguente(testo, cursore), .Lunghezza = 0};
  if (tasto == "Ctrl+Left") return {.Inizio = ParolaPrecedente(testo, cursore), .Lunghezza = 0};
  EXPECT_EQ(tasto, "double click");
  return ParolaSotto(testo, cursore);
}

TEST(KeyRulesPage, TellsWhatAWordIs) {
  for (const RigaEsempio& riga : TabellaEsempi("key-rules.md", "words", 3)) {
    const ConSelezione caso(Disegno(riga.Testo(0)));
    const Selezione dopo = DiParola(caso.Testo, caso.Selezionato.Inizio, riga.Testo(1));
    EXPECT_EQ(Scritto(caso.Testo, dopo), Disegno(riga.Testo(2))) << riga.Posto();
  }
}

}  // namespace
}  // namespace parvik::prova
