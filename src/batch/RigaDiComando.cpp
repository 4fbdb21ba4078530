#include "batch/RigaDiComando.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "batch/Messaggi.h"
#include "batch/Parole.h"
#include "batch/Valori.h"
#include "common/TestoMostrabile.h"
#include "common/TestoPercorso.h"
#include "start/Versione.h"

namespace parvik::batch {
namespace {

using Comando = Uscita (*)(const Opzioni&);

/// A word of the command line in a message.
std::string Detta(const std::string& parola) {
  return parola.empty() ? "\"\"" : Mostrabile(parola);
}

constexpr const char* GruppoOpzioni = "Opzioni";
constexpr const char* GruppoComandi = "Comandi";

class RigaDiComando {
 public:
  RigaDiComando() {
    app_.name("parvik32-batch");
    app_.require_subcommand(1);
    app_.option_defaults()->group(GruppoOpzioni);
    Traduci(app_);
    app_.set_version_flag("--version", std::string("Ordavia (parvik32-batch) Version ") + VersioneVisibile,
                          "Mostra la versione ed esce");
    auto* velkor = AggiungiNome(app_, "--velkor", velkor_, "Cartella dell'host, con dentro D_IMG/CAMPI.TXT");
    auto* campi = AggiungiNome(app_, "--campi", campi_, "File del catalogo");
    velkor->type_name("DIR")->excludes(campi);
    AggiungiComando("tipi", "Elenca i tipi di documento del catalogo", Tipi);
    AggiungiCampi();
    AggiungiStampa();
    AggiungiNormalizza();
    AggiungiVerifica();
    AggiungiVerificaCatalogo();
    AggiungiSpiega();
    AggiungiCodici();
  }

  Uscita Esegui(const std::vector<std::string>& riga) {
    const Parole parole = Scherma(
        {riga.begin() + 1, riga.end()}, [this](const std::string& nome) { return Genere(nome); },
        [this](const std::string& nome) { return EComando(nome); });
    try {
      app_.parse(std::vector<std::string>(parole.Schermate.rbegin(), parole.Schermate.rend()));
    } catch (const CLI::ParseError& errore) {
      if (errore.get_exit_code() == 0) return Mostra(errore);
      Segnala(Spiega(errore, parole) + " (--help elenca gli argomenti)");
      return Uscita::NonFatto;
    }
    Completa(riga.front());
    if (comando_ == Normalizza && opzioni_.Uscita && opzioni_.File.size() > 1) {
      Segnala("-o vuole un file solo: " + Mostrabile(TestoPercorso(*opzioni_.Uscita)));
      return Uscita::NonFatto;
    }
    if (const std::string manca = Manca(); !manca.empty()) {
      Segnala("manca " + manca + " (--help elenca gli argomenti)");
      return Uscita::NonFatto;
    }
    return comando_(opzioni_);
  }

 private:
  bool EComando(const std::string& nome) const {
    return !app_.get_subcommands([&nome](const CLI::App* app) { return app->check_name(nome); }).empty();
  }

  GenereOpzione Genere(const std::string& nome) const {
    std::vector<const CLI::App*> tutte = app_.get_subcommands([](const CLI::App*) { return true; });
    tutte.push_back(&app_);
    for (const CLI::App* app : tutte) {
      const CLI::Option* opzione = app->get_option_no_throw(nome);
      if (opzione == nullptr) continue;
      return opzione->get_items_expected_min() > 0 ? GenereOpzione::ConValore : GenereOpzione::SenzaValore;
    }
    return GenereOpzione::Sconosciuta;
  }

  /// The help or the version, which the library takes for errors.
  Uscita Mostra(const CLI::ParseError& richiesta) const {
    std::ostringstream testo;
    static_cast<void>(app_.exit(richiesta, testo, testo));
    return parvik::batch::Stampa(std::move(testo).str()) ? Uscita::Fatto : Uscita::NonFatto;
  }

  /// What a command lacks that it does not always want.
  std::string Manca() const {
    if (comando_ != Verifica || opzioni_.Rilievi.ElencoRegole) return {};
    if (tipo_.empty()) return "--tipo";
    return file_.empty() ? "IMG" : "";
  }

  /// What the library says of the arguments, in the user's language.
  std::string Spiega(const CLI::ParseError& errore, const Parole& parole) const {
    std::string detto = errore.what();
    const auto finoA = [&detto](std::string_view segno) { return detto.substr(0, detto.find(segno)); };
    if (dynamic_cast<const CLI::ValidationError*>(&errore) != nullptr) return detto;  // the checks above
    if (dynamic_cast<const CLI::ExcludesError*>(&errore) != nullptr) return "--velkor e --campi si escludono";
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&errore) != nullptr) {
      return parole.Ripetuta ? "opzione ripetuta: " + *parole.Ripetuta : "manca il valore di " + finoA(":");
    }
    const bool senzaComando = app_.get_subcommands().empty();
    if (senzaComando && parole.Comando) return "comando sconosciuto: " + Detta(*parole.Comando);
    if (const std::string altri = NonPrevisti(); !altri.empty()) return "argomento non previsto:" + altri;
    if (senzaComando) return "manca il comando";
    if (dynamic_cast<const CLI::RequiredError*>(&errore) != nullptr) return "manca " + finoA(" is required");
    return "argomenti non validi: " + Mostrabile(detto);
  }

