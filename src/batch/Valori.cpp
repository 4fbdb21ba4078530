#include "batch/Valori.h"

#include <algorithm>
#include <charconv>

#include "common/Sezione.h"
#include "common/TestoMostrabile.h"

namespace parvik::batch {
namespace {

std::string Vuole(std::string_view che, const std::string& valore) {
  return "vuole " + std::string(che) + ", non \"" + Mostrabile(valore) + "\"";
}

/// Takes the next word of a list with commas; nullopt when nothing is left.
std::optional<std::string_view> Prossimo(std::string_view& elenco) {
  if (elenco.empty()) return std::nullopt;
  const std::size_t fine = std::min(elenco.find(','), elenco.size());
  const std::string_view parola = elenco.substr(0, fine);
  elenco.remove_prefix(std::min(fine + 1, elenco.size()));
  return parola;
}

/// The first word of the list that is no rule; nullopt when all are.
std::optional<std::string_view> NonRegola(std::string_view elenco) {
  while (const auto nome = Prossimo(elenco))
    if (RegolaDi(*nome) == nullptr) return nome;
  return std::nullopt;
}

}  // namespace

std::optional<int> NumeroIntero(std::string_view testo) {
  int numero = 0;
  const auto [resto, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), numero);
  if (errore != std::errc() || resto != testo.data() + testo.size()) return std::nullopt;
  return numero;
}

std::optional<std::vector<int>> Numeri(std::string_view elenco) {
  std::vector<int> numeri;
  while (const auto parola = Prossimo(elenco)) {
    const std::optional<int> numero = NumeroIntero(*parola);
    if (!numero) return std::nullopt;
    numeri.push_back(*numero);
  }
  return numeri;
}

std::optional<InsiemeRegole> Regole(std::string_view elenco) {
  InsiemeRegole regole;
  while (const auto nome = Prossimo(elenco)) {
    const VoceRegola* voce = RegolaDi(*nome);
    if (voce == nullptr) return std::nullopt;
    regole.Metti(voce->Quale);
  }
  return regole;
}

std::string NonVuoto(const std::string& valore) {
  return valore.empty() ? "vuole un nome" : "";
}

std::string Numero(const std::string& valore) {
  return NumeroIntero(valore) ? "" : Vuole("un numero", valore);
}

std::string NumeroPositivo(const std::string& valore) {
  return NumeroIntero(valore).value_or(0) > 0 ? "" : Vuole("un numero da 1 in su", valore);
}

std::string NumeroOAuto(const std::string& valore) {
  return valore == Auto || NumeroIntero(valore) ? "" : Vuole("un numero o auto", valore);
}

std::string NomeSezione(const std::string& valore) {
  const bool noto = std::ranges::find(NomiSezioni, valore) != NomiSezioni.end();
  return noto ? "" : Vuole("testata, corpo o piede", valore);
}

std::string ElencoDiNumeri(const std::string& valore) {
  return Numeri(valore) ? "" : Vuole("numeri separati da virgole", valore);
}

std::string ElencoDiRegole(const std::string& valore) {
  if (valore.empty()) return "vuole nomi di regole separati da virgole";
  const auto sconosciuta = NonRegola(valore);
  if (!sconosciuta) return "";
  return "regola sconosciuta: \"" + Mostrabile(*sconosciuta) + "\" (--regole le elenca)";
}

}  // namespace parvik::batch
