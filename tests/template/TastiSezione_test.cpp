#include "template/TastiSezione.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <string>
#include <vector>

#include "common/Delimitatori.h"
#include "supporto/ConNome.h"
#include "supporto/Tasti.h"
#include "supporto/TestoConSelezione.h"

namespace parvik {
namespace {

using prova::BancoSezione;
using prova::Codici;
using prova::ConSelezione;
using prova::Scritto;

/// What became of the text and the selection, and in words what else happened.
std::string Premuto(const char* prima, TastoSezione tasto, Pressione pressione = Pressione::Prima) {
  const ConSelezione caso(prima);
  const EsitoTasto esito = PremiTasto(caso.Testo, caso.Selezionato, tasto, pressione);
  switch (esito.Azione) {
    case AzioneTasto::Consueta:
      return "consueta";
    case AzioneTasto::Nessuna:
      return "nessuna";
    case AzioneTasto::Allarga:
      return "allarga " + Scritto(caso.Testo, esito.Nuova);
    case AzioneTasto::ApriCodice:
      return "apre " + Scritto(caso.Testo, esito.Nuova);
    case AzioneTasto::ApriVariabile:
      return "variabile";
  }
  return "";
}

struct Caso {
  const char* Nome;
  const char* Prima;  // | is the caret, [ ] the selection
  TastoSezione Tasto;
  const char* Atteso;
};
using prova::PrintTo;

class TastiSezioneTest : public testing::TestWithParam<Caso> {};

TEST_P(TastiSezioneTest, DoesWhatTheRuleSays) {
  EXPECT_EQ(Premuto(GetParam().Prima, GetParam().Tasto), GetParam().Atteso);
}

using enum TastoSezione;

// clang-format off
INSTANTIATE_TEST_SUITE_P(Regole, TastiSezioneTest, testing::Values(
    Caso{"backspace_at_the_very_start", "|abc", Backspace, "nessuna"},
    Caso{"backspace_in_an_empty_section", "|", Backspace, "nessuna"},
    Caso{"backspace_on_plain_text", "abc|", Backspace, "consueta"},
    Caso{"backspace_behind_a_code", "a«V1;2L»|b", Backspace, "apre a[«V1;2L»]b"},
    Caso{"backspace_inside_a_code", "a«V1|;2L»b", Backspace, "apre a[«V1;2L»]b"},
    Caso{"backspace_behind_the_opening_delimiter", "a«|V1»b", Backspace, "apre a[«V1»]b"},
    Caso{"backspace_in_front_of_the_closing_delimiter", "a«V1|»b", Backspace, "apre a[«V1»]b"},
    Caso{"backspace_in_front_of_a_code", "a|«V1»b", Backspace, "consueta"},
    Caso{"backspace_one_further_behind_a_code", "«V1»a|", Backspace, "consueta"},
    Caso{"backspace_between_two_codes", "«A»|«B»", Backspace, "apre [«A»]«B»"},
    Caso{"backspace_on_a_selected_code", "a[«ABC»]b", Backspace, "consueta"},
    Caso{"backspace_on_a_selected_code_at_the_start", "[«ABC»]", Backspace, "consueta"},
    Caso{"backspace_on_selected_codes_with_text_between", "a[«A» e «B»]b", Backspace, "consueta"},
    Caso{"backspace_on_a_code_without_its_opening", "x«[ABC»]y", Backspace, "apre x[«ABC»]y"},
    Caso{"backspace_on_text_and_half_a_code", "x[abc«V1];2L»y", Backspace, "allarga x[abc«V1;2L»]y"},
    Caso{"backspace_on_text_and_a_whole_code", "x[abc«V1;2L»]y", Backspace, "consueta"},
    Caso{"backspace_on_selected_text", "x[abc]y", Backspace, "consueta"},
    Caso{"backspace_on_a_selection_from_the_start", "[abc]y", Backspace, "nessuna"},
    Caso{"backspace_behind_a_stray_closing_delimiter", "ab»|c", Backspace, "consueta"},
    Caso{"backspace_behind_a_second_closing_delimiter", "«A»b»|", Backspace, "consueta"},
    Caso{"backspace_behind_a_code_that_is_not_closed", "«abc|", Backspace, "consueta"},
    Caso{"backspace_inside_a_code_over_a_line_end", "«ab\ncd|e»", Backspace, "apre [«ab\ncde»]"},
    Caso{"delete_on_plain_text", "|abc", Canc, "consueta"},
    Caso{"delete_at_the_very_end", "abc|", Canc, "consueta"},
    Caso{"delete_in_front_of_a_code", "a|«V1»b", Canc, "apre a[«V1»]b"},
    Caso{"delete_inside_a_code", "a«V|1»b", Canc, "apre a[«V1»]b"},
    Caso{"delete_in_front_of_the_closing_delimiter", "a«V1|»b", Canc, "apre a[«V1»]b"},
    Caso{"delete_behind_a_code", "a«V1»|b", Canc, "consueta"},
    Caso{"delete_on_a_selected_code", "a[«V1»]b", Canc, "consueta"},
    Caso{"delete_on_half_a_code_from_its_start", "a[«V]1»b", Canc, "apre a[«V1»]b"},
    Caso{"delete_on_text_and_half_a_code", "[a«V]1»b", Canc, "allarga [a«V1»]b"},
    Caso{"delete_on_a_selection_from_the_start", "[abc]y", Canc, "consueta"},
    Caso{"delete_on_the_rest_of_a_code_and_text", "«V[1»ab]c", Canc, "apre [«V1»]abc"},
    Caso{"delete_in_front_of_an_unclosed_code", "a|«bc", Canc, "consueta"},
    Caso{"f4_inside_a_code", "a«V1|»b", F4, "apre a[«V1»]b"},
    Caso{"f4_in_front_of_a_code", "a|«V1»b", F4, "variabile"},
    Caso{"f4_behind_a_code", "a«V1»|b", F4, "variabile"},
    Caso{"f4_on_plain_text", "ab|c", F4, "variabile"},
    Caso{"f4_in_an_unclosed_code", "a«b|c", F4, "variabile"},
    Caso{"f4_with_a_selection_goes_by_its_start", "a«V[1»b]", F4, "apre a[«V1»]b"},
    Caso{"space_inside_a_code", "«V1|;2L»", Spazio, "apre [«V1;2L»]"},
    Caso{"space_outside_codes", "«V1»| a", Spazio, "consueta"},
    Caso{"space_at_the_start", "|a", Spazio, "consueta"},
    Caso{"space_in_an_unclosed_code", "«V1| a", Spazio, "consueta"},
    Caso{"space_on_text_and_half_a_code", "x[a«V]1»b", Spazio, "allarga x[a«V1»]b"},
    Caso{"removing_nothing", "x|y", Togli, "consueta"},
    Caso{"removing_nothing_inside_a_code", "«V|1»", Togli, "consueta"},
    Caso{"removing_text", "[abc]y", Togli, "consueta"},
    Caso{"removing_a_code", "[«V1»]", Togli, "consueta"},
    Caso{"removing_text_and_whole_codes", "x[a«V1»b«V2»]y", Togli, "consueta"},
    Caso{"removing_half_a_code_behind_text", "x[a«V]1»b", Togli, "allarga x[a«V1»]b"},
    Caso{"removing_half_a_code_in_front_of_text", "«V[1»ab]c", Togli, "allarga [«V1»ab]c"},
    Caso{"removing_halves_of_two_codes", "«V[1»a«V]2»", Togli, "allarga [«V1»a«V2»]"},
    Caso{"removing_a_part_of_a_code", "a«V[1;]2L»b", Togli, "allarga a[«V1;2L»]b"},
    Caso{"removing_a_codes_content", "a«[V1]»b", Togli, "allarga a[«V1»]b"},
    Caso{"removing_an_opening_delimiter_alone", "a[«]V1»b", Togli, "allarga a[«V1»]b"},
    Caso{"removing_a_part_of_an_unclosed_code", "a«V[1]b", Togli, "consueta"}),
    [](const auto& caso) { return std::string(caso.param.Nome); });
// clang-format on

TEST(TastoTenuto, OpensNoDialogAndTakesNoSelectionAway) {
  for (const TastoSezione tasto : {Backspace, Canc, F4, Spazio}) {
    EXPECT_EQ(Premuto("«V1|»", tasto, Pressione::Ripetuta), "nessuna");
    EXPECT_EQ(Premuto("x[«V1»]y", tasto, Pressione::Ripetuta), "nessuna");
  }
  EXPECT_EQ(Premuto("x[ab]y", Togli, Pressione::Ripetuta), "nessuna");
  EXPECT_EQ(Premuto("ab|", F4, Pressione::Ripetuta), "nessuna");
  EXPECT_EQ(Premuto("ab|", Backspace, Pressione::Ripetuta), "consueta");
  EXPECT_EQ(Premuto("ab|", Spazio, Pressione::Ripetuta), "consueta");
}

TEST(TastoAssistito, OpensNoDialogAndTakesASelectionAway) {
  EXPECT_EQ(Premuto("«V1|»", Spazio, Pressione::Assistita), "nessuna");
  EXPECT_EQ(Premuto("x[ab]y", Spazio, Pressione::Assistita), "consueta");
}

std::vector<std::string> AlCursore(const char* disegno) {
  const ConSelezione caso(disegno);
  std::vector<std::string> codici;
  for (const Selezione& codice : CodiciAlCursore(caso.Testo, caso.Selezionato.Inizio))
    codici.push_back(caso.Testo.Byte(codice));
  return codici;
}

TEST(CodiciAlCursore, AreTheOneAroundItOrTheOnesBesideIt) {
  const std::string uno = ConSelezione("«V1»").Testo.Byte();
  const std::string due = ConSelezione("«V2»").Testo.Byte();
  using Lista = std::vector<std::string>;
  EXPECT_EQ(AlCursore("a|b«V1»"), Lista{});
  EXPECT_EQ(AlCursore("ab|«V1»c"), Lista{uno});
  EXPECT_EQ(AlCursore("ab«V|1»c"), Lista{uno});
  EXPECT_EQ(AlCursore("ab«V1»|c"), Lista{uno});
  EXPECT_EQ(AlCursore("«V1»|«V2»"), (Lista{uno, due}));
  EXPECT_EQ(AlCursore("a|«b"), Lista{});
  EXPECT_EQ(AlCursore("a»|b"), Lista{});
}

TEST(FuoriDaiCodici, IsBehindTheCodeThatThePlaceLiesIn) {
  const ConSelezione caso("a«V1»b");
  const std::vector<std::size_t> atteso = {0, 1, 5, 5, 5, 5, 6};
  for (std::size_t i = 0; i < atteso.size(); ++i) EXPECT_EQ(FuoriDaiCodici(caso.Testo, i), atteso[i]) << i;
}

TEST(CodiceSotto, CoversTheDelimitersAndNothingBesideThem) {
  const ConSelezione caso("a«V1»b");
  EXPECT_EQ(CodiceSotto(caso.Testo, 0), std::nullopt);
  for (std::size_t i = 1; i <= 4; ++i) {
    EXPECT_EQ(CodiceSotto(caso.Testo, i), (Selezione{.Inizio = 1, .Lunghezza = 4})) << i;
  }
  EXPECT_EQ(CodiceSotto(caso.Testo, 5), std::nullopt);
  EXPECT_EQ(CodiceSotto(caso.Testo, 6), std::nullopt);
}

TEST(CarattereScartato, IsTheFullStopOnly) {
  EXPECT_TRUE(CarattereScartato(U'.'));
  EXPECT_FALSE(CarattereScartato(U','));
  EXPECT_FALSE(CarattereScartato(U' '));
}

/// Any part of a text that cuts no line end, a caret twice in three times.
Selezione UnaSelezione(const TestoSezione& testo) {
  const auto posto = [&testo] {
    const auto riga = *rc::gen::inRange<std::size_t>(0, testo.Righe());
    const Selezione tutta = testo.Riga(riga);
    return tutta.Inizio + *rc::gen::inRange<std::size_t>(0, tutta.Lunghezza + 1);
  };
  const std::size_t uno = posto();
  const std::size_t altro = *rc::gen::inRange(0, 3) == 0 ? posto() : uno;
  return Cursore{.Ancora = uno, .Posto = altro}.Selezionato();
}

TEST(TastiSezioneProprieta, NoSequenceOfKeysThatRemoveLeavesHalfACode) {
  EXPECT_TRUE(rc::check([] {
    std::string disegno;
    for (const int pezzo : *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 6)))
      disegno += pezzo < 2 ? "«V1;2L»" : pezzo == 2 ? "«»" : pezzo == 3 ? "\n" : "ab";
    BancoSezione banco(ConSelezione(disegno).Testo);
    const std::vector<std::string> prima = Codici(banco.Testo());
    for (int passo = 0; passo < 30; ++passo) {
      const TastoSezione tasto = *rc::gen::element(Backspace, Canc, Togli);
      banco.Seleziona(UnaSelezione(banco.Testo()));
      banco.Comandi().Premi(tasto, Pressione::Prima);
      banco.Comandi().Premi(tasto, Pressione::Prima);
      // Every delimiter still belongs to a whole code, and every code is one of those that were there.
      const std::vector<std::string> ora = Codici(banco.Testo());
      const std::string byte = banco.Testo().Byte();
      RC_ASSERT(std::ranges::count(byte, DelimApertura) == static_cast<std::ptrdiff_t>(ora.size()));
      RC_ASSERT(std::ranges::count(byte, DelimChiusura) == static_cast<std::ptrdiff_t>(ora.size()));
      for (const std::string& codice : ora) RC_ASSERT(std::ranges::count(prima, codice) > 0);
    }
  }));
}

