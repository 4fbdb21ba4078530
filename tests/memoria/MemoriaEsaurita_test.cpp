// Memory runs out at every one of the places where it can: what comes back is a value, and nothing was
// harmed.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <optional>
#include <stop_token>
#include <string>

#include "Esaurisci.h"
#include "catalogue/Catalogo.h"
#include "common/FileDiProva.h"
#include "output/GeneraStampa.h"
#include "output/StampaSuFile.h"
#include "sistema/LetturaFile.h"
#include "sistema/ScritturaSicura.h"
#include "supporto/Cartelle.h"
#include "template/ImmagineModello.h"

namespace parvik::prova {
namespace {

using prova::ErroreDi;

template <class T>
Errore ErroreDi(const Esito<T, Interruzione>& esito) {
  if (esito) return std::nullopt;
  return esito.Errore() == Interruzione::MemoriaEsaurita ? NumeroErrore::MemoriaEsaurita
                                                         : NumeroErrore::ArgomentoNonValido;
}

DatiStampa Dati(const std::string& testo, const FlagPerStampe& flag) {
  return {
      .Testi = {testo, testo, testo}, .NumSezioni = 3, .RigheCorpo = 900, .LineeCorpo = 300, .Flag = flag};
}

TEST(MemoriaEsaurita, IsAnErrorOfReadingAFile) {
  const CartellaTemporanea cartella;
  const auto file = cartella / "a.img";
  Crea(file, Testo());
  EXPECT_GT(Esaurisci([&] { return ErroreDi(LeggiFile(file)); }), 0);
}

TEST(MemoriaEsaurita, IsAnErrorOfReadingATemplate) {
  const std::string byte = Testo() +
                           "\xAE"
                           "C23;2;\xAF\r\n" +
                           Testo();
  const auto leggi = [&] {
    return ErroreDi(LeggiImmagine(byte, Formato::TreSezioni, ImpostazioniPredefinite()));
  };
  EXPECT_GT(Esaurisci(leggi), 1);
  const auto apri = [&] {
    PreparaImmagine prepara(Formato::TreSezioni);
    return ErroreDi(ImmagineInPosto::Apri(ByteFile(), prepara, ImpostazioniPredefinite()));
  };
  EXPECT_GT(Esaurisci(apri), 0);
}

TEST(MemoriaEsaurita, IsAnErrorOfWritingATemplateThatChangesNothing) {
  const TestiSezioni prima = {Testo(), Testo() + "senza fine di riga lunga abbastanza", Testo()};
  TestiSezioni testi = prima;
  ImpostazioniCorpo corpo = ImpostazioniPredefinite();
  const auto scrivi = [&] { return ErroreDi(ScriviImmagine(testi, corpo, Formato::TreSezioni)); };
  const auto immutato = [&](bool) {
    EXPECT_EQ(testi, prima);
    EXPECT_EQ(corpo, ImpostazioniPredefinite());
  };
  EXPECT_GT(Esaurisci(scrivi, immutato), 0);
  EXPECT_EQ(corpo.LineeCorpo, 301);
}

TEST(MemoriaEsaurita, IsAnErrorOfReadingACatalogue) {
  const std::string campi = Contenuto(Esempio() / "D_IMG" / "CAMPI.TXT");
  std::string daCaricare = campi;  // what the caller needs is the caller's
  std::optional<Catalogo> catalogo;
  const auto carica = [&]() -> Errore {
    auto letto = Catalogo::CaricaCampi(std::move(daCaricare));
    if (!letto) return letto.Errore().Numero;
    catalogo = std::move(*letto);
    return std::nullopt;
  };
  EXPECT_GT(Esaurisci(carica, [&](bool) { daCaricare = campi; }), 10);
  ASSERT_TRUE(catalogo);
  const auto variabili = [&] {
    return catalogo->LeggiVariabili(catalogo->TipiDoc()[0], Sezione::Testata).Errore;
  };
  EXPECT_GT(Esaurisci(variabili), 0);
}

/// Takes the lines and keeps nothing.
class Niente final : public UscitaRighe {
 public:
  bool Righe(std::string_view /*righe*/) override { return true; }
};

TEST(MemoriaEsaurita, IsAnErrorOfARun) {
  const std::string testo = Testo();
  const FlagPerStampe flag;
  const auto stampa = [&] {
    Niente uscita;
    return ErroreDi(GeneraStampa(Dati(testo, flag), TipoStampa::File, uscita));
  };
  EXPECT_GT(Esaurisci(stampa), 0);
}

TEST(MemoriaEsaurita, IsAnErrorOfAPreviewAndOfItsBeginning) {
  const std::string testo = Testo();
  const FlagPerStampe flag;
  const auto intera = [&] { return ErroreDi(GeneraAnteprima(Dati(testo, flag), std::stop_token())); };
  EXPECT_GT(Esaurisci(intera), 5);
  const auto inizio = [&] { return ErroreDi(GeneraInizioAnteprima(Dati(testo, flag), testo.size())); };
  EXPECT_GT(Esaurisci(inizio), 5);
}

/// A folder with an old file, which is there whole after every failure, and alone.
class Salvataggio {
 public:
  Salvataggio() { Crea(File, Vecchio); }