  /// The words that nobody wanted, each after a blank.
  std::string NonPrevisti() const {
    std::string parole;
    for (const std::string& parola : app_.remaining(true)) parole += " " + Detta(Svela(parola));
    return parole;
  }

  static void Traduci(CLI::App& app) {
    app.set_help_flag("-h,--help", "Mostra questo aiuto ed esce")->group(GruppoOpzioni);
    const auto formato = app.get_formatter();
    formato->label("Usage", "Uso");
    formato->label("OPTIONS", "OPZIONI");
    formato->label("SUBCOMMAND", "COMANDO");
    formato->label("Positionals", "Argomenti");
    formato->label("REQUIRED", "obbligatorio");
    formato->label("Excludes", "esclude");
  }

  CLI::App& AggiungiComando(const char* nome, const char* scopo, Comando comando) {
    CLI::App& app = *app_.add_subcommand(nome, scopo);
    app.group(GruppoComandi)->fallthrough();
    Traduci(app);
    app.callback([this, comando] { comando_ = comando; });
    return app;
  }

  /// Every option goes through here: its value comes behind a sign.
  template <class Valore>
  static CLI::Option* Aggiungi(CLI::App& app, const char* opzione, Valore& valore, const char* scopo) {
    const auto svela = [](std::string& schermato) {
      schermato = Svela(schermato);
      return std::string();
    };
    return app.add_option(opzione, valore, scopo)->transform(CLI::Validator(svela, ""));
  }

  template <class Valore>
  static CLI::Option* AggiungiNome(CLI::App& app, const char* opzione, Valore& nome, const char* scopo) {
    return Aggiungi(app, opzione, nome, scopo)->type_name("FILE")->check(NonVuoto);
  }

  void AggiungiTipo(CLI::App& app) {
    Aggiungi(app, "--tipo", tipo_, "Numero del tipo di documento, come nel catalogo")
        ->required()
        ->type_name("N")
        ->check(Numero);
  }

  void AggiungiTipoOAuto(CLI::App& app) {
    Aggiungi(app, "--tipo", tipo_, "Numero del tipo di documento, o auto: dal nome del file")
        ->type_name("N|auto")
        ->check(NumeroOAuto);
  }

  void AggiungiFile(CLI::App& app) {
    AggiungiNome(app, "IMG", file_, "Modelli di stampa (*.img)")->required();
  }

  void AggiungiCampi() {
    CLI::App& app = AggiungiComando("campi", "Elenca variabili e flag di un tipo di documento", Campi);
    AggiungiTipo(app);
    Aggiungi(app, "--sezione", sezione_, "Solo questa sezione: testata, corpo o piede")
        ->type_name("S")
        ->check(NomeSezione);
  }

  void AggiungiStampa() {
    CLI::App& app = AggiungiComando("stampa", "Scrive i modelli come testo, con valori di esempio",
                                    parvik::batch::Stampa);
    AggiungiTipo(app);
    Aggiungi(app, "--veri", veri_, "Flag veri, per numero: 3,14,97")->type_name("N,N")->check(ElencoDiNumeri);
    AggiungiNome(app, "-o", uscita_, "File da scrivere, invece dell'uscita standard");
    AggiungiFile(app);
  }

  void AggiungiNormalizza() {
    CLI::App& app = AggiungiComando("normalizza", "Rilegge e riscrive i modelli come fa Salva", Normalizza);
    AggiungiTipo(app);
    AggiungiNome(app, "-o", uscita_, "File da scrivere, invece di quello letto (uno solo)");
    AggiungiFile(app);
  }

  void AggiungiVerifica() {
    CLI::App& app = AggiungiComando("verifica", "Dice che cosa non va nei modelli, riga per riga", Verifica);
    ComeVerificare& come = opzioni_.Rilievi;
    AggiungiTipoOAuto(app);
    app.add_flag("--severo", come.Severo, "Stato 1 anche con soli avvisi");
    app.add_flag("--json", come.Json, "Un documento JSON");
    app.add_flag("--sommario", come.Sommario, "Solo quanti errori e avvisi ha ogni file");
    app.add_flag("--regole", come.ElencoRegole, "Elenca le regole ed esce");
    app.add_flag("--correggi", come.Correggi, "Corregge ciò che si corregge in un modo solo; tiene IMG~");
    app.add_flag("--prova", come.Prova, "Mostra le correzioni, e non scrive niente");
    AggiungiRegole(app, "--solo", solo_, "Solo queste regole");
    AggiungiRegole(app, "--escludi", escluse_, "Non queste regole");
    AggiungiQuanti(app, "--larghezza", larghezza_, "Caratteri che una riga stampata può avere");
    AggiungiQuanti(app, "--righe", righe_, "Righe che una pagina può avere");
    app.add_flag("--cornici", come.Opzioni.Cornici, "Guarda anche se le cornici combaciano");
    AggiungiNome(app, "IMG", file_, "Modelli di stampa (*.img)");
  }

