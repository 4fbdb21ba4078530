// Previews that are given up, and beginnings of previews.
#include <gtest/gtest.h>
#include <pthread.h>

#include <chrono>
#include <ctime>
#include <thread>

#include "output/CatalogoDiProva.h"
#include "output/Leggibile.h"

namespace parvik::prova {
namespace {

/// What a run reads, with flags that outlive it.
struct Lavoro {
  explicit Lavoro(std::string corpo, std::int16_t volte = 1) : Corpo(std::move(corpo)), Volte(volte) {}

  DatiStampa Dati() const {
    return {.Testi = {"", Corpo, ""}, .NumSezioni = 3, .RigheCorpo = Volte, .LineeCorpo = 1, .Flag = Flag};
  }

  std::string Corpo;
  std::int16_t Volte;
  FlagPerStampe Flag;
};

std::string Ripetuto(std::string_view testo, std::size_t volte) {
  std::string tutto;
  for (std::size_t i = 0; i < volte; ++i) tutto += testo;
  return tutto;
}

std::stop_token GiaSmesso() {
  std::stop_source smetti;
  smetti.request_stop();
  return smetti.get_token();
}

/// What a thread has used of a processor.
std::chrono::nanoseconds TempoDiLavoro(std::jthread& filo) {
  clockid_t orologio = {};
  timespec tempo = {};
  EXPECT_EQ(pthread_getcpuclockid(filo.native_handle(), &orologio), 0);
  EXPECT_EQ(clock_gettime(orologio, &tempo), 0);
  return std::chrono::seconds(tempo.tv_sec) + std::chrono::nanoseconds(tempo.tv_nsec);
}

/// Whether a preview that takes hours ends soon after it is given up from another thread.
bool SiInterrompe(const Lavoro& lavoro) {
  bool interrotta = false;
  const auto inizio = std::chrono::steady_clock::now();
  {
    std::jthread lavoratore(
        [&](const std::stop_token& smetti) { interrotta = !GeneraAnteprima(lavoro.Dati(), smetti); });
    while (TempoDiLavoro(lavoratore) < std::chrono::milliseconds(1)) std::this_thread::yield();
  }
  return interrotta && std::chrono::steady_clock::now() - inizio < std::chrono::seconds(20);
}

TEST(AnteprimaInterrotta, IsTheSamePreviewWhenItIsNotGivenUp) {
  const Lavoro lavoro(
      "a\xAB"
      "S;GRASSETTO\xBB"
      "b\r\n",
      2);
  const auto anteprima = GeneraAnteprima(lavoro.Dati(), std::stop_source().get_token());
  ASSERT_TRUE(anteprima);
  EXPECT_EQ(Leggibile(anteprima->Testo, anteprima->Tratti), "a<GR>b¶ab¶¶--- Fine file ---</GR>");
}

TEST(AnteprimaInterrotta, IsNothingWhenItWasGivenUpBefore) {
  EXPECT_FALSE(GeneraAnteprima(Lavoro("").Dati(), GiaSmesso()));
  EXPECT_FALSE(GeneraAnteprima(Lavoro("a\r\n").Dati(), GiaSmesso()));
  EXPECT_FALSE(GeneraAnteprima(Lavoro(std::string(1'000'000, 'x')).Dati(), GiaSmesso()));
}

TEST(AnteprimaInterrotta, EndsWhileTheCorpoIsRepeatedWithoutWritingAnything) {
  EXPECT_TRUE(SiInterrompe(Lavoro(Ripetuto("\xAB"
                                           "F1N\xBB",
                                           500'000),
                                  32767)));
}

TEST(AnteprimaInterrotta, EndsWhileACodeThatIsNeverClosedIsRepeated) {
  EXPECT_TRUE(SiInterrompe(Lavoro("\xAB" + std::string(10'000'000, 'x'), 32767)));
}

TEST(AnteprimaInterrotta, EndsWithinALine) {
  EXPECT_TRUE(SiInterrompe(Lavoro(Ripetuto("\xAB"
                                           "L1;1000000\xBB",
                                           100'000) +
                                  "\r\n")));
}

TEST(StiliInterrotti, AreNothingWhenTheyWereGivenUp) {
  std::string senza(1'000'000, 'x');
  EXPECT_FALSE(MettiStili(senza, GiaSmesso()).has_value());
  std::string solaIniziale(1'000'000, 'S');
  EXPECT_FALSE(MettiStili(solaIniziale, GiaSmesso()).has_value());
  std::string molti = Ripetuto("S;GRx", 10'000);
  EXPECT_FALSE(MettiStili(molti, GiaSmesso()).has_value());
  std::string sovrapposti = Ripetuto("S;S;", 10'000);
  EXPECT_FALSE(MettiStili(sovrapposti, GiaSmesso()).has_value());
}

/// The search goes by pieces: a marker on the border of two is found as anywhere.
TEST(StiliInterrotti, FindAMarkerWhereverItStands) {
  for (const std::size_t prima : {65'534U, 65'535U, 65'536U, 65'537U, 131'070U, 131'071U, 131'072U}) {
    std::string testo = std::string(prima, 'a') + "S;GR" + std::string(100'000, 'b');
    const auto tratti = MettiStili(testo, std::stop_source().get_token());
    EXPECT_EQ(testo, std::string(prima, 'a') + std::string(100'000, 'b'));
    const Aspetto normale = Aspetto().Con(Stile::Normale);
    const Aspetto grassetto = Aspetto().Con(Stile::Grassetto);
    const std::vector<Tratto> attesi = {{.Inizio = 0, .Lunghezza = prima, .Come = normale},
                                        {.Inizio = prima, .Lunghezza = 100'000, .Come = grassetto}};
    EXPECT_TRUE(tratti == attesi) << prima;
  }
}

std::string Inizio(const Lavoro& lavoro, std::size_t massimo) {
  const InizioAnteprima inizio = *GeneraInizioAnteprima(lavoro.Dati(), massimo);
  return Leggibile(inizio.Testo.Testo, inizio.Testo.Tratti) + (inizio.Intera ? "" : "...");
}

TEST(InizioAnteprima, IsTheWholePreviewWhereThatFits) {
  EXPECT_EQ(Inizio(Lavoro("a\r\n"), 3), "a¶¶--- Fine file ---");
  EXPECT_EQ(Inizio(Lavoro(""), 0), "");
}

TEST(InizioAnteprima, HasWholeLinesAsManyAsFit) {
  EXPECT_EQ(Inizio(Lavoro("riga\r\n", 100), 17), "riga¶riga¶...");
  EXPECT_EQ(Inizio(Lavoro("riga\r\n", 100), 18), "riga¶riga¶riga¶...");
  EXPECT_EQ(Inizio(Lavoro("riga\r\n", 100), 5), "...");
  EXPECT_EQ(Inizio(Lavoro("riga\r\n", 100), 0), "...");
}

TEST(InizioAnteprima, LooksAsItDoesInTheWholePreview) {
  EXPECT_EQ(Inizio(Lavoro("a\xAB"
                          "S;GRASSETTO\xBB"
                          "b\xAB"
                          "S;NORMALE\xBB"
                          "c\r\n",
                          100),
                   26),
            "a<GR>b</GR>c¶a<GR>b</GR>c¶...");
}

TEST(InizioAnteprima, OfALongRunHasNearlyAsMuchAsItMay) {
  const Lavoro lavoro(
      "\xAB"
      "F1N\xBB"
      "riga\r\n",
      32767);
  for (const std::size_t massimo : {1'000U, 65'536U, 100'000U, 150'000U}) {
    const InizioAnteprima inizio = *GeneraInizioAnteprima(lavoro.Dati(), massimo);
    EXPECT_FALSE(inizio.Intera);
    EXPECT_EQ(inizio.Testo.Testo, Ripetuto("riga\r\n", massimo / 6));
  }
}

TEST(InizioAnteprima, IsEmptyWhenTheFirstLineIsTooLong) {
  EXPECT_EQ(Inizio(Lavoro(Ripetuto("\xAB"
                                   "L1;1000000\xBB",
                                   100'000) +
                          "\r\n"),
                   200'000),
            "...");
}

/// Nothing comes out of it: 65 GB of codes would have to be read to know.
TEST(InizioAnteprima, DoesNotWaitForALineThatNeverComes) {
  EXPECT_EQ(Inizio(Lavoro(Ripetuto("\xAB"
                                   "F1N\xBB",
                                   500'000),
                          32767),
                   200'000),
            "...");
}

}  // namespace
}  // namespace parvik::prova
