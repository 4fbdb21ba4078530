#include "batch/Esecuzione.h"

namespace parvik::prova {

void PrintTo(const Esecuzione& esecuzione, std::ostream* uscita) {
  *uscita << "stato " << esecuzione.Stato << "\n--- uscita\n"
          << esecuzione.Uscita << "\n--- errori\n"
          << esecuzione.Errori;
}

Esecuzione EseguiEsempio(std::vector<std::string> argomenti, const Avvio& avvio) {
  argomenti.insert(argomenti.begin(), {"--velkor", Esempio().string()});
  return Esegui(argomenti, avvio);
}

std::string Detto(std::string_view testo) {
  return "parvik32-batch: " + std::string(testo) + "\n";
}

std::string Detto(const std::filesystem::path& file, std::string_view testo) {
  return Detto(file.string() + ": " + std::string(testo));
}

}  // namespace parvik::prova