TEST(TastiSezioneProprieta, OnlyTheTextUpToTheNextDelimitersMatters) {
  EXPECT_TRUE(rc::check([] {
    const auto lettere = rc::gen::container<std::string>(rc::gen::element('a', DelimApertura, DelimChiusura));
    const TestoSezione testo(*lettere + "\r\n" + *lettere);
    const std::string byte = testo.Byte();
    const Selezione selezione = UnaSelezione(testo);
    const std::size_t inizio = selezione.Inizio;
    const std::size_t fine = selezione.Fine();
    const TastoSezione tasto = *rc::gen::element(Backspace, Canc, F4, Spazio);
    const std::size_t davanti =
        std::string_view(byte).substr(0, inizio == 0 ? 0 : inizio - 1).find_last_of("\xAB\xBB");
    const std::size_t dietro = byte.find(DelimChiusura, fine);
    const std::size_t da = davanti == std::string::npos ? 0 : davanti;
    const TestoSezione parte(
        std::string_view(byte).substr(da, dietro == std::string::npos ? dietro : dietro + 1 - da));
    const EsitoTasto intero = PremiTasto(testo, {.Inizio = inizio, .Lunghezza = fine - inizio}, tasto);
    EsitoTasto ridotto = PremiTasto(parte, {.Inizio = inizio - da, .Lunghezza = fine - inizio}, tasto);
    if (ridotto.Azione == AzioneTasto::Allarga || ridotto.Azione == AzioneTasto::ApriCodice)
      ridotto.Nuova.Inizio += da;
    RC_ASSERT(intero == ridotto);
  }));
}

}  // namespace
}  // namespace parvik
