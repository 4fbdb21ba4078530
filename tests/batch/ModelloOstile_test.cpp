// Templates that no editor writes.
#include <gtest/gtest.h>

#include "batch/Esecuzione.h"
#include "batch/Esempi.h"
#include "common/FileDiProva.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t MB = 1024UL * 1024UL;
/// Where there is no limit nothing shows by so many; under the address sanitizer they take ten times as long.
const std::size_t RigaLunga = MemoriaLimitabile() ? 64 * MB : 4 * MB;
constexpr std::string_view Esaurita = "Si è verificato l'errore: 7 Memoria esaurita";

std::string Ripetuto(std::string_view testo, std::size_t volte) {
  std::string tutto;
  for (std::size_t i = 0; i < volte; ++i) tutto += testo;
  return tutto;
}

/// Templates of type 1, which has three sections.
class ModelloOstile : public testing::Test {
 protected:
  Esecuzione Comando(std::string_view comando, const Avvio& avvio = {}) const {
    return Esegui(Host.Argomenti({std::string(comando), "--tipo", "1", File.string()}), avvio);
  }
  Esecuzione Stampa(std::string_view byte, const Avvio& avvio = {}) const {
    Crea(File, byte);
    return Comando("stampa", avvio);
  }
  /// What becomes of the file.
  std::string Normalizzato(std::string_view byte, const Avvio& avvio = {}) const {
    Crea(File, byte);
    const Esecuzione esecuzione = Comando("normalizza", avvio);
    EXPECT_EQ(esecuzione, (Esecuzione{0, "", ""}));
    return Contenuto(File);
  }

  HostDiProva Host;
  fs::path File = Host.Percorso() / "D_IMG" / "m.img";
};

TEST_F(ModelloOstile, AFileThatTheUserMayNotReadIsDeniedAndTheOthersAreDone) {
  const fs::path programma = Host.Percorso() / "parvik32-batch";
  fs::copy_file(Batch(), programma);
  const fs::path altro = Host.Modello("altro.img", "a\r\n");
  Crea(File, "segreto");
  fs::permissions(File, fs::perms::none);
  fs::permissions(Host.Percorso(), fs::perms::all);
  const UtenteComune utente;
  if (!utente.Comune()) GTEST_SKIP() << "root cannot become an ordinary user here";
  EXPECT_EQ(Esegui(Host.Argomenti({"stampa", "--tipo", "1", File.string(), altro.string()}),
                   {.Programma = programma}),
            (Esecuzione{2, "a\r\n", Detto(File, "Si è verificato l'errore: 70 Autorizzazione negata")}));
}

TEST_F(ModelloOstile, ALineOf64MBIsPrintedAndWrittenAsItIs) {
  const Avvio avvio = {.Memoria = MemoriaLimitabile() ? 512 * MB : 0};
  const std::string riga = std::string(RigaLunga, 'x') + "\r\n";
  const Esecuzione stampa = Stampa(riga, avvio);
  EXPECT_TRUE(stampa == (Esecuzione{0, riga, ""})) << stampa.Stato << " " << stampa.Errori;
  EXPECT_TRUE(Normalizzato(riga, avvio) == riga + NelFile("C23;0;") + "\r\n");
}

TEST_F(ModelloOstile, ANulIsAByteLikeAnyOther) {
  const std::string byte =
      std::string("a\0b\r\n", 5) + NelFile("C4;2;") + "\r\n" + std::string("\0\r\n", 3) + "\r\n";
  EXPECT_EQ(Stampa(byte), (Esecuzione{0, std::string("a\0b\r\n\0\r\n\r\n\0\r\n\r\n", 15), ""}));
  EXPECT_EQ(Normalizzato(byte), byte);
}

