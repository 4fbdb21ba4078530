// The measurements of one run of Google Benchmark as rows of the table of docs/prestazioni.md.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace parvik::bench {

/// Prints one row of the table: four fields separated by tabs, the last one "yes", "no" or "" without a bar.
void StampaRiga(const std::string& cosa, const std::string& misura, const std::string& sbarra,
                const std::string& esito);
std::string ConDecimali(double valore);
/// A row whose measure must not go over, or under, a bar.
void StampaAlPiu(const std::string& cosa, double misura, double sbarra);
void StampaAlmeno(const std::string& cosa, double misura, double sbarra);

double Mediana(std::vector<double> valori);

/// Shows every run on standard error as it comes, and keeps the times.
class Resoconto final : public benchmark::ConsoleReporter {
 public:
  Resoconto();
  void ReportRuns(const std::vector<Run>& corse) override;

  /// The median time of one run of a benchmark, "name" or "name/argument"; 0 when it did not run.
  double Tempo(const std::string& nome) const;
  /// What the linear fit over the sizes of a family says: nanoseconds a line and the deviation, a part of 1.
  struct Retta {
    double PerRiga = 0;
    double Scarto = 0;
  };
  Retta RettaDi(const std::string& famiglia) const;

 private:
  std::map<std::string, std::vector<double>> tempi_;
  std::map<std::string, Retta> rette_;
};

}  // namespace parvik::bench
