// docs/template-file.md
#include <gtest/gtest.h>

#include <sstream>

#include "docs/Pagine.h"
#include "template/ImmagineModello.h"

namespace parvik::prova {
namespace {

constexpr std::string_view Pagina = "template-file.md";

std::string InSintesi(const ImpostazioniCorpo& corpo) {
  return std::to_string(corpo.RigheCorpo) + ";" + std::to_string(corpo.LineeCorpo) + ";" + corpo.FlagSbarra +
         corpo.FlagAccorpa;
}

std::string ComeFinita(const ImmagineLetta& letta) {
  std::string detto;
  const auto aggiungi = [&detto](const std::string& cosa) { detto += (detto.empty() ? "" : ", ") + cosa; };
  if (letta.Errore) aggiungi("error " + std::to_string(static_cast<int>(*letta.Errore)));
  if (letta.CorpoIncompleto) aggiungi("body incomplete");
  if (letta.TestoNonLetto) aggiungi("text unread");
  return detto.empty() ? "well" : detto;
}

std::string DaEsadecimale(const std::vector<std::string>& righe) {
  std::string byte;
  for (const std::string& riga : righe) {
    std::istringstream coppie(riga);
    for (std::string coppia; coppie >> coppia;) byte += DaPagina("\\x" + coppia);
  }
  return byte;
}

TEST(TemplateFilePage, ShowsTheBytesOfAFile) {
  const std::string file = DaEsadecimale(BloccoEsempi(Pagina, "bytes"));
  const ImmagineLetta letta = *LeggiImmagine(file, Formato::TreSezioni, ImpostazioniPredefinite());
  const auto righe = TabellaEsempi(Pagina, "bytes-read", 2);
  ASSERT_EQ(righe.size(), MaxSezioni);
  for (std::size_t i = 0; i < MaxSezioni; ++i)
    EXPECT_EQ(letta.Testi[i], righe[i].Byte(1)) << righe[i].Posto();

  TestiSezioni testi = letta.Testi;
  ImpostazioniCorpo corpo = letta.Corpo;
  const Esito<std::string> scritto = ScriviImmagine(testi, corpo, Formato::TreSezioni);
  ASSERT_TRUE(scritto);
  EXPECT_EQ(*scritto, file);
}

TEST(TemplateFilePage, TellsWhatMarkersSay) {
  const ImpostazioniCorpo prima{.RigheCorpo = 7, .LineeCorpo = 7, .FlagSbarra = "C", .FlagAccorpa = "S"};
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "markers", 5)) {
    const std::string file = "\r\n" + riga.Byte(0) + "\r\n";
    const ImpostazioniCorpo atteso{.RigheCorpo = static_cast<std::int16_t>(riga.Numero(1)),
                                   .LineeCorpo = static_cast<std::int16_t>(riga.Numero(2)),
                                   .FlagSbarra = riga.Byte(3),
                                   .FlagAccorpa = riga.Byte(4)};
    const ImpostazioniCorpo letto = LeggiImmagine(file, Formato::TreSezioni, prima)->Corpo;
    EXPECT_EQ(letto, atteso) << riga.Posto() << " reads as " << InSintesi(letto);
  }
}

TEST(TemplateFilePage, TellsWhatFilesReadAs) {
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "readings", 7)) {
    const ImpostazioniCorpo prima = ImpostazioniPredefinite();
    const Formato formato = FormatoDi(static_cast<std::int16_t>(riga.Numero(0)));
    const ImmagineLetta letta = *LeggiImmagine(riga.Byte(1), formato, prima);
    for (std::size_t i = 0; i < MaxSezioni; ++i) EXPECT_EQ(letta.Testi[i], riga.Byte(2 + i)) << riga.Posto();
    EXPECT_EQ(InSintesi(letta.Corpo), riga.Testo(5).empty() ? InSintesi(prima) : riga.Byte(5))
        << riga.Posto();
    EXPECT_EQ(ComeFinita(letta), riga.Testo(6)) << riga.Posto();
  }
}

TEST(TemplateFilePage, TellsWhatSectionsAreWrittenAs) {
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "writings", 6)) {
    TestiSezioni testi = {riga.Byte(1), riga.Byte(2), riga.Byte(3)};
    ImpostazioniCorpo corpo = ImpostazioniPredefinite();
    const Formato formato = FormatoDi(static_cast<std::int16_t>(riga.Numero(0)));
    const Esito<std::string> file = ScriviImmagine(testi, corpo, formato);
    ASSERT_TRUE(file) << riga.Posto();
    EXPECT_EQ(*file, riga.Byte(4)) << riga.Posto();
    EXPECT_EQ(testi[Indice(Sezione::Corpo)], riga.Byte(5)) << riga.Posto();
  }
}

}  // namespace
}  // namespace parvik::prova
