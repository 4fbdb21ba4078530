#include "tokens/DescriviCodice.h"

#include <gtest/gtest.h>

#include <array>

#include "catalogue/Catalogo.h"
#include "supporto/ConNome.h"

namespace parvik {
namespace {

Variabile Stringa(std::int16_t numero, const std::string& descrizione) {
  Variabile variabile;
  variabile.Intero1 = numero;
  variabile.Descrizione = descrizione;
  return variabile;
}

Variabile Numerica(std::int16_t numero, const std::string& descrizione, const std::string& euro) {
  Variabile variabile = Stringa(numero, descrizione);
  variabile.Intero4 = 1;
  variabile.Testo3 = euro;
  return variabile;
}

// The last record of each table is the empty slot that the catalogue's tables end with.
const std::array VariabiliDiProva = {Stringa(12, "Cliente"),
                                     Numerica(25, "Imponibile", "0"),
                                     Stringa(40, " Citt\xE0\tnota "),
                                     Numerica(8, "Importo", "1"),
                                     Stringa(9, ""),
                                     Variabile{}};
const std::array FlagDiProva = {Flag{"Cliente estero", 3, "N"}, Flag{"  Perch\xE9\x01no ", 14, "S"},
                                Flag{"", 5, "N"}, Flag{}};

struct Caso {
  const char* Nome;
  std::string_view Contenuto;
  std::string_view Atteso;
};
using prova::PrintTo;

class DescriviCodiceTest : public testing::TestWithParam<Caso> {};

TEST_P(DescriviCodiceTest, TellsWhatTheCodeIs) {
  EXPECT_EQ(DescriviCodice(GetParam().Contenuto, VariabiliDiProva, FlagDiProva), GetParam().Atteso);
}

std::string NomeDi(const testing::TestParamInfo<Caso>& info) {
  return info.param.Nome;
}

INSTANTIATE_TEST_SUITE_P(
    Variabili, DescriviCodiceTest,
    testing::Values(
        Caso{"numeric", "V25;12R\"*\";.#,2;0",
             "Variabile 25 · Imponibile · 12 caratteri a destra, riempimento \"*\", 2 decimali, "
             "separatore migliaia"},
        Caso{"everything_numeric", "V25;12R\"*\";.0,2-;1",
             "Variabile 25 · Imponibile · 12 caratteri a destra, riempimento \"*\", 2 decimali, "
             "separatore migliaia, zero visibile, segno a destra, euro"},
        Caso{"no_switches", "V8;10R;#;0", "Variabile 8 · Importo · 10 caratteri a destra"},
        Caso{"one_decimal", "V8;10R;#,1;0", "Variabile 8 · Importo · 10 caratteri a destra, 1 decimale"},
        Caso{"free_decimals", "V8;10R;0,*;0",
             "Variabile 8 · Importo · 10 caratteri a destra, decimali secondo il valore, zero visibile"},
        Caso{"euro_from_the_catalogue", "V8;10R", "Variabile 8 · Importo · 10 caratteri a destra, euro"},
        Caso{"numbers_have_no_lines", "V25,2;12R;#;0", "Variabile 25 · Imponibile · 12 caratteri a destra"},
        Caso{"string", "V12;30L", "Variabile 12 · Cliente · 30 caratteri a sinistra"},
        Caso{"strings_have_no_numeric_format", "V12;30L;.0,2-;1",
             "Variabile 12 · Cliente · 30 caratteri a sinistra"},
        Caso{"lines", "V12,3;35L\".\"",
             "Variabile 12 · Cliente · 35 caratteri a sinistra su 3 righe, riempimento \".\""},
        Caso{"one_of_each", "V12,1;1R", "Variabile 12 · Cliente · 1 carattere a destra su 1 riga"},
        Caso{"no_width", "V12", "Variabile 12 · Cliente · 0 caratteri a sinistra"},
        Caso{"fill_beyond_ascii", "V12;5L\"\x80\"",
             "Variabile 12 · Cliente · 5 caratteri a sinistra, riempimento \"€\""},
        Caso{"fill_that_is_a_control", "V12;5L\"\x07\"",
             "Variabile 12 · Cliente · 5 caratteri a sinistra, riempimento \" \""},
        Caso{"catalogue_text_on_one_line", "V40;5L", "Variabile 40 · Città nota · 5 caratteri a sinistra"},
        Caso{"without_a_description", "V9;5L", "Variabile 9 · 5 caratteri a sinistra"},
        Caso{"unknown", "V77;5R;.0;1", "Variabile 77 · sconosciuta · 5 caratteri a destra"},
        Caso{"empty_slots_are_no_entries", "V0,2;10L",
             "Variabile 0 · sconosciuta · 10 caratteri a sinistra su 2 righe"},
        Caso{"no_number", "Vx;y", "Variabile 0 · sconosciuta · 0 caratteri a destra"},
        Caso{"only_the_letter", "V", "Variabile 0 · sconosciuta · 0 caratteri a sinistra"}),
    NomeDi);

INSTANTIATE_TEST_SUITE_P(
    Flag, DescriviCodiceTest,
    testing::Values(
        Caso{"with_spaces", "F3S", "Flag 3 · Cliente estero · variabili sostituite da spazi"},
        Caso{"without_spaces", "F3N", "Flag 3 · Cliente estero"},
        Caso{"without_a_switch", "F3", "Flag 3 · Cliente estero"},
        Caso{"any_other_switch_is_on", "F3x", "Flag 3 · Cliente estero · variabili sostituite da spazi"},
        Caso{"compared_as_a_number", "F003N", "Flag 3 · Cliente estero"},
        Caso{"catalogue_text_on_one_line", "F14N", "Flag 14 · Perché no"},
        Caso{"without_a_description", "F5N", "Flag 5"},
        Caso{"first_page", "F97N", "Flag 97 · Solo prima pagina"},
        Caso{"not_the_last_page", "F98S", "Flag 98 · Escluso ultima pagina · variabili sostituite da spazi"},
        Caso{"every_page", "F99N", "Flag 99 · Su tutte le pagine"},
        Caso{"unknown", "F77N", "Flag 77 · sconosciuto"},
        Caso{"unknown_with_spaces", "F77S", "Flag 77 · sconosciuto · variabili sostituite da spazi"},
        Caso{"enormous", "F99999999999999999999N", "Flag 99999999999999999999 · sconosciuto"},
        Caso{"between_two", "F3.5N", "Flag 3.5 · sconosciuto"},
        Caso{"empty_slots_are_no_entries", "F0N", "Flag 0 · sconosciuto"},
        Caso{"no_number", "Fab", "Flag a · sconosciuto · variabili sostituite da spazi"},
        Caso{"only_the_letter", "F", "Flag · sconosciuto"}),
    NomeDi);

INSTANTIATE_TEST_SUITE_P(
    Altri, DescriviCodiceTest,
    testing::Values(
        Caso{"style_normal", "S;NORMALE", "Stile · Normale"},
        Caso{"style_bold", "S;Grassetto", "Stile · Grassetto"},
        Caso{"style_compressed", "S;COMPRESSO", "Stile · Compresso"},
        Caso{"style_italic", "S;it", "Stile · Corsivo o Italico"},
        Caso{"style_underlined", "S;SOTTOLINEATO", "Stile · Sottolineato"},
        Caso{"style_unknown", "S;FIRMA", "Stile · sconosciuto"},
        Caso{"style_without_word", "S", "Stile · sconosciuto"},
        Caso{"language", "L5;20", "Lingua · voce 5 · 20 caratteri"},
        Caso{"language_of_one", "L5;1", "Lingua · voce 5 · 1 carattere"},
        Caso{"language_without_width", "L3", "Lingua · voce 3 · 10 caratteri"},
        Caso{"language_with_empty_width", "L3;", "Lingua · voce 3 · 0 caratteri"},
        Caso{"language_without_entry", "L", "Lingua · 10 caratteri"}, Caso{"page", "P1", "Numero pagina · 1"},
        Caso{"page_without_number", "P", "Numero pagina"},
        Caso{"constant", "V0;\"Totale documento\"", "Costante · Totale documento"},
        Caso{"constant_of_old_spelling", "C0;\"x\"", "Costante · x"},
        Caso{"constant_with_quotes_and_accents", "V0;\"dice \"s\xEC\"\"", "Costante · dice \"sì\""},
        Caso{"constant_over_lines", "V0;\"uno\r\ndue\"", "Costante · uno  due"},
        Caso{"constant_with_an_undefined_byte", "V0;\"a\x81z\"", "Costante · a z"},
        Caso{"constant_without_text", "V0;\"\"", "Costante"},
        Caso{"unknown_letter", "X1", "Codice sconosciuto"},
        Caso{"small_letter", "v12;30L", "Codice sconosciuto"}, Caso{"empty", "", "Codice sconosciuto"}),
    NomeDi);

TEST(DescriviCodice, WithoutTablesOnlyThePageConditionsAreKnown) {
  EXPECT_EQ(DescriviCodice("V12;30L", {}, {}), "Variabile 12 · sconosciuta · 30 caratteri a sinistra");
  EXPECT_EQ(DescriviCodice("F3N", {}, {}), "Flag 3 · sconosciuto");
  EXPECT_EQ(DescriviCodice("F98N", {}, {}), "Flag 98 · Escluso ultima pagina");
}

TEST(DescriviCodice, AFlagOfTheCatalogueGoesBeforeAPageConditionOfItsNumber) {
  const std::array flag = {Flag{"Mia", 97, "N"}, CondPagina()[0]};
  EXPECT_EQ(DescriviCodice("F97N", {}, flag), "Flag 97 · Mia");
}

TEST(DescriviInFrase, SaysTheSameWithOtherSeparators) {
  const auto frase = [](std::string_view contenuto) {
    return DescriviInFrase(contenuto, VariabiliDiProva, FlagDiProva);
  };
  EXPECT_EQ(frase("V12;29L"), "Variabile 12 Cliente, 29 caratteri a sinistra");
  EXPECT_EQ(frase("V9;1R"), "Variabile 9, 1 carattere a destra");
  EXPECT_EQ(frase("F3N"), "Flag 3 Cliente estero");
  EXPECT_EQ(frase("S;GRASSETTO"), "Stile Grassetto");
  EXPECT_EQ(frase("xyz"), "Codice sconosciuto");
}

}  // namespace
}  // namespace parvik
