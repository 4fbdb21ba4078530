// The reader held against one that takes line after line, as the rules are told.
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <optional>
#include <string>

#include "common/FileDiProva.h"
#include "common/LettoreRighe.h"
#include "common/NumeroLeniente.h"
#include "sistema/LetturaFile.h"
#include "supporto/Cartelle.h"
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

/// As a file arrives: in pieces, each time all that there is so far, in new memory; the last pieces may never
/// have been shown.
std::unique_ptr<const ImmagineInPosto> LettaAPezzi(std::string_view byte, Formato formato, std::size_t pezzo,
                                                   bool finoInFondo) {
  PreparaImmagine prepara(formato);
  ByteFile finora;
  while (finora.size() < byte.size()) {
    const std::string_view nuovi = byte.substr(finora.size(), pezzo);
    ByteFile altrove(finora);
    altrove.insert(altrove.end(), nuovi.begin(), nuovi.end());
    finora = std::move(altrove);
    if (finoInFondo || finora.size() < byte.size()) prepara.Prosegui(finora);
  }
  return std::move(*ImmagineInPosto::Apri(std::move(finora), prepara, Precedenti()));
}

/// In what the two ways to read differ; "" when they do not.
std::string Differenze(std::string_view byte, Formato formato, std::size_t pezzo, bool finoInFondo) {
  const ImmagineLetta letta = *LeggiImmagine(byte, formato, Precedenti());
  const auto inPosto = LettaAPezzi(byte, formato, pezzo, finoInFondo);
  const EsitoImmagine& esito = inPosto->Esito();
  std::string differenze;
  for (const Sezione sezione : TutteLeSezioni) {
    const std::size_t i = Indice(sezione);
    if (inPosto->Testi()[i] != letta.Testi[i]) differenze.append(NomiSezioni[i]).append(" ");
  }
  if (!(esito.Corpo == letta.Corpo)) differenze += "settings ";
  if (esito.Errore != letta.Errore || esito.CorpoIncompleto != letta.CorpoIncompleto ||
      esito.TestoNonLetto != letta.TestoNonLetto) {
    differenze += "errors ";
  }
  return differenze;
}

TEST(ImmagineInPosto, SaysWhatTheReaderSays) {
  EXPECT_TRUE(rc::check("in place", [] {
    const Formato formato = *rc::gen::element(Formato::UnaSezione, Formato::TreSezioni);
    const std::size_t pezzo = *rc::gen::element<std::size_t>(1'000'000, 5'000, 4'096, 1'001);
    RC_ASSERT(Differenze(*ByteDiFile(), formato, pezzo, *rc::gen::arbitrary<bool>()) == "");
  }));
}

/// Files of a few bytes, cut everywhere.
TEST(ImmagineInPosto, SaysWhatTheReaderSaysWhereverTheFileIsCut) {
  for (const std::string_view byte :
       std::initializer_list<std::string_view>{"", "\r", "\n", "\r\n", "a", "a\r", "a\r\n", "a\r\nb",
                                               "a\rb\r\n\xAE"
                                               "a\xAF\r\n",
                                               "\xAE"
                                               "C1;1;\xAF\r\nuna\r\n\xAE"
                                               "C2;1;\xAF\r\ncorpo\xAE\xAF\r\npiede\r\n",
                                               "\xAE\r\nx\xAF\xAE"
                                               "C3;2;\xAE\xAF\r\n\xAE"
                                               "C4;1;\r\n",
                                               "t\r\xAF;;\xAE"
                                               "C\xAE\xAF\xAE\r\n\xAE\xAF",
                                               "t\r\n\xAE"
                                               "C70000;1;\r\nresto\xAE\r\n",
                                               "t\n\r\n\r\n\xAE"
                                               "C5;1",
                                               "\xAE"
                                               "C\r\n\xAE"
                                               "C",
                                               "t\r\n\xAE"
                                               "C2;1;S\xAE\r"}) {
    for (const Formato formato : {Formato::UnaSezione, Formato::TreSezioni}) {
      for (std::size_t pezzo = 1; pezzo <= byte.size() + 1; ++pezzo) {
        EXPECT_EQ(Differenze(byte, formato, pezzo, true), "") << testing::PrintToString(byte) << pezzo;
        EXPECT_EQ(Differenze(byte, formato, pezzo, false), "") << testing::PrintToString(byte) << pezzo;
      }
    }
  }
}

TEST(ImmagineInPosto, ReadsAFileWhileItComesAsTheReaderReadsItsBytes) {
  const CartellaTemporanea cartella;
  std::string byte = "prima\r\n";
  while (byte.size() < 1'000'000)
    byte +=
        "riga \xAE"
        "V1;5\xAF\r\n";
  byte +=
      "\xAE"
      "C3;1;\xAF\r\ncorpo\r\n" +
      byte;
  Crea(cartella / "a", byte);
  PreparaImmagine prepara(Formato::TreSezioni);
  Esito<ByteFile> letto =
      LeggiFile(cartella / "a", [&](std::span<char> finora) { prepara.Prosegui(finora); });
  ASSERT_TRUE(letto);
  const auto aperta = ImmagineInPosto::Apri(std::move(*letto), prepara, Precedenti());
  ASSERT_TRUE(aperta);
  const ImmagineInPosto& letta = **aperta;
  const ImmagineLetta attesa = LeggiTre(byte);
  for (std::size_t i = 0; i < MaxSezioni; ++i) EXPECT_TRUE(letta.Testi()[i] == attesa.Testi[i]) << i;
  EXPECT_EQ(letta.Esito().Corpo, attesa.Corpo);
}

}  // namespace
}  // namespace parvik::prova
