#include "editor/Argomenti.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace parvik::prova {
namespace {

struct Buono {
  const char* nome;
  std::vector<const char*> dati;
  Argomenti attesi;

  friend void PrintTo(const Buono& caso, std::ostream* dove) { *dove << caso.nome; }
};

class ArgomentiBuoniTest : public testing::TestWithParam<Buono> {};

TEST_P(ArgomentiBuoniTest, SayWhatIsWanted) {
  const auto letti = LeggiArgomenti(GetParam().dati);
  ASSERT_TRUE(letti) << letti.Errore();
  EXPECT_EQ(*letti, GetParam().attesi);
}

INSTANTIATE_TEST_SUITE_P(
    Casi, ArgomentiBuoniTest,
    testing::Values(
        Buono{"nothing", {}, {}}, Buono{"a_file", {"a.img"}, {.File = "a.img"}},
        Buono{
            "all", {"--velkor", "/v", "--tipo", "3", "a.img"}, {.Velkor = "/v", .Tipo = 3, .File = "a.img"}},
        Buono{"behind_the_file",
              {"a.img", "--tipo", "3", "--velkor", "/v"},
              {.Velkor = "/v", .Tipo = 3, .File = "a.img"}},
        Buono{"with_an_equals_sign", {"--velkor=/v=w", "--tipo=3"}, {.Velkor = "/v=w", .Tipo = 3}},
        Buono{"a_file_that_looks_like_an_option", {"--", "--tipo"}, {.File = "--tipo"}},
        Buono{"brackets_are_a_name", {"[x]"}, {.File = "[x]"}}, Buono{"a_lone_dash", {"-"}, {.File = "-"}},
        Buono{"an_example", {"--esempio", "/tmp/e"}, {.Esempio = "/tmp/e"}},
        Buono{"an_example_with_a_file",
              {"--esempio", "e", "--tipo", "1", "FATT01"},
              {.Esempio = "e", .Tipo = 1, .File = "FATT01"}},
        Buono{"a_negative_type", {"--tipo", "-3"}, {.Tipo = -3}},
        Buono{"options_of_the_toolkit", {"-platform", "xcb", "a.img", "-session", "1"}, {.File = "a.img"}},
        Buono{"help", {"--help"}, {.Cosa = Richiesta::Aiuto}}, Buono{"h", {"-h"}, {.Cosa = Richiesta::Aiuto}},
        Buono{"version", {"--version"}, {.Cosa = Richiesta::Versione}},
        Buono{"v", {"-v"}, {.Cosa = Richiesta::Versione}},
        Buono{"help_beside_other_things", {"a.img", "-h"}, {.Cosa = Richiesta::Aiuto}}),
    [](const auto& caso) { return std::string(caso.param.nome); });

struct Cattivo {
  const char* nome;
  std::vector<const char*> dati;
  const char* detto;

  friend void PrintTo(const Cattivo& caso, std::ostream* dove) { *dove << caso.nome; }
};

class ArgomentiCattiviTest : public testing::TestWithParam<Cattivo> {};

TEST_P(ArgomentiCattiviTest, AreRefusedInOneLine) {
  const auto letti = LeggiArgomenti(GetParam().dati);
  ASSERT_FALSE(letti);
  EXPECT_EQ(letti.Errore(), GetParam().detto);
}

INSTANTIATE_TEST_SUITE_P(
    Casi, ArgomentiCattiviTest,
    testing::Values(
        Cattivo{"unknown", {"--foo"}, "opzione sconosciuta: --foo"},
        Cattivo{"unknown_with_a_value", {"--foo=1"}, "opzione sconosciuta: --foo=1"},
        Cattivo{"unknown_short", {"-x"}, "opzione sconosciuta: -x"},
        Cattivo{"no_value", {"a.img", "--velkor"}, "manca il valore di --velkor"},
        Cattivo{"an_empty_value", {"--velkor="}, "--velkor vuole un nome"},
        Cattivo{"an_empty_file", {""}, "il file vuole un nome"},
        Cattivo{"no_number", {"--tipo", "x"}, "--tipo vuole un numero, non \"x\""},
        Cattivo{"half_a_number", {"--tipo", "1x"}, "--tipo vuole un numero, non \"1x\""},
        Cattivo{"two_types", {"--tipo", "1", "--tipo", "1"}, "--tipo va indicato una volta sola"},
        Cattivo{"two_hosts", {"--velkor", "a", "--velkor", "b"}, "--velkor va indicato una volta sola"},
        Cattivo{"two_files", {"a.img", "b.img"}, "il file va indicato una volta sola"},
        Cattivo{"the_first_mistake_counts", {"--foo", "--bar"}, "opzione sconosciuta: --foo"},
        Cattivo{
            "host_and_example", {"--velkor", "a", "--esempio", "b"}, "--esempio e --velkor si escludono"}),
    [](const auto& caso) { return std::string(caso.param.nome); });

}  // namespace
}  // namespace parvik::prova
