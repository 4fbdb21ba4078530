// Very many templates, written and read back. The generator is a plain one with a fixed seed: a case that
// fails comes up again, and a million of them take seconds.
#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>
#include <string_view>

#include "template/ImmagineModello.h"
#include "template/Modelli.h"

namespace parvik::prova {
namespace {

constexpr int Modelli = 1'000'000;

class Generatore {
 public:
  explicit Generatore(std::uint64_t seme) : caso_(seme) {}

  /// 0 to quanti - 1.
  unsigned int Scegli(unsigned int quanti) { return static_cast<unsigned int>(caso_() >> 33U) % quanti; }

  /// Lines that end with CR LF; any bytes in them but CR, and the delimiters of files: the editor has none.
  std::string Sezione() {
    std::string testo;
    for (unsigned int righe = Scegli(4); righe > 0; --righe) testo += Riga() + "\r\n";
    return testo;
  }

  /// A line that a file would take for the marker comes back as one: no line of a Testata but its first.
  std::string Testata() {
    std::string testo = Riga() + "\r\n";
    for (unsigned int righe = Scegli(3); righe > 0; --righe) {
      const std::string riga = Riga();
      if (riga.find("\xAB"
                    "C") == std::string::npos)
        testo += riga + "\r\n";
    }
    return testo;
  }

  ImpostazioniCorpo Corpo() {
    return {.RigheCorpo = static_cast<std::int16_t>(Scegli(65536)),
            .LineeCorpo = static_cast<std::int16_t>(Scegli(65536)),
            .FlagSbarra = Scegli(2) == 0 ? "" : "C",
            .FlagAccorpa = Scegli(2) == 0 ? "" : "S"};
  }

 private:
  std::string Riga() {
    std::string riga;
    for (unsigned int pezzi = Scegli(5); pezzi > 0; --pezzi) riga += Pezzo();
    return riga;
  }

  std::string Pezzo() {
    switch (Scegli(6)) {
      case 0:
        return "\xAB"
               "V538;12L;0,2\xBB";
      case 1:
        return "\xAB"
               "F22N\xBB";
      case 2:
        return Scegli(2) == 0 ? "\xAB"
                                "C\"testo\"\xBB"
                              : "\xAB";
      case 3:
        return std::string(Scegli(9), ' ');
      default:
        return {Byte(), Byte(), Byte()};
    }
  }

  char Byte() {
    for (;;) {
      const char byte = static_cast<char>(static_cast<unsigned char>(Scegli(256)));
      if (byte != '\r' && byte != DelimFileApertura && byte != DelimFileChiusura) return byte;
    }
  }

  std::mt19937_64 caso_;
};

std::int16_t ContaRighe(std::string_view testo) {
  std::int16_t righe = 0;
  for (const char c : testo) righe = static_cast<std::int16_t>(righe + (c == '\r' ? 1 : 0));
  return righe;
}

TEST(MilioneDiModelli, OfThreeSectionsComeBackAsTheyWereWritten) {
  Generatore generatore(20031);
  for (int i = 0; i < Modelli / 2; ++i) {
    const TestiSezioni testi = {generatore.Testata(), generatore.Sezione(), generatore.Sezione()};
    const ImpostazioniCorpo corpo = generatore.Corpo();
    TestiSezioni scritti = testi;
    ImpostazioniCorpo scritto = corpo;
    const Esito<std::string> file = ScriviImmagine(scritti, scritto, Formato::TreSezioni);
    ASSERT_TRUE(file) << i;
    ASSERT_EQ(testi, scritti) << i;
    const ImmagineLetta letta = *LeggiImmagine(*file, Formato::TreSezioni, Precedenti());
    ASSERT_FALSE(letta.Errore) << i;
    ASSERT_EQ(testi, letta.Testi) << i;
    ImpostazioniCorpo contato = corpo;
    contato.LineeCorpo = ContaRighe(testi[1]);
    ASSERT_EQ(contato, letta.Corpo) << i;
  }
}

TEST(MilioneDiModelli, OfOneSectionComeBackAsTheyWereWritten) {
  Generatore generatore(20032);
  for (int i = 0; i < Modelli / 2; ++i) {
    const std::string testata = generatore.Sezione();
    TestiSezioni scritti = {testata, "", ""};
    ImpostazioniCorpo corpo = Precedenti();
    const Esito<std::string> file = ScriviImmagine(scritti, corpo, Formato::UnaSezione);
    ASSERT_TRUE(file) << i;
    const ImmagineLetta letta = *LeggiImmagine(*file, Formato::UnaSezione, Precedenti());
    ASSERT_FALSE(letta.Errore) << i;
    ASSERT_EQ(testata, letta.Testi[0]) << i;
    ASSERT_EQ(Precedenti(), letta.Corpo) << i;
  }
}

}  // namespace
}  // namespace parvik::prova
