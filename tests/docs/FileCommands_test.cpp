// docs/file-commands.md

#include <gtest/gtest.h>

#include "docs/Pagine.h"
#include "supporto/Cartelle.h"
#include "supporto/InterlocutoreScritto.h"
#include "template/ComandiFile.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view Pagina = "file-commands.md";

class ContornoAnnotato final : public Contorno {
 public:
  void ImpostaTitolo(std::string titolo) override { Titolo = std::move(titolo); }
  void SpegniAnteprima() override {}
  void AzzeraFlagStampe() override {}
  void TornaSenzaTipo() override { SenzaTipo = true; }

  std::string Titolo;
  bool SenzaTipo = false;
};

TipoDoc Tipo(std::int16_t numSezioni, std::string titolo = "FATT*.IMG") {
  TipoDoc tipo;
  tipo.Descrizione = "Prova";
  tipo.Titolo = std::move(titolo);
  tipo.NumSezioni = numSezioni;
  return tipo;
}

/// A template of one section with everything that its commands touch.
struct Banco {
  Banco() {
    for (const Sezione sezione : TutteLeSezioni) Modello.Imposta(sezione, "\r\n");
  }

  Documento Modello;
  InterlocutoreScritto Persona;
  ContornoAnnotato Attorno;
  CartellaTemporanea Cartella;
  ComandiFile Comandi{Modello, Persona, Attorno, Cartella.Percorso()};
};

/// Sets the template and the script up so that saving ends as the example says.
void Prepara(Banco& banco, const RigaEsempio& riga) {
  const std::string salvataggio = riga.Testo(3);
  banco.Modello.Stato().Modificato = true;
  if (riga.Si(1))
    banco.Modello.Stato().NomeFile = banco.Cartella / (salvataggio == "fails" ? "manca/A.IMG" : "A.IMG");
  banco.Modello.Imposta(Sezione::Testata, salvataggio == "nothing to save" ? "\r\n" : "t\r\n");
  const std::string risposta = riga.Testo(2);
  banco.Persona.Rispondera(risposta == "Sì"   ? Risposta::Si
                           : risposta == "No" ? Risposta::No
                                              : Risposta::Annulla);
  if (salvataggio == "fails") banco.Persona.Rispondera(Risposta::Ok);
  if (salvataggio == "given up") banco.Persona.Scegliera({});
}

bool Prosegue(Banco& banco, const RigaEsempio& riga) {
  const std::string comando = riga.Testo(0);
  if (comando == "close") return banco.Comandi.PuoChiudere(Tipo(1));
  if (comando == "New") {
    banco.Comandi.Nuovo(Tipo(1));
    return banco.Attorno.SenzaTipo;
  }
  if (riga.Si(4)) banco.Persona.Scegliera({});  // the choice of the file to open, given up
  banco.Comandi.Apri(Tipo(1));
  return !banco.Persona.Richieste.empty() && banco.Persona.Richieste.back().Titolo == "Apri File Immagine";
}

TEST(FileCommandsPage, TellsWhenACommandGoesOnAfterTheQuestion) {
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "question", 5)) {
    Banco banco;
    Prepara(banco, riga);
    EXPECT_EQ(Prosegue(banco, riga), riga.Si(4)) << riga.Posto();
    EXPECT_EQ(fs::exists(banco.Cartella / "A.IMG"), riga.Testo(3) == "written") << riga.Posto();
  }
}

TEST(FileCommandsPage, TellsTheCaptions) {
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "captions", 2)) {
    Banco banco;
    banco.Persona.Scegliera(riga.Testo(0));
    banco.Comandi.Apri(Tipo(1));
    EXPECT_EQ(banco.Attorno.Titolo, riga.Testo(1)) << riga.Posto();
  }
}

TEST(FileCommandsPage, TellsWhichFileATypedNameMeans) {
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "typed", 3)) {
    Banco banco;
    if (const std::string file = riga.Testo(0); !file.empty()) Crea(banco.Cartella / file, "altro\r\n");
    banco.Persona.Scegliera(banco.Cartella / riga.Testo(1));
    banco.Comandi.SalvaConNome(Tipo(1));
    EXPECT_EQ(banco.Modello.Stato().NomeFile, banco.Cartella / riga.Testo(2)) << riga.Posto();
    EXPECT_EQ(Contenuto(banco.Cartella / riga.Testo(2)), "\r\n") << riga.Posto();
    banco.Persona.Scegliera(banco.Cartella / riga.Testo(1));
    banco.Comandi.Apri(Tipo(1));
    EXPECT_EQ(banco.Modello.Stato().NomeFile, banco.Cartella / riga.Testo(2)) << riga.Posto() << ": opened";
  }
}

