// The preview: from the command to the first painted lines and until nothing is left to do, beside a bare
// pane that is given the finished text. bench_anteprima
#include <QApplication>
#include <QMainWindow>
#include <QPaintEvent>
#include <QTimer>
#include <chrono>
#include <iostream>
#include <string>

#include "Dati.h"
#include "Resoconto.h"
#include "common/qtTesto.h"
#include "finestre/Banco.h"

namespace parvik::bench {
namespace {

using Orologio = std::chrono::steady_clock;
using Millisecondi = std::chrono::duration<double, std::milli>;

constexpr std::size_t RigheConSbarra = 10'000;
constexpr double SbarraTutto = 1.3;
constexpr double SbarraPrimaVista = 100;  // milliseconds
constexpr double SbarraSosta = 50;        // milliseconds

/// When a pane was last painted, and the longest time in which no event could be handled since its first
/// time.
class Osservatore final : public QObject {
 public:
  explicit Osservatore(QWidget* pannello) {
    pannello->installEventFilter(this);
    connect(&battito_, &QTimer::timeout, this, [this] { Batti(); });
    battito_.start(0);
  }
  void Azzera() {
    inizio_ = Orologio::now();
    primaVista_ = -1;
    sosta_ = 0;
  }
  bool Dipinto() const { return primaVista_ >= 0; }
  double PrimaVista() const { return primaVista_; }
  double Sosta() const { return sosta_; }
  double Passati() const { return Millisecondi(Orologio::now() - inizio_).count(); }

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override {
    if (evento->type() == QEvent::Paint && !Dipinto()) {
      QTimer::singleShot(0, this, [this] { Vista(); });  // when the paint has been handled
    }
    return QObject::eventFilter(oggetto, evento);
  }

 private:
  void Vista() {
    if (Dipinto()) return;
    primaVista_ = Passati();
    ultimo_ = Orologio::now();
  }
  void Batti() {
    if (!Dipinto()) return;
    const auto ora = Orologio::now();
    sosta_ = std::max(sosta_, Millisecondi(ora - ultimo_).count());
    ultimo_ = ora;
  }

  QTimer battito_;
  Orologio::time_point inizio_;
  Orologio::time_point ultimo_;
  double primaVista_ = -1;
  double sosta_ = 0;
};

void FinoADipinto(const Osservatore& osservatore) {
  while (!osservatore.Dipinto()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

struct Serie {
  std::vector<double> Nostri;
  std::vector<double> Nudi;
  std::vector<double> PrimeViste;
  std::vector<double> Soste;
};

void MisuraNostra(Banco& banco, Osservatore& osservatore, Serie& serie) {
  banco.Comanda("mnuAnte");  // off
  QCoreApplication::processEvents();
  osservatore.Azzera();
  banco.Comanda("mnuAnte");
  FinoADipinto(osservatore);
  serie.Nostri.push_back(osservatore.Passati());
  for (int i = 0; i < 20; ++i) QCoreApplication::processEvents();
  serie.PrimeViste.push_back(osservatore.PrimaVista());
  serie.Soste.push_back(osservatore.Sosta());
}

void MisuraNuda(QPlainTextEdit& pannello, Osservatore& osservatore, const QString& testo, Serie& serie) {
  pannello.clear();
  QCoreApplication::processEvents();
  osservatore.Azzera();
  pannello.setPlainText(testo);
  FinoADipinto(osservatore);
  serie.Nudi.push_back(osservatore.Passati());
}

void Misura(std::size_t righe, int volte) {
  Banco banco;
  banco.Apri(Modello(righe));
  banco.Comanda("mnuAnte");
  QMainWindow finestra;
  auto* nudo = new QPlainTextEdit(&finestra);
  finestra.setCentralWidget(nudo);
  nudo->setReadOnly(true);
  nudo->setLineWrapMode(QPlainTextEdit::NoWrap);
  finestra.move(1200, 0);
  finestra.resize(banco.Anteprima().size());
  finestra.show();
  const QString testo = PerSchermo(banco.Anteprima().Contenuto().Testo());
  Osservatore nostra(banco.Anteprima().viewport());
  Osservatore sua(nudo->viewport());
  QCoreApplication::processEvents();
  Serie serie;
  for (int i = 0; i < volte; ++i) {
    MisuraNuda(*nudo, sua, testo, serie);
    MisuraNostra(banco, nostra, serie);
  }
  const std::string cosa = "preview of " + std::to_string(testo.count('\n')) + " lines, ";
  std::cerr << cosa << "editor " << Mediana(serie.Nostri) << " ms, bare " << Mediana(serie.Nudi) << " ms\n";
  const double rapporto = Mediana(serie.Nostri) / Mediana(serie.Nudi);
  const std::string tutto = cosa + "until all is done, time of setPlainText in a bare pane";
  if (righe == RigheConSbarra) {
    StampaAlPiu(tutto, rapporto, SbarraTutto);
  } else {
    StampaRiga(tutto, ConDecimali(rapporto), "", "");
  }
  StampaAlPiu(cosa + "ms to the first screenful", Mediana(serie.PrimeViste), SbarraPrimaVista);
  StampaAlPiu(cosa + "ms of the longest stall after it", *std::ranges::max_element(serie.Soste), SbarraSosta);
}

}  // namespace
}  // namespace parvik::bench

int main(int argc, char** argv) {
  QApplication programma(argc, argv);
  parvik::bench::Misura(60, 21);
  parvik::bench::Misura(parvik::bench::RigheConSbarra, 11);
  parvik::bench::Misura(1'000'000, 1);
}
