// The reader held against one that takes line after line, as the rules are told.
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <optional>
#include <string>

#include "common/LettoreRighe.h"
#include "common/NumeroLeniente.h"
#include "template/CopiaRighe.h"
#include "template/Modelli.h"

namespace parvik::prova {
namespace {

/// All that matters in a file comes up often; one in a few texts is longer than the pieces that the reader
/// takes.
rc::Gen<std::string> ByteDiFile() {
  const auto brani = rc::gen::element<std::string>("\r\n", "\r\n", "\r", "\n", "a", "\xAE",
                                                   "\xAE"
                                                   "C",
                                                   "\xAE"
                                                   "C2;1;\xAF\r\n",
                                                   "\xAE"
                                                   "C9;3;CS\xAF",
                                                   "\xAE"
                                                   "C99999;1;",
                                                   "\xAF", "\xAB", "\xBB", ";", "7", std::string(4'095, 'x'));
  return rc::gen::map(rc::gen::container<std::vector<std::string>>(brani),
                      [](const std::vector<std::string>& tutti) {
                        std::string testo;
                        for (const std::string& brano : tutti) testo += brano;
                        return testo;
                      });
}

void Aggiungi(std::string& sezione, std::string_view riga) {
  std::string in(riga);
  DelimitatoriVersoEditor(in);
  sezione += in + "\r\n";
}

/// The texts alone. The settings say where the Corpo ends; they come from the reader, the documents' examples
/// hold them.
TestiSezioni RigaPerRiga(std::string_view byte, const ImmagineLetta& letta) {
  TestiSezioni testi;
  LettoreRighe righe(byte);
  std::size_t sezione = 0;
  int restano = 0;
  while (const auto riga = righe.Prossima()) {
    if (sezione == 0 && righe.Numero() > 1 &&
        riga->find("\xAE"
                   "C") != std::string_view::npos) {
      if (letta.TestoNonLetto) break;
      sezione = 1;
      restano = letta.Corpo.LineeCorpo;
      continue;
    }
    if (sezione == 1 && restano-- <= 0) sezione = 2;
    Aggiungi(testi[sezione], *riga);
  }
  return testi;
}

TEST(LeggiImmagine, ReadsAnyThreeSectionsAsLineByLine) {
  EXPECT_TRUE(rc::check("three sections", [] {
    const std::string byte = *ByteDiFile();
    const ImmagineLetta letta = LeggiTre(byte);
    RC_ASSERT(letta.Testi == RigaPerRiga(byte, letta));
  }));
}

void ConfrontaInPosto(const std::string& byte, Formato formato) {
  const ImmagineLetta letta = LeggiImmagine(byte, formato, Precedenti());
  const ImmagineInPosto inPosto(byte, formato, Precedenti());
  for (std::size_t i = 0; i < MaxSezioni; ++i) RC_ASSERT(inPosto.Testi()[i] == letta.Testi[i]);
  RC_ASSERT(inPosto.Esito().Corpo == letta.Corpo);
  RC_ASSERT(inPosto.Esito().Errore == letta.Errore);
  RC_ASSERT(inPosto.Esito().CorpoIncompleto == letta.CorpoIncompleto);
  RC_ASSERT(inPosto.Esito().TestoNonLetto == letta.TestoNonLetto);
}

TEST(ImmagineInPosto, SaysWhatTheReaderSays) {
  EXPECT_TRUE(rc::check("in place", [] {
    ConfrontaInPosto(*ByteDiFile(), *rc::gen::element(Formato::UnaSezione, Formato::TreSezioni));
  }));
}

}  // namespace
}  // namespace parvik::prova
