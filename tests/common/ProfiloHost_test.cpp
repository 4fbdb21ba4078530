#include "common/ProfiloHost.h"

#include <gtest/gtest.h>

#include <string>

#include "supporto/Cartelle.h"
#include "supporto/ConNome.h"

namespace parvik::prova {
namespace {

using namespace std::string_literals;

std::string Dir(std::string_view contenuto) {
  return LeggiProfilo(contenuto, "AMBIENTE", "Dir velkor");
}

struct Caso {
  const char* Nome;
  std::string Contenuto;
  std::string Atteso;
};
using prova::PrintTo;

/// The bytes of a UTF-16 file with its mark; every byte of `ansi` is one character below 256.
std::string Utf16(std::string_view ansi) {
  std::string byte = "\xFF\xFE";
  for (const char c : ansi) byte.append(1, c).append(1, '\0');
  return byte;
}

class ProfiloHostTest : public testing::TestWithParam<Caso> {};

TEST_P(ProfiloHostTest, ReadsAsTheHostsReaderDoes) {
  EXPECT_EQ(GetParam().Atteso, Dir(GetParam().Contenuto));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Casi, ProfiloHostTest, testing::Values(
    Caso{"empty_file", "", ""},
    Caso{"plain", "[AMBIENTE]\r\nDir velkor=/srv/velkor\r\n", "/srv/velkor"},
    Caso{"no_line_end_at_the_end", "[AMBIENTE]\r\nDir velkor=/srv", "/srv"},
    Caso{"line_feeds", "[AMBIENTE]\nDir velkor=/srv\n", "/srv"},
    Caso{"carriage_returns", "[AMBIENTE]\rDir velkor=/srv\rx=1", "/srv"},
    Caso{"names_in_another_case", "[ambiente]\r\ndIR VELKOR=/srv\r\n", "/srv"},
    Caso{"value_keeps_its_case", "[AMBIENTE]\r\nDir velkor=/Srv/Velkor\r\n", "/Srv/Velkor"},
    Caso{"blanks_around_everything", " \t[ \tAMBIENTE\t ]\t\r\n \tDir velkor \t= \t/srv \t\r\n", "/srv"},
    Caso{"blanks_inside_the_value_stay", "[AMBIENTE]\r\nDir velkor=/srv/my  host\tdir\r\n", "/srv/my  host\tdir"},
    Caso{"blanks_inside_the_key_count", "[AMBIENTE]\r\nDir  velkor=/srv\r\n", ""},
    Caso{"double_quotes", "[AMBIENTE]\r\nDir velkor=\"/srv\"\r\n", "/srv"},
    Caso{"single_quotes", "[AMBIENTE]\r\nDir velkor='/srv'\r\n", "/srv"},
    Caso{"blanks_inside_quotes_stay", "[AMBIENTE]\r\nDir velkor=\" /srv \"\r\n", " /srv "},
    Caso{"one_pair_of_quotes_only", "[AMBIENTE]\r\nDir velkor='\"/srv\"'\r\n", "\"/srv\""},
    Caso{"unlike_quotes_stay", "[AMBIENTE]\r\nDir velkor=\"/srv'\r\n", "\"/srv'"},
    Caso{"a_lone_quote_stays", "[AMBIENTE]\r\nDir velkor=\"\r\n", "\""},
    Caso{"quotes_that_do_not_enclose_stay", "[AMBIENTE]\r\nDir velkor=\"/srv\" x\r\n", "\"/srv\" x"},
    Caso{"empty_quotes", "[AMBIENTE]\r\nDir velkor=\"\"\r\n", ""},
    Caso{"comment", "[AMBIENTE]\r\n;Dir velkor=/no\r\nDir velkor=/srv\r\n", "/srv"},
    Caso{"comment_after_blanks", "[AMBIENTE]\r\n  ;Dir velkor=/no\r\nDir velkor=/srv\r\n", "/srv"},
    Caso{"section_in_a_comment", ";[AMBIENTE]\r\nDir velkor=/no\r\n", ""},
    Caso{"semicolon_inside_a_value", "[AMBIENTE]\r\nDir velkor=/srv ; host\r\n", "/srv ; host"},
    Caso{"equal_sign_inside_a_value", "[AMBIENTE]\r\nDir velkor=a=b\r\n", "a=b"},
    Caso{"first_of_equal_keys", "[AMBIENTE]\r\nDir velkor=/1\r\nDir velkor=/2\r\n", "/1"},
    Caso{"first_of_equal_keys_though_empty", "[AMBIENTE]\r\nDir velkor=\r\nDir velkor=/2\r\n", ""},
    Caso{"first_section_of_a_name_only", "[AMBIENTE]\r\nx=1\r\n[AMBIENTE]\r\nDir velkor=/2\r\n", ""},
    Caso{"first_section_of_a_name_only_with_another_between",
         "[AMBIENTE]\r\nx=1\r\n[B]\r\n[AMBIENTE]\r\nDir velkor=/2\r\n", ""},
    Caso{"key_before_any_section", "Dir velkor=/no\r\n[AMBIENTE]\r\n", ""},
    Caso{"key_in_another_section", "[ALTRO]\r\nDir velkor=/no\r\n[AMBIENTE]\r\nx=1\r\n", ""},
    Caso{"section_after_another", "[ALTRO]\r\nDir velkor=/no\r\n[AMBIENTE]\r\nDir velkor=/srv\r\n", "/srv"},
    Caso{"section_without_its_bracket", "[AMBIENTE\r\nDir velkor=/no\r\n", ""},
    Caso{"bracketless_line_ends_no_section", "[AMBIENTE]\r\n[ALTRO\r\nDir velkor=/srv\r\n", "/srv"},
    Caso{"text_after_the_bracket", "[AMBIENTE] host\r\nDir velkor=/srv\r\n", "/srv"},
    Caso{"key_without_equal_sign", "[AMBIENTE]\r\nDir velkor\r\nDir velkor=/srv\r\n", "/srv"},
    Caso{"longer_key", "[AMBIENTE]\r\nDir velkor 2=/no\r\n", ""},
    Caso{"byte_order_mark", "\xEF\xBB\xBF[AMBIENTE]\r\nDir velkor=/srv\r\n", "/srv"},
    Caso{"empty_lines", "\r\n\r\n[AMBIENTE]\r\n\r\nDir velkor=/srv\r\n", "/srv"},
    Caso{"two_closing_brackets", "[AMBIENTE]]\r\nDir velkor=/no\r\n", ""},
    Caso{"two_closing_brackets_end_the_section_before", "[AMBIENTE]\r\n[X]]\r\nDir velkor=/no\r\n", ""},
    Caso{"a_bracket_in_the_text_after_it", "[AMBIENTE] [host]\r\nDir velkor=/no\r\n", ""},
    Caso{"nul_ends_the_value", "[AMBIENTE]\r\nDir velkor=/srv\0/no\r\n"s, "/srv"},
    Caso{"nul_ends_the_value_before_its_quote", "[AMBIENTE]\r\nDir velkor=\"/srv\0\"\r\n"s, "\"/srv"},
    Caso{"nul_after_quotes", "[AMBIENTE]\r\nDir velkor=\"/srv\" \0x\r\n"s, "/srv"},
    Caso{"nothing_but_nul", "[AMBIENTE]\r\nDir velkor=\0/no\r\nDir velkor=/no\r\n"s, ""},
    Caso{"vertical_tab_and_form_feed_are_blanks",
         "\f[\vAMBIENTE\f]\r\n\v Dir velkor\f=\v\f/srv\t\v\r\n", "/srv"},
    Caso{"vertical_tab_and_form_feed_inside_the_value_stay", "[AMBIENTE]\r\nDir velkor=/a\v\fb\r\n", "/a\v\fb"},
    Caso{"utf16", Utf16("[AMBIENTE]\r\nDir velkor=/srv\r\n"), "/srv"},
    Caso{"utf16_without_line_end", Utf16("[AMBIENTE]\nDir velkor=/Citt\xE0"), "/Citt\xE0"},
    Caso{"utf16_half_a_character_at_the_end", Utf16("[AMBIENTE]\nDir velkor=/srv") + "x", "/srv"},
    Caso{"utf16_with_what_the_code_page_has_elsewhere",
         Utf16("[AMBIENTE]\nDir velkor=/") + "\xAC\x20\x19\x20" + "\x81\0"s, "/\x80\x92\x81"},
    Caso{"utf16_with_what_the_code_page_lacks",
         Utf16("[AMBIENTE]\nDir velkor=/") + "\x92\0\xA9\x03\x3D\xD8\x00\xDE"s, "/????"},
    Caso{"utf16_with_bytes_of_line_ends_and_signs_in_its_characters",
         Utf16("[AMBIENTE]\nDir velkor=/a") + "\x0D\x0A\x3D\x5D\x0A\x22" + "b\0"s, "/a???b"},
    Caso{"utf16_nul", Utf16("[AMBIENTE]\nDir velkor=/srv\0/no"s), "/srv"},
    Caso{"utf16_mark_alone", "\xFF\xFE", ""},
    Caso{"utf16_without_its_mark", Utf16("[AMBIENTE]\nDir velkor=/no").substr(2), ""},
    Caso{"bytes_are_kept", "[AMBIENTE]\r\nDir velkor=/srv/\xE0\x80\xFF\r\n", "/srv/\xE0\x80\xFF"}),
    [](const auto& caso) { return std::string(caso.param.Nome); });
// clang-format on

TEST(LeggiProfilo, GivesAValueOf199BytesWholeAndCutsALongerOne) {
  const std::string prima = "[AMBIENTE]\r\nDir velkor=";
  EXPECT_EQ(std::string(199, 'x'), Dir(prima + std::string(199, 'x') + "\r\n"));
  EXPECT_EQ(std::string(199, 'x'), Dir(prima + std::string(200, 'x') + "\r\n"));
  EXPECT_EQ(std::string(199, 'x'), Dir(prima + "\"" + std::string(300, 'x') + "\"\r\n"));
}

TEST(LeggiProfilo, CutsAValueOfUtf16By199CharactersToo) {
  const std::string euro = "\xAC\x20";
  std::string molti;
  for (int i = 0; i < 250; ++i) molti += euro;
  EXPECT_EQ(std::string(199, '\x80'), Dir(Utf16("[AMBIENTE]\nDir velkor=") + molti));
}

TEST(LeggiProfilo, ReadsTheExampleInstallationsFile) {
  EXPECT_EQ("C:\\VELKOR", Dir(Contenuto(Esempio() / "VELKOR.INI")));
}

}  // namespace
}  // namespace parvik::prova
