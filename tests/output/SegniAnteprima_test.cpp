#include "output/SegniAnteprima.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include "output/AnteprimaDiProva.h"
#include "output/StampaCasuale.h"
#include "supporto/NomeSelezione.h"

namespace parvik::prova {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Selezione Parte(std::size_t inizio, std::size_t lunghezza) {
  return {.Inizio = inizio, .Lunghezza = lunghezza};
}

SegniAnteprima Segni(const AnteprimaMappata& anteprima, const OrigineStampa& di) {
  return {anteprima.Mappa, di};
}

TEST(SegniAnteprima, AreAllRepetitionsOfACodeThatAStretchOfThePreviewShows) {
  const AnteprimaMappata anteprima = Mappata({"t\r\n", "\xABV1;2\xBB|\r\n", ""}, 32767);
  const SegniAnteprima segni = Segni(anteprima, Codice(Sezione::Corpo, 0, 6));
  EXPECT_THAT(segni.In(Parte(0, 14)), ElementsAre(Parte(3, 2), Parte(8, 2), Parte(13, 2)));
  const std::size_t meta = 3 + 5 * 20'000;
  EXPECT_THAT(segni.In(Parte(meta, 6)), ElementsAre(Parte(meta, 2), Parte(meta + 5, 2)));
  EXPECT_THAT(segni.In(Parte(meta + 2, 3)), IsEmpty());
}

TEST(SegniAnteprima, ACharacterOfLiteralTextIsOneCell) {
  const AnteprimaMappata anteprima =
      Mappata({"ab\xABV1;3\xBB"
               "c\r\n",
               "", ""});
  EXPECT_THAT(Segni(anteprima, Lettera(Sezione::Testata, 1)).In(Parte(0, 100)), ElementsAre(Parte(1, 1)));
  EXPECT_THAT(Segni(anteprima, Lettera(Sezione::Testata, 8)).In(Parte(0, 100)), ElementsAre(Parte(5, 1)));
}

TEST(SegniAnteprima, AreNoneOfWhatPrintsNothing) {
  const AnteprimaMappata anteprima =
      Mappata({"\xAB"
               "F1N\xBB\xABV1;3\xBB|\r\n",
               "", ""});
  EXPECT_TRUE(Segni(anteprima, Codice(Sezione::Testata, 0, 5)).Vuoti()) << "a flag";
  EXPECT_TRUE(Segni(anteprima, Codice(Sezione::Testata, 5, 6)).Vuoti()) << "hidden by it";
}

TEST(SegniAnteprima, AreNoneOfACodeThatTheRunDidNotSeeThere) {
  const AnteprimaMappata anteprima =
      Mappata({"ab\xABV1;3\xBB"
               "c\r\n",
               "", ""});
  EXPECT_TRUE(Segni(anteprima, Codice(Sezione::Testata, 2, 5)).Vuoti());
  EXPECT_TRUE(Segni(anteprima, Lettera(Sezione::Testata, 3)).Vuoti()) << "a byte of a code alone";
  EXPECT_TRUE(Segni(anteprima, Codice(Sezione::Testata, 0, 2)).Vuoti()) << "it was text";
}

TEST(SegniAnteprima, TheNextOneIsTheOneThatEndsBehindAByteOrElseTheLast) {
  const AnteprimaMappata anteprima = Mappata({"t\r\n", "\xABV1;2\xBB|\r\n", ""}, 3);
  const SegniAnteprima segni = Segni(anteprima, Codice(Sezione::Corpo, 0, 6));
  EXPECT_EQ(segni.Da(0), Parte(3, 2));
  EXPECT_EQ(segni.Da(4), Parte(3, 2));
  EXPECT_EQ(segni.Da(5), Parte(8, 2));
  EXPECT_EQ(segni.Da(1000), Parte(13, 2));
  EXPECT_EQ(SegniAnteprima().Da(0), std::nullopt);
}

TEST(SegniAnteprimaProprieta, AreTheBytesWhoseOriginIsThatPart) {
  EXPECT_TRUE(rc::check([] {
    const ProvaStampa prova = ProvaCasuale();
    const DatiStampa dati = prova.Dati();
    LavoroStampa lavoro{.Testi = {},
                        .NumSezioni = dati.NumSezioni,
                        .RigheCorpo = static_cast<std::int16_t>(dati.RigheCorpo % 20),
                        .LineeCorpo = dati.LineeCorpo,
                        .Flag = prova.Flag};
    for (std::size_t i = 0; i < MaxSezioni; ++i) lavoro.Testi[i] = prova.Riferimento.Testi[i];
    const auto anteprima = GeneraMappata(lavoro, std::stop_token());
    RC_ASSERT(!!anteprima);
    const std::size_t quanti = anteprima->Testo->Testo().size();
    if (quanti == 0 || quanti > 5000) return;
    const auto uno = anteprima->Mappa->Traccia.OrigineDi(*rc::gen::inRange<std::size_t>(0, quanti));
    if (!uno) return;
    const auto da = *rc::gen::inRange<std::size_t>(0, quanti);
    const auto lunghezza = *rc::gen::inRange<std::size_t>(0, quanti - da);
    std::vector<bool> segnati(quanti);
    for (const Selezione& segno : Segni(*anteprima, *uno).In(Parte(da, lunghezza)))
      for (std::size_t byte = segno.Inizio; byte < segno.Fine(); ++byte) segnati[byte] = true;
    for (std::size_t byte = da; byte < da + lunghezza; ++byte)
      RC_ASSERT(segnati[byte] == (anteprima->Mappa->Traccia.OrigineDi(byte) == uno));
  }));
}

}  // namespace
}  // namespace parvik::prova
