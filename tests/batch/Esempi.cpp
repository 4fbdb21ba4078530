#include "batch/Esempi.h"

#include <algorithm>

#include "common/TestoMostrabile.h"

namespace parvik::prova {
namespace {

constexpr std::string_view CatalogoPiccolo =
    "// un catalogo piccolo\r\n"
    "1,\"Fattura;FATT*.IMG;3;1;2;3;4;9;9;11;12;13;15;9;9\"\r\n"
    "\r\n"
    "2,\"Listino;LIST*.IMG;1;1;2;9;9;9;9;16;17;9;9;9;9\"\r\n"
    "23,\"Riservato;RISER*.IMG;1;9;9;9;9;9;9;9;9;9;9;9;9\"\r\n"
    "//fine documenti\r\n"
    "0001,\"Ragione sociale;1;40;;1;0;0;0;0;0;0\r\n"
    "0002,\"Citt\xE0;2;30;.;0;0;0;0;0;0;0\r\n"
    "// corpo\r\n"
    "0003,\"Note;101;60;;1;0;3;0;0;0;0\r\n"
    "0004,\"Importo;102;12;*;0;1;0;1;1;1;2;1\r\n"
    "0009,\"nessuna voce;0;0;\r\n"
    "0011,\"Cliente estero;1;N\r\n"
    "0012,\"Valuta;2;S\r\n"
    "0013,\"Lotto;14;S\r\n"
    "0014,\"Scadenza;15;N\r\n"
    "0015,\"Lotto ancora;14;\r\n"
    "0016,\"Prezzi netti;3;N\r\n"
    "0017,\"Novit\xE0;4;N\r\n";

}  // namespace

HostDiProva::HostDiProva() {
  Crea(Catalogo(), CatalogoPiccolo);
}

std::filesystem::path HostDiProva::Modello(std::string_view nome, std::string_view byte) const {
  std::filesystem::path file = cartella_ / "D_IMG" / nome;
  Crea(file, byte);
  return file;
}

std::vector<std::string> HostDiProva::Argomenti(std::vector<std::string> altri) const {
  altri.insert(altri.begin(), {"--velkor", Percorso().string()});
  return altri;
}

const std::vector<ModelloEsempio>& ModelliEsempio() {
  static const std::vector<ModelloEsempio> modelli = {
      {"FATT01", 1},  {"FATTEST", 1},  {"NCRED01", 3}, {"DDT01", 4},    {"ORDCL01", 5}, {"PREV01", 7},
      {"RICEV01", 8}, {"ESTCL01", 10}, {"LIST01", 12}, {"COLLO01", 14}, {"SOLL01", 15}};
  return modelli;
}

std::filesystem::path FileDi(const ModelloEsempio& modello) {
  return Esempio() / "D_IMG" / (modello.Nome + ".IMG");
}

bool NomePossibile(const std::string& nome) {
  if (NomiDiByte) return true;
  const bool vietati = nome.find_first_of("<>:\"/\\|?*") != std::string::npos ||
                       std::ranges::any_of(nome, [](char c) { return c >= 0 && c < ' '; });
  return !vietati && !nome.ends_with(' ') && !nome.ends_with('.') && Mostrabile(nome) == nome;
}

std::string InJson(const std::string& nome) {
  std::string scritto;
  for (const char c : nome) scritto.append(c == '\\' ? 2 : 1, c);
  return scritto;
}

std::string NelFile(std::string_view contenuto) {
  return "\xAE" + std::string(contenuto) + "\xAF";
}

}  // namespace parvik::prova
