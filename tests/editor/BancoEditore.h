// The editor on the example installation, with a window made of memory.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "editor/Editore.h"
#include "start/Avvio.h"
#include "supporto/Cartelle.h"
#include "supporto/InterlocutoreScritto.h"
#include "supporto/NomeSezione.h"

namespace parvik::prova {

class VistaFinta final : public Vista {
 public:
  void Aggiorna() override { ++Aggiornamenti; }
  void CambiatoTesto() override { ++CambiamentiTesto; }
  void CambiataMisura() override { ++CambiamentiMisura; }
  void MostraAnteprima(Anteprima anteprima) override { Anteprime.push_back(std::move(anteprima.Testo)); }
  void CompletaAnteprima(Anteprima anteprima) override { Completate.push_back(std::move(anteprima.Testo)); }
  void RinnovaAnteprima(std::shared_ptr<const TestoAnteprima> anteprima,
                        const Ricollocazione& /*dove*/) override {
    Rinnovate.emplace_back(anteprima->Testo());
  }
  void CambiataAnteprima() override { ++CambiamentiAnteprima; }
  Esito<void> Attendi(const std::function<void(std::stop_token)>& lavoro) override {
    if (Attesa == ComeAttende::SenzaMemoria) return NumeroErrore::MemoriaEsaurita;
    std::stop_source smetti;
    if (Attesa == ComeAttende::Smette) smetti.request_stop();
    lavoro(smetti.get_token());
    return {};
  }
  std::optional<Destinazione> ScegliDestinazione() override {
    ++RichiesteDestinazione;
    return DestinazioneScelta;
  }
  Esito<Tipografo, std::string> ScegliStampante() override {
    ++RichiesteStampante;
    if (!SenzaStampe.empty()) return SenzaStampe;
    if (!ConStampante) return Tipografo();
    return Tipografo([this](const std::string& nomeLavoro) { LavoriStampati.push_back(nomeLavoro); });
  }
  bool ComponiPdf(const LavoroPdf& lavoro, const std::function<bool(std::string_view)>& scrivi) override {
    PdfComposti.push_back(
        {.Testo = std::string(lavoro.Testo.Testo()),
         .Parte = std::string(lavoro.Testo.Testo().substr(lavoro.Parte.Inizio, lavoro.Parte.Lunghezza)),
         .Titolo = lavoro.Titolo,
         .SuFoglio = lavoro.SuFoglio});
    for (const std::string& pezzo : PezziPdf) {
      if (!scrivi(pezzo)) return false;
    }
    return !PdfLasciato;
  }
  Cursore CursoreIn(Sezione sezione) const override { return Cursori[Indice(sezione)]; }
  void ImpostaCursore(Sezione sezione, Cursore cursore) override { Cursori[Indice(sezione)] = cursore; }
  void Raggiungi(const CursoreSezione& cursore) override { Raggiunti.push_back(cursore); }
  void Rivela(const CursoreSezione& cursore) override {
    Rivelati.push_back(cursore);
    Cursori[Indice(cursore.Dove)] = cursore.Dentro;
  }
  SelezioneAnteprima InAnteprima() const override { return NelPannello; }
  void SelezionaInAnteprima(const Selezione& parte) override {
    NelPannello.Seleziona(parte.Inizio, parte.Fine());
  }
  void CambiataRicerca() override { ++CambiamentiRicerca; }
  void CambiatiProblemi() override { ++CambiamentiProblemi; }
  void RicaricaFlagStampe() override { ++RicaricheFlag; }

  std::array<Cursore, MaxSezioni> Cursori;
  std::vector<CursoreSezione> Raggiunti;
  std::vector<CursoreSezione> Rivelati;
  SelezioneAnteprima NelPannello;
  int CambiamentiRicerca = 0;
  int Aggiornamenti = 0;
  int CambiamentiTesto = 0;
  int CambiamentiMisura = 0;
  int CambiamentiProblemi = 0;
  int RicaricheFlag = 0;
  std::vector<std::string> Anteprime;
  std::vector<std::string> Completate;
  std::vector<std::string> Rinnovate;  // those that came by themselves
  int CambiamentiAnteprima = 0;

  enum class ComeAttende { FinoAllaFine, Smette, SenzaMemoria };
  ComeAttende Attesa = ComeAttende::FinoAllaFine;
  std::optional<Destinazione> DestinazioneScelta;  // what the person at the screen chooses
  bool ConStampante = false;
  std::string SenzaStampe;  // why there is nothing to print with
  int RichiesteDestinazione = 0;
  int RichiesteStampante = 0;
  std::vector<std::string> LavoriStampati;

  struct PdfComposto {
    std::string Testo;
    std::string Parte;  // of it: what becomes pages
    std::string Titolo;
    Foglio SuFoglio;
  };
  std::vector<PdfComposto> PdfComposti;
  std::vector<std::string> PezziPdf = {"%PDF ", "tutto"};
  bool PdfLasciato = false;  // given up by the person at the screen, once all is painted
};

/// Slots of the example catalogue.
inline constexpr std::size_t Fattura = 0;
inline constexpr std::size_t Listino = 11;

class BancoEditore : public testing::Test {
 protected:
  BancoEditore() : BancoEditore(Contenuto(Esempio() / "D_IMG" / "CAMPI.TXT")) {}
  explicit BancoEditore(std::string campi)
      : editore_(Dove(dir_.Percorso()), std::move(*Catalogo::CaricaCampi(std::move(campi))), vista_,
                 interlocutore_) {
    for (const Sezione sezione : TutteLeSezioni) Imposta(sezione, "mai scelto");
  }

  void Imposta(Sezione sezione, std::string_view byte) { editore_.Modello().Imposta(sezione, byte); }
  void Imposta(const TestiSezioni& testi) {
    for (const Sezione sezione : TutteLeSezioni) Imposta(sezione, testi[Indice(sezione)]);
  }
  void Aggiungi(Sezione sezione, std::string_view byte) { Imposta(sezione, Testo(sezione).append(byte)); }
  std::string Testo(Sezione sezione) const { return editore_.Modello().Testo(sezione).Byte(); }
  TestiSezioni TestiOra() const {
    return {Testo(Sezione::Testata), Testo(Sezione::Corpo), Testo(Sezione::Piede)};
  }

  static Installazione Dove(const std::filesystem::path& dir) {
    Installazione installazione;
    installazione.DirVelkor = dir / "";
    installazione.DirImg = dir / "D_IMG";
    installazione.FileCampi = dir / "D_IMG" / "CAMPI.TXT";
    return installazione;
  }

  /// Another type: the template as it stands is given up without a question.
  void CambiaTipo(std::size_t slot) {
    editore_.Modello().Stato().Modificato = false;
    editore_.Nuovo();
    editore_.ScegliTipo(slot);
  }

  std::filesystem::path FileNuovo() const { return dir_ / "NUOVO001.IMG"; }

  CartellaTemporanea dir_;
  VistaFinta vista_;
  InterlocutoreScritto interlocutore_;
  Editore editore_;
};

}  // namespace parvik::prova