  void AggiungiVerificaCatalogo() {
    CLI::App& app =
        AggiungiComando("verifica-catalogo", "Dice che cosa non va nel catalogo stesso", VerificaCatalogo);
    ComeVerificare& come = opzioni_.Rilievi;
    app.add_flag("--severo", come.Severo, "Stato 1 anche con soli avvisi");
    app.add_flag("--json", come.Json, "Un documento JSON");
    app.add_flag("--sommario", come.Sommario, "Solo quanti errori e avvisi ci sono");
  }

  void AggiungiSpiega() {
    CLI::App& app = AggiungiComando("spiega", "Dice che cosa dicono dei codici, e che cosa stampano",
                                    parvik::batch::Spiega);
    AggiungiTipo(app);
    Aggiungi(app, "--sezione", sezione_, "La sezione dei codici: testata, corpo o piede")
        ->required()
        ->type_name("S")
        ->check(NomeSezione);
    app.add_flag("--json", opzioni_.Rilievi.Json, "Un documento JSON");
    Aggiungi(app, "CODICE", file_, "Codici, con i loro delimitatori o senza")
        ->required()
        ->type_name("CODICE");
  }

  void AggiungiCodici() {
    CLI::App& app = AggiungiComando("codici", "Elenca i campi e gli stili che i modelli usano", Codici);
    AggiungiTipo(app);
    app.add_flag("--json", opzioni_.Rilievi.Json, "Un documento JSON");
    app.add_flag("--non-usati", opzioni_.NonUsati, "Ciò che il catalogo offre e nessun modello usa");
    AggiungiFile(app);
  }

  static void AggiungiRegole(CLI::App& app, const char* opzione, std::string& regole, const char* scopo) {
    Aggiungi(app, opzione, regole, scopo)->type_name("R,R")->check(ElencoDiRegole);
  }

  static void AggiungiQuanti(CLI::App& app, const char* opzione, std::string& quanti, const char* scopo) {
    Aggiungi(app, opzione, quanti, scopo)->type_name("N")->check(NumeroPositivo);
  }

  /// From what was written to what it means; every value has passed its check.
  void Completa(const std::string& programma) {
    opzioni_.Programma = PercorsoDaTesto(programma);
    if (!velkor_.empty()) opzioni_.Velkor = PercorsoDaTesto(velkor_);
    if (!campi_.empty()) opzioni_.Campi = PercorsoDaTesto(campi_);
    if (!uscita_.empty()) opzioni_.Uscita = PercorsoDaTesto(uscita_);
    opzioni_.Tipo = NumeroIntero(tipo_).value_or(0);
    opzioni_.TipoAuto = tipo_ == Auto;
    CompletaVerifica(opzioni_.Rilievi.Opzioni);
    opzioni_.Veri = Numeri(veri_).value_or(std::vector<int>());
    for (const std::string& file : file_) opzioni_.File.push_back(PercorsoDaTesto(file));
    const auto nome = std::ranges::find(NomiSezioni, sezione_);
    if (nome != NomiSezioni.end()) {
      opzioni_.SolaSezione = TutteLeSezioni[static_cast<std::size_t>(nome - NomiSezioni.begin())];
    }
  }

  void CompletaVerifica(OpzioniVerifica& opzioni) const {
    if (!solo_.empty()) opzioni.Regole = Regole(solo_).value_or(InsiemeRegole());
    opzioni.Regole.TogliTutte(Regole(escluse_).value_or(InsiemeRegole()));
    const auto quanti = [](const std::string& scritti) -> std::optional<std::size_t> {
      const std::optional<int> numero = NumeroIntero(scritti);
      if (!numero) return std::nullopt;
      return static_cast<std::size_t>(*numero);
    };
    opzioni.Larghezza = quanti(larghezza_);
    opzioni.Righe = quanti(righe_);
  }

  CLI::App app_{"Modelli di stampa di Velkor da riga di comando"};
  Opzioni opzioni_;
  Comando comando_ = nullptr;
  std::string velkor_;
  std::string campi_;
  std::string tipo_;
  std::string sezione_;
  std::string veri_;
  std::string uscita_;
  std::string solo_;
  std::string escluse_;
  std::string larghezza_;
  std::string righe_;
  std::vector<std::string> file_;
};

}  // namespace

Uscita Esegui(const std::vector<std::string>& riga) {
  return RigaDiComando().Esegui(riga);
}

}  // namespace parvik::batch
