// What holds of every template.
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <string>
#include <vector>

#include "template/ImmagineModello.h"
#include "template/Modelli.h"

namespace parvik::prova {
namespace {

/// Any byte that a line in the editor may hold: no CR, and not the delimiters of files.
rc::Gen<char> ByteDiRiga() {
  const auto byte = rc::gen::suchThat<char>(
      [](char c) { return c != '\r' && c != DelimFileApertura && c != DelimFileChiusura; });
  // Codes and what is special in a marker come up more often than they would by chance.
  return rc::gen::oneOf(byte, rc::gen::element(DelimApertura, DelimChiusura, 'C', ';', '1', ' ', '\n', 'V'));
}

rc::Gen<std::vector<std::string>> Righe() {
  return rc::gen::container<std::vector<std::string>>(rc::gen::container<std::string>(ByteDiRiga()));
}

std::string Unite(const std::vector<std::string>& righe) {
  std::string testo;
  for (const std::string& riga : righe) testo += riga + "\r\n";
  return testo;
}

/// Whether a line would be taken for the marker once it is in a file.
bool SembraMarcatore(const std::string& riga) {
  return riga.find(std::string(1, DelimApertura) + 'C') != std::string::npos;
}

TEST(ImmagineModello, GivesBackThreeSectionsThatEndInCrLfAndTheirSettings) {
  EXPECT_TRUE(rc::check("three sections: written, then read", [] {
    std::vector<std::string> testata = *rc::gen::nonEmpty(Righe());
    for (std::size_t i = 1; i < testata.size(); ++i) {
      if (SembraMarcatore(testata[i])) testata[i] = "x";
    }
    const std::vector<std::string> corpo = *Righe();
    const TestiSezioni testi = {Unite(testata), Unite(corpo), Unite(*Righe())};
    const ImpostazioniCorpo impostazioni = {
        .RigheCorpo = *rc::gen::arbitrary<std::int16_t>(),
        .LineeCorpo = static_cast<std::int16_t>(corpo.size()),
        .FlagSbarra = *rc::gen::element<std::string>("", "C"),
        .FlagAccorpa = *rc::gen::element<std::string>("", "S"),
    };

    TestiSezioni scritti = testi;
    ImpostazioniCorpo scritte = impostazioni;
    scritte.LineeCorpo = *rc::gen::arbitrary<std::int16_t>();  // recounted
    const Esito<std::string> file = ScriviImmagine(scritti, scritte, Formato::TreSezioni);
    RC_ASSERT(static_cast<bool>(file));
    RC_ASSERT(scritti == testi);
    RC_ASSERT(scritte == impostazioni);

    const ImmagineLetta letta = *LeggiImmagine(*file, Formato::TreSezioni, Precedenti());
    RC_ASSERT(!letta.Errore.has_value());
    RC_ASSERT(letta.Testi == testi);
    RC_ASSERT(letta.Corpo == impostazioni);
  }));
}

TEST(ImmagineModello, GivesBackOneSectionThatEndsInCrLf) {
  EXPECT_TRUE(rc::check("one section: written, then read", [] {
    const TestiSezioni testi = {Unite(*Righe()), "", ""};
    TestiSezioni scritti = testi;
    ImpostazioniCorpo impostazioni = Precedenti();
    const Esito<std::string> file = ScriviImmagine(scritti, impostazioni, Formato::UnaSezione);
    RC_ASSERT(static_cast<bool>(file));
    const ImmagineLetta letta = *LeggiImmagine(*file, Formato::UnaSezione, Precedenti());
    RC_ASSERT(letta.Testi == testi);
    RC_ASSERT(letta.Corpo == Precedenti());
  }));
}

/// Files: any bytes, with the pieces that mean something thrown in. Without the editor's own delimiters,
/// which would become those of files, and so make a marker of what was none.
rc::Gen<std::string> File() {
  const auto byte = rc::gen::suchThat<char>([](char c) { return c != DelimApertura && c != DelimChiusura; });
  const auto pezzo = rc::gen::oneOf(
      rc::gen::container<std::string>(byte),
      rc::gen::elementOf(std::vector<std::string>{
          "\r\n", "\r", "\n", ";", Marcatore("23;2;CS"), Marcatore("5;1;x"), Marcatore("1;1;Cy"),
          Marcatore("40000;1;"), Marcatore("7"), CodiceFile("V1"), CodiceFile("C\"a\"")}));
  return rc::gen::map(rc::gen::container<std::vector<std::string>>(pezzo),
                      [](const std::vector<std::string>& pezzi) {
                        std::string file;
                        for (const std::string& uno : pezzi) file += uno;
                        return file;
                      });
}

std::size_t Contati(std::string_view testo, char c) {
  return static_cast<std::size_t>(std::count(testo.begin(), testo.end(), c));
}

TEST(ImmagineModello, ReadsAnyBytesIntoSectionsOfWholeLinesWithoutFileDelimiters) {
  EXPECT_TRUE(rc::check("any bytes", [](bool tre) {
    const std::string file = *rc::gen::oneOf(File(), rc::gen::arbitrary<std::string>());
    const ImmagineLetta letta =
        *LeggiImmagine(file, tre ? Formato::TreSezioni : Formato::UnaSezione, ImpostazioniPredefinite());
    for (const std::string& testo : letta.Testi) {
      RC_ASSERT(testo.empty() || testo.ends_with("\r\n"));
      RC_ASSERT(Contati(testo, DelimFileApertura) + Contati(testo, DelimFileChiusura) == 0U);
    }
  }));
}

TEST(ImmagineModello, WritesTheSameBytesAgainOnceAFileWasReadAndWritten) {
  EXPECT_TRUE(rc::check("read, written, read, written", [](bool tre) {
    const Formato formato = tre ? Formato::TreSezioni : Formato::UnaSezione;
    const std::string file = *rc::gen::nonEmpty(File());
    ImmagineLetta prima = *LeggiImmagine(file, formato, ImpostazioniPredefinite());
    const Esito<std::string> unaVolta = ScriviImmagine(prima.Testi, prima.Corpo, formato);
    RC_ASSERT(static_cast<bool>(unaVolta));
    ImmagineLetta dopo = *LeggiImmagine(*unaVolta, formato, prima.Corpo);
    const Esito<std::string> dueVolte = ScriviImmagine(dopo.Testi, dopo.Corpo, formato);
    RC_ASSERT(static_cast<bool>(dueVolte));
    RC_ASSERT(*dueVolte == *unaVolta);
  }));
}

}  // namespace
}  // namespace parvik::prova
