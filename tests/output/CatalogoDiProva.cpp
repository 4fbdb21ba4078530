#include "output/CatalogoDiProva.h"

#include <gtest/gtest.h>

#include "tokens/Codice.h"

namespace parvik::prova {
namespace {

std::string RigaDiCorpo(int numero, const FlagDiProva& flag) {
  std::string cifre = std::to_string(numero);
  cifre.insert(0, 4 - cifre.size(), '0');
  return cifre + ",\"" + flag.Descrizione + ";" + std::to_string(flag.Numero) + ";N\r\n";
}

/// A range of one line would stand for no flags at all: the last line is there to make it longer.
std::string CatalogoDi(const std::vector<FlagDiProva>& flag) {
  const std::string intervallo = "1;" + std::to_string(flag.size());
  const std::string nessuno = "9995;9995;9995;9995";
  std::string testo =
      "1,\"Prova;P*.IMG;1;9990;9990;9990;9990;9990;9990;" + intervallo + ";" + nessuno + "\"\r\n";
  testo += "//fine documenti\r\n";
  for (std::size_t i = 0; i < flag.size(); ++i) testo += RigaDiCorpo(static_cast<int>(i) + 1, flag[i]);
  return testo;
}

}  // namespace

FlagPerStampe FlagDi(const std::vector<FlagDiProva>& flag) {
  std::vector<FlagDiProva> voci = flag;
  // One flag alone is written twice: the second row of a number changes nothing.
  if (voci.size() == 1) voci.push_back(voci.front());
  const Esito<Catalogo, ErroreCatalogo> catalogo = Catalogo::CaricaCampi(CatalogoDi(voci));
  FlagPerStampe righe;
  if (!catalogo || !righe.Carica(*catalogo, catalogo->TipiDoc().front()).empty()) {
    ADD_FAILURE() << "the test's catalogue cannot be read";
    return righe;
  }
  for (std::size_t i = 0; i < voci.size(); ++i) righe.SettaFlag(i, voci[i].Vero);
  return righe;
}

bool Raccolta::Righe(std::string_view righe) {
  EXPECT_TRUE(righe.ends_with("\r\n") || righe.size() >= PassoStampa) << "not a whole line";
  Testo += righe;
  return true;
}

std::string Reso(std::string_view testata, const std::vector<FlagDiProva>& flag) {
  const FlagPerStampe righe = FlagDi(flag);
  Raccolta raccolta;
  EXPECT_TRUE(GeneraStampa(
      {.Testi = {testata, "", ""}, .NumSezioni = 1, .RigheCorpo = 0, .LineeCorpo = 0, .Flag = righe},
      TipoStampa::File, raccolta));
  return raccolta.Testo;
}

std::string ResoCodice(std::string_view contenuto) {
  std::string riga = Reso(ConDelimitatori(contenuto) + "\r\n");
  EXPECT_TRUE(riga.ends_with("\r\n"));
  riga.resize(riga.size() - std::min<std::size_t>(riga.size(), 2));
  return riga;
}

}  // namespace parvik::prova
