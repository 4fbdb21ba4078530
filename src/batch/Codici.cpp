#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "batch/Catalogo.h"
#include "batch/Comandi.h"
#include "batch/Json.h"
#include "batch/Lettura.h"
#include "batch/Messaggi.h"
#include "common/TestoMostrabile.h"
#include "common/TestoPercorso.h"
#include "verifica/Inventario.h"

namespace parvik::batch {
namespace {

using File = std::vector<std::filesystem::path>;

std::string InRiga(const Usato& usato, const Usi& usi, const Inventario& inventario, const File& letti) {
  std::string riga(NomeGenere(usato.Genere));
  riga += "\t" + usato.Nome + "\t" + std::to_string(usi.Volte) + "\t" + inventario.Descrizione(usato);
  for (const auto& [file, volte] : usi.PerFile) riga += "\t" + Mostrabile(TestoPercorso(letti[file]));
  return riga + "\n";
}

Json PerJson(const Usato& usato, const Usi& usi, const Inventario& inventario, const File& letti) {
  Json perFile = Json::array();
  for (const auto& [file, volte] : usi.PerFile)
    perFile.push_back({{"file", NomePerJson(letti[file])}, {"volte", volte}});
  return {{"genere", NomeGenere(usato.Genere)},
          {"nome", usato.Nome},
          {"volte", usi.Volte},
          {"descrizione", inventario.Descrizione(usato)},
          {"file", std::move(perFile)}};
}

bool Racconta(const Inventario& inventario, const File& letti, bool json) {
  ElencoJson elenco;
  bool scritto = !json || elenco.Inizia();
  std::string righe;
  for (const auto& [usato, usi] : inventario.Usati()) {
    if (json) {
      scritto = scritto && elenco.Aggiungi(PerJson(usato, usi, inventario, letti));
    } else {
      righe += InRiga(usato, usi, inventario, letti);
    }
  }
  return scritto && (json ? elenco.Finisci() : Stampa(righe));
}

bool RaccontaNonUsati(const Inventario& inventario, bool json) {
  ElencoJson elenco;
  bool scritto = !json || elenco.Inizia();
  std::string righe;
  for (const NonUsato& voce : inventario.NonUsati()) {
    const std::string_view sezione = NomiSezioni[Indice(voce.Dove)];
    if (json) {
      scritto = scritto && elenco.Aggiungi({{"sezione", sezione},
                                            {"genere", NomeGenere(voce.Genere)},
                                            {"nome", std::to_string(voce.Numero)},
                                            {"descrizione", voce.Descrizione}});
    } else {
      righe.append(sezione).append("\t").append(NomeGenere(voce.Genere)).append("\t");
      righe.append(std::to_string(voce.Numero)).append("\t").append(voce.Descrizione).append("\n");
    }
  }
  return scritto && (json ? elenco.Finisci() : Stampa(righe));
}

}  // namespace

Uscita Codici(const Opzioni& opzioni) {
  const auto catalogo = ApriCatalogo(opzioni);
  const TipoDoc* tipo = catalogo ? TrovaTipo(*catalogo, opzioni.Tipo) : nullptr;
  if (tipo == nullptr) return Uscita::NonFatto;
  const VociTipo voci(catalogo->Campi, *tipo);
  SegnalaErrori(*catalogo, voci.Errori());
  if (!voci.Errori().empty()) return Uscita::NonFatto;
  Inventario inventario(voci);
  File letti;
  for (const std::filesystem::path& file : opzioni.File) {
    const auto modello = ApriModello(file, *tipo);
    if (!modello) continue;
    inventario.Aggiungi(modello->Testi());
    letti.push_back(file);
  }
  const bool json = opzioni.Rilievi.Json;
  const bool scritto =
      opzioni.NonUsati ? RaccontaNonUsati(inventario, json) : Racconta(inventario, letti, json);
  return scritto && letti.size() == opzioni.File.size() ? Uscita::Fatto : Uscita::NonFatto;
}

}  // namespace parvik::batch
