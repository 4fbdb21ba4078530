// Memory runs out while a document is changed or saved: what was typed is not harmed.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "Esaurisci.h"
#include "common/FileDiProva.h"
#include "common/SeBastaMemoria.h"
#include "supporto/Cartelle.h"
#include "template/ComandiFile.h"
#include "template/Documento.h"

namespace parvik::prova {
namespace {

/// What may throw for want of memory, as a value.
template <class Fai>
Errore ConMemoria(Fai fai) {
  const auto fatto = [&]() -> Esito<void> {
    fai();
    return {};
  };
  return ErroreDi(SeBastaMemoria(fatto));
}

TEST(DocumentoSenzaMemoria, LeavesADocumentAsItWasBeforeAChange) {
  const std::string prima = Testo();
  Documento documento;
  documento.Imposta(Sezione::Testata, prima);
  const Modifica modifica{.Dove = 40, .Tolti = 2000, .Messi = std::string(3000, 'x')};
  const auto applica = [&] {
    return ConMemoria([&] { documento.Applica(Sezione::Testata, modifica, GenereModifica::Intera, {}); });
  };
  const auto immutato = [&](bool) {
    EXPECT_EQ(documento.Testo(Sezione::Testata).Byte(), prima);
    EXPECT_FALSE(documento.PuoAnnullare());
  };
  EXPECT_GT(Esaurisci(applica, immutato), 5);
  documento.Annulla();
  EXPECT_EQ(documento.Testo(Sezione::Testata).Byte(), prima);
}

/// A step of changes in two sections.
TEST(DocumentoSenzaMemoria, UndoesAndDoesAgainAWholeStepOrNothingOfIt) {
  const std::string prima = Testo();
  Documento documento;
  documento.Imposta(Sezione::Testata, prima);
  documento.Imposta(Sezione::Piede, prima);
  {
    const Documento::PassoUnico passo(documento);
    for (const Sezione sezione : {Sezione::Testata, Sezione::Piede})
      documento.Applica(sezione, {.Dove = 40, .Tolti = 2000, .Messi = "altro"}, GenereModifica::Intera, {});
  }
  const std::string dopo = documento.Testo(Sezione::Piede).Byte();
  const auto entrambe = [&](const std::string& testo) {
    EXPECT_EQ(documento.Testo(Sezione::Testata).Byte(), testo);
    EXPECT_EQ(documento.Testo(Sezione::Piede).Byte(), testo);
  };
  const auto annulla = [&] { return ConMemoria([&] { documento.Annulla(); }); };
  EXPECT_GT(Esaurisci(annulla, [&](bool) { entrambe(dopo); }), 5);
  entrambe(prima);
  const auto ripeti = [&] { return ConMemoria([&] { documento.Ripeti(); }); };
  EXPECT_GT(Esaurisci(ripeti, [&](bool) { entrambe(prima); }), 5);
  entrambe(dopo);
}

/// A person who is only told.
class Avvisato final : public Interlocutore, public Contorno {
 public:
  Risposta Chiedi(const Messaggio& messaggio) override {
    Detto = messaggio.Testo;
    return Risposta::Ok;
  }
  std::filesystem::path ScegliFile(const RichiestaFile& /*richiesta*/) override { return {}; }
  void Termina(int /*stato*/) override {}
  void ImpostaTitolo(std::string /*titolo*/) override {}
  void SpegniAnteprima() override {}
  void AzzeraFlagStampe() override {}
  void TornaSenzaTipo() override {}

  std::string Detto;
};

/// It may be said of a file that stands there already: better than the other way round.
TEST(DocumentoSenzaMemoria, SaveSaysItAndTheTemplateStaysModified) {
  const CartellaTemporanea cartella;
  const std::filesystem::path file = cartella / "un nome che non sta in una stringa corta.img";
  const std::string testo = Testo();
  Avvisato avvisato;
  Documento documento;
  ComandiFile comandi(documento, avvisato, avvisato, cartella.Percorso());
  documento.Imposta(Sezione::Testata, testo);
  documento.Stato().NomeFile = file;
  TipoDoc tipo;
  tipo.NumSezioni = 1;
  comandi.Salva(tipo);
  const std::string nuovo = Contenuto(file);
  const auto cambiato = [&] {
    Crea(file, "vecchio");
    documento.Stato().Modificato = true;
  };
  cambiato();
  const auto salva = [&]() -> Errore {
    avvisato.Detto.clear();
    comandi.Salva(tipo);
    if (avvisato.Detto.empty()) return std::nullopt;
    EXPECT_EQ(avvisato.Detto, TestoErrore(NumeroErrore::MemoriaEsaurita));
    return NumeroErrore::MemoriaEsaurita;
  };
  const auto dopo = [&](bool fatto) {
    EXPECT_EQ(documento.Testo(Sezione::Testata).Byte(), testo);
    EXPECT_EQ(documento.Stato().Modificato, !fatto);
    const std::string byte = Contenuto(file);
    EXPECT_TRUE(byte == nuovo || (byte == "vecchio" && !fatto)) << byte;
    cambiato();
  };
  EXPECT_GT(Esaurisci(salva, dopo, Allora::ErroreOFatto), 10);
}

TEST(DocumentoSenzaMemoria, OpeningFromOutsideSaysItWithTheName) {
  const CartellaTemporanea cartella;
  const std::filesystem::path file = cartella / "un nome che non sta in una stringa corta.img";
  Crea(file, Testo());
  Avvisato avvisato;
  Documento documento;
  ComandiFile comandi(documento, avvisato, avvisato, cartella.Percorso());
  TipoDoc tipo;
  tipo.NumSezioni = 1;
  const auto apri = [&]() -> Errore {
    avvisato.Detto.clear();
    Errore errore = ConMemoria([&] { comandi.ApriDaFuori(tipo, file); });
    if (!avvisato.Detto.empty()) errore = NumeroErrore::MemoriaEsaurita;
    return errore;
  };
  const auto dopo = [&](bool) {
    EXPECT_TRUE(!documento.Stato().Origine || documento.Testo(Sezione::Testata).Vale(Testo()));
  };
  EXPECT_GT(Esaurisci(apri, dopo), 10);
  EXPECT_TRUE(documento.Stato().Origine);
}

}  // namespace
}  // namespace parvik::prova
