#include "Regia.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <utility>

namespace parvik::prova {
namespace {

constexpr int TempoMassimo = 20'000;  // milliseconds
constexpr int NonFinito = -2;

}  // namespace

QDialog* InPrimoPiano() {
  auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (dialogo == nullptr || !dialogo->isVisible()) return nullptr;
  if (dialogo->isActiveWindow()) return dialogo;
  dialogo->activateWindow();  // a window manager's work
  return nullptr;
}

bool Davanti(const std::string& nome) {
  if (nome.empty()) return QApplication::activeModalWidget() == nullptr;
  const QDialog* dialogo = InPrimoPiano();
  if (dialogo == nullptr) return false;
  return dialogo->objectName().toStdString() == nome || dialogo->windowTitle().toStdString() == nome;
}

Regia::Regia() {
  orologio_.setInterval(1);
  QObject::connect(&orologio_, &QTimer::timeout, &orologio_, [this] { Guarda(); });
}

void Regia::Poi(std::string cosa, Condizione quando, Azione azione) {
  passi_.push_back({std::move(cosa), std::move(quando), std::move(azione)});
}

int Regia::Esegui() {
  attesa_.start();
  orologio_.start();
  const int stato = QApplication::exec();
  orologio_.stop();
  for (const Passo& passo : passi_) ADD_FAILURE() << "ended before: " << passo.Cosa;
  return stato;
}

/// A timer does not fire while its own slot runs, so what may block is begun by another.
void Regia::Guarda() {
  if (attesa_.hasExpired(TempoMassimo)) {
    ADD_FAILURE() << "waited in vain for " << (passi_.empty() ? "the end" : passi_.front().Cosa);
    passi_.clear();
    return QApplication::exit(NonFinito);
  }
  if (passi_.empty() || !passi_.front().Quando()) return;
  const Azione azione = std::move(passi_.front().Fai);
  passi_.pop_front();
  attesa_.start();
  QTimer::singleShot(0, &orologio_, azione);
}

}  // namespace parvik::prova
