#include "batch/Parole.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace parvik::batch {
namespace {

// Words behind it are no options, no commands, not empty, and no lists; and it is what stands between an
// option and its value.
constexpr char Segno = '=';
constexpr std::string_view SegnoSconosciuta = "--?=";  // an option of no command

class Schermo {
 public:
  Schermo(const std::function<GenereOpzione(const std::string&)>& genere,
          const std::function<bool(const std::string&)>& comando)
      : genere_(genere), comando_(comando) {}

  void Parola(const std::string& parola) {
    const bool valore = std::exchange(aspettaValore_, false);
    const bool soloNome = valore || soloNomi_;
    if (!soloNome && parola == "--") {
      soloNomi_ = true;
    } else if (!soloNome && parola.size() > 1 && parola.starts_with('-')) {
      Opzione(parola);
    } else if (!valore && !parole_.Comando && comando_(parola)) {
      parole_.Comando = parola;
      Aggiungi(parola);
    } else {
      if (!valore && !parole_.Comando) parole_.Comando = parola;
      Aggiungi(Segno + parola);
    }
  }

  Parole Esito() && { return std::move(parole_); }

 private:
  void Aggiungi(std::string parola) { parole_.Schermate.push_back(std::move(parola)); }

  void Opzione(const std::string& parola) {
    const bool lunga = parola.starts_with("--");
    const std::string nome = lunga ? parola.substr(0, parola.find('=')) : parola.substr(0, 2);
    const bool sola = nome == parola;
    const GenereOpzione genere = genere_(nome);
    if (genere == GenereOpzione::SenzaValore && sola) {
      Aggiungi(parola);
    } else if (genere == GenereOpzione::ConValore) {
      Annota(nome);
      aspettaValore_ = sola;
      Aggiungi(sola ? parola : nome + Segno + parola.substr(nome.size()));
    } else {
      Aggiungi(std::string(SegnoSconosciuta) + parola);
    }
  }

  void Annota(const std::string& nome) {
    if (std::ranges::find(date_, nome) != date_.end()) parole_.Ripetuta = nome;
    date_.push_back(nome);
  }

  const std::function<GenereOpzione(const std::string&)>& genere_;
  const std::function<bool(const std::string&)>& comando_;
  Parole parole_;
  std::vector<std::string> date_;  // the options that were given a value
  bool aspettaValore_ = false;
  bool soloNomi_ = false;
};

}  // namespace

Parole Scherma(const std::vector<std::string>& parole,
               const std::function<GenereOpzione(const std::string&)>& genere,
               const std::function<bool(const std::string&)>& comando) {
  Schermo schermo(genere, comando);
  for (const std::string& parola : parole) schermo.Parola(parola);
  return std::move(schermo).Esito();
}

std::string Svela(const std::string& schermata) {
  if (schermata.starts_with(SegnoSconosciuta)) return schermata.substr(SegnoSconosciuta.size());
  const std::size_t segno = schermata.find(Segno);
  std::string parola = schermata;
  if (segno != std::string::npos) parola.erase(segno, 1);
  return parola;
}

}  // namespace parvik::batch
