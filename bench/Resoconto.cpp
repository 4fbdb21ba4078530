#include "Resoconto.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <iostream>

namespace parvik::bench {

void StampaRiga(const std::string& cosa, const std::string& misura, const std::string& sbarra,
                const std::string& esito) {
  std::cout << cosa << '\t' << misura << '\t' << sbarra << '\t' << esito << std::endl;
}

std::string ConDecimali(double valore) {
  std::array<char, 32> testo{};
  std::snprintf(testo.data(), testo.size(), "%.2f", valore);
  return testo.data();
}

void StampaAlPiu(const std::string& cosa, double misura, double sbarra) {
  StampaRiga(cosa, ConDecimali(misura), "at most " + ConDecimali(sbarra), misura <= sbarra ? "yes" : "no");
}

void StampaAlmeno(const std::string& cosa, double misura, double sbarra) {
  StampaRiga(cosa, ConDecimali(misura), "at least " + ConDecimali(sbarra), misura >= sbarra ? "yes" : "no");
}

double Mediana(std::vector<double> valori) {
  if (valori.empty()) return 0;
  const auto mezzo = valori.begin() + static_cast<std::ptrdiff_t>(valori.size() / 2);
  std::nth_element(valori.begin(), mezzo, valori.end());
  return *mezzo;
}

Resoconto::Resoconto() : ConsoleReporter(OO_Tabular) {
  SetOutputStream(&std::cerr);
  SetErrorStream(&std::cerr);
}

void Resoconto::ReportRuns(const std::vector<Run>& corse) {
  for (const Run& corsa : corse) {
    const std::string nome =
        corsa.run_name.function_name + (corsa.run_name.args.empty() ? "" : "/" + corsa.run_name.args);
    if (corsa.error_occurred) continue;
    if (corsa.run_type == Run::RT_Iteration) {
      tempi_[nome].push_back(corsa.GetAdjustedCPUTime());
    } else if (corsa.report_big_o) {
      rette_[corsa.run_name.function_name].PerRiga = corsa.GetAdjustedCPUTime();
    } else if (corsa.report_rms) {
      rette_[corsa.run_name.function_name].Scarto = corsa.GetAdjustedCPUTime();
    }
  }
  ConsoleReporter::ReportRuns(corse);
}

double Resoconto::Tempo(const std::string& nome) const {
  const auto trovato = tempi_.find(nome);
  return trovato == tempi_.end() ? 0 : Mediana(trovato->second);
}

Resoconto::Retta Resoconto::RettaDi(const std::string& famiglia) const {
  const auto trovata = rette_.find(famiglia);
  return trovata == rette_.end() ? Retta() : trovata->second;
}

}  // namespace parvik::bench
