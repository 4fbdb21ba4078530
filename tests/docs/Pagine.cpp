#include "docs/Pagine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <map>
#include <optional>
#include <sstream>

#include "common/Windows1252.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

constexpr std::string_view InizioCommento = "<!-- examples: ";
constexpr std::string_view FineCommento = " -->";
constexpr std::string_view Recinto = "```";

std::string SenzaBianchi(std::string_view testo) {
  const std::size_t inizio = testo.find_first_not_of(' ');
  if (inizio == std::string_view::npos) return {};
  return std::string(testo.substr(inizio, testo.find_last_not_of(' ') - inizio + 1));
}

std::optional<std::string> NomeEsempio(std::string_view riga) {
  if (!riga.starts_with(InizioCommento) || !riga.ends_with(FineCommento)) return std::nullopt;
  riga.remove_prefix(InizioCommento.size());
  riga.remove_suffix(FineCommento.size());
  return std::string(riga);
}

/// The line after the comment and any empty lines; the end of the page when there is no such comment.
std::size_t InizioEsempi(const std::vector<std::string>& righe, std::string_view nome) {
  for (std::size_t i = 0; i < righe.size(); ++i) {
    if (NomeEsempio(righe[i]) != nome) continue;
    while (i + 1 < righe.size() && righe[i + 1].empty()) ++i;
    return i + 1;
  }
  return righe.size();
}

/// "| a | b |" as its cells; a bar inside a cell is written "\|".
std::vector<std::string> Celle(std::string_view riga) {
  std::vector<std::string> celle;
  std::string cella;
  for (std::size_t i = 1; i < riga.size(); ++i) {
    if (riga[i] == '\\' && i + 1 < riga.size() && riga[i + 1] == '|') {
      cella += riga[++i];
    } else if (riga[i] == '|') {
      celle.push_back(SenzaBianchi(cella));
      cella.clear();
    } else {
      cella += riga[i];
    }
  }
  return celle;
}

const std::map<std::string, char, std::less<>>& ByteDeiCaratteri() {
  static const auto mappa = [] {
    std::map<std::string, char, std::less<>> caratteri;
    for (int i = 0x80; i < 0x100; ++i) {
      const char byte = static_cast<char>(static_cast<unsigned char>(i));
      caratteri.emplace(Utf8DaAnsi(std::string_view(&byte, 1)), byte);
    }
    return caratteri;
  }();
  return mappa;
}

/// The byte that an escape stands for; moves `i` past it.
char Sequenza(std::string_view testo, std::size_t& i) {
  const char lettera = testo.substr(i + 1, 1).empty() ? '\0' : testo[i + 1];
  i += 2;
  if (lettera == 'r') return '\r';
  if (lettera == 'n') return '\n';
  if (lettera == 't') return '\t';
  if (lettera == '\\') return '\\';
  unsigned int valore = 0;
  const std::string_view cifre = lettera == 'x' ? testo.substr(i, 2) : std::string_view();
  const auto [fine, errore] = std::from_chars(cifre.data(), cifre.data() + cifre.size(), valore, 16);
  if (cifre.size() != 2 || errore != std::errc() || fine != cifre.data() + cifre.size()) {
    ADD_FAILURE() << "an escape that is none in: " << testo;
  }
  i += cifre.size();
  return static_cast<char>(static_cast<unsigned char>(valore));
}

std::size_t LunghezzaUtf8(char primo) {
  const auto byte = static_cast<unsigned char>(primo);
  if (byte < 0x80U) return 1;
  if (byte < 0xE0U) return 2;
  return byte < 0xF0U ? 3 : 4;
}

std::string Carattere(const std::string& utf8) {
  if (utf8.size() == 1) return utf8;
  if (utf8 == "¶") return "\r\n";
  if (utf8 == "␣") return " ";
  const auto byte = ByteDeiCaratteri().find(utf8);
  if (byte != ByteDeiCaratteri().end()) return {byte->second};
  ADD_FAILURE() << "no Windows-1252 byte for: " << utf8;
  return "?";
}

}  // namespace

