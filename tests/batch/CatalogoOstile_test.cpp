// Catalogues that no host writes.
#include <gtest/gtest.h>

#include "batch/Esecuzione.h"
#include "batch/Esempi.h"
#include "common/FileDiProva.h"
#include "start/Avvio.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t MB = 1024UL * 1024UL;
/// Under the address sanitizer the same takes ten times as long.
const std::size_t RigaLunga = MemoriaLimitabile() ? 64 * MB : 4 * MB;
const std::string Versione =
    "Questa versione di Parvik a 32 bit è disallineata con quella del file CAMPI.TXT. - Impossibile "
    "continuare!";

std::string Tipo(std::string_view variabili, std::string_view flag = "0;0") {
  return "1,\"T;T*;1;" + std::string(variabili) + ";0;0;0;0;" + std::string(flag) +
         ";0;0;0;0\"\r\n//fine documenti\r\n";
}

std::string Mille(char cifra) {
  return std::string(1000, cifra);
}

class CatalogoOstile : public testing::Test {
 protected:
  Esecuzione Con(std::string_view contenuto, std::vector<std::string> argomenti,
                 const Avvio& avvio = {}) const {
    Crea(File, contenuto);
    return Esegui(argomenti, avvio);
  }
  Esecuzione Esegui(std::vector<std::string> argomenti, const Avvio& avvio = {}) const {
    argomenti.insert(argomenti.begin(), {"--campi", File.string()});
    return prova::Esegui(argomenti, avvio);
  }
  Esecuzione Errore(std::string_view errore, int riga) const {
    return {2, "",
            Detto("Si è verificato l'errore: " + std::string(errore) + " - " + File.string() + ", riga " +
                  std::to_string(riga))};
  }

  CartellaTemporanea Cartella;
  fs::path File = Cartella / "campi.txt";
  const std::vector<std::string> Campi = {"campi", "--tipo", "1"};
};

TEST_F(CatalogoOstile, APipeThatNobodyWritesToIsNotWaitedFor) {
  if (!FaiPipe(File)) GTEST_SKIP() << "no pipes in folders here";
  EXPECT_EQ(Esegui({"tipi"}), Errore("75 Errore di accesso al percorso/file", 1));
}

TEST_F(CatalogoOstile, AFileThatTheUserMayNotReadIsDenied) {
  Crea(File, Tipo("0;0"));
  const fs::path programma = Cartella / "parvik32-batch";
  fs::copy_file(Batch(), programma);
  fs::permissions(File, fs::perms::none);
  fs::permissions(Cartella.Percorso(), fs::perms::all);
  const UtenteComune utente;
  if (!utente.Comune()) GTEST_SKIP() << "root cannot become an ordinary user here";
  EXPECT_EQ(Esegui({"tipi"}, {.Programma = programma}), Errore("70 Autorizzazione negata", 1));
}

TEST_F(CatalogoOstile, ANulIsAByteLikeAnyOther) {
  const std::string nul(1, '\0');
  EXPECT_EQ(Con("1,\"a" + nul + "b;" + nul + ";1;1;2;0;0;0;0;0;0;0;0;0;0\"\r\n//fine documenti\r\n" + nul +
                    "\r\n1,\"c" + nul + ";1;1;;1;0;0;0;0;0;0\r\n2,\"d;2;1;;1;0;0;0;0;0;0\r\n",
                {"tipi"}),
            (Esecuzione{0, "1\ta b\t \t1\n", ""}));
  EXPECT_EQ(Esegui(Campi), (Esecuzione{0, "testata\tV\t1\t«V1;1L»\tc \ntestata\tV\t2\t«V2;1L»\td\n", ""}));
}

TEST_F(CatalogoOstile, ALineOf64MBIsACommentOrADescriptionLikeAnyOther) {
  const std::string lunga(RigaLunga, 'x');
  const std::string catalogo = "//" + lunga + "\r\n" + Tipo("1;2") + "1,\"" + lunga +
                               ";1;1;;1;0;0;0;0;0;0\r\n2,\"d;2;1;;1;0;0;0;0;0;0\r\n";
  const Avvio avvio = {.Memoria = MemoriaLimitabile() ? 1024 * MB : 0};
  EXPECT_EQ(Con(catalogo, {"tipi"}, avvio), (Esecuzione{0, "1\tT\tT*\t1\n", ""}));
  const Esecuzione campi = Esegui(Campi, avvio);
  EXPECT_TRUE(campi ==
              (Esecuzione{0, "testata\tV\t1\t«V1;1L»\t" + lunga + "\ntestata\tV\t2\t«V2;1L»\td\n", ""}))
      << campi.Stato << " " << campi.Errori << " " << campi.Uscita.size();
}