  /// Ready for the next one, too.
  void Prova(bool fatto) const {
    EXPECT_EQ(Contenuto(File) == Vecchio, !fatto);
    EXPECT_EQ(Nomi(Cartella.Percorso()), std::vector{File.filename().string()});
    Crea(File, Vecchio);
  }

  static constexpr std::string_view Vecchio = "vecchio";
  const CartellaTemporanea Cartella;
  const std::filesystem::path File = Cartella / "un nome che non sta in una stringa corta.img";
};

TEST(MemoriaEsaurita, IsAnErrorOfASaveThatLeavesTheOldFile) {
  const Salvataggio caso;
  const auto salva = [&] { return ErroreDi(ScriviFile(caso.File, "nuovo")); };
  EXPECT_GT(Esaurisci(
                salva, [&](bool fatto) { caso.Prova(fatto); }, Allora::ErroreOFatto),
            10);
  EXPECT_EQ(Contenuto(caso.File), "nuovo");
}

/// With two names it is written in place. Once the new bytes stand there, nothing can be missing any more but
/// the name of the copy that is to go, which the next save takes away.
TEST(MemoriaEsaurita, IsAnErrorOfASaveInPlaceThatLeavesOneOfTheTwoContents) {
  const Salvataggio caso;
  const auto altro = caso.Cartella / "un altro nome che non sta in una stringa corta.img";
  std::filesystem::create_hard_link(caso.File, altro);
  const auto salva = [&] { return ErroreDi(ScriviFile(caso.File, "nuovo")); };
  const auto intero = [&](bool) {
    const std::string adesso = Contenuto(caso.File);
    EXPECT_TRUE(adesso == Salvataggio::Vecchio || adesso == "nuovo") << adesso;
  };
  EXPECT_GT(Esaurisci(salva, intero, Allora::ErroreOFatto), 10);
  EXPECT_EQ(Contenuto(altro), "nuovo");
  EXPECT_EQ(Nomi(caso.Cartella.Percorso()).size(), 2U);
}

TEST(MemoriaEsaurita, LeavesTheOldFileWhenItEndsPrintingToAFile) {
  const Salvataggio caso;
  const std::string testo = Testo();
  const FlagPerStampe flag;
  const auto stampa = [&]() -> Errore {
    const auto scritto = StampaSuFile(caso.File, Dati(testo, flag), std::stop_token());
    if (!scritto) return NumeroErrore::MemoriaEsaurita;  // the command is silent: all failures are one
    return std::nullopt;
  };
  EXPECT_GT(Esaurisci(
                stampa, [&](bool fatto) { caso.Prova(fatto); }, Allora::ErroreOFatto),
            10);
}

}  // namespace
}  // namespace parvik::prova
