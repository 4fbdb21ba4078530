#include "batch/RigaDiComando.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "batch/Messaggi.h"
#include "batch/Parole.h"
#include "common/TestoMostrabile.h"
#include "start/Versione.h"

namespace parvik::batch {
namespace {

using Comando = Uscita (*)(const Opzioni&);

// Checks of single values: the text that says what is wrong, or nothing.

std::string NonVuoto(const std::string& valore) {
  return valore.empty() ? "vuole un nome" : "";
}

std::optional<int> NumeroIntero(std::string_view testo) {
  int numero = 0;
  const auto [resto, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), numero);
  if (errore != std::errc() || resto != testo.data() + testo.size()) return std::nullopt;
  return numero;
}

std::string Numero(const std::string& valore) {
  return NumeroIntero(valore) ? "" : "vuole un numero, non \"" + Mostrabile(valore) + "\"";
}

std::string NomeSezione(const std::string& valore) {
  const bool noto = std::ranges::find(NomiSezioni, valore) != NomiSezioni.end();
  return noto ? "" : "vuole testata, corpo o piede, non \"" + Mostrabile(valore) + "\"";
}

/// "3,14,97" as numbers; nullopt when one is none.
std::optional<std::vector<int>> Numeri(std::string_view elenco) {
  std::vector<int> numeri;
  while (!elenco.empty()) {
    const std::size_t fine = std::min(elenco.find(','), elenco.size());
    const std::optional<int> numero = NumeroIntero(elenco.substr(0, fine));
    if (!numero) return std::nullopt;
    numeri.push_back(*numero);
    elenco.remove_prefix(std::min(fine + 1, elenco.size()));
  }
  return numeri;
}

std::string ElencoDiNumeri(const std::string& valore) {
  return Numeri(valore) ? "" : "vuole numeri separati da virgole, non \"" + Mostrabile(valore) + "\"";
}

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
  }

  Uscita Esegui(int argc, char** argv) {
    const Parole parole = Scherma(
        {argv + 1, argv + argc}, [this](const std::string& nome) { return Genere(nome); },
        [this](const std::string& nome) { return EComando(nome); });
    try {
      app_.parse(std::vector<std::string>(parole.Schermate.rbegin(), parole.Schermate.rend()));
    } catch (const CLI::ParseError& errore) {
      if (errore.get_exit_code() == 0) return app_.exit(errore) == 0 ? Uscita::Fatto : Uscita::NonFatto;
      Segnala(Spiega(errore, parole) + " (--help elenca gli argomenti)");
      return Uscita::NonFatto;
    }
    Completa(argv[0]);
    if (comando_ == Normalizza && opzioni_.Uscita && opzioni_.File.size() > 1) {
      Segnala("-o vuole un file solo: " + Mostrabile(opzioni_.Uscita->string()));
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

  /// From what was written to what it means; every value has passed its check.
  void Completa(const char* programma) {
    opzioni_.Programma = programma;
    if (!velkor_.empty()) opzioni_.Velkor = velkor_;
    if (!campi_.empty()) opzioni_.Campi = campi_;
    if (!uscita_.empty()) opzioni_.Uscita = uscita_;
    opzioni_.Tipo = NumeroIntero(tipo_).value_or(0);
    opzioni_.Veri = Numeri(veri_).value_or(std::vector<int>());
    opzioni_.File.assign(file_.begin(), file_.end());
    const auto nome = std::ranges::find(NomiSezioni, sezione_);
    if (nome != NomiSezioni.end()) {
      opzioni_.SolaSezione = TutteLeSezioni[static_cast<std::size_t>(nome - NomiSezioni.begin())];
    }
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
  std::vector<std::string> file_;
};

}  // namespace

Uscita Esegui(int argc, char** argv) {
  return RigaDiComando().Esegui(argc, argv);
}

}  // namespace parvik::batch
