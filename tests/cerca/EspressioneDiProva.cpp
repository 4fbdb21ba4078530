#include "cerca/EspressioneDiProva.h"

#include <regex>

namespace parvik::prova {
namespace {

constexpr std::string_view Pilcrow = "¶";

class DellaLibreria final : public Espressione {
 public:
  explicit DellaLibreria(const std::string& scritta) : troppo_(scritta == "!"), regola_(scritta) {}

  void Leggi(std::string_view testo) override { testo_ = testo; }
  EsitoConfronto Trova(std::size_t da, std::size_t fine) override {
    if (troppo_) return EsitoConfronto::TroppoLunga;
    const auto inizio = testo_.cbegin() + static_cast<std::ptrdiff_t>(da);
    const auto termine = testo_.cbegin() + static_cast<std::ptrdiff_t>(fine);
    const auto prima = da > 0 ? std::regex_constants::match_prev_avail : std::regex_constants::match_default;
    std::smatch trovata;
    if (!std::regex_search(inizio, termine, trovata, regola_, prima)) return EsitoConfronto::Niente;
    gruppi_.clear();
    for (const auto& gruppo : trovata)
      gruppi_.push_back(
          {.Inizio = gruppo.matched ? static_cast<std::size_t>(gruppo.first - testo_.cbegin()) : 0,
           .Lunghezza = static_cast<std::size_t>(gruppo.length())});
    return EsitoConfronto::Trovata;
  }
  const std::vector<Selezione>& Gruppi() const override { return gruppi_; }

 private:
  bool troppo_;
  std::regex regola_;
  std::string testo_;
  std::vector<Selezione> gruppi_;
};

const std::vector<Variabile>& Variabili() {
  static const std::vector<Variabile> variabili = [] {
    std::vector<Variabile> tre(3);
    tre[0].Descrizione = "Cliente";
    tre[0].Intero1 = 1;
    tre[1].Descrizione = "Ragione sociale cliente";
    tre[1].Intero1 = 15;
    tre[2].Descrizione = "Quantit\xE0";
    tre[2].Intero1 = 105;
    tre[2].Intero4 = 1;
    tre[2].Testo3 = "0";
    return tre;
  }();
  return variabili;
}

const std::vector<Flag>& TuttiIFlag() {
  static const std::vector<Flag> flag = {{.Descrizione = "Estero", .Codice = 3, .Valore = "N"},
                                         {.Descrizione = "Omaggio", .Codice = 14, .Valore = "N"}};
  return flag;
}

}  // namespace

std::unique_ptr<Espressione> EspressioneDi(const std::string& scritta) {
  return std::make_unique<DellaLibreria>(scritta);
}

std::string DellaSezione(std::string_view scritto) {
  std::string byte;
  for (std::size_t i = 0; i < scritto.size(); ++i) {
    if (scritto.substr(i).starts_with(Pilcrow)) {
      byte += "\r\n";
      i += Pilcrow.size() - 1;
    } else {
      byte += scritto[i] == '<' ? '\xAB' : scritto[i] == '>' ? '\xBB' : scritto[i];
    }
  }
  return byte;
}

std::string Scritto(std::string_view sezione) {
  std::string scritto;
  for (const char byte : sezione) {
    if (byte == '\n') continue;
    if (byte == '\r') {
      scritto += Pilcrow;
    } else {
      scritto += byte == '\xAB' ? '<' : byte == '\xBB' ? '>' : byte;
    }
  }
  return scritto;
}

VociDiSezione Voci() {
  return {.Variabili = Variabili(), .Flag = TuttiIFlag()};
}

std::string Segnate(std::string_view sezione, const std::vector<Selezione>& posti) {
  std::string segnate;
  std::size_t qui = 0;
  for (const Selezione& posto : posti) {
    segnate += sezione.substr(qui, posto.Inizio - qui);
    segnate += "[" + std::string(sezione.substr(posto.Inizio, posto.Lunghezza)) + "]";
    qui = posto.Fine();
  }
  return Scritto(segnate + std::string(sezione.substr(qui)));
}

}  // namespace parvik::prova
