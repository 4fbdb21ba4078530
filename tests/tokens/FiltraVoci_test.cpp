#include "tokens/FiltraVoci.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <ostream>

#include "common/Lettere.h"
#include "tokens/Generatori.h"

namespace parvik {

static void PrintTo(const Merito& merito, std::ostream* uscita) {
  constexpr const char* Nomi[] = {"NumeroEsatto", "InizioDescrizione", "InizioParola", "Altrove"};
  *uscita << Nomi[static_cast<std::size_t>(merito)];
}

namespace prova {
namespace {

constexpr std::string_view Articolo = "Descrizione dell'articolo, quantit\xE0";

struct Caso {
  const char* Nome;
  std::string_view Cercato;
  std::optional<Merito> Atteso;

  friend void PrintTo(const Caso& caso, std::ostream* uscita) { *uscita << caso.Nome; }
};

class FiltroSuVariabile105 : public testing::TestWithParam<Caso> {};

TEST_P(FiltroSuVariabile105, AnswersAsWellAsTheWordsSay) {
  const std::string nuda = InLettereNude(Articolo);
  EXPECT_EQ(FiltroVoci(GetParam().Cercato).Di({.Descrizione = nuda, .Numero = 105, .Lettera = 'v'}),
            GetParam().Atteso);
}

INSTANTIATE_TEST_SUITE_P(
    Casi, FiltroSuVariabile105,
    testing::Values(Caso{"number", "105", Merito::NumeroEsatto},
                    Caso{"number_and_capital", "V105", Merito::NumeroEsatto},
                    Caso{"number_and_small_letter", "v105", Merito::NumeroEsatto},
                    Caso{"number_and_another_kinds_letter", "f105", std::nullopt},
                    Caso{"number_among_words", "art 105", Merito::NumeroEsatto},
                    Caso{"number_and_a_word_that_is_not_there", "cliente 105", std::nullopt},
                    Caso{"end_of_the_number", "05", Merito::Altrove},
                    Caso{"letter_and_beginning_of_the_number", "v10", Merito::Altrove},
                    Caso{"letter_and_end_of_the_number", "v05", std::nullopt},
                    Caso{"another_number", "1050", std::nullopt}, Caso{"letter_alone", "v", std::nullopt},
                    Caso{"beginning", "descr", Merito::InizioDescrizione},
                    Caso{"beginning_of_two_words", "descrizione  dell'art", Merito::InizioDescrizione},
                    Caso{"capitals", "DESCRIZIONE", Merito::InizioDescrizione},
                    Caso{"beginnings_of_words_in_another_order", "articolo descr", Merito::InizioParola},
                    Caso{"word_behind_an_apostrophe", "articolo", Merito::InizioParola},
                    Caso{"accent_left_out", "quantita", Merito::InizioParola},
                    Caso{"accent_on_another_word", "\xE8l", Merito::Altrove},
                    Caso{"accent_too_many", "d\xE9scr", Merito::InizioDescrizione},
                    Caso{"inside_a_word", "scri", Merito::Altrove},
                    Caso{"one_beginning_one_inside", "articolo scri", Merito::Altrove},
                    Caso{"one_inside_one_beginning", "scri articolo", Merito::Altrove},
                    Caso{"one_word_missing", "articolo cliente", std::nullopt},
                    Caso{"no_words", "  ", Merito::InizioDescrizione}),
    [](const auto& caso) { return std::string(caso.param.Nome); });

TEST(FiltroVoci, FindsNothingByNumberWhereThereIsNone) {
  EXPECT_EQ(FiltroVoci("0").Di({.Descrizione = "grassetto"}), std::nullopt);
  EXPECT_EQ(FiltroVoci("1").Di({.Descrizione = "riga 1"}), Merito::InizioParola);
}

TEST(FiltroVoci, IsEmptyWithoutWords) {
  EXPECT_TRUE(FiltroVoci("").Vuoto());
  EXPECT_TRUE(FiltroVoci("   ").Vuoto());
  EXPECT_FALSE(FiltroVoci(" a ").Vuoto());
}

TEST(ProprietaFiltro, AnyPartsOfADescriptionInAnyOrderFindIt) {
  EXPECT_TRUE(rc::check([] {
    std::string descrizione = *QualunqueTesto();
    std::erase(descrizione, ' ');
    RC_PRE(!descrizione.empty());
    std::string cercato;
    for (int parole = *rc::gen::inRange(1, 5); parole > 0; --parole) {
      const auto inizio = *rc::gen::inRange<std::size_t>(0, descrizione.size());
      const auto quanti = *rc::gen::inRange<std::size_t>(1, descrizione.size() - inizio + 1);
      const std::string parola = descrizione.substr(inizio, quanti);
      cercato += " " + (*rc::gen::arbitrary<bool>() ? InLettereNude(parola) : parola);
    }
    const std::string nuda = InLettereNude(descrizione);
    RC_ASSERT(FiltroVoci(cercato).Di({.Descrizione = nuda}).has_value());
  }));
}

TEST(ProprietaFiltro, OneMoreWordNeverFindsMore) {
  EXPECT_TRUE(rc::check([] {
    const std::string nuda = InLettereNude(*QualunqueTesto());
    const std::string una = *QualunqueTesto();
    const VoceCercabile voce{.Descrizione = nuda, .Numero = *rc::gen::inRange(0, 1000), .Lettera = 'v'};
    if (FiltroVoci(una + " " + *QualunqueTesto()).Di(voce)) RC_ASSERT(FiltroVoci(una).Di(voce).has_value());
  }));
}

TEST(ProprietaFiltro, EveryNumberIsFoundByItselfWithItsLetterAndWithout) {
  EXPECT_TRUE(rc::check([] {
    const int numero = *rc::gen::inRange(0, 32768);
    const VoceCercabile voce{.Descrizione = {}, .Numero = numero, .Lettera = 'f'};
    for (const char* lettera : {"", "f", "F"})
      RC_ASSERT(FiltroVoci(lettera + std::to_string(numero)).Di(voce) == Merito::NumeroEsatto);
  }));
}

}  // namespace
}  // namespace prova
}  // namespace parvik