std::string RigaEsempio::Testo(std::size_t colonna) const {
  const std::string& cella = celle_.at(colonna);
  if (cella == "–") return {};
  if (cella.size() >= 2 && cella.front() == '`' && cella.back() == '`')
    return cella.substr(1, cella.size() - 2);
  return cella;
}

std::string RigaEsempio::Byte(std::size_t colonna) const {
  return DaPagina(Testo(colonna));
}

int RigaEsempio::Numero(std::size_t colonna) const {
  const std::string testo = Testo(colonna);
  int numero = 0;
  const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), numero);
  if (errore != std::errc() || fine != testo.data() + testo.size()) {
    ADD_FAILURE() << posto_ << ": not a number: " << testo;
  }
  return numero;
}

bool RigaEsempio::Si(std::size_t colonna) const {
  const std::string testo = Testo(colonna);
  if (testo != "yes" && testo != "no") ADD_FAILURE() << posto_ << ": neither yes nor no: " << testo;
  return testo == "yes";
}

std::vector<RigaEsempio> TabellaEsempi(std::string_view pagina, std::string_view nome, std::size_t colonne) {
  constexpr std::size_t RigheIntestazione = 2;  // the names of the columns, and the line below them
  const std::vector<std::string> righe = RighePagina(pagina);
  std::vector<RigaEsempio> tabella;
  for (std::size_t i = InizioEsempi(righe, nome) + RigheIntestazione; i < righe.size(); ++i) {
    if (!righe[i].starts_with('|')) break;
    std::string posto = std::string(pagina) + ":" + std::to_string(i + 1);
    tabella.emplace_back(Celle(righe[i]), std::move(posto));
    if (tabella.back().Colonne() == colonne) continue;
    ADD_FAILURE() << tabella.back().Posto() << ": " << tabella.back().Colonne() << " cells, not " << colonne;
    return {};
  }
  if (tabella.empty()) ADD_FAILURE() << pagina << " has no examples named " << nome;
  return tabella;
}

std::vector<std::string> BloccoEsempi(std::string_view pagina, std::string_view nome) {
  const std::vector<std::string> righe = RighePagina(pagina);
  const std::size_t inizio = InizioEsempi(righe, nome);
  std::vector<std::string> blocco;
  if (inizio < righe.size() && righe[inizio].starts_with(Recinto)) {
    for (std::size_t i = inizio + 1; i < righe.size() && righe[i] != Recinto; ++i) blocco.push_back(righe[i]);
  }
  if (blocco.empty()) ADD_FAILURE() << pagina << " has no block of examples named " << nome;
  return blocco;
}

std::string FileEsempio(std::string_view pagina, std::string_view nome) {
  std::string contenuto;
  for (const std::string& riga : BloccoEsempi(pagina, nome)) contenuto += DaPagina(riga) + "\r\n";
  return contenuto;
}

std::string DaPagina(std::string_view utf8) {
  std::string byte;
  for (std::size_t i = 0; i < utf8.size();) {
    if (utf8[i] == '\\') {
      byte += Sequenza(utf8, i);
    } else {
      const std::size_t lunghezza = LunghezzaUtf8(utf8[i]);
      byte += Carattere(std::string(utf8.substr(i, lunghezza)));
      i += lunghezza;
    }
  }
  return byte;
}

std::vector<std::string> Pagine() {
  std::vector<std::string> pagine;
  for (const auto& voce : std::filesystem::directory_iterator(Docs())) {
    if (voce.path().extension() == ".md") pagine.push_back(voce.path().filename().string());
  }
  std::ranges::sort(pagine);
  return pagine;
}

std::vector<std::string> NomiEsempi(std::string_view pagina) {
  std::vector<std::string> nomi;
  for (const std::string& riga : RighePagina(pagina)) {
    if (const auto nome = NomeEsempio(riga)) nomi.push_back(*nome);
  }
  return nomi;
}

std::vector<std::string> RighePagina(std::string_view pagina) {
  std::istringstream testo(Contenuto(Docs() / pagina));
  std::vector<std::string> righe;
  for (std::string riga; std::getline(testo, riga);) righe.push_back(riga);
  return righe;
}

}  // namespace parvik::prova
