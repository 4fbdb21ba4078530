#include "finestre/Banco.h"

#include <unistd.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDialog>
#include <QListWidget>
#include <QTextBlock>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <fstream>
#include <stdexcept>

#include "start/Avvio.h"

namespace parvik::bench {

Risposta Persona::Chiedi(const Messaggio& messaggio) {
  return messaggio.Tasti == Pulsanti::Ok ? Risposta::Ok : Risposta::No;
}

void Persona::Termina(int /*stato*/) {
  throw std::runtime_error("the editor gave up");
}

Banco::Banco(const std::filesystem::path& casa)
    : file_(std::filesystem::temp_directory_path() / ("banco-" + std::to_string(::getpid()) + ".img")) {
  auto dati = Avvia({.DirProgramma = PARVIK_PROGRAMMI, .CartelleConfigurazione = {}}, persona_);
  if (!dati) throw std::runtime_error("the example installation does not start");
  if (!casa.empty()) {
    dati->CartellaUtente = casa / "config";
    dati->CartellaStato = casa / "state";
    dati->IntervalloRecupero = std::chrono::seconds(1);
  }
  finestra_ = std::make_unique<frmParvik>(std::move(*dati), persona_);
  finestra_->move(0, 0);
  finestra_->show();
  ScegliFatture();
  if (!casa.empty()) Comanda("mnuRicorda");
  Svuota();
}

Banco::~Banco() {
  std::error_code errore;
  std::filesystem::remove(file_, errore);
}

void Banco::ScegliFatture() {
  QTimer orologio;
  QObject::connect(&orologio, &QTimer::timeout, [] {
    auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialogo == nullptr) return;
    dialogo->findChild<QListWidget*>("lstScelta")->setCurrentRow(0);
    dialogo->accept();
  });
  orologio.start(1);
  Comanda("mnuScelta");
}

void Banco::Apri(std::string_view byte) {
  std::ofstream(file_, std::ios::binary) << byte;
  persona_.Scegliera(file_);
  Comanda("mnuApri");
  Svuota();
}

void Banco::MostraAMisura() {
  Comanda("mnuMisura");
  const QTextBlock ultima = Testata().document()->lastBlock().previous();
  while (ultima.userData() == nullptr) QCoreApplication::processEvents();
  Svuota();
}

QPlainTextEdit& Banco::Testata() {
  return *finestra_->findChild<QPlainTextEdit*>("txtTCP_0");
}

ricAnte& Banco::Anteprima() {
  return *finestra_->findChild<ricAnte*>("ricAnte");
}

void Banco::Comanda(const char* azione) {
  finestra_->findChild<QAction*>(azione)->trigger();
}

void Svuota() {
  while (QCoreApplication::eventDispatcher()->processEvents(QEventLoop::AllEvents)) {
  }
}

double Quantile(std::vector<double> valori, double parte) {
  const auto quale = static_cast<std::size_t>(std::lround(parte * static_cast<double>(valori.size() - 1)));
  std::ranges::nth_element(valori, valori.begin() + static_cast<std::ptrdiff_t>(quale));
  return valori[quale];
}

}  // namespace parvik::bench
