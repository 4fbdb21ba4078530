#include "batch/Json.h"

#include "batch/Messaggi.h"
#include "common/TestoMostrabile.h"
#include "common/TestoPercorso.h"

namespace parvik::batch {

std::string NomePerJson(const std::filesystem::path& file) {
  std::string nome = TestoPercorso(file);
  try {
    static_cast<void>(Json(nome).dump());
    return nome;
  } catch (const Json::type_error&) {  // what it says of bytes that are no UTF-8
    return Mostrabile(nome);
  }
}

Json OppureNiente(std::optional<std::string_view> testo) {
  return testo ? Json(*testo) : Json();
}

bool ElencoJson::Inizia() {
  return Stampa("[");
}

bool ElencoJson::Aggiungi(const Json& elemento) {
  const std::string prima = vuoto_ ? "\n" : ",\n";
  vuoto_ = false;
  return Stampa(prima + elemento.dump());
}

bool ElencoJson::Finisci() {
  return Stampa(vuoto_ ? "]\n" : "\n]\n");
}

}  // namespace parvik::batch
