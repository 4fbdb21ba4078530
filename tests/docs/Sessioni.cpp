#include "docs/Sessioni.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "docs/Pagine.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view Invito = "$ ";

std::string FraApici(const std::string& testo) {
  std::string citato = "'";
  for (const char c : testo) citato += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return citato + "'";
}

/// What the command says in `cartella` with the program on the path: its output, and its status when it is
/// not 0.
std::string Esegui(const std::string& comando, const fs::path& cartella) {
  const std::string riga = "cd " + FraApici(cartella.string()) +
                           " && PATH=" + FraApici(Batch().parent_path().string()) +
                           ":$PATH && export PATH && { " + comando + "\n} 2>&1";
  std::FILE* processo = ::popen(riga.c_str(), "r");
  if (processo == nullptr) return "the shell could not be started";
  std::string detto;
  for (int c = std::fgetc(processo); c != EOF; c = std::fgetc(processo)) detto += static_cast<char>(c);
  const int stato = ::pclose(processo);
  if (!WIFEXITED(stato)) return detto + "[killed]\n";
  if (WEXITSTATUS(stato) != 0) detto += "[" + std::to_string(WEXITSTATUS(stato)) + "]\n";
  return detto;
}

}  // namespace

void ControllaSessione(std::string_view pagina, std::string_view nome) {
  const CartellaTemporanea cartella;
  fs::copy(Esempio(), cartella / "velkor", fs::copy_options::recursive);
  const std::vector<std::string> righe = BloccoEsempi(pagina, nome);
  int comandi = 0;
  for (std::size_t i = 0; i < righe.size();) {
    ASSERT_TRUE(righe[i].starts_with(Invito)) << nome << ": " << righe[i];
    const std::string comando = righe[i++].substr(Invito.size());
    std::string atteso;
    for (; i < righe.size() && !righe[i].starts_with(Invito); ++i) atteso += righe[i] + "\n";
    EXPECT_EQ(Esegui(comando, cartella.Percorso()), atteso) << nome << ": " << comando;
    ++comandi;
  }
  EXPECT_GT(comandi, 1) << nome;
}

}  // namespace parvik::prova
