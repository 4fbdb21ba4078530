#include "editor/Editore.h"

#include <utility>

#include "catalogue/TrovaTipo.h"
#include "common/Delimitatori.h"
#include "common/Precondizione.h"
#include "common/TestoPercorso.h"
#include "common/Windows1252.h"

namespace parvik {
namespace {

constexpr const char* TitoloSenzaTipo = "Ordavia";

// What the commands expect.
constexpr const char* ConTipo = "a document type is chosen";
constexpr const char* ConSezione = "the section is one of the template's";

}  // namespace

Editore::Editore(Installazione installazione, Catalogo catalogo, Vista& vista, Interlocutore& interlocutore)
    : installazione_(std::move(installazione)),
      catalogo_(std::move(catalogo)),
      vista_(vista),
      interlocutore_(interlocutore),
      comandi_(documento_, interlocutore, *this, installazione_.DirImg),
      mostrata_(documento_, flag_),
      resa_(documento_, flag_, mostrata_, vista, interlocutore),
      automatica_(documento_, flag_, mostrata_, vista),
      stampa_(documento_, installazione_, resa_, *this, vista, interlocutore),
      esporta_(documento_, installazione_, resa_, vista, interlocutore),
      conto_(documento_, interlocutore),
      inserimento_(documento_, vista),
      titolo_(TitoloSenzaTipo),
      ricerca_(documento_, vista,
               [this] { return ContestoRicerca{.Tipo = tipo_.get(), .Attiva = inserimento_.Attiva()}; }),
      ascolto_(documento_.Ascolta(*this)) {}

void Editore::ScegliTipo(std::size_t slot) {
  PARVIK_ESIGE(slot < catalogo_.TipiDoc().size(), "the slot is one of the catalogue's");
  tipo_ = std::make_unique<TipoInUso>(catalogo_, catalogo_.TipiDoc()[slot], interlocutore_);
  anteSpuntata_ = true;
  ApplicaTipoDoc();
  documento_.Stato().Modificato = false;
  documento_.Stato().Origine.reset();
}

void Editore::ApplicaTipoDoc() {
  titolo_ = std::string(TitoloSenzaTipo) + " - " + Utf8DaAnsi(Tipo().Titolo);
  documento_.Imposta(Sezione::Testata, FineRiga);
  if (TreSezioni()) {
    documento_.Imposta(Sezione::Corpo, FineRiga);
    documento_.Imposta(Sezione::Piede, FineRiga);
    documento_.Stato().Corpo = ImpostazioniPredefinite();
  }
  documento_.DimenticaPassi();
  vista_.Aggiorna();
  tipo_->CaricaFlagStampe(flag_);
  vista_.RicaricaFlagStampe();
  CambiatiFlag();
}

void Editore::Nuovo() {
  PARVIK_ESIGE(TipoScelto(), ConTipo);
  comandi_.Nuovo(Tipo());
}

void Editore::Apri() {
  PARVIK_ESIGE(TipoScelto(), ConTipo);
  comandi_.Apri(Tipo());
  vista_.Aggiorna();
}

void Editore::ApriDaFuori(const std::filesystem::path& nome) {
  PARVIK_ESIGE(TipoScelto(), ConTipo);
  comandi_.ApriDaFuori(Tipo(), nome);
  vista_.Aggiorna();
}

std::optional<std::size_t> Editore::TipoDaProporre(const std::filesystem::path& nome) {
  const std::optional<std::filesystem::path> file = comandi_.TrovaDaFuori(nome);
  if (!file) return std::nullopt;
  const std::vector<std::size_t> adatti = TipiPerNome(catalogo_, TestoPercorso(file->filename()));
  return adatti.empty() ? 0 : adatti.front();
}

void Editore::Salva() {
  PARVIK_ESIGE(TipoScelto(), ConTipo);
  comandi_.Salva(Tipo());
  vista_.Aggiorna();
}

void Editore::SalvaConNome() {
  PARVIK_ESIGE(TipoScelto(), ConTipo);
  comandi_.SalvaConNome(Tipo());
  vista_.Aggiorna();
}

void Editore::CommutaAnteprima() {
  PARVIK_ESIGE(TipoScelto(), ConTipo);
  if (anteSpuntata_) return SpegniAnteprima();
  AccendiAnteprima();
}

void Editore::Stampa() {
  PARVIK_ESIGE(TipoScelto(), ConTipo);
  if (comandi_.VerificaStampa(Tipo())) stampa_.Esegui(Tipo());
}

void Editore::EsportaPdf() {
  PARVIK_ESIGE(TipoScelto(), ConTipo);
  if (comandi_.VerificaStampa(Tipo())) esporta_.Esegui(Tipo(), FoglioInUso());
}

void Editore::CommutaSettaFlag() {
  PARVIK_ESIGE(TipoScelto(), ConTipo);
  settaFlagSpuntata_ = !settaFlagSpuntata_;
  vista_.Aggiorna();
}

void Editore::CommutaRighe() {
  PARVIK_ESIGE(TipoScelto(), ConTipo);
  conto_.Commuta(Tipo());
  vista_.Aggiorna();
}

void Editore::CambiatiFlag() {
  campi_.AggiornaFlag(scelte_[Preferenza::FlagVeri]);
  vista_.CambiataMisura();
}

void Editore::AttivaSezione(Sezione sezione) {
  PARVIK_ESIGE(InUso(sezione), ConSezione);
  inserimento_.ImpostaAttiva(sezione);
}

void Editore::PreparaInserimento() {
  PARVIK_ESIGE(TipoScelto(), ConTipo);
  inserimento_.Prepara();
}

void Editore::InserisciCodici(std::span<const std::string> codici) {
  PARVIK_ESIGE(TipoScelto(), ConTipo);
  inserimento_.Inserisci(codici);
}

void Editore::Annulla() {
  PARVIK_ESIGE(TipoScelto(), ConTipo);
  if (documento_.PuoAnnullare()) vista_.Raggiungi(documento_.Annulla());
}

void Editore::Ripeti() {
  PARVIK_ESIGE(TipoScelto(), ConTipo);
  if (documento_.PuoRipetere()) vista_.Raggiungi(documento_.Ripeti());
}

std::vector<Variabile> Editore::VariabiliDaOffrire() {
  PARVIK_ESIGE(TipoScelto(), ConTipo);
  return tipo_->VariabiliDaOffrire(inserimento_.Attiva());
}

std::vector<parvik::Flag> Editore::FlagDaOffrire() {
  PARVIK_ESIGE(TipoScelto(), ConTipo);
  return tipo_->FlagDaOffrire(inserimento_.Attiva());
}

std::string Editore::Descrivi(Sezione sezione, std::string_view contenuto) {
  PARVIK_ESIGE(InUso(sezione), ConSezione);
  return tipo_->Descrivi(sezione, contenuto);
}

std::string Editore::TestoCampo(Sezione sezione, std::string_view contenuto, const PostoCampo& posto) {
  PARVIK_ESIGE(InUso(sezione), ConSezione);
  return tipo_->TestoCampo(sezione, contenuto, posto);
}

std::optional<std::string> Editore::ConLarghezza(Sezione sezione, std::string_view contenuto,
                                                 std::int16_t larghezza) {
  PARVIK_ESIGE(InUso(sezione), ConSezione);
  return tipo_->ConLarghezza(sezione, contenuto, larghezza);
}

TestiBarra Editore::Barra(const TestoAnteprima& mostrato, const std::optional<MisuraFoglio>& foglio) {
  PARVIK_ESIGE(TipoScelto(), ConTipo);
  const Sezione attiva = inserimento_.Attiva();
  const TestoSezione& testo = documento_.Testo(attiva);
  const Cursore cursore = vista_.CursoreIn(attiva);
  const std::optional<Selezione> codice = CodiceDaDire(testo, cursore.Posto);
  return PerBarra({.Modello = documento_,
                   .Dove = {.Dove = attiva, .Dentro = cursore},
                   .ColonnaCarta = campi_.Colonna(attiva, cursore.Posto) + 1,
                   .Codice = codice ? tipo_->DescriviInFrase(attiva, ContenutoDi(testo, *codice)) : "",
                   .Aggiornata = AnteprimaAggiornata(),
                   .Corsa = AnteVisibile() ? CorsaDi(mostrato) : std::nullopt,
                   .Foglio = foglio,
                   .Problemi = DettiProblemi()});
}

std::optional<std::int16_t> Editore::ContaRighe(Sezione sezione) {
  PARVIK_ESIGE(InUso(sezione), ConSezione);
  return conto_.Conta(Tipo(), sezione);
}

void Editore::ImpostaCorpo(const ImpostazioniCorpo& corpo) {
  PARVIK_ESIGE(TreSezioni(), "the document type has three sections");
  if (corpo != documento_.Stato().Corpo)
    documento_.Stato().Modificato = true;  // the file would be another one
  documento_.Stato().Corpo = corpo;
  vista_.CambiataMisura();
}

void Editore::SegnaModificato() {
  PARVIK_ESIGE(TipoScelto(), ConTipo);
  documento_.Stato().Modificato = true;
}

void Editore::CommutaGuida(std::size_t colonna) {
  guide_.Commuta(colonna);
  vista_.Aggiorna();
}

void Editore::ImpostaFoglio(const Foglio& foglio) {
  PARVIK_ESIGE(TipoScelto(), ConTipo);
  fogli_.Imposta(*NumeroTipo(), foglio);
  vista_.Aggiorna();
}

void Editore::Commuta(Preferenza quale) {
  scelte_.Imposta(quale, !scelte_[quale]);
  if (quale == Preferenza::FlagVeri) CambiatiFlag();
  if (quale == Preferenza::Problemi) DimenticaProblemi();
  vista_.Aggiorna();
}

SegniAnteprima Editore::SegniAlCursore() const {
  const Sezione attiva = inserimento_.Attiva();
  if (!AnteVisibile() || !InUso(attiva)) return {};
  return mostrata_.Segni({.Dove = attiva, .Dentro = vista_.CursoreIn(attiva)});
}

void Editore::RaggiungiOrigine(std::size_t byte) {
  PARVIK_ESIGE(TipoScelto(), ConTipo);
  const std::optional<CursoreSezione> origine = mostrata_.Origine(byte);
  if (origine && InUso(origine->Dove)) vista_.Raggiungi(*origine);
}

bool Editore::AnteprimaDaRifare() const {
  return scelte_[Preferenza::AnteAuto] && AnteVisibile() && mostrata_.DaRifare(Tipo());
}

std::optional<LavoroAnteprima> Editore::RinnovaAnteprima() {
  PARVIK_ESIGE(AnteprimaDaRifare(), "the preview follows by itself, and is out of date");
  return automatica_.Rinnova(Tipo());
}

void Editore::SpegniAnteprima() {
  anteSpuntata_ = false;
  vista_.Aggiorna();
}

void Editore::AzzeraFlagStampe() {
  flag_.AzzeraTutti();
  vista_.RicaricaFlagStampe();
  CambiatiFlag();
}

void Editore::TornaSenzaTipo() {
  tipo_.reset();
  titolo_ = TitoloSenzaTipo;
  flag_.Svuota();
  CambiatiFlag();
  settaFlagSpuntata_ = false;
  conto_.Nascondi();
  DimenticaProblemi();
  ricerca_.Dimentica();
  vista_.RicaricaFlagStampe();
  vista_.Aggiorna();
}

bool Editore::AccendiAnteprima() {
  anteSpuntata_ = true;
  vista_.Aggiorna();
  return resa_.RiempiAnteprima(Tipo());
}

}  // namespace parvik