TEST(FileCommandsPage, TellsPatternsAndProposedNames) {
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "patterns", 3)) {
    Banco banco;
    banco.Persona.Scegliera({});
    banco.Persona.Scegliera({});
    banco.Comandi.Apri(Tipo(1, riga.Byte(0)));
    banco.Comandi.SalvaConNome(Tipo(1, riga.Byte(0)));
    ASSERT_EQ(banco.Persona.Richieste.size(), 2U);
    EXPECT_EQ(banco.Persona.Richieste[0].Modello, riga.Testo(1)) << riga.Posto();
    EXPECT_EQ(banco.Persona.Richieste[1].Modello, riga.Testo(1)) << riga.Posto();
    EXPECT_EQ(banco.Persona.Richieste[0].NomeProposto, "") << riga.Posto();
    EXPECT_EQ(banco.Persona.Richieste[1].NomeProposto, riga.Testo(2)) << riga.Posto();
  }
}

constexpr std::string_view Altrui = "di un altro\r\n";

/// Brings about what the example says of the file.
void PreparaFile(Banco& banco, const std::string& stato) {
  const fs::path file = banco.Cartella / "A.IMG";
  Crea(file, stato == "has the bytes to be written" ? "nuovo\r\n" : Altrui);
  if (stato == "could not be read to its end")
    Crea(file,
         "t\r\n\xAE"
         "C40000;1;\xAF\r\nc\r\n");
  if (!stato.starts_with("exists") && !stato.starts_with("has")) {
    banco.Persona.Scegliera(file);
    banco.Comandi.Apri(Tipo(stato.starts_with("could") ? 3 : 1));
  }
  banco.Modello.Imposta(Sezione::Testata, "nuovo\r\n");
  if (stato.find("New") != std::string::npos) banco.Comandi.Nuovo(Tipo(1));
  if (stato.ends_with("saved")) {
    banco.Comandi.Salva(Tipo(1));
    fs::remove(banco.Cartella / "A.IMG~");
    banco.Modello.Imposta(Sezione::Testata, "piu' nuovo\r\n");
  }
  if (stato.ends_with("changed by somebody else")) Crea(file, "cambiato\r\n");
  if (stato.ends_with("taken away")) fs::remove(file);
}

TEST(FileCommandsPage, TellsWhatIsKeptOfAFileThatIsReplaced) {
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "kept", 3)) {
    Banco banco;
    PreparaFile(banco, riga.Testo(0));
    const fs::path file = banco.Cartella / "A.IMG";
    const std::string prima = fs::exists(file) ? Contenuto(file) : "";
    if (riga.Testo(1) == "Save As") {
      banco.Persona.Scegliera(file);
      banco.Comandi.SalvaConNome(Tipo(1));
    } else {
      banco.Comandi.Salva(Tipo(1));
    }
    EXPECT_EQ(Contenuto(file), banco.Modello.Testo(Sezione::Testata).Byte()) << riga.Posto();
    EXPECT_EQ(fs::exists(banco.Cartella / "A.IMG~"), riga.Si(2)) << riga.Posto();
    if (riga.Si(2)) {
      EXPECT_EQ(Contenuto(banco.Cartella / "A.IMG~"), prima) << riga.Posto();
    }
  }
}

TEST(FileCommandsPage, TellsWhenThereIsNothingToSave) {
  for (const RigaEsempio& riga : TabellaEsempi(Pagina, "empty", 5)) {
    Banco banco;
    for (const Sezione sezione : TutteLeSezioni)
      banco.Modello.Imposta(sezione, riga.Byte(1 + Indice(sezione)));
    EXPECT_EQ(banco.Comandi.VerificaStampa(Tipo(static_cast<std::int16_t>(riga.Numero(0)))), riga.Si(4))
        << riga.Posto();
  }
}

}  // namespace
}  // namespace parvik::prova
