#include "OgniFinestra.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMessageBox>
#include <QTest>

#include "Finestra.h"

namespace parvik::prova {
namespace {

using Prova = std::function<void(const std::string& nome, QWidget& finestra)>;

void SenzaTipo(const Prova& prova) {
  Finestra finestra;
  Finestra::Calma();
  prova("main window without a type", *finestra);
}

/// With all that it can show.
void Intera(const Prova& prova) {
  Finestra finestra;
  finestra->resize(1500, 900);
  finestra.Scegli(1);
  finestra.Apri("FATT01.IMG");
  for (const char* comando : {"mnuAnte", "mnuRighello", "mnuVerifica", "mnuPannelloCampi", "mnuSostituisci"})
    finestra.Azione(comando).trigger();
  Trova<QLineEdit>(*finestra, "txtCerca")->setText("V1");
  Finestra::Calma();
  prova("main window", *finestra);
}

void Modale(const char* comando, const Prova& prova) {
  Finestra finestra;
  if (std::string(comando) != "mnuScelta") {
    finestra.Scegli(1);
    finestra.Sezione(0).setPlainText("x");  // an empty template is not printed
  }
  bool aperta = false;
  NelProssimoDialogo([&](QDialog& dialogo) {
    aperta = true;
    Finestra::Calma();
    prova(dialogo.objectName().toStdString(), dialogo);
    dialogo.reject();
  });
  finestra.Azione(comando).trigger();
  finestra.Attiva();
  EXPECT_TRUE(aperta) << comando;
}

void NonModale(const char* comando, const char* nome, const Prova& prova) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Azione(comando).trigger();
  Finestra::Calma();
  auto* dialogo = finestra->findChild<QDialog*>(nome);
  ASSERT_NE(dialogo, nullptr) << nome;
  dialogo->activateWindow();
  Finestra::Calma();
  prova(nome, *dialogo);
}

void Casella(const Prova& prova) {
  Finestra finestra;
  finestra.Scegli(1);
  finestra.Azione("mnuInserisci").trigger();
  Finestra::Calma();
  prova("pnlInserisci", *Trova<QWidget>(*finestra, "pnlInserisci"));
}

void Domanda(const Prova& prova) {
  qtDialoghi dialoghi;
  Finestra finestra(dialoghi);
  finestra.Scegli(1);
  finestra.Sezione(0).setPlainText("x");
  bool aperta = false;
  NelProssimoDialogo([&](QDialog& dialogo) {
    aperta = true;
    Finestra::Calma();
    prova("question", dialogo);
    dialogo.reject();
  });
  finestra.Azione("mnuEsci").trigger();
  finestra.Attiva();
  EXPECT_TRUE(aperta);
}

}  // namespace

void PerOgniFinestra(const Prova& prova) {
  SenzaTipo(prova);
  Intera(prova);
  for (const char* comando : {"mnuScelta", "mnuInfo", "mnuVar", "mnuFlag", "mnuStile", "mnuLingua",
                              "mnuPagina", "mnuCostante", "mnuComando", "mnuFoglio", "mnuStampa"})
    Modale(comando, prova);
  NonModale("mnuRighe", "frmTotRighe", prova);
  NonModale("mnuSettaFlag", "frmSettaFlag", prova);
  NonModale("mnuGuida", "frmGuida", prova);
  Casella(prova);
  Domanda(prova);
}

}  // namespace parvik::prova
