#include "Scena.h"

#include <gtest/gtest.h>
#include <poll.h>

#include <QAbstractButton>
#include <QLineEdit>
#include <QTest>
#include <csignal>

namespace parvik::prova {
namespace {

int DomandeAperte() {
  int aperte = 0;
  for (const QWidget* finestra : QApplication::topLevelWidgets())
    if (finestra->isVisible() && finestra->windowTitle() == Domanda) ++aperte;
  return aperte;
}

}  // namespace

void Premi(QMessageBox::StandardButton pulsante) {
  QTest::mouseClick(qobject_cast<QMessageBox*>(InPrimoPiano())->button(pulsante), Qt::LeftButton);
}

void PremiTasto(Qt::Key tasto) {
  QTest::keyClick(InPrimoPiano(), tasto);
}

void ScriviNome(const std::filesystem::path& file) {
  auto* campo = Trova<QLineEdit>(*InPrimoPiano(), "fileNameEdit");
  campo->setText(QString::fromStdString(file.string()));
  QTest::keyClick(campo, Qt::Key_Return);
}

void Scena::Apri(const char* nome) {
  nome_ = nome;
  NelProssimoDialogo([this](QDialog&) { ScriviNome(Modello()); });
  finestra_.Azione("mnuApri").trigger();
  finestra_.Attiva();
  prima_ = Contenuto(Modello());
}

void Scena::Modifica() {
  modificata_ = true;
  QTest::keyClicks(&finestra_.Sezione(0), "testo");
}

void Scena::Quando(const char* davanti, std::function<void()> azione) {
  regia_.Poi(
      std::string("in front: ") + davanti, [davanti] { return Davanti(davanti); }, std::move(azione));
}

void Scena::Comando(const char* nome) {
  Quando(NessunDialogo, [this, nome] { finestra_.Azione(nome).trigger(); });
}

void Scena::ComandoCheChiede(const char* nome) {
  Comando(nome);
  if (modificata_) Quando(Domanda, [] { Premi(QMessageBox::No); });
}

void Scena::Segnale(const char* davanti, std::function<void()> e) {
  Quando(davanti, [this, e = std::move(e)] {
    sotto_ = QApplication::activeModalWidget();
    Manda();
    e();
  });
}

void Scena::Chiesto(QMessageBox::StandardButton risposta, std::function<bool()> e) {
  const auto nuova = [this] { return Davanti(Domanda) && QApplication::activeModalWidget() != sotto_; };
  regia_.Poi("the question", nuova, [this] { Manda(); });
  NienteDiNuovo();
  regia_.Poi(
      "the answer", [e = std::move(e)] { return Davanti(Domanda) && e(); }, [risposta] { Premi(risposta); });
}

void Scena::NienteDiNuovo() {
  regia_.Poi(
      "the signal to be taken", [this] { return !InAttesa(); },
      [this] { EXPECT_EQ(DomandeAperte(), domande_); });
}

void Scena::Tornata() {
  const auto tornata = [this] { return QApplication::activeModalWidget() == sotto_; };
  regia_.Poi("what was in front before", tornata, [this] {
    EXPECT_TRUE(finestra_->isVisible());
    EXPECT_TRUE(sotto_ == nullptr || (sotto_->isVisible() && sotto_->isEnabled()));
    EXPECT_TRUE(TestoIntatto());
    EXPECT_TRUE(FileIntatto());
  });
}

void Scena::FermaTutto() {
  regia_.Poi(
      "nothing", [] { return true; }, [] { QApplication::exit(Fermata); });
}

void Scena::Manda() {
  domande_ = DomandeAperte();
  EXPECT_EQ(std::raise(segnale_), 0);
}

/// A device that takes nothing has no content either.
bool Scena::FileIntatto() const {
  return nome_.empty() || std::filesystem::is_character_file(Modello()) || Contenuto(Modello()) == prima_;
}

bool Scena::FileSalvato() const {
  return Contenuto(Modello()).starts_with("testo");
}

bool Scena::TestoIntatto() {
  return !modificata_ || finestra_.Sezione(0).toPlainText().startsWith("testo");
}

/// A signal has come that nobody has taken yet.
bool Scena::InAttesa() const {
  pollfd campanello = {.fd = segnali_.Numero(), .events = POLLIN, .revents = 0};
  return ::poll(&campanello, 1, 0) > 0;
}

}  // namespace parvik::prova