TEST_F(CatalogoOstile, ANumberOfAThousandDigitsIsBeyond16Bits) {
  EXPECT_EQ(Con(Mille('9') + Tipo("0;0"), {"tipi"}), Errore("6 Overflow", 1));
  EXPECT_EQ(Con(Tipo("0;" + Mille('1')), {"tipi"}), Errore("6 Overflow", 1));
  EXPECT_EQ(
      Con(Tipo("1;2") + "1,\"a;1;1;;1;0;0;0;0;0;0\r\n2,\"b;" + Mille('7') + ";1;;1;0;0;0;0;0;0\r\n", Campi),
      (Esecuzione{2, "testata\tV\t1\t«V1;1L»\ta\n",
                  Detto(File, "testata, riga 4: Si è verificato l'errore: 6 Overflow")}));
}

TEST_F(CatalogoOstile, AThousandZerosInFrontOfANumberChangeNothing) {
  EXPECT_EQ(Con(Mille('0') + Tipo(Mille('0') + ";" + Mille('0')), {"tipi"}),
            (Esecuzione{0, "1\tT\tT*\t1\n", ""}));
}

TEST_F(CatalogoOstile, ARangeBackwardsHasNoEntries) {
  const std::string righe = "1,\"a;1;1;;1;0;0;0;0;0;0\r\n2,\"b;2;1;;1;0;0;0;0;0;0\r\n";
  EXPECT_EQ(Con(Tipo("2;1", "2;-32768") + righe, Campi), (Esecuzione{0, "", ""}));
  EXPECT_EQ(Con(Tipo("32767;-32768", "-32768;-32768") + righe, Campi), (Esecuzione{0, "", ""}));
}

TEST_F(CatalogoOstile, ARangeThatNoLineBeginsHasNoEntries) {
  EXPECT_EQ(Con(Tipo("-32768;32767", "5;32767"), Campi), (Esecuzione{0, "", ""}));
}

TEST_F(CatalogoOstile, ARangePastTheEndIsOfAnotherVersion) {
  EXPECT_EQ(Con(Tipo("1;32767") + "1,\"a;1;1;;1;0;0;0;0;0;0\r\n", Campi),
            (Esecuzione{2, "", Detto(File, "testata, riga 4: " + Versione)}));
}

TEST_F(CatalogoOstile, ARangeOf32767LinesHas32767Entries) {
  std::string catalogo = Tipo("1;32767");
  std::string atteso;
  for (int i = 1; i <= 32767; ++i) {
    const std::string numero = std::to_string(i);
    catalogo += (i == 1 ? "0001" : "0000") + (",\"v" + numero) + ";" + numero + ";1;;1;0;0;0;0;0;0\r\n";
    atteso += "testata\tV\t" + numero + "\t«V" + numero + ";1L»\tv" + numero + "\n";
  }
  const Esecuzione campi = Con(catalogo, Campi);
  EXPECT_TRUE(campi == (Esecuzione{0, atteso, ""})) << campi.Stato << " " << campi.Errori;
}

/// Whatever memory there is, the program ends with its result or with the run-time error.
TEST_F(CatalogoOstile, TooLittleMemoryIsRunTimeError7) {
  if (!MemoriaLimitabile()) GTEST_SKIP() << PercheSenzaLimite();
  const std::string lunga(4 * MB, 'x');
  Crea(File, Tipo("1;2") + "1,\"" + lunga + ";1;1;;1;0;0;0;0;0;0\r\n2,\"d;2;1;;1;0;0;0;0;0;0\r\n");
  std::size_t errori = 0;
  for (std::size_t memoria = 16; memoria <= 64; memoria += 4) {
    const Esecuzione esecuzione = Esegui(Campi, {.Memoria = memoria * MB});
    const bool esaurita =
        esecuzione.Stato == 2 && esecuzione.Uscita.empty() &&
        esecuzione.Errori.starts_with("parvik32-batch: ") &&
        esecuzione.Errori.find("Si è verificato l'errore: 7 Memoria esaurita") != std::string::npos;
    EXPECT_TRUE(esaurita || (esecuzione.Stato == 0 && esecuzione.Errori.empty()))
        << memoria << " MB: " << esecuzione.Stato << " " << esecuzione.Errori;
    if (esaurita) ++errori;
  }
  EXPECT_GT(errori, 0U);
}

/// The file is read once: what becomes of it afterwards changes nothing.
TEST_F(CatalogoOstile, MayBeReplacedWhileItIsUsed) {
  const std::string righe = "1,\"a;1;1;;1;0;0;0;0;0;0\r\n2,\"b;2;1;;1;0;0;0;0;0;0\r\n";
  Crea(File, Tipo("1;2") + righe);
  const Esito<Catalogo, std::string> catalogo = LeggiCatalogo(File);
  ASSERT_TRUE(catalogo);
  Crea(File, "troncato");
  const Tabella<Variabile> prima = catalogo->LeggiVariabili(catalogo->TipiDoc()[0], Sezione::Testata);
  EXPECT_EQ(prima.Errore, std::nullopt);
  ASSERT_EQ(prima.Voci.size(), 2U);
  EXPECT_EQ(prima.Voci[1].Descrizione, "b");
  fs::remove(File);
  EXPECT_EQ(catalogo->LeggiVariabili(catalogo->TipiDoc()[0], Sezione::Testata).Voci, prima.Voci);
}

}  // namespace
}  // namespace parvik::prova
