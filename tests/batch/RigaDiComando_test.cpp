#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "batch/Esecuzione.h"
#include "batch/Esempi.h"
#include "start/Versione.h"
#include "supporto/ConNome.h"

namespace parvik::prova {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST(RigaDiComando, ShowsTheVersion) {
  EXPECT_EQ(Esegui({"--version"}),
            (Esecuzione{0, "Ordavia (parvik32-batch) Version " + std::string(VersioneVisibile) + "\n", ""}));
}

TEST(RigaDiComando, ShowsAHelpThatNamesEveryCommand) {
  for (const std::string opzione : {"--help", "-h"}) {
    const Esecuzione aiuto = Esegui({opzione});
    EXPECT_EQ(aiuto.Stato, 0);
    EXPECT_EQ(aiuto.Errori, "");
    EXPECT_THAT(aiuto.Uscita, HasSubstr("Uso: parvik32-batch [OPZIONI] COMANDO\n"));
    for (const char* nome :
         {"--velkor DIR", "--campi FILE", "\n  tipi ", "\n  campi ", "\n  stampa ", "\n  normalizza ",
          "\n  verifica ", "\n  verifica-catalogo ", "\n  spiega ", "\n  codici "}) {
      EXPECT_THAT(aiuto.Uscita, HasSubstr(nome));
    }
  }
}

TEST(RigaDiComando, ShowsAHelpForEachCommand) {
  for (const std::string comando :
       {"tipi", "campi", "stampa", "normalizza", "verifica", "verifica-catalogo", "spiega", "codici"}) {
    const Esecuzione aiuto = Esegui({comando, "--help"});
    EXPECT_EQ(aiuto.Stato, 0) << comando;
    EXPECT_EQ(aiuto.Errori, "");
    EXPECT_THAT(aiuto.Uscita, HasSubstr("Uso: parvik32-batch " + comando));
  }
}

TEST(RigaDiComando, NeedsNoCatalogueForHelpAndVersion) {
  EXPECT_EQ(Esegui({"--velkor", "/nonexistent", "--version"}).Stato, 0);
  EXPECT_EQ(Esegui({"--velkor", "/nonexistent", "stampa", "--help"}).Stato, 0);
}

struct Caso {
  const char* Nome;
  std::vector<std::string> Argomenti;
  std::string_view Detto;
};
using prova::PrintTo;

class ArgomentiErratiTest : public testing::TestWithParam<Caso> {};

TEST_P(ArgomentiErratiTest, EndWithStatus2AndOneLine) {
  EXPECT_EQ(EseguiEsempio(GetParam().Argomenti), (Esecuzione{2, "", Detto(GetParam().Detto)}));
}

INSTANTIATE_TEST_SUITE_P(
    Casi, ArgomentiErratiTest,
    testing::Values(
        Caso{"no_command", {}, "manca il comando (--help elenca gli argomenti)"},
        Caso{"no_command_but_dashes", {"--"}, "manca il comando (--help elenca gli argomenti)"},
        Caso{"unknown_command", {"tipo"}, "comando sconosciuto: tipo (--help elenca gli argomenti)"},
        Caso{"empty_command", {""}, "comando sconosciuto: \"\" (--help elenca gli argomenti)"},
        Caso{"unknown_command_with_all_it_may_want",
             {"stampe", "--tipo", "1", "-o", "z", "x.img"},
             "comando sconosciuto: stampe (--help elenca gli argomenti)"},
        Caso{"unknown_command_before_a_known_one",
             {"x.img", "stampa", "--tipo", "1"},
             "comando sconosciuto: x.img (--help elenca gli argomenti)"},
        Caso{"options_and_no_command",
             {"--tipo", "1"},
             "argomento non previsto: --tipo 1 (--help elenca gli argomenti)"},
        Caso{"repeated_type",
             {"campi", "--tipo", "1", "--tipo", "2"},
             "opzione ripetuta: --tipo (--help elenca gli argomenti)"},
        Caso{"repeated_type_with_its_sign",
             {"stampa", "--tipo=1", "x.img", "--tipo=1"},
             "opzione ripetuta: --tipo (--help elenca gli argomenti)"},
        Caso{"repeated_section",
             {"campi", "--tipo", "1", "--sezione", "corpo", "--sezione", "corpo"},
             "opzione ripetuta: --sezione (--help elenca gli argomenti)"},
        Caso{"repeated_flags",
             {"stampa", "--tipo", "1", "--veri", "1", "--veri", "2", "x.img"},
             "opzione ripetuta: --veri (--help elenca gli argomenti)"},
        Caso{"repeated_output",
             {"stampa", "--tipo", "1", "-o", "y", "-oz", "x.img"},
             "opzione ripetuta: -o (--help elenca gli argomenti)"},
        Caso{"repeated_host_directory",
             {"tipi", "--velkor", "x"},
             "opzione ripetuta: --velkor (--help elenca gli argomenti)"},
        Caso{"type_without_value_after_another",
             {"campi", "--tipo", "1", "--tipo"},
             "opzione ripetuta: --tipo (--help elenca gli argomenti)"},
        Caso{"value_of_an_option_that_wants_none",
             {"tipi", "--help=x"},
             "argomento non previsto: --help=x (--help elenca gli argomenti)"},
        Caso{"empty_stray_word", {"tipi", ""}, "argomento non previsto: \"\" (--help elenca gli argomenti)"},
        Caso{"option_of_another_command",
             {"tipi", "--tipo=1", "-oz"},
             "argomento non previsto: --tipo=1 -oz (--help elenca gli argomenti)"},
        Caso{"type_that_is_no_number",
             {"campi", "--tipo", "uno"},
             "--tipo: vuole un numero, non \"uno\" (--help elenca gli argomenti)"},
        Caso{"empty_type",
             {"campi", "--tipo", ""},
             "--tipo: vuole un numero, non \"\" (--help elenca gli argomenti)"},
        Caso{"empty_output",
             {"stampa", "--tipo", "1", "-o", "", "x.img"},
             "-o: vuole un nome (--help elenca gli argomenti)"},
        Caso{"empty_host_directory",
             {"--velkor", "", "tipi"},
             "--velkor: vuole un nome (--help elenca gli argomenti)"},
        Caso{"empty_catalogue",
             {"--campi", "", "tipi"},
             "--campi: vuole un nome (--help elenca gli argomenti)"},
        Caso{"no_type", {"campi"}, "manca --tipo (--help elenca gli argomenti)"},
        Caso{"no_type_and_a_file", {"stampa", "x.img"}, "manca --tipo (--help elenca gli argomenti)"},
        Caso{"no_file_to_render", {"stampa", "--tipo", "1"}, "manca IMG (--help elenca gli argomenti)"},
        Caso{
            "no_file_to_normalise", {"normalizza", "--tipo", "1"}, "manca IMG (--help elenca gli argomenti)"},
        Caso{"no_value", {"campi", "--tipo"}, "manca il valore di --tipo (--help elenca gli argomenti)"},
        Caso{"stray_word", {"tipi", "x"}, "argomento non previsto: x (--help elenca gli argomenti)"},
        Caso{"unknown_option", {"tipi", "--x"}, "argomento non previsto: --x (--help elenca gli argomenti)"},
        Caso{"both_catalogues",
             {"--campi", "x", "tipi"},
             "--velkor e --campi si escludono (--help elenca gli argomenti)"},
        Caso{"unknown_section",
             {"campi", "--tipo", "1", "--sezione", "Testata"},
             "--sezione: vuole testata, corpo o piede, non \"Testata\" (--help elenca gli argomenti)"},
        Caso{"flags_that_are_no_numbers",
             {"stampa", "--tipo", "1", "--veri", "3,x", "x.img"},
             "--veri: vuole numeri separati da virgole, non \"3,x\" (--help elenca gli argomenti)"},
        Caso{"one_output_for_two_files",
             {"normalizza", "--tipo", "1", "-o", "z.img", "x.img", "y.img"},
             "-o vuole un file solo: z.img"}),
    [](const auto& caso) { return std::string(caso.param.Nome); });

TEST(RigaDiComando, RefusesATypeThatIsNoNumber) {
  for (const std::string tipo : {"uno", "1x", "1.5", "99999999999"}) {
    const Esecuzione esecuzione = EseguiEsempio({"campi", "--tipo", tipo});
    EXPECT_EQ(esecuzione.Stato, 2) << tipo;
    EXPECT_EQ(esecuzione.Uscita, "");
    EXPECT_THAT(esecuzione.Errori, StartsWith("parvik32-batch: "));
    EXPECT_THAT(esecuzione.Errori, HasSubstr("--tipo"));
  }
}

TEST(RigaDiComando, RefusesATypeThatTheCatalogueLacks) {
  const HostDiProva host;
  const std::string modello = host.Modello("m.img", "x\r\n").string();
  for (const std::string tipo : {"0", "3", "22", "24", "-1", "2000000000"}) {
    const Esecuzione atteso = {2, "", Detto(host.Catalogo(), "tipo di documento " + tipo + " sconosciuto")};
    EXPECT_EQ(Esegui(host.Argomenti({"campi", "--tipo", tipo})), atteso);
    EXPECT_EQ(Esegui(host.Argomenti({"stampa", "--tipo", tipo, modello})), atteso);
    EXPECT_EQ(Esegui(host.Argomenti({"normalizza", "--tipo", tipo, modello})), atteso);
  }
}

}  // namespace
}  // namespace parvik::prova
