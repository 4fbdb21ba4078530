#include "editor/Argomenti.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "common/TestoPercorso.h"

namespace parvik {

const std::string_view AiutoEditore =
    "Uso: parvik32 [--velkor DIR] [--tipo N] [FILE.img]\n"
    "     parvik32 --esempio DIR\n"
    "Ordavia, l'editor dei modelli di stampa di Velkor.\n\n"
    "  --velkor DIR    la cartella dell'host, quella con D_IMG/CAMPI.TXT\n"
    "  --tipo N        il tipo di documento, con il numero del catalogo\n"
    "  FILE.img        il modello da aprire\n"
    "  --esempio DIR   copia l'installazione di esempio in DIR e parte da quella\n"
    "  -h, --help      mostra questo aiuto ed esce\n"
    "  -v, --version   mostra la versione ed esce\n\n"
    "Senza --velkor la cartella dell'host è quella sopra la cartella del programma, se\n"
    "contiene VELKOR.INI; altrimenti la dice la chiave \"Dir velkor\" della sezione\n"
    "AMBIENTE del primo VELKOR.INI che c'è in $XDG_CONFIG_HOME (o ~/.config), in ognuna\n"
    "di $XDG_CONFIG_DIRS (o /etc/xdg), in /etc.\n\n"
    "Stato di uscita: 0 fatto; 1 il programma non è potuto partire, o il catalogo lo ha\n"
    "fermato; 2 riga di comando non valida.\n";

namespace {

using namespace std::string_view_literals;

/// Options of the toolkit that a desktop, a session manager or its user may give; each has a value.
constexpr std::array OpzioniDelToolkit = {"-platform"sv, "-style"sv,       "-session"sv,
                                          "-display"sv,  "-geometry"sv,    "-qwindowgeometry"sv,
                                          "-title"sv,    "-qwindowtitle"sv};

std::optional<int> NumeroIntero(std::string_view testo) {
  int numero = 0;
  const auto [resto, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), numero);
  if (errore != std::errc() || resto != testo.data() + testo.size()) return std::nullopt;
  return numero;
}

class Lettore {
 public:
  explicit Lettore(std::span<const char* const> argomenti) : resto_(argomenti) {}

  Esito<Argomenti, std::string> Leggi() {
    while (!resto_.empty() && sbaglio_.empty()) LeggiUno(Prossimo());
    if (sbaglio_.empty() && letti_.Esempio && letti_.Velkor) sbaglio_ = "--esempio e --velkor si escludono";
    if (letti_.Cosa != Richiesta::Editore) return Argomenti{.Cosa = letti_.Cosa};
    if (!sbaglio_.empty()) return sbaglio_;
    return letti_;
  }

 private:
  std::string_view Prossimo() {
    const std::string_view primo = resto_.front();
    resto_ = resto_.subspan(1);
    return primo;
  }

  void LeggiUno(std::string_view argomento) {
    if (soloNomi_ || argomento == "-" || !argomento.starts_with('-')) {
      Metti(letti_.File, "il file", argomento);
    } else if (argomento == "--") {
      soloNomi_ = true;
    } else if (argomento == "--help" || argomento == "-h") {
      letti_.Cosa = Richiesta::Aiuto;
    } else if (argomento == "--version" || argomento == "-v") {
      letti_.Cosa = Richiesta::Versione;
    } else if (std::ranges::find(OpzioniDelToolkit, argomento) != OpzioniDelToolkit.end()) {
      if (!resto_.empty()) Prossimo();
    } else {
      LeggiOpzione(argomento);
    }
  }

  void LeggiOpzione(std::string_view argomento) {
    const std::size_t uguale = std::min(argomento.find('='), argomento.size());
    const std::string_view nome = argomento.substr(0, uguale);
    if (nome != "--velkor" && nome != "--esempio" && nome != "--tipo") {
      sbaglio_ = "opzione sconosciuta: " + std::string(argomento);
      return;
    }
    if (uguale == argomento.size() && resto_.empty()) {
      sbaglio_ = "manca il valore di " + std::string(nome);
      return;
    }
    const std::string_view valore = uguale < argomento.size() ? argomento.substr(uguale + 1) : Prossimo();
    if (nome == "--velkor") Metti(letti_.Velkor, nome, valore);
    if (nome == "--esempio") Metti(letti_.Esempio, nome, valore);
    if (nome == "--tipo") MettiTipo(valore);
  }

  void Metti(std::optional<std::filesystem::path>& dove, std::string_view nome, std::string_view valore) {
    if (valore.empty()) sbaglio_ = std::string(nome) + " vuole un nome";
    if (dove) sbaglio_ = std::string(nome) + " va indicato una volta sola";
    if (sbaglio_.empty()) dove = PercorsoDaTesto(valore);
  }

  void MettiTipo(std::string_view valore) {
    const std::optional<int> numero = NumeroIntero(valore);
    if (!numero) sbaglio_ = "--tipo vuole un numero, non \"" + std::string(valore) + "\"";
    if (letti_.Tipo) sbaglio_ = "--tipo va indicato una volta sola";
    letti_.Tipo = numero;
  }

  std::span<const char* const> resto_;
  Argomenti letti_;
  std::string sbaglio_;
  bool soloNomi_ = false;
};

}  // namespace

Esito<Argomenti, std::string> LeggiArgomenti(std::span<const char* const> argomenti) {
  return Lettore(argomenti).Leggi();
}

}  // namespace parvik
