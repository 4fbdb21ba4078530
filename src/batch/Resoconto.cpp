#include "batch/Resoconto.h"

#include <algorithm>
#include <string>

#include "batch/Json.h"
#include "batch/Messaggi.h"
#include "common/ParoleComuni.h"
#include "common/TestoMostrabile.h"
#include "common/TestoPercorso.h"
#include "common/Windows1252.h"

namespace parvik::batch {
namespace {

struct Conti {
  std::size_t Errori = 0;
  std::size_t Avvisi = 0;
};

Conti Conta(std::span<const RilievoDetto> rilievi) {
  const auto errori =
      std::ranges::count_if(rilievi, [](const RilievoDetto& r) { return r.Grado == Livello::Errore; });
  return {.Errori = static_cast<std::size_t>(errori),
          .Avvisi = rilievi.size() - static_cast<std::size_t>(errori)};
}

class RigheDiTesto final : public Resoconto {
  static constexpr std::size_t DaScrivere = 64UL * 1024UL;

 public:
  bool File(const std::filesystem::path& file, std::span<const RilievoDetto> rilievi) override {
    if (rilievi.empty()) return true;
    const std::string nome = Mostrabile(TestoPercorso(file)) + ":";
    std::string righe;
    for (const RilievoDetto& rilievo : rilievi) {
      righe += nome + std::to_string(rilievo.Riga) + ":" + std::to_string(rilievo.Colonna) + ": ";
      righe.append(NomeLivello(rilievo.Grado)).append(": ").append(rilievo.Testo);
      righe.append(" [").append(rilievo.Regola).append("]\n");
      if (righe.size() < DaScrivere) continue;
      if (!Stampa(righe)) return false;
      righe.clear();
    }
    return Stampa(righe);
  }
};

class RigheDiSommario final : public Resoconto {
 public:
  bool File(const std::filesystem::path& file, std::span<const RilievoDetto> rilievi) override {
    const Conti conti = Conta(rilievi);
    return Stampa(Mostrabile(TestoPercorso(file)) + ": " + Quanti(conti.Errori, "errore", "errori") + ", " +
                  Quanti(conti.Avvisi, "avviso", "avvisi") + "\n");
  }
};

Json PerJson(const RilievoDetto& rilievo) {
  Json proposta;
  if (rilievo.Proposta) proposta = Utf8DaAnsi(*rilievo.Proposta);
  return {{"regola", rilievo.Regola},
          {"livello", NomeLivello(rilievo.Grado)},
          {"sezione", OppureNiente(rilievo.Sezione)},
          {"riga", rilievo.Riga},
          {"colonna", rilievo.Colonna},
          {"lunghezza", rilievo.Lunghezza},
          {"testo", rilievo.Testo},
          {"proposta", std::move(proposta)}};
}

class DocumentoJson final : public Resoconto {
 public:
  bool Inizia() override { return elenco_.Inizia(); }
  bool File(const std::filesystem::path& file, std::span<const RilievoDetto> rilievi) override {
    Json risultati = Json::array();
    for (const RilievoDetto& rilievo : rilievi) risultati.push_back(PerJson(rilievo));
    return elenco_.Aggiungi({{"file", NomePerJson(file)}, {"risultati", std::move(risultati)}});
  }
  bool Finisci() override { return elenco_.Finisci(); }

 private:
  ElencoJson elenco_;
};

class SommarioJson final : public Resoconto {
 public:
  bool Inizia() override { return elenco_.Inizia(); }
  bool File(const std::filesystem::path& file, std::span<const RilievoDetto> rilievi) override {
    const Conti conti = Conta(rilievi);
    return elenco_.Aggiungi(
        {{"file", NomePerJson(file)}, {"errori", conti.Errori}, {"avvisi", conti.Avvisi}});
  }
  bool Finisci() override { return elenco_.Finisci(); }

 private:
  ElencoJson elenco_;
};

}  // namespace

std::vector<RilievoDetto> Detti(std::span<const Rilievo> rilievi) {
  std::vector<RilievoDetto> detti;
  for (const Rilievo& rilievo : rilievi) {
    RilievoDetto& detto = detti.emplace_back();
    detto = {.Regola = VoceDi(rilievo.Quale).Nome,
             .Grado = rilievo.Grado(),
             .Riga = rilievo.Riga,
             .Colonna = rilievo.Colonna,
             .Lunghezza = rilievo.Lunghezza,
             .Testo = rilievo.Testo,
             .Proposta = rilievo.Proposta};
    if (rilievo.Dove) detto.Sezione = NomiSezioni[Indice(*rilievo.Dove)];
  }
  return detti;
}

std::vector<RilievoDetto> Detti(std::span<const RilievoCatalogo> rilievi) {
  std::vector<RilievoDetto> detti;
  for (const RilievoCatalogo& rilievo : rilievi) {
    detti.push_back({.Regola = VoceDi(rilievo.Quale).Nome,
                     .Grado = VoceDi(rilievo.Quale).Grado,
                     .Riga = rilievo.Riga,
                     .Colonna = rilievo.Colonna,
                     .Lunghezza = rilievo.Lunghezza,
                     .Testo = rilievo.Testo});
  }
  return detti;
}

Uscita EsitoDi(std::span<const RilievoDetto> rilievi, const ComeVerificare& come) {
  const auto conta = [&come](const RilievoDetto& r) { return come.Severo || r.Grado == Livello::Errore; };
  return std::ranges::any_of(rilievi, conta) ? Uscita::ConRilievi : Uscita::Fatto;
}

std::unique_ptr<Resoconto> ResocontoPer(const ComeVerificare& come) {
  if (come.Json && come.Sommario) return std::make_unique<SommarioJson>();
  if (come.Json) return std::make_unique<DocumentoJson>();
  if (come.Sommario) return std::make_unique<RigheDiSommario>();
  return std::make_unique<RigheDiTesto>();
}

bool StampaRegole(const ComeVerificare& come) {
  if (come.Json) {
    ElencoJson elenco;
    bool scritto = elenco.Inizia();
    for (const VoceRegola& voce : Regole()) {
      scritto = scritto && elenco.Aggiungi({{"regola", voce.Nome},
                                            {"livello", NomeLivello(voce.Grado)},
                                            {"trova", voce.Trova},
                                            {"corregge", voce.Corregge}});
    }
    return scritto && elenco.Finisci();
  }
  std::string tabella;
  for (const VoceRegola& voce : Regole()) {
    tabella.append(voce.Nome).append("\t").append(NomeLivello(voce.Grado)).append("\t");
    tabella.append(voce.Corregge ? "corregge" : "").append("\t").append(voce.Trova).append("\n");
  }
  return Stampa(tabella);
}

}  // namespace parvik::batch
