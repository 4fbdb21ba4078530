// The file commands with everything around them made of memory, but for the files.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "common/FileDiProva.h"
#include "supporto/Cartelle.h"
#include "supporto/InterlocutoreScritto.h"
#include "template/ComandiFile.h"
#include "template/Modelli.h"

namespace parvik::prova {

/// Keeps what happened to the document's texts, but for what the user did.
class UditoreFinto final : public AscoltatoreDocumento {
 public:
  explicit UditoreFinto(Documento& documento) : ascolto_(documento.Ascolta(*this)) {}
  void Modificata(const CambiamentoTesto& cambiamento) override {
    if (cambiamento.DelProgramma) DelProgramma.push_back(cambiamento.Dove);
  }
  void Sostituita(Sezione sezione) override { Sostituite.push_back(sezione); }

  std::vector<Sezione> DelProgramma;
  std::vector<Sezione> Sostituite;

 private:
  Documento::Ascolto ascolto_;
};

/// Keeps what happened around the commands, in its order.
class ContornoFinto final : public Contorno {
 public:
  void ImpostaTitolo(std::string titolo) override { Fatti.push_back("titolo " + titolo); }
  void SpegniAnteprima() override { Fatti.emplace_back("anteprima spenta"); }
  void AzzeraFlagStampe() override { Fatti.emplace_back("flag azzerati"); }
  void TornaSenzaTipo() override { Fatti.emplace_back("senza tipo"); }

  std::vector<std::string> Fatti;
};

class BancoComandi : public testing::Test {
 protected:
  BancoComandi() : comandi_(documento_, interlocutore_, contorno_, dirImg_.Percorso()) {
    tre_.Titolo = "FATT*.IMG";
    tre_.NumSezioni = 3;
    una_.Titolo = "LIST*.IMG";
    una_.NumSezioni = 1;
    Imposta({"t\r\n", "c\r\n", "p\r\n"});
    documento_.Stato().Corpo = ImpostazioniPredefinite();
  }

  /// The file that the sections make, as they stand at the beginning, under the type with three sections.
  static std::string FileIniziale() { return "t\r\n" + Marcatore("23;1;") + "c\r\np\r\n"; }

  void Imposta(const TestiSezioni& testi) {
    for (const Sezione sezione : TutteLeSezioni) Imposta(sezione, testi[Indice(sezione)]);
  }
  void Imposta(Sezione sezione, std::string_view byte) {
    documento_.Imposta(sezione, byte);
    uditore_.Sostituite.clear();
  }
  std::string Testo(Sezione sezione) const { return documento_.Testo(sezione).Byte(); }
  TestiSezioni TestiOra() const {
    return {Testo(Sezione::Testata), Testo(Sezione::Corpo), Testo(Sezione::Piede)};
  }

  /// A file that can be named, but not written or made: a folder of it is missing.
  std::filesystem::path FileImpossibile() const { return dirImg_ / "manca/a.img"; }

  static Messaggio Domanda() {
    return {.Testo = "Il file è stato modificato, vuoi salvare?",
            .Simbolo = Icona::Domanda,
            .Tasti = Pulsanti::SiNoAnnulla,
            .Titolo = "File immagine"};
  }

  static Messaggio Errore(NumeroErrore numero) {
    return {
        .Testo = TestoErrore(numero), .Simbolo = Icona::Critica, .Tasti = Pulsanti::Ok, .Titolo = "Ordavia"};
  }

  /// That these messages were shown, in this order, and no others.
  void AttendiMessaggi(const std::vector<Messaggio>& attesi) const {
    ASSERT_EQ(attesi.size(), interlocutore_.Messaggi.size());
    for (std::size_t i = 0; i < attesi.size(); ++i) {
      EXPECT_EQ(attesi[i].Testo, interlocutore_.Messaggi[i].Testo);
      EXPECT_EQ(attesi[i].Simbolo, interlocutore_.Messaggi[i].Simbolo);
      EXPECT_EQ(attesi[i].Tasti, interlocutore_.Messaggi[i].Tasti);
      EXPECT_EQ(attesi[i].Titolo, interlocutore_.Messaggi[i].Titolo);
    }
  }

  /// That one file was asked for, in this way.
  void AttendiRichiesta(RichiestaFile::Scopo uso, const std::string& titolo, const std::string& modello,
                        const std::string& proposto) const {
    ASSERT_EQ(1U, interlocutore_.Richieste.size());
    const RichiestaFile& richiesta = interlocutore_.Richieste.front();
    EXPECT_EQ(uso, richiesta.Uso);
    EXPECT_EQ(titolo, richiesta.Titolo);
    EXPECT_EQ(dirImg_.Percorso(), richiesta.Cartella);
    EXPECT_EQ("File IMG (*.img)", richiesta.EtichettaFiltro);
    EXPECT_EQ(modello, richiesta.Modello);
    EXPECT_EQ(proposto, richiesta.NomeProposto);
  }

  CartellaTemporanea dirImg_;
  Documento documento_;
  UditoreFinto uditore_{documento_};
  InterlocutoreScritto interlocutore_;
  ContornoFinto contorno_;
  ComandiFile comandi_;
  TipoDoc tre_;
  TipoDoc una_;
};

}  // namespace parvik::prova