TEST_F(ModelloOstile, AHundredThousandCodesStandOnOneLine) {
  const std::string riga = Ripetuto(NelFile("V1;4L"), 100'000) + "\r\n";
  const Esecuzione stampa = Stampa(riga);
  EXPECT_TRUE(stampa == (Esecuzione{0, std::string(400'000, '$') + "\r\n", ""}))
      << stampa.Stato << stampa.Errori;
  EXPECT_TRUE(Normalizzato(riga) == riga + NelFile("C23;0;") + "\r\n");
}

/// A hundred gigabytes on one line, written until the disk is full.
TEST_F(ModelloOstile, CodesThatAskForMoreThanThereIsTakeNoMemory) {
  if (!DispositivoPieno()) GTEST_SKIP() << "no full device here";
  const Avvio avvio = {.Uscita = UscitaStandard::DiscoPieno, .Memoria = MemoriaLimitabile() ? 64 * MB : 0};
  EXPECT_EQ(Stampa(Ripetuto(NelFile("L1;99999999999"), 100'000) + "\r\n", avvio),
            (Esecuzione{2, "", Detto("uscita standard: Si è verificato l'errore: 61 Disco pieno")}));
}

/// Without the end of the line nothing of it is written: the run goes over all of it, and takes no memory.
TEST_F(ModelloOstile, ALineThatNeverEndsTakesNoMemory) {
  const Avvio avvio = {.Memoria = MemoriaLimitabile() ? 64 * MB : 0};
  const std::string corpo = NelFile("C300;1;") + "\r\n" + Ripetuto(NelFile("L1;999999"), 10) + "\xAE\r\n";
  EXPECT_EQ(Stampa("a\r\n" + corpo, avvio), (Esecuzione{0, "a\r\n", ""}));
}

TEST_F(ModelloOstile, DelimitersWithoutTheirPartnerHarmNothing) {
  EXPECT_EQ(Stampa("\xAF\xAF"
                   "a\xAE\xAE"
                   "P1\xAF\xAF\r\nb\xAE"
                   "P2\r\nc\r\n"),
            (Esecuzione{0,
                        "\xBB\xBB"
                        "a\xBB\r\n",
                        ""}));
  const std::string soli = "\r\n" + NelFile("C1;1;") + "\r\n\xAF\r\n\xAE\r\n\xAE\xAE\r\n";
  EXPECT_EQ(Stampa(soli), (Esecuzione{0, "\xBB\r\n", ""}));
  EXPECT_EQ(Normalizzato(soli), soli);
}

TEST_F(ModelloOstile, ANumberOfAThousandDigitsInACodeIsAMillionOrNothing) {
  const std::string cifre(1000, '9');
  const Esecuzione stampa =
      Stampa("[" + NelFile("V1;" + cifre + "L") + "]\r\n[" + NelFile("L1;-" + cifre) + "]\r\n[" +
             NelFile("F" + cifre + "N") + NelFile("V1;0." + cifre + "L") + "]\r\n");
  EXPECT_TRUE(stampa == (Esecuzione{0, "[" + std::string(1'000'000, '$') + "]\r\n[]\r\n[$]\r\n", ""}))
      << stampa.Stato << " " << stampa.Errori << " " << stampa.Uscita.size();
}

TEST_F(ModelloOstile, ANumberOfAThousandDigitsInTheMarkerIsBeyond16Bits) {
  const std::string byte = "a\r\n" + NelFile("C" + std::string(1000, '1') + ";1;") + "\r\nb\r\n";
  EXPECT_EQ(Stampa(byte),
            (Esecuzione{0, "a\r\n",
                        Detto(File, "avviso: lettura interrotta: Si è verificato l'errore: 6 Overflow")}));
  EXPECT_EQ(Comando("normalizza"), (Esecuzione{2, "", Detto(File, "Si è verificato l'errore: 6 Overflow")}));
  EXPECT_EQ(Contenuto(File), byte);
}

TEST_F(ModelloOstile, TheSmallestAndTheLargestSettingsAreSettings) {
  const auto con = [](std::string_view marcatore) {
    return "a\r\n" + NelFile("C" + std::string(marcatore) + ";") + "\r\nb\r\n";
  };
  const std::string corpo = Ripetuto("b\r\n", 32767);
  const Esecuzione tante = Stampa(con("32767;1"));
  EXPECT_TRUE(tante == (Esecuzione{0, "a\r\n" + corpo, ""})) << tante.Stato << " " << tante.Errori;
  EXPECT_EQ(Stampa(con("-32768;1")), (Esecuzione{0, "a\r\n", ""}));
  EXPECT_EQ(Stampa(con("32767;-32768")), (Esecuzione{0, "a\r\nb\r\n", ""}));
  EXPECT_EQ(Stampa(con("-32768;-32768")), (Esecuzione{0, "a\r\nb\r\n", ""}));
  EXPECT_EQ(
      Stampa(con("32767;32767")),
      (Esecuzione{
          0, "a\r\nb\r\n",
          Detto(File, "avviso: il file ha meno delle 32767 righe di corpo che il marcatore promette")}));
  EXPECT_EQ(Normalizzato(con("-32768;1")), con("-32768;1"));
}

TEST_F(ModelloOstile, MoreLinesThanANumberCountsAreWrittenAsTheyAre) {
  const std::string byte = "a\r\n" + NelFile("C1;1;") + "\r\n" + Ripetuto("b\r\n", 32768);
  EXPECT_TRUE(Normalizzato(byte) == byte);
  const std::string soloCorpo = "a\r\n" + NelFile("C1;32767;") + "\r\n" + Ripetuto("b\r\n", 32767);
  EXPECT_TRUE(Normalizzato(soloCorpo) == soloCorpo);
}

/// Whatever memory there is, a template is done whole or is run-time error 7, and the next one is done.
TEST_F(ModelloOstile, TooLittleMemoryIsRunTimeError7OfThatTemplateAlone) {
  if (!MemoriaLimitabile()) GTEST_SKIP() << PercheSenzaLimite();
  const std::string riga = std::string(8 * MB, 'x') + "\r\n";
  const std::string altro = Host.Modello("altro.img", "altro\r\n").string();
  std::size_t esauriti = 0;
  for (std::size_t memoria = 16; memoria <= 56; memoria += 4) {
    Crea(File, riga);
    const Avvio avvio = {.Memoria = memoria * MB};
    const auto esegui = [&](const char* comando) {
      return Esegui(Host.Argomenti({comando, "--tipo", "1", File.string(), altro}), avvio);
    };
    const Esecuzione stampa = esegui("stampa");
    EXPECT_TRUE(stampa == (Esecuzione{0, riga + "altro\r\n", ""}) ||
                stampa == (Esecuzione{2, "altro\r\n", Detto(File, Esaurita)}))
        << memoria << " MB: " << stampa.Stato << " " << stampa.Errori;
    const Esecuzione normalizza = esegui("normalizza");
    if (normalizza == Esecuzione{2, "", Detto(File, Esaurita)}) {
      ++esauriti;
      EXPECT_TRUE(Contenuto(File) == riga) << memoria;
    } else {
      EXPECT_EQ(normalizza, (Esecuzione{0, "", ""})) << memoria;
      EXPECT_TRUE(Contenuto(File) == riga + NelFile("C23;0;") + "\r\n") << memoria;
    }
  }
  EXPECT_GT(esauriti, 0U);
}

}  // namespace
}  // namespace parvik::prova
