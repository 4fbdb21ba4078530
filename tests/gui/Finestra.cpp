#include "Finestra.h"

#include <gtest/gtest.h>

#include <QAbstractEventDispatcher>
#include <QListWidget>
#include <QTest>
#include <QTimer>

#include "common/qtTesto.h"

namespace parvik::prova {

void NelProssimoDialogo(const std::function<void(QDialog&)>& compito) {
  auto* orologio = new QTimer(qApp);
  orologio->setInterval(1);
  QObject::connect(orologio, &QTimer::timeout, orologio, [orologio, compito] {
    auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialogo == nullptr || !dialogo->isVisible()) return;
    if (!dialogo->isActiveWindow()) return dialogo->activateWindow();  // a window manager's work
    orologio->stop();
    orologio->deleteLater();
    compito(*dialogo);
  });
  orologio->start();
}

Finestra::Finestra(Interlocutore* altro) : interlocutore_(altro != nullptr ? altro : &persona_) {
  std::filesystem::create_directories(Cartella() / "PARVIK");
  std::filesystem::copy(Esempio(), Cartella(), std::filesystem::copy_options::recursive);
  std::filesystem::create_symlink(prova::ModuloStampa(), ModuloStampa());
  std::filesystem::create_directory_symlink(prova::ModuloStampa().parent_path() / "manuale",
                                            Cartella() / "PARVIK" / "manuale");
  for (const auto& cartella : {Configurazione(), Stato(), Esecuzione()})
    std::filesystem::create_directory(cartella);
  Mostra();
}

void Finestra::Mostra() {
  auto dati = Avvia({.DirProgramma = Cartella() / "PARVIK",
                     .CartelleConfigurazione = {Configurazione(), ConfigurazioneDiTutti()},
                     .CartellaUtente = Configurazione(),
                     .CartellaStato = Stato(),
                     .CartellaEsecuzione = Esecuzione()},
                    *interlocutore_);
  if (!dati) qFatal("the example installation does not start");
  dati->IntervalloRecupero = intervallo_;
  finestra_ = std::make_unique<frmParvik>(std::move(*dati), *interlocutore_);
  finestra_->show();
  Attiva();
}

void Finestra::RiavviaDopo(const std::function<void()>& intanto) {
  EXPECT_TRUE(finestra_->close());
  finestra_.reset();
  intanto();
  Mostra();
}

void Finestra::Attiva() {
  finestra_->activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(finestra_.get()));
}

QPlainTextEdit& Finestra::Sezione(int indice) {
  return *Trova<QPlainTextEdit>(*finestra_, qPrintable(QStringLiteral("txtTCP_%1").arg(indice)));
}

QString Finestra::TestoAnteprima() {
  return PerSchermo(Anteprima().Contenuto().Testo());
}

void Finestra::Scegli(int numero) {
  NelProssimoDialogo([numero](QDialog& dialogo) {
    Trova<QListWidget>(dialogo, "lstScelta")->setCurrentRow(numero - 1);
    QTest::keyClick(&dialogo, Qt::Key_Return);
  });
  Azione("mnuScelta").trigger();
  Attiva();
}

void Finestra::Calma() {
  while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) {
  }
}

void Finestra::Apri(const char* nome) {
  persona_.Scegliera(Modello(nome));
  Azione("mnuApri").trigger();
}

}  // namespace parvik::prova
